#include "archive/tree/wholefile.h"

#include "archive/outcome/shownpath.h"
#include "archive/tree/systemerror.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace recastor {

namespace {

constexpr std::size_t kBlockSize = 65536;

std::string Unfinished(const std::string& fileName) {
    return fileName + ".part";
}

} // namespace

FileDescriptor OpenNewFile(const std::string& fileName) {
    ::unlink(fileName.c_str());
    FileDescriptor file = FileDescriptor::Open(fileName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
    if (!file.IsOpen()) {
        throw SystemError("cannot write " + ShownPath(fileName));
    }
    return file;
}

BlockWriteBuffer::int_type BlockWriteBuffer::overflow(int_type c) {
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        const char byte = traits_type::to_char_type(c);
        return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
    }
    return traits_type::not_eof(c);
}

std::streamsize BlockWriteBuffer::xsputn(const char* text, std::streamsize count) {
    m_block.append(text, static_cast<std::size_t>(count));
    return m_block.size() < kBlockSize || sync() == 0 ? count : 0;
}

int BlockWriteBuffer::sync() {
    const bool written = m_file.Write(m_block);
    m_error = written ? m_error : errno;
    m_block.clear();
    return written ? 0 : -1;
}

WholeFile::WholeFile(std::string fileName) :
    m_fileName(std::move(fileName)), m_file(OpenNewFile(Unfinished(m_fileName))), m_buffer(m_file),
    m_stream(&m_buffer) {}

WholeFile::~WholeFile() {
    if (!m_inPlace) {
        ::unlink(Unfinished(m_fileName).c_str());
    }
}

void WholeFile::Finish() {
    m_stream.flush();
    int error = m_stream ? 0 : m_buffer.Error();
    // A file system of another host may tell at the close only that its disk is full.
    if (error == 0 && !m_file.Close()) {
        error = errno;
    }
    if (error == 0 && std::rename(Unfinished(m_fileName).c_str(), m_fileName.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        throw SystemError("cannot write " + ShownPath(m_fileName), error);
    }
    m_inPlace = true;
}

} // namespace recastor
