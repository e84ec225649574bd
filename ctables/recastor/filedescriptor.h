/// An open file of the operating system, and a stream that reads from it.
#pragma once

#include <array>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace recastor {

/// Owns a file descriptor. Calls that a signal interrupts are made again.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    ~FileDescriptor();
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;

    /// Opens the file `name` with the `flags` of open(2), and O_CLOEXEC; one that is created by it
    /// can be read and written by everyone, less the user's umask. Not open on failure.
    static FileDescriptor Open(const std::string& name, int flags);

    bool IsOpen() const { return m_number >= 0; }
    /// The descriptor, for calls of the system's; it stays this object's.
    int Number() const { return m_number; }

    /// Reads up to `size` bytes; 0 at the end, below 0 on failure.
    long Read(char* buffer, std::size_t size) const;
    /// Writes all of `bytes`; false on failure.
    bool Write(std::string_view bytes) const;
    /// Goes back to the first byte; false for a file that can be read only once.
    bool Rewind() const;
    /// Cuts a regular file to nothing; leaves others alone. False on failure.
    bool Truncate() const;
    /// False when the close reports that earlier writes failed.
    bool Close();

    bool IsDirectory() const;
    bool IsRegular() const;
    /// Whether both are open on one file of a kind that keeps what is written to it; nothing when
    /// the system cannot tell.
    std::optional<bool> IsSameFileAs(const FileDescriptor& other) const;

private:
    std::optional<struct stat> Status() const;

    int m_number = -1;
};

/// Thrown when a file cannot be read to its end.
class ReadFailure {};

/// Reads a file that it does not own; throws ReadFailure, since a text that ends too early is not
/// that text.
class FileReadBuffer : public std::streambuf {
public:
    explicit FileReadBuffer(const FileDescriptor& file) : m_file(file) {}

protected:
    int_type underflow() override;

private:
    const FileDescriptor& m_file;
    std::array<char, 65536> m_block{};
};

} // namespace recastor
