// SCALE.

#include "platform/zelkwigr/gplaesthetics.h"
#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

#include <algorithm>
#include <optional>
#include <string>
#include <variant>

namespace recastor {

namespace {

/// The arguments of a scale behind its place; `function` is null when there is nothing to scale.
struct Scale {
    const char* function = nullptr;
    std::string first;
    std::string second;
    std::string third;
};

void AppendScale(const std::string& place, const Scale& scale, std::string& text) {
    AppendGplCallLine(text, "SCALE", {scale.function, "(", place},
                      {scale.first, scale.second, scale.third});
}

Scale CategoryScale(const ChartModel& chart, const ChartVariable& variable) {
    for (const CategoryOrder& order : chart.categoryOrders) {
        if (!IsSameVariable(order.variable, variable)) {
            continue;
        }
        const char* const reverse = order.descending ? "reverse()" : "";
        switch (order.key) {
        case CategoryOrder::Key::kOccurrence:
            return {"cat", "sort.data()", reverse, {}};
        case CategoryOrder::Key::kCount:
            return {"cat", "sort.statistic(summary.count())", reverse, {}};
        default:
            return {"cat", "sort.natural()", reverse, {}};
        }
    }
    return {};
}

/// SCALERANGE's, else TYPE's.
ValueRange RangeOf(const ChartModel& chart, const ChartDimension& dimension) {
    for (const ScaleRange& range : chart.scaleRanges) {
        if (IsSameVariable(range.variable, dimension.variable)) {
            return range.range;
        }
    }
    return dimension.range;
}

Scale RangeScale(const ChartModel& chart, const ChartDimension& dimension) {
    const ValueRange range = RangeOf(chart, dimension);
    if (!range.min && !range.max) {
        return {};
    }
    return {"linear",
            range.min ? GplCall("min", {GplNumber(*range.min)}) : "",
            range.max ? GplCall("max", {GplNumber(*range.max)}) : "",
            {}};
}

Scale ScaleOf(const ChartModel& chart, const ChartDimension& dimension) {
    return IsCategorical(&dimension) ? CategoryScale(chart, dimension.variable)
                                     : RangeScale(chart, dimension);
}

/// Where bars and areas begin: the first baseline that is a number other than 0.
std::optional<double> BaselineOf(const ChartFacts& facts) {
    for (const ChartElement* element : facts.drawn) {
        std::optional<double> baseline;
        if (const auto* const bar = std::get_if<Bar>(element)) {
            baseline = bar->baseline;
        } else if (const auto* const area = std::get_if<Area>(element)) {
            baseline = area->baseline;
        }
        if (baseline.value_or(0) != 0) {
            return baseline;
        }
    }
    return std::nullopt;
}

/// Y's scale: what stands on a baseline shows it.
Scale YScale(const ChartFacts& facts) {
    Scale scale = ScaleOf(facts.chart, *facts.y);
    const ElementKinds based{ElementKind::kBar, ElementKind::kArea, ElementKind::kHistogram};
    if (IsCategorical(facts.y) || !facts.kinds.HasAnyOf(based)) {
        return scale;
    }
    const std::optional<double> baseline = BaselineOf(facts);
    if (scale.function == nullptr) {
        scale = {"linear", GplCall("include", {GplNumber(baseline.value_or(0))}), {}, {}};
    }
    if (baseline) {
        scale.third = GplCall("origin", {GplNumber(*baseline)});
    }
    return scale;
}

Scale PieScale(const ChartFacts& facts) {
    const Pie& pie = std::get<Pie>(*facts.drawn.front());
    return {"linear", "dataMinimum()", "dataMaximum()", pie.counterClockwise ? "reverse()" : ""};
}

/// The scale of the axis that has the dimension's number.
Scale AxisScale(const ChartFacts& facts, int dimension) {
    const ChartModel& chart = facts.chart;
    const DimensionNumbers& dimensions = facts.dimensions;
    if (dimension == dimensions.measure) {
        return facts.form == ChartForm::kPie ? PieScale(facts) : YScale(facts);
    }
    if (dimension == dimensions.cluster) {
        return ScaleOf(chart, *facts.cluster);
    }
    const auto& axis = dimension == dimensions.x1 ? chart.x1 : chart.x2;
    return axis ? ScaleOf(chart, *axis) : Scale();
}

/// The line of a dimension's scale, if it has one.
void AppendDimensionScale(int dimension, const Scale& scale, std::string& text) {
    if (scale.function != nullptr) {
        AppendScale("dim(" + std::to_string(dimension) + ')', scale, text);
    }
}

} // namespace

void AppendScaleLines(const GplChart& chart, std::string& text) {
    const ChartFacts& facts = chart.Facts();
    const DimensionNumbers& dimensions = facts.dimensions;
    const int axes =
        std::max({dimensions.measure, dimensions.x1, dimensions.x2, dimensions.cluster});
    for (int dimension = 1; dimension <= axes; ++dimension) {
        AppendDimensionScale(dimension, AxisScale(facts, dimension), text);
    }
    int panelDimension = dimensions.firstPanel;
    for (const ChartVariable& panel : facts.chart.panels) {
        AppendDimensionScale(panelDimension, CategoryScale(facts.chart, panel), text);
        ++panelDimension;
    }
    for (const ShownAesthetic& shown : ShownAesthetics(facts)) {
        const Scale scale = ScaleOf(facts.chart, *shown.dimension);
        if (scale.function != nullptr) {
            AppendScale(GplCall("aesthetic", {shown.name}), scale, text);
        }
    }
}

} // namespace recastor
