/// The summary functions as GPL writes them.
#pragma once

#include "platform/zelkwigr/chartelements.h"

#include <string>
#include <string_view>

namespace recastor {

/// What is summarised in place of the measure `y` itself, `y*y` or `y>=5`; empty when it is `y`.
std::string SummaryExpression(const SummaryFunction& function, const std::string& y);

/// The function of `operand`, which is an algebra or the name of one variable.
std::string SummaryCall(const SummaryFunction& function, std::string_view operand);

/// What an axis says of the function, in front of the measure's name: `Percentile 25 of`.
std::string SummaryAxisText(const SummaryFunction& function);

} // namespace recastor
