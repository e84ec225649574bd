/// What files contain: are two the same?
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <cstdint>
#include <string>

namespace recastor {

/// The content's 128-bit hash, hexadecimal. Throws FileError.
std::string HashOfFile(const std::string& fullPath);

/// Whether the regular file `fullPath` can be read and has the content of an open one, whose
/// position is lost.
bool HasContentOf(const FileDescriptor& file, const std::string& fullPath);

/// Bytes in an open file.
std::uint64_t SizeOf(const FileDescriptor& file);

} // namespace recastor
