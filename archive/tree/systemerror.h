/// What the operating system says about a call that failed.
#pragma once

#include <cerrno>
#include <stdexcept>
#include <string>
#include <system_error>

namespace recastor {

/// A file or folder could not be used; what() tells why, in words for the user.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The source cannot be read, as opposed to the target, which cannot be written.
class UnreadableFile : public FileError {
public:
    using FileError::FileError;
};

/// `what` and the reason that `number`, an errno, stands for.
inline FileError SystemError(const std::string& what, int number = errno) {
    // The checker does not see that the inherited constructor is explicit.
    // NOLINTNEXTLINE(modernize-return-braced-init-list)
    return FileError(what + ": " + std::generic_category().message(number));
}

} // namespace recastor
