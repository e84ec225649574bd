#include "ctables/recastor/filedescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace recastor {

namespace {

/// Makes a call of the system's again as long as a signal interrupts it.
template <typename Call>
auto Uninterrupted(const Call& call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) {
            return result;
        }
    }
}

} // namespace

FileDescriptor FileDescriptor::Open(const std::string& name, int flags) {
    constexpr mode_t kReadAndWriteForAll = 0666;
    return FileDescriptor(Uninterrupted(
        [&] { return ::open(name.c_str(), flags | O_CLOEXEC, kReadAndWriteForAll); }));
}

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
    return Uninterrupted([&] { return ::read(m_number, buffer, size); });
}

bool FileDescriptor::Write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t count =
            Uninterrupted([&] { return ::write(m_number, bytes.data(), bytes.size()); });
        if (count <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool FileDescriptor::Rewind() const {
    return ::lseek(m_number, 0, SEEK_SET) == 0;
}

bool FileDescriptor::Truncate() const {
    return !IsRegular() || Uninterrupted([&] { return ::ftruncate(m_number, 0); }) == 0;
}

bool FileDescriptor::Close() {
    if (!IsOpen()) {
        return true;
    }
    // After EINTR the descriptor is gone all the same, and nothing was lost.
    return ::close(std::exchange(m_number, -1)) == 0 || errno == EINTR;
}

std::optional<struct stat> FileDescriptor::Status() const {
    struct stat status {};
    return ::fstat(m_number, &status) == 0 ? std::optional(status) : std::nullopt;
}

bool FileDescriptor::IsDirectory() const {
    const auto status = Status();
    return status && S_ISDIR(status->st_mode);
}

bool FileDescriptor::IsRegular() const {
    const auto status = Status();
    return status && S_ISREG(status->st_mode);
}

std::optional<bool> FileDescriptor::IsSameFileAs(const FileDescriptor& other) const {
    const auto mine = Status();
    const auto theirs = other.Status();
    if (!mine || !theirs) {
        return std::nullopt;
    }
    return !S_ISCHR(mine->st_mode) && mine->st_dev == theirs->st_dev &&
           mine->st_ino == theirs->st_ino;
}

FileReadBuffer::int_type FileReadBuffer::underflow() {
    const long count = m_file.Read(m_block.data(), m_block.size());
    if (count < 0) {
        throw ReadFailure();
    }
    if (count == 0) {
        return traits_type::eof();
    }
    setg(m_block.data(), m_block.data(), m_block.data() + count);
    return traits_type::to_int_type(*gptr());
}

} // namespace recastor
