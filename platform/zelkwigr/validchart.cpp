#include "platform/zelkwigr/validchart.h"

#include "platform/zelkwigr/chartquestions.h"

#include <algorithm>

namespace recastor {

namespace {

bool IsValidRange(const ValueRange& range) {
    return !range.min || !range.max || *range.min < *range.max;
}

bool AreRangesValid(const ChartModel& chart) {
    for (const auto* dimension :
         {&chart.x1, &chart.x2, &chart.y, &chart.color, &chart.style, &chart.size}) {
        if (*dimension && !IsValidRange((*dimension)->range)) {
            return false;
        }
    }
    return std::all_of(chart.scaleRanges.begin(), chart.scaleRanges.end(),
                       [](const ScaleRange& scale) { return IsValidRange(scale.range); });
}

bool IsCountedDimension(const std::optional<ChartDimension>& dimension) {
    return dimension && IsCounted(dimension->variable);
}

bool IsCountedVariable(const std::optional<ChartVariable>& variable) {
    return variable && IsCounted(*variable);
}

/// Counts are made of the data, so that they neither split nor name nor order it.
bool AreCountsInPlace(const ChartModel& chart) {
    for (const auto* dimension : {&chart.y, &chart.color, &chart.size}) {
        if (IsCountedDimension(*dimension) && HasType(*dimension, Measurement::kCategorical)) {
            return false;
        }
    }
    return !IsCountedDimension(chart.x1) && !IsCountedDimension(chart.x2) &&
           !IsCountedDimension(chart.style) && !IsCountedVariable(chart.pointLabel) &&
           !IsCountedVariable(chart.caseLabel) &&
           std::none_of(chart.panels.begin(), chart.panels.end(), IsCounted) &&
           std::none_of(chart.categoryOrders.begin(), chart.categoryOrders.end(),
                        [](const CategoryOrder& order) { return IsCounted(order.variable); });
}

/// The function of BAR, LINE and AREA: values only have one, categories only their mode.
bool IsValidSummary(const ChartModel& chart, const std::optional<SummaryFunction>& function) {
    if (!function) {
        return true;
    }
    return IsVariable(chart.y) && (!HasType(chart.y, Measurement::kCategorical) ||
                                   function->statistic == Statistic::kMode);
}

/// Whether the shares of a pie can be told by this function: they add up to a whole.
bool AddsUp(const SummaryFunction& function) {
    switch (function.statistic) {
    case Statistic::kSum:
    case Statistic::kSumOfAbsolute:
    case Statistic::kSumOfSquares:
    case Statistic::kNumber:
        return true;
    default:
        return false;
    }
}

bool IsValidPie(const ChartModel& chart, const Pie& pie) {
    const auto& slices = chart.color ? chart.color : chart.style ? chart.style : chart.x1;
    if (!HasType(slices, Measurement::kCategorical)) {
        return false;
    }
    if (!chart.summaryVariable && HasType(chart.y, Measurement::kCategorical)) {
        return false;
    }
    if (!pie.function) {
        return true;
    }
    const ChartVariable* measure = PieMeasure(chart);
    return measure != nullptr && !IsCounted(*measure) && AddsUp(*pie.function);
}

/// What an element asks of the chart that it stands in.
struct IsValidElement {
    const ChartModel& chart;

    bool operator()(const Scatter&) const { return chart.x1 && IsVariable(chart.y); }
    bool operator()(const Bar& bar) const { return IsValidSummary(chart, bar.function); }
    bool operator()(const Area& area) const { return IsValidSummary(chart, area.function); }
    bool operator()(const Line& line) const { return IsValidSummary(chart, line.function); }
    bool operator()(const Pie& pie) const { return IsValidPie(chart, pie); }
    bool operator()(const Box&) const { return IsScaleVariable(chart.y); }
    bool operator()(const ErrorBar&) const { return IsScaleVariable(chart.y); }
    bool operator()(const Histogram&) const {
        return HasType(chart.x1, Measurement::kScale) && !IsVariable(chart.y);
    }
    bool operator()(const FitLine&) const {
        return HasType(chart.x1, Measurement::kScale) && IsScaleVariable(chart.y);
    }

private:
    static bool IsScaleVariable(const std::optional<ChartDimension>& dimension) {
        return IsVariable(dimension) && HasType(dimension, Measurement::kScale);
    }
};

} // namespace

bool IsValidChart(const ChartModel& chart) {
    const bool hasDepth = chart.coordinate == Coordinate::kThree;
    return !chart.elements.empty() && AreRangesValid(chart) && AreCountsInPlace(chart) &&
           !HasType(chart.style, Measurement::kScale) && hasDepth == chart.x2.has_value() &&
           std::all_of(chart.elements.begin(), chart.elements.end(),
                       [&chart](const ChartElement& element) {
                           return std::visit(IsValidElement{chart}, element);
                       });
}

} // namespace recastor
