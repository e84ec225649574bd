#include "archive/outcome/jsonwriter.h"
#include "archive/picture/picturejson.h"
#include "platform/zelkwigr/chartlabels.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

namespace {

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

/// Writes an element as it is drawn; each kind says what its sketch needs.
class ElementSketch {
public:
    explicit ElementSketch(JsonWriter& json) : m_json(json) {}

    void operator()(const Scatter&) const { Type("point"); }
    void operator()(const Bar&) const { Type("bar"); }
    void operator()(const Area& area) const {
        Type("area");
        m_json.Member("curve", CurveName(area.interpolation));
    }
    void operator()(const Line& line) const {
        if (line.style == Line::Style::kDot) {
            Type("dots");
            return;
        }
        Type("line");
        m_json.Member("curve", CurveName(line.interpolation));
        m_json.Member("points", line.style == Line::Style::kDotLine);
    }
    void operator()(const Pie&) const { Type("pie"); }
    void operator()(const Box&) const { Type("box"); }
    void operator()(const ErrorBar& bar) const {
        Type("errorBar");
        m_json.Member("points", bar.symbol);
    }
    void operator()(const Histogram& histogram) const {
        Type("histogram");
        m_json.Member("cumulative", histogram.cumulative);
        m_json.Member("density", histogram.curve && !histogram.cumulative);
    }
    void operator()(const FitLine& line) const {
        Type("fitLine");
        m_json.Member("method", line.method == FitLine::Method::kMean    ? "mean"
                                : line.method == FitLine::Method::kLoess ? "loess"
                                                                         : "linear");
        m_json.Member("groups", line.eachGroup);
    }

private:
    void Type(const char* type) const { m_json.Member("type", type); }

    JsonWriter& m_json;
};

/// Writes charts as JSON.
class ChartPainter {
public:
    ChartPainter(const ChartModel& chart, const TextDecoder& decode) :
        m_facts(chart), m_decode(decode) {}

    void Chart();
    const std::string& Json() const { return m_json.Text(); }

private:
    void Lines(const char* name, const std::vector<std::string>& lines);
    void Dimension(const char* name, const ChartDimension* dimension, std::string_view untitled);
    void Dimension(const char* name, const std::optional<ChartDimension>& dimension);
    void NameOf(const char* name, const ChartDimension* dimension);
    void Panels();
    void Elements();
    void References();
    bool IsNormalized() const;

    ChartFacts m_facts;
    const TextDecoder& m_decode;
    JsonWriter m_json;
};

void ChartPainter::Lines(const char* name, const std::vector<std::string>& lines) {
    m_json.Key(name);
    m_json.BeginArray();
    for (const std::string& line : lines) {
        m_json.String(m_decode(line));
    }
    m_json.EndArray();
}

/// `untitled` is what the dimension is called when it has no title.
void ChartPainter::Dimension(const char* name, const ChartDimension* dimension,
                             std::string_view untitled) {
    m_json.Key(name);
    if (dimension == nullptr) {
        m_json.Null();
        return;
    }
    std::string text = dimension->title.empty() ? m_decode(untitled) : "";
    for (const std::string& line : dimension->title) {
        text += (text.empty() ? "" : " ") + m_decode(line);
    }
    m_json.BeginObject();
    m_json.Member("label", text);
    m_json.Member("category", IsCategorical(dimension));
    m_json.Member("legend", dimension->legend);
    m_json.EndObject();
}

void ChartPainter::Dimension(const char* name, const std::optional<ChartDimension>& dimension) {
    Dimension(name, Find(dimension),
              dimension ? VariableLabel(dimension->variable) : std::string_view());
}

/// Which of the chart's dimensions it is.
void ChartPainter::NameOf(const char* name, const ChartDimension* dimension) {
    m_json.Key(name);
    if (dimension == nullptr) {
        m_json.Null();
    } else if (dimension == Find(m_facts.chart.color)) {
        m_json.String("color");
    } else {
        m_json.String(dimension == Find(m_facts.chart.style) ? "style" : "x");
    }
}

void ChartPainter::Panels() {
    m_json.Key("panels");
    m_json.BeginArray();
    for (const ChartVariable& panel : m_facts.chart.panels) {
        m_json.String(m_decode(VariableLabel(panel)));
    }
    m_json.EndArray();
}

void ChartPainter::Elements() {
    m_json.Key("elements");
    m_json.BeginArray();
    for (const ChartElement* element : m_facts.drawn) {
        m_json.BeginObject();
        std::visit(ElementSketch(m_json), *element);
        m_json.EndObject();
    }
    m_json.EndArray();
}

void ChartPainter::References() {
    m_json.Key("references");
    m_json.BeginArray();
    const ChartDimension* const x1 = Find(m_facts.chart.x1);
    for (const ReferenceLine& line : m_facts.chart.referenceLines) {
        const bool isOnY =
            !IsCategorical(m_facts.y) && IsSameVariable(line.variable, m_facts.y->variable);
        const bool isOnX =
            x1 != nullptr && !IsCategorical(x1) && IsSameVariable(line.variable, x1->variable);
        if (isOnY || isOnX) {
            m_json.BeginObject();
            m_json.Member("axis", isOnY ? "y" : "x");
            m_json.Key("value");
            m_json.Number(line.value);
            m_json.EndObject();
        }
    }
    m_json.EndArray();
}

bool ChartPainter::IsNormalized() const {
    return m_facts.IsNormalized(ElementKind::kBar) || m_facts.IsNormalized(ElementKind::kArea);
}

void ChartPainter::Chart() {
    constexpr std::array<const char*, 4> kForms{"plain", "clustered", "three", "pie"};
    const ChartModel& chart = m_facts.chart;
    const bool hasAxes = m_facts.form == ChartForm::kPlain || m_facts.form == ChartForm::kClustered;
    m_json.BeginObject();
    m_json.Member("form", kForms.at(static_cast<std::size_t>(m_facts.form)));
    m_json.Member("horizontal", chart.coordinate == Coordinate::kHorizontal);
    Dimension("x", chart.x1);
    Dimension("z", chart.x2);
    Dimension("y", m_facts.y, MeasureLabel(m_facts));
    Dimension("color", chart.color);
    Dimension("style", chart.style);
    Dimension("size", chart.size);
    NameOf("cluster", hasAxes ? m_facts.cluster : nullptr);
    NameOf("slice", m_facts.slice);
    Panels();
    Elements();
    m_json.Member("stacked", m_facts.stacked);
    m_json.Member("normalized", IsNormalized());
    References();
    Lines("title", chart.title);
    Lines("subtitle", chart.subtitle);
    Lines("caption", chart.caption);
    m_json.EndObject();
}

} // namespace

std::string SketchOfChart(const ChartModel& chart, const TextDecoder& decode) {
    ChartPainter painter(chart, decode);
    painter.Chart();
    return painter.Json();
}

} // namespace recastor
