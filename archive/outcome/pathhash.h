/// Numbers that stand for paths.
#pragma once

#include <cstdint>
#include <string_view>

namespace recastor {

/// A number of a path that is the same on every machine, evenly spread.
std::uint64_t HashOfPath(std::string_view path);

} // namespace recastor
