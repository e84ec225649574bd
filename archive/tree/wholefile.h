/// A text file that stands in its place only when it is whole.
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <cerrno>
#include <ostream>
#include <streambuf>
#include <string>

namespace recastor {

/// Opens a file that was not there before for writing: what stood in its place is removed, so that
/// nothing is written through a link. Throws FileError.
FileDescriptor OpenNewFile(const std::string& fileName);

/// Writes to a file that it does not own, in blocks.
class BlockWriteBuffer : public std::streambuf {
public:
    explicit BlockWriteBuffer(const FileDescriptor& file) : m_file(file) {}

    /// The errno of the write that failed, when the stream has.
    int Error() const { return m_error; }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    const FileDescriptor& m_file;
    std::string m_block;
    int m_error = ENOMEM; ///< what else lets a stream fail than a write
};

class WholeFile {
public:
    /// Throws FileError when a file cannot be written beside `fileName`.
    explicit WholeFile(std::string fileName);
    /// Removes the file unless Finish() put it in its place.
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    std::ostream& Stream() { return m_stream; }
    /// Throws FileError when any of it could not be written: then it does not take the place of
    /// what stood there.
    void Finish();

private:
    std::string m_fileName;
    FileDescriptor m_file;
    BlockWriteBuffer m_buffer;
    std::ostream m_stream;
    bool m_inPlace = false;
};

} // namespace recastor
