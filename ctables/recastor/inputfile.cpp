#include "ctables/recastor/inputfile.h"

#include "platform/zelkmb/encodingcheck.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace recastor {

namespace {

using Block = std::array<char, 65536>;

/// Hands `take` the rest of the file block by block.
template <typename Take>
bool ForEachBlock(const FileDescriptor& file, const Take& take) {
    const auto block = std::make_unique<Block>();
    long count = 0;
    while ((count = file.Read(block->data(), block->size())) > 0) {
        if (!take(std::string_view(block->data(), static_cast<std::size_t>(count)))) {
            return false;
        }
    }
    return count == 0;
}

/// A temporary file without a name; it vanishes when it is closed.
FileDescriptor UnnamedTemporaryFile() {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
    return file != nullptr ? FileDescriptor(::fcntl(::fileno(file.get()), F_DUPFD_CLOEXEC, 0))
                           : FileDescriptor();
}

/// Finds out how the first line of a text that comes in blocks ends.
class FirstLineEnd {
public:
    void Feed(std::string_view block) {
        for (; !m_decided && !block.empty(); block.remove_prefix(1)) {
            const char c = block.front();
            m_crLf = m_afterCr && c == '\n';
            m_decided = m_afterCr || c == '\n';
            m_afterCr = c == '\r';
        }
    }
    bool IsCrLf() const { return m_crLf; }

private:
    bool m_decided = false;
    bool m_afterCr = false;
    bool m_crLf = false;
};

/// Finds out whether a text that comes in blocks begins with the mark of UTF-16.
class Utf16Mark {
public:
    void Feed(std::string_view block) { m_start += block.substr(0, kLength - m_start.size()); }
    bool IsFound() const { return m_start == "\xFF\xFE" || m_start == "\xFE\xFF"; }

private:
    static constexpr std::size_t kLength = 2;
    std::string m_start; ///< up to kLength bytes
};

} // namespace

bool InputFile::Open(const std::string& name) {
    m_file = FileDescriptor::Open(name, O_RDONLY);
    return m_file.IsOpen() && !m_file.IsDirectory() && SpoolUnlessRewindable();
}

bool InputFile::SpoolUnlessRewindable() {
    if (m_file.Rewind()) {
        return true;
    }
    FileDescriptor spool = UnnamedTemporaryFile();
    if (!spool.IsOpen()) {
        return false;
    }
    const auto copy = [&](std::string_view block) { return spool.Write(block); };
    if (!ForEachBlock(m_file, copy) || !spool.Rewind()) {
        return false;
    }
    m_file = std::move(spool);
    return true;
}

bool InputFile::Inspect() {
    EncodingCheck encoding;
    FirstLineEnd lineEnd;
    Utf16Mark utf16;
    const bool readToTheEnd = ForEachBlock(m_file, [&](std::string_view block) {
        encoding.Feed(block);
        lineEnd.Feed(block);
        utf16.Feed(block);
        return true;
    });
    m_utf16 = utf16.IsFound();
    m_validText = encoding.IsValid();
    m_crLf = lineEnd.IsCrLf();
    return readToTheEnd && m_file.Rewind();
}

} // namespace recastor
