#include "tests/fuzz/inmemoryrun.h"

#include "ctables/recastor/commandline.h"
#include "ctables/recastor/filedescriptor.h"
#include "platform/zelkmb/zelkmb.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <sys/mman.h>

namespace recastor {

namespace {

/// A file without a place in the file system, and the name by which this process can open it.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view content) :
        m_number(memfd_create("fuzz", 0)), m_file(m_number) {
        if (!m_file.Write(content)) {
            std::abort();
        }
    }

    std::string Name() const { return "/proc/self/fd/" + std::to_string(m_number); }

    std::string Content() const {
        std::string content;
        std::array<char, 4096> block{};
        m_file.Rewind();
        for (long got = 1; got > 0;) {
            got = m_file.Read(block.data(), block.size());
            content.append(block.data(), static_cast<std::size_t>(std::max(got, 0L)));
        }
        return content;
    }

private:
    int m_number;
    FileDescriptor m_file;
};

bool Contains(std::string_view text, std::string_view lowerCaseWord) {
    const auto equals = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; };
    return std::search(text.begin(), text.end(), lowerCaseWord.begin(), lowerCaseWord.end(),
                       equals) != text.end();
}

} // namespace

InMemoryResult ConvertInMemory(std::string_view input, bool batch) {
    std::cout.setstate(std::ios::badbit);
    std::cerr.setstate(std::ios::badbit);
    const MemoryFile source(input);
    const MemoryFile target("");
    EnableLocale();
    InMemoryResult result;
    result.status = RunConversion({batch, source.Name(), target.Name()});
    result.output = target.Content();
    std::cerr.clear();
    return result;
}

bool MayStopTheProgram(std::string_view input) {
    return Contains(input, "bla") && Contains(input, "zer");
}

} // namespace recastor
