/// The skeleton of what a CTABLES command makes, read from its text.
#pragma once

#include "archive/picture/tableskeleton.h"

#include <string_view>

namespace recastor {

/// Reads what the converter writes in the place of a TABLES command: MRSETS, if there is any, and
/// CTABLES, with their periods. Throws std::invalid_argument for a text of another form.
CommandSkeleton SkeletonOfCtables(std::string_view text);

} // namespace recastor
