/// Tells two skeletons of commands apart.
#pragma once

#include "archive/picture/tableskeleton.h"

#include <string>
#include <vector>

namespace recastor {

/// What two skeletons differ in, for a reader: "table 2: columns". Empty when they are equal.
std::vector<std::string> DifferencesOf(const CommandSkeleton& one, const CommandSkeleton& other);

} // namespace recastor
