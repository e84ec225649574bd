#include "ctables/recastor/filedescriptor.h"

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace recastor {

FileDescriptor::~FileDescriptor() {
    Close();
}

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept :
    m_number(std::exchange(other.m_number, -1)) {}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
        Close();
        m_number = std::exchange(other.m_number, -1);
    }
    return *this;
}

long FileDescriptor::Read(char* buffer, std::size_t size) const {
    for (;;) {
        const ssize_t count = ::read(m_number, buffer, size);
        if (count >= 0 || errno != EINTR) {
            return count;
        }
    }
}

bool FileDescriptor::Write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = ::write(m_number, bytes.data(), bytes.size());
        if (count > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

bool FileDescriptor::Rewind() const {
    return ::lseek(m_number, 0, SEEK_SET) == 0;
}

bool FileDescriptor::Truncate() const {
    return !IsRegular() || ::ftruncate(m_number, 0) == 0;
}

bool FileDescriptor::Close() {
    if (!IsOpen()) {
        return true;
    }
    // After EINTR the descriptor is gone all the same, and nothing was lost.
    return ::close(std::exchange(m_number, -1)) == 0 || errno == EINTR;
}

struct stat FileDescriptor::Status() const {
    struct stat status {};
    ::fstat(m_number, &status);
    return status;
}

bool FileDescriptor::IsDirectory() const {
    return S_ISDIR(Status().st_mode);
}

bool FileDescriptor::IsRegular() const {
    return S_ISREG(Status().st_mode);
}

bool FileDescriptor::IsSameFileAs(const FileDescriptor& other) const {
    const struct stat mine = Status();
    const struct stat theirs = other.Status();
    return !S_ISCHR(mine.st_mode) && mine.st_dev == theirs.st_dev && mine.st_ino == theirs.st_ino;
}

FileReadBuffer::int_type FileReadBuffer::underflow() {
    const long count = m_file.Read(m_block.data(), m_block.size());
    if (count <= 0) {
        return traits_type::eof();
    }
    setg(m_block.data(), m_block.data(), m_block.data() + count);
    return traits_type::to_int_type(*gptr());
}

} // namespace recastor
