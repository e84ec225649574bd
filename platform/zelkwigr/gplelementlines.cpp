// ELEMENT: one short function for each family of elements.

#include "platform/zelkwigr/gpllayer.h"
#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gplsummary.h"
#include "platform/zelkwigr/gpltext.h"

namespace recastor {

namespace {

const char* const kCount = "summary.count()";
const char* const kPercent = "summary.percent.count()";

/// S: what a bar, a line or an area shows of the measure.
std::string Summary(const GplChart& chart, const std::optional<SummaryFunction>& function,
                    ElementKind kind) {
    const ChartFacts& facts = chart.Facts();
    const bool isCounted = IsCounted(*facts.measure);
    if (facts.IsNormalized(kind)) {
        const std::string base =
            GplCall("base.coordinate", {GplDimensions(facts.DimensionsBesideMeasure())});
        return isCounted ? GplCall("summary.percent.count", {chart.CountAlgebra(), base})
                         : GplCall("summary.percent", {MeasureSummary(chart, function), base});
    }
    switch (facts.measure->builtIn) {
    case BuiltIn::kCount:
        return GplCall("summary.count", {chart.CountAlgebra()});
    case BuiltIn::kPercent:
        return GplCall("summary.percent.count", {chart.CountAlgebra(), "base.all(acrossPanels())"});
    default:
        return MeasureSummary(chart, function);
    }
}

/// The value itself as a label.
std::string ValueLabel(const GplChart& chart, const std::optional<SummaryFunction>& function) {
    switch (chart.Facts().measure->builtIn) {
    case BuiltIn::kCount:
        return kCount;
    case BuiltIn::kPercent:
        return kPercent;
    default:
        return SummaryCall(FunctionOf(function), chart.Operand(FunctionOf(function)));
    }
}

/// The labels that are switched on, each once.
std::string Labels(const ElementLabels& labels, const std::string& slice,
                   const std::string& value) {
    const struct {
        bool isOn;
        std::string_view text;
    } rows[] = {
        {labels.label, slice},
        {labels.value, value},
        {labels.count && !(labels.value && value == kCount), kCount},
        {labels.percent && !(labels.value && value == kPercent), kPercent},
    };
    std::string text;
    for (const auto& row : rows) {
        if (row.isOn) {
            text += text.empty() ? "" : ", ";
            text += GplCall("label", {row.text});
        }
    }
    return text;
}

/// The labels of an element that shows a summary of the measure.
std::string SummaryLabels(const GplChart& chart, const ElementLabels& labels,
                          const std::optional<SummaryFunction>& function) {
    return Labels(labels, {}, labels.value ? ValueLabel(chart, function) : std::string());
}

struct InterpolationRow {
    Interpolation interpolation;
    const char* smoother; ///< none where the points are joined as they are
    const char* jump = "";
};

constexpr InterpolationRow kSmoothers[] = {
    {Interpolation::kStraight, nullptr},
    {Interpolation::kLeftStep, "smooth.step"},
    {Interpolation::kCenterStep, "smooth.step.center"},
    {Interpolation::kRightStep, "smooth.step.end"},
    {Interpolation::kLeftJump, "smooth.step", "jump()"},
    {Interpolation::kCenterJump, "smooth.step.center", "jump()"},
    {Interpolation::kRightJump, "smooth.step.end", "jump()"},
    {Interpolation::kSpline, "smooth.spline"},
    {Interpolation::kLagrange3, "smooth.spline"},
    {Interpolation::kLagrange5, "smooth.spline"},
};

/// Lays the interpolation over a summary: the position and the jumps.
void Interpolate(Interpolation interpolation, const std::string& summary, Layer& layer) {
    for (const InterpolationRow& row : kSmoothers) {
        if (row.interpolation == interpolation) {
            layer.position = row.smoother != nullptr ? GplCall(row.smoother, {summary}) : summary;
            layer.jump = row.jump;
        }
    }
}

const char* Missing(Break breaks) {
    return breaks == Break::kNone ? "missing.interpolate()" : "missing.wings()";
}

void AppendElement(const GplChart& chart, const Scatter& scatter, std::string& text) {
    const auto& pointLabel = chart.Facts().chart.pointLabel;
    Layer layer = PointedLayer(chart, Values::kEach);
    layer.kind = scatter.jitter ? "point.jitter" : "point";
    layer.position = chart.Algebra(chart.Measure());
    if (pointLabel) {
        layer.labels = GplCall("label", {chart.Variables().LabelName(*pointLabel)});
    }
    AppendLayer(layer, text);
}

void AppendElement(const GplChart& chart, const Bar& bar, std::string& text) {
    Layer layer = FilledLayer(chart);
    layer.kind = chart.Facts().stacked ? "interval.stack" : "interval";
    layer.position = Summary(chart, bar.function, ElementKind::kBar);
    layer.labels = SummaryLabels(chart, bar.labels, bar.function);
    AppendLayer(layer, text);
}

void AppendElement(const GplChart& chart, const Area& area, std::string& text) {
    Layer layer = FilledLayer(chart);
    layer.kind = chart.Facts().grouped ? "area.stack" : "area";
    Interpolate(area.interpolation, Summary(chart, area.function, ElementKind::kArea), layer);
    layer.labels = SummaryLabels(chart, area.labels, area.function);
    layer.missing = Missing(area.breaks);
    AppendLayer(layer, text);
}

/// A line, points, or a line with points on it.
void AppendElement(const GplChart& chart, const Line& line, std::string& text) {
    const bool hasLine = line.style != Line::Style::kDot;
    const bool hasPoint = line.style != Line::Style::kLine;
    const std::string summary = Summary(chart, line.function, ElementKind::kLine);
    const std::string labels = SummaryLabels(chart, line.labels, line.function);
    if (hasLine) {
        Layer layer = PointedLayer(chart, Values::kSummarised);
        layer.kind = "line";
        Interpolate(line.interpolation, summary, layer);
        layer.labels = hasPoint ? "" : labels;
        layer.missing = Missing(line.breaks);
        AppendLayer(layer, text);
    }
    if (hasPoint) {
        Layer layer = PointedLayer(chart, Values::kSummarised);
        layer.kind = "point";
        layer.position = summary;
        layer.labels = labels;
        AppendLayer(layer, text);
    }
}

void AppendElement(const GplChart& chart, const Pie& pie, std::string& text) {
    const ChartFacts& facts = chart.Facts();
    const bool isCounted = IsCounted(*facts.measure);
    const std::string summary = isCounted ? GplCall("summary.count", {chart.CountAlgebra()})
                                          : MeasureSummary(chart, pie.function);
    const std::string value = isCounted ? kCount : ValueLabel(chart, pie.function);
    const std::vector<int> panels = facts.PanelDimensions();
    const std::string base =
        panels.empty() ? "" : GplCall("base.coordinate", {GplDimensions(panels)});
    Layer layer = FilledLayer(chart);
    layer.kind = "interval.stack";
    layer.position = GplCall("summary.percent", {summary, base});
    layer.labels = Labels(pie.labels, chart.Variables().NameOf(*facts.slice), value);
    AppendLayer(layer, text);
}

void AppendElement(const GplChart& chart, const Box& /*box*/, std::string& text) {
    const auto& caseLabel = chart.Facts().chart.caseLabel;
    Layer layer = FilledLayer(chart);
    layer.kind = "schema";
    layer.position = GplCall("bin.quantile.letter", {chart.Algebra(chart.Measure())});
    if (caseLabel) {
        layer.labels = GplCall("label", {chart.Variables().LabelName(*caseLabel)});
    }
    AppendLayer(layer, text);
}

/// The interval that an error bar spans.
std::string ErrorRegion(const GplChart& chart, const ErrorBar& errorBar) {
    const std::string algebra = chart.Algebra(chart.Measure());
    const std::string multiple = GplCall("multiple", {GplNumber(errorBar.amount)});
    switch (errorBar.extent) {
    case ErrorBar::Extent::kDeviations:
        return GplCall("region.spread.sd", {algebra, multiple});
    case ErrorBar::Extent::kStandardErrors:
        return GplCall("region.spread.se", {algebra, multiple});
    default:
        return GplCall("region.confi.mean", {algebra, AlphaOfPercent(errorBar.amount)});
    }
}

void AppendElement(const GplChart& chart, const ErrorBar& errorBar, std::string& text) {
    const std::string labels =
        Labels(errorBar.labels, {}, GplCall("summary.mean", {chart.Measure()}));
    Layer bar = FilledLayer(chart);
    bar.kind = "interval";
    bar.position = ErrorRegion(chart, errorBar);
    bar.labels = errorBar.symbol ? "" : labels;
    bar.shape = errorBar.caps ? "shape.interior(shape.ibeam)" : "shape.interior(shape.line)";
    AppendLayer(bar, text);
    if (errorBar.symbol) {
        Layer point;
        point.kind = "point";
        point.position = GplCall("summary.mean", {chart.Algebra(chart.Measure())});
        point.color = bar.color;
        point.labels = labels;
        AppendLayer(point, text);
    }
}

std::string Bins(const GplChart& chart, const Histogram& histogram) {
    const auto& count = histogram.binCount;
    const auto& width = histogram.binWidth;
    return GplCall("bin.rect",
                   {chart.CountAlgebra(), count ? GplCall("binCount", {GplNumber(*count)}) : "",
                    width ? GplCall("binWidth", {GplNumber(*width)}) : ""});
}

void AppendElement(const GplChart& chart, const Histogram& histogram, std::string& text) {
    const bool isPercent = chart.Facts().measure->builtIn == BuiltIn::kPercent;
    std::string function = isPercent ? "summary.percent.count" : "summary.count";
    function += histogram.cumulative ? ".cumulative" : "";
    Layer layer = FilledLayer(chart);
    layer.kind = chart.Facts().grouped ? "interval.stack" : "interval";
    layer.position =
        GplCall(function, {Bins(chart, histogram), isPercent ? "base.all(acrossPanels())" : ""});
    layer.shape = "shape.interior(shape.square)";
    AppendLayer(layer, text);
    if (histogram.curve && !histogram.cumulative) {
        Layer curve;
        curve.kind = "line";
        curve.position = GplCall("density.normal", {chart.CountAlgebra()});
        curve.color = "color(\"Normal\")";
        AppendLayer(curve, text);
    }
}

/// A fit line and, behind it, the band that its mean lies in.
void AppendFit(const GplChart& chart, const FitLine& fitLine, const std::string& split,
               std::string& text) {
    const bool isMean = fitLine.method == FitLine::Method::kMean;
    const bool isLoess = fitLine.method == FitLine::Method::kLoess;
    const std::string algebra = chart.Algebra(chart.Measure());
    Layer layer;
    layer.kind = "line";
    layer.split = split;
    layer.position =
        GplCall(isMean ? "smooth.mean" : (isLoess ? "smooth.loess" : "smooth.linear"), {algebra});
    AppendLayer(layer, text);
    if (fitLine.meanInterval && !isLoess) {
        layer.position = GplCall(isMean ? "region.confi.smooth.mean" : "region.confi.smooth.linear",
                                 {algebra, AlphaOfPercent(fitLine.intervalLevel)});
        AppendLayer(layer, text);
    }
}

/// Without categories to split by there is one line for all cases.
void AppendElement(const GplChart& chart, const FitLine& fitLine, std::string& text) {
    const ChartDimension* const split = fitLine.eachGroup ? chart.Facts().split : nullptr;
    if (fitLine.total || split == nullptr) {
        AppendFit(chart, fitLine, {}, text);
    }
    if (split != nullptr) {
        const std::string& group = chart.Variables().CategoryName(split->variable);
        AppendFit(chart, fitLine, GplCall("split", {group}), text);
    }
}

} // namespace

void AppendElementLines(const GplChart& chart, std::string& text) {
    for (const ChartElement* element : chart.Facts().drawn) {
        std::visit([&](const auto& each) { AppendElement(chart, each, text); }, *element);
    }
}

} // namespace recastor
