/// What the parts of a chart are called where a reader sees them.
#pragma once

#include "platform/zelkwigr/chartfacts.h"

#include <string>
#include <string_view>

namespace recastor {

/// What a variable is called that has no title: its name, which the text belongs to, or a word.
std::string_view VariableLabel(const ChartVariable& variable);

/// What Y is called when it has no title. It tells what is summarised: `Mean salary`.
std::string MeasureLabel(const ChartFacts& facts);

} // namespace recastor
