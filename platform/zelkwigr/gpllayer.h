/// One ELEMENT line.
#pragma once

#include "platform/zelkwigr/gplchart.h"

#include <string>
#include <string_view>

namespace recastor {

/// A kind of element, its position, and the functions behind it in their order; those that are
/// empty are left out. The views are of fixed words.
struct Layer {
    std::string_view kind;
    std::string position;
    std::string color;
    std::string surface; ///< pattern or shape, after STYLE
    std::string size;
    std::string split;
    std::string labels;
    std::string_view shape; ///< of the element itself
    std::string_view jump;
    std::string_view missing;
};

/// What one point of an element stands for: one case or many.
enum class Values { kEach, kSummarised };

/// A layer with the aesthetics of filled elements, and of points and lines.
Layer FilledLayer(const GplChart& chart);
Layer PointedLayer(const GplChart& chart, Values values);

/// F(A(y)): the function over the algebra of what it is of.
std::string MeasureSummary(const GplChart& chart, const std::optional<SummaryFunction>& function);

/// `alpha(0.95)` of 95.
std::string AlphaOfPercent(double percent);

void AppendLayer(const Layer& layer, std::string& text);

} // namespace recastor
