/// Charts that the language allows and GPL cannot draw.
#pragma once

#include "platform/zelkwigr/chartfacts.h"

#include <string>

namespace recastor {

/// The comment command that says why a valid chart cannot be converted, with its period; empty
/// when it can.
std::string WhyChartHasNoGpl(const ChartFacts& facts);

} // namespace recastor
