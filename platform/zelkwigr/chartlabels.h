/// What the parts of a chart are called where a reader sees them.
#pragma once

#include "platform/zelkwigr/chartfacts.h"

#include <string>
#include <vector>

namespace recastor {

/// The name of a variable that has no title.
std::string VariableLabel(const ChartVariable& variable);

/// The lines of a dimension's title; the name of its variable when it has none.
std::vector<std::string> DimensionLabel(const ChartDimension& dimension);

/// The same of the chart's Y. Without a title it tells what is summarised: `Mean salary`.
std::vector<std::string> MeasureLabel(const ChartFacts& facts);

} // namespace recastor
