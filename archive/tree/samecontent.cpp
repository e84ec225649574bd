#include "archive/tree/samecontent.h"

#include "archive/tree/systemerror.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace recastor {

namespace {

using Block = std::array<char, 65536>;

/// Nothing when the file cannot be read.
std::optional<XXH128_hash_t> HashOfContent(const FileDescriptor& file) {
    const std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state(XXH3_createState(),
                                                                                &XXH3_freeState);
    XXH3_128bits_reset(state.get());
    const auto block = std::make_unique<Block>();
    long count = 0;
    while ((count = file.Read(block->data(), block->size())) > 0) {
        XXH3_128bits_update(state.get(), block->data(), static_cast<std::size_t>(count));
    }
    return count < 0 ? std::nullopt : std::optional(XXH3_128bits_digest(state.get()));
}

} // namespace

std::string HashOfFile(const std::string& fullPath) {
    const FileDescriptor file = FileDescriptor::Open(fullPath, O_RDONLY);
    const auto hash = file.IsOpen() ? HashOfContent(file) : std::nullopt;
    if (!hash) {
        throw SystemError("cannot be read");
    }
    std::array<char, 33> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%016llx%016llx",
                                    static_cast<unsigned long long>(hash->high64),
                                    static_cast<unsigned long long>(hash->low64)));
    return text.data();
}

bool HasContentOf(const FileDescriptor& file, const std::string& fullPath) {
    const FileDescriptor other = FileDescriptor::Open(fullPath, O_RDONLY | O_NONBLOCK);
    if (!other.IsOpen() || !other.IsRegular() || SizeOf(file) != SizeOf(other) || !file.Rewind()) {
        return false;
    }
    const auto one = HashOfContent(file);
    const auto another = HashOfContent(other);
    return one && another && XXH128_isEqual(*one, *another) != 0;
}

std::uint64_t SizeOf(const FileDescriptor& file) {
    struct stat status {};
    return ::fstat(file.Number(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

} // namespace recastor
