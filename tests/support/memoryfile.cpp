#include "tests/support/memoryfile.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <sys/mman.h>

namespace recastor {

MemoryFile::MemoryFile(std::string_view content) :
    m_number(memfd_create("recastor-test", 0)), m_file(m_number) {
    if (!m_file.Write(content)) {
        throw std::runtime_error("cannot make a file in memory");
    }
}

std::string MemoryFile::Content() const {
    std::string content;
    std::array<char, 4096> block{};
    m_file.Rewind();
    for (long got = 1; got > 0;) {
        got = m_file.Read(block.data(), block.size());
        content.append(block.data(), static_cast<std::size_t>(std::max(got, 0L)));
    }
    return content;
}

} // namespace recastor
