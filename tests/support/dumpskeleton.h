/// Skeletons of tables as one line each.
#pragma once

#include <string>

namespace recastor {

struct TableSkeleton;

/// The dimensions: `income[S]{MEAN 'Mean' F8.2 | COUNT}>sex[C]+after'All' + b[C] BY - BY c[C]`.
/// Behind a name stand its kind and its total with its label, in braces its statistics and, behind
/// a bar, those of its total; `-` is a dimension that is not there, `...` one that is too large.
std::string DumpDimensions(const TableSkeleton& table);

} // namespace recastor
