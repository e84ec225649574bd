/// The summary functions of IGRAPH.
#pragma once

#include "platform/zelkwigr/chartelements.h"

#include <optional>

namespace recastor {

class ChartTokenReader;

/// Reads a function in parentheses, (MEAN) or (PTILE(25)), when a parenthesis comes next.
std::optional<SummaryFunction> ReadSummaryFunction(ChartTokenReader& reader);

} // namespace recastor
