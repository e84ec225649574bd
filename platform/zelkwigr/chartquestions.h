/// Small questions about a chart that its checks and its translation ask alike.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

#include <algorithm>
#include <optional>
#include <variant>

namespace recastor {

/// What a pie measures: SUMMARYVAR, else Y; null for a pie of counts that names neither.
inline const ChartVariable* PieMeasure(const ChartModel& chart) {
    if (chart.summaryVariable) {
        return &chart.summaryVariable->variable;
    }
    return chart.y ? &chart.y->variable : nullptr;
}

/// `$count` and `$pct`: what the cases themselves add up to.
inline bool IsCounted(const ChartVariable& variable) {
    return variable.builtIn == BuiltIn::kCount || variable.builtIn == BuiltIn::kPercent;
}

/// Whether there is such a dimension and its values come from the data.
inline bool IsVariable(const std::optional<ChartDimension>& dimension) {
    return dimension && !IsCounted(dimension->variable);
}

/// Whether the dimension is there and of this type.
inline bool HasType(const std::optional<ChartDimension>& dimension, Measurement type) {
    return dimension && dimension->type == type;
}

/// Whether one of the chart's elements is of one of these kinds.
template <class... Kinds>
bool HasElement(const ChartModel& chart) {
    return std::any_of(chart.elements.begin(), chart.elements.end(),
                       [](const ChartElement& element) {
                           return (std::holds_alternative<Kinds>(element) || ...);
                       });
}

} // namespace recastor
