#include "archive/outcome/pathhash.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace recastor {

std::uint64_t HashOfPath(std::string_view path) {
    return XXH3_64bits(path.data(), path.size());
}

} // namespace recastor
