/// The syntax file that is read, and what must be known of it as a whole before its first line.
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <istream>
#include <string>

namespace recastor {

/// Opens and inspects the input. What can be read only once (a pipe) is first copied to a temporary
/// file without a name.
class InputFile {
public:
    InputFile() : m_buffer(m_file), m_stream(&m_buffer) {}

    /// False when `name` cannot be opened for reading, is a directory or cannot be read twice.
    bool Open(const std::string& name);
    /// Reads the input once through; false when that fails.
    bool Inspect();

    /// The input from its first byte on. A read from it throws ReadFailure when it fails.
    std::istream& Stream() { return m_stream; }
    const FileDescriptor& File() const { return m_file; }

    /// Whether the input begins with the byte-order mark of UTF-16, which editors call "Unicode".
    /// Such a text cannot be read: half of the bytes of plain letters are NULs.
    bool IsUtf16() const { return m_utf16; }
    /// Whether the whole input is valid in the locale's encoding.
    bool IsValidText() const { return m_validText; }
    /// Whether the first line ends in a carriage return and a line feed.
    bool HasCrLf() const { return m_crLf; }

private:
    bool SpoolUnlessRewindable();

    FileDescriptor m_file;
    FileReadBuffer m_buffer;
    std::istream m_stream;
    bool m_utf16 = false;
    bool m_validText = true;
    bool m_crLf = false;
};

} // namespace recastor
