// SCALE.

#include "platform/zelkwigr/gplaesthetics.h"
#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

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

struct DimensionScale {
    int dimension;
    Scale scale;
};

/// The scales of the dimensions that axes and panels take up, by their numbers. Most have none.
std::vector<DimensionScale> DimensionScales(const ChartFacts& facts) {
    const ChartModel& chart = facts.chart;
    const DimensionNumbers& dimensions = facts.dimensions;
    std::vector<DimensionScale> scales;
    const auto add = [&scales](int dimension, Scale scale) {
        if (scale.function != nullptr) {
            scales.push_back({dimension, std::move(scale)});
        }
    };
    if (facts.form == ChartForm::kPie) {
        add(dimensions.measure, PieScale(facts));
    } else {
        add(dimensions.measure, YScale(facts));
        if (chart.x1) {
            add(dimensions.x1, ScaleOf(chart, *chart.x1));
        }
        if (chart.x2) {
            add(dimensions.x2, ScaleOf(chart, *chart.x2));
        }
        if (facts.form == ChartForm::kClustered) {
            add(dimensions.cluster, ScaleOf(chart, *facts.cluster));
        }
    }
    int panelDimension = dimensions.firstPanel;
    for (const ChartVariable& panel : chart.panels) {
        add(panelDimension, CategoryScale(chart, panel));
        ++panelDimension;
    }
    std::sort(scales.begin(), scales.end(),
              [](const auto& left, const auto& right) { return left.dimension < right.dimension; });
    return scales;
}

} // namespace

void AppendScaleLines(const GplChart& chart, std::string& text) {
    const ChartFacts& facts = chart.Facts();
    for (const auto& [dimension, scale] : DimensionScales(facts)) {
        AppendScale(GplCall("dim", {std::to_string(dimension)}), scale, text);
    }
    for (const ShownAesthetic& shown : ShownAesthetics(facts)) {
        const Scale scale = ScaleOf(facts.chart, *shown.dimension);
        if (scale.function != nullptr) {
            AppendScale(GplCall("aesthetic", {shown.name}), scale, text);
        }
    }
}

} // namespace recastor
