#include "archive/picture/picturejson.h"
#include "platform/zelkwigr/chartlabels.h"

#include <array>
#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;

const char* CurveName(Interpolation interpolation) {
    switch (interpolation) {
    case Interpolation::kStraight:
        return "linear";
    case Interpolation::kLeftStep:
    case Interpolation::kLeftJump:
        return "stepAfter"; // the step goes on from its left end
    case Interpolation::kCenterStep:
    case Interpolation::kCenterJump:
        return "step";
    case Interpolation::kRightStep:
    case Interpolation::kRightJump:
        return "stepBefore";
    default:
        return "smooth";
    }
}

/// An element as it is drawn; each kind says what its sketch needs.
struct ElementSketch {
    Json operator()(const Scatter&) const { return {{"type", "point"}}; }
    Json operator()(const Bar&) const { return {{"type", "bar"}}; }
    Json operator()(const Area& area) const {
        return {{"type", "area"}, {"curve", CurveName(area.interpolation)}};
    }
    Json operator()(const Line& line) const {
        if (line.style == Line::Style::kDot) {
            return {{"type", "dots"}};
        }
        return {{"type", "line"},
                {"curve", CurveName(line.interpolation)},
                {"points", line.style == Line::Style::kDotLine}};
    }
    Json operator()(const Pie&) const { return {{"type", "pie"}}; }
    Json operator()(const Box&) const { return {{"type", "box"}}; }
    Json operator()(const ErrorBar& bar) const {
        return {{"type", "errorBar"}, {"points", bar.symbol}};
    }
    Json operator()(const Histogram& histogram) const {
        return {{"type", "histogram"},
                {"cumulative", histogram.cumulative},
                {"density", histogram.curve && !histogram.cumulative}};
    }
    Json operator()(const FitLine& line) const {
        const char* const method = line.method == FitLine::Method::kMean    ? "mean"
                                   : line.method == FitLine::Method::kLoess ? "loess"
                                                                            : "linear";
        return {{"type", "fitLine"}, {"method", method}, {"groups", line.eachGroup}};
    }
};

/// Makes JSON of charts.
class ChartPainter {
public:
    ChartPainter(const ChartModel& chart, const TextDecoder& decode) :
        m_facts(chart), m_decode(decode) {}

    Json Chart() const;

private:
    Json Lines(const std::vector<std::string>& lines) const;
    Json Dimension(const ChartDimension* dimension, const std::vector<std::string>& label) const;
    Json Dimension(const ChartDimension* dimension) const;
    Json NameOf(const ChartDimension* dimension) const;
    Json References() const;
    bool IsNormalized() const;

    ChartFacts m_facts;
    const TextDecoder& m_decode;
};

Json ChartPainter::Lines(const std::vector<std::string>& lines) const {
    Json list = Json::array();
    for (const std::string& line : lines) {
        list.push_back(m_decode(line));
    }
    return list;
}

Json ChartPainter::Dimension(const ChartDimension* dimension,
                             const std::vector<std::string>& label) const {
    if (dimension == nullptr) {
        return {};
    }
    std::string text;
    for (const std::string& line : label) {
        text += (text.empty() ? "" : " ") + m_decode(line);
    }
    return {{"label", text}, {"category", IsCategorical(dimension)}, {"legend", dimension->legend}};
}

Json ChartPainter::Dimension(const ChartDimension* dimension) const {
    return Dimension(dimension, dimension != nullptr ? DimensionLabel(*dimension)
                                                     : std::vector<std::string>());
}

/// Which of the chart's dimensions it is.
Json ChartPainter::NameOf(const ChartDimension* dimension) const {
    if (dimension == nullptr) {
        return {};
    }
    if (dimension == Find(m_facts.chart.color)) {
        return "color";
    }
    return dimension == Find(m_facts.chart.style) ? "style" : "x";
}

Json ChartPainter::References() const {
    Json list = Json::array();
    const ChartDimension* const x1 = Find(m_facts.chart.x1);
    for (const ReferenceLine& line : m_facts.chart.referenceLines) {
        if (!IsCategorical(m_facts.y) && IsSameVariable(line.variable, m_facts.y->variable)) {
            list.push_back({{"axis", "y"}, {"value", line.value}});
        } else if (x1 != nullptr && !IsCategorical(x1) &&
                   IsSameVariable(line.variable, x1->variable)) {
            list.push_back({{"axis", "x"}, {"value", line.value}});
        }
    }
    return list;
}

bool ChartPainter::IsNormalized() const {
    return m_facts.IsNormalized(ElementKind::kBar) || m_facts.IsNormalized(ElementKind::kArea);
}

Json ChartPainter::Chart() const {
    constexpr std::array<const char*, 4> kForms{"plain", "clustered", "three", "pie"};
    const ChartModel& chart = m_facts.chart;
    const bool hasAxes = m_facts.form == ChartForm::kPlain || m_facts.form == ChartForm::kClustered;
    Json elements = Json::array();
    for (const ChartElement* element : m_facts.drawn) {
        elements.push_back(std::visit(ElementSketch(), *element));
    }
    Json panels = Json::array();
    for (const ChartVariable& panel : chart.panels) {
        panels.push_back(m_decode(VariableLabel(panel)));
    }
    return {{"form", kForms.at(static_cast<std::size_t>(m_facts.form))},
            {"horizontal", chart.coordinate == Coordinate::kHorizontal},
            {"x", Dimension(Find(chart.x1))},
            {"z", Dimension(Find(chart.x2))},
            {"y", Dimension(m_facts.y, MeasureLabel(m_facts))},
            {"color", Dimension(Find(chart.color))},
            {"style", Dimension(Find(chart.style))},
            {"size", Dimension(Find(chart.size))},
            {"cluster", hasAxes ? NameOf(m_facts.cluster) : Json()},
            {"slice", NameOf(m_facts.slice)},
            {"panels", panels},
            {"elements", elements},
            {"stacked", m_facts.stacked},
            {"normalized", IsNormalized()},
            {"references", References()},
            {"title", Lines(chart.title)},
            {"subtitle", Lines(chart.subtitle)},
            {"caption", Lines(chart.caption)}};
}

} // namespace

std::string SketchOfChart(const ChartModel& chart, const TextDecoder& decode) {
    return ChartPainter(chart, decode).Chart().dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace recastor
