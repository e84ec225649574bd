#include "platform/zelkwigr/gpllayer.h"

#include "platform/zelkwigr/gplsummary.h"
#include "platform/zelkwigr/gpltext.h"

namespace recastor {

namespace {

/// What an aesthetic shows of its dimension.
std::string ShownValue(const GplChart& chart, const ChartDimension& dimension, Values values) {
    switch (dimension.variable.builtIn) {
    case BuiltIn::kCount:
        return "summary.count()";
    case BuiltIn::kPercent:
        return "summary.percent.count()";
    default:
        break;
    }
    const std::string& name = chart.Variables().NameOf(dimension);
    const bool isSummarised = !IsCategorical(&dimension) && values == Values::kSummarised;
    return isSummarised ? GplCall("summary.mean", {name}) : name;
}

/// `function` of what the dimension shows; empty without one.
std::string AestheticCall(const GplChart& chart, const char* function,
                          const ChartDimension* dimension, Values values) {
    return dimension == nullptr ? std::string()
                                : GplCall(function, {ShownValue(chart, *dimension, values)});
}

} // namespace

Layer FilledLayer(const GplChart& chart) {
    const ChartFacts& facts = chart.Facts();
    Layer layer;
    layer.color = AestheticCall(chart, "color.interior", facts.color, Values::kSummarised);
    layer.surface = AestheticCall(chart, "texture.pattern.interior", Find(facts.chart.style),
                                  Values::kSummarised);
    return layer;
}

Layer PointedLayer(const GplChart& chart, Values values) {
    const ChartFacts& facts = chart.Facts();
    Layer layer;
    layer.color = AestheticCall(chart, "color.interior", facts.color, values);
    layer.surface = AestheticCall(chart, "shape.interior", Find(facts.chart.style), values);
    layer.size = AestheticCall(chart, "size", Find(facts.chart.size), values);
    return layer;
}

std::string MeasureSummary(const GplChart& chart, const std::optional<SummaryFunction>& function) {
    const SummaryFunction summary = FunctionOf(function);
    return SummaryCall(summary, chart.Algebra(chart.Operand(summary)));
}

std::string AlphaOfPercent(double percent) {
    return GplCall("alpha", {GplNumber(percent / 100)});
}

void AppendLayer(const Layer& layer, std::string& text) {
    AppendGplCallLine(text, "ELEMENT", {layer.kind, "(position(", layer.position, ")"},
                      {layer.color, layer.surface, layer.size, layer.split, layer.labels,
                       layer.shape, layer.jump, layer.missing});
}

} // namespace recastor
