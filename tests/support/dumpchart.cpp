#include "tests/support/dumpchart.h"

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/chartmodel.h"
#include "platform/zelkwigr/completechart.h"
#include "platform/zelkwigr/parsechart.h"
#include "platform/zelkwigr/validchart.h"
#include "tests/support/dump.h"

#include <array>
#include <charconv>
#include <memory>

namespace recastor {

namespace {

std::string NumberText(double value) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return {text.data(), end};
}

std::string NumberText(const std::optional<double>& value) {
    return value ? NumberText(*value) : std::string();
}

template <class Enumerator, std::size_t n>
std::string NameOf(Enumerator value, const char* const (&names)[n]) {
    return names[static_cast<std::size_t>(value)];
}

std::string VariableText(const ChartVariable& variable) {
    constexpr const char* kNames[] = {"", "{count}", "{pct}", "{case}"};
    return variable.name + NameOf(variable.builtIn, kNames);
}

/// Each line with a blank in front.
std::string LinesText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += " \"" + line + '"';
    }
    return text;
}

std::string RangeText(const ValueRange& range) {
    return range.min || range.max ? "(" + NumberText(range.min) + ".." + NumberText(range.max) + ")"
                                  : std::string();
}

std::string DimensionText(const ChartDimension& dimension) {
    constexpr const char* kTypes[] = {" scale", " cat"};
    constexpr const char* kGroupings[] = {"", " cluster", " stack"};
    std::string text = VariableText(dimension.variable);
    if (dimension.type) {
        text += NameOf(*dimension.type, kTypes);
    }
    text += RangeText(dimension.range) + LinesText(dimension.title);
    text += dimension.legend ? "" : " nolegend";
    return text + NameOf(dimension.grouping, kGroupings);
}

std::string FunctionText(const std::optional<SummaryFunction>& function) {
    constexpr const char* kStatistics[] = {
        " mean",     " median", " mode",   " min",    " max",      " first",  " last",
        " sum",      " sumav",  " sumsq",  " sd",     " variance", " se",     " kurtosis",
        " skewness", " sekurt", " seskew", " ptile(", " number",   " percent"};
    constexpr const char* kConditions[] = {">", ">=", "<", "<=", "==", "["};
    if (!function) {
        return {};
    }
    const std::string name = NameOf(function->statistic, kStatistics);
    switch (function->statistic) {
    case Statistic::kPercentile:
        return name + NumberText(function->first) + ")";
    case Statistic::kNumber:
    case Statistic::kPercentage:
        break;
    default:
        return name;
    }
    std::string text =
        name + NameOf(function->condition, kConditions) + NumberText(function->first);
    if (function->condition == Condition::kInside) {
        text += "," + NumberText(function->second) + "]";
    }
    return text;
}

std::string LabelsText(const ElementLabels& labels) {
    std::string text;
    text += labels.label ? ",label" : "";
    text += labels.value ? ",val" : "";
    text += labels.count ? ",n" : "";
    text += labels.percent ? ",pct" : "";
    return text.empty() ? text : " labels(" + text.substr(1) + ")";
}

std::string BaselineText(const std::optional<double>& baseline) {
    return baseline ? " baseline " + NumberText(*baseline) : std::string();
}

std::string InterpolationText(Interpolation interpolation, Break breaks) {
    constexpr const char* kNames[] = {"",       " lstep", " cstep",  " rstep",     " ljump",
                                      " cjump", " rjump", " spline", " lagrange3", " lagrange5"};
    return NameOf(interpolation, kNames) + (breaks == Break::kNone ? " bridged" : "");
}

struct ElementText {
    std::string operator()(const Scatter& scatter) const {
        return scatter.jitter ? "scatter jitter" : "scatter";
    }
    std::string operator()(const Bar& bar) const {
        return "bar" + FunctionText(bar.function) + LabelsText(bar.labels) +
               BaselineText(bar.baseline);
    }
    std::string operator()(const Area& area) const {
        return "area" + FunctionText(area.function) + LabelsText(area.labels) +
               InterpolationText(area.interpolation, area.breaks) + BaselineText(area.baseline);
    }
    std::string operator()(const Line& line) const {
        constexpr const char* kStyles[] = {"", " dotline", " dot", " none"};
        return "line" + FunctionText(line.function) + NameOf(line.style, kStyles) +
               LabelsText(line.labels) + InterpolationText(line.interpolation, line.breaks);
    }
    std::string operator()(const Pie& pie) const {
        return "pie" + FunctionText(pie.function) +
               (pie.start == 0 ? std::string() : " start " + NumberText(pie.start)) +
               (pie.counterClockwise ? " ccw" : "") + LabelsText(pie.labels);
    }
    std::string operator()(const Box&) const { return "box"; }
    std::string operator()(const ErrorBar& bar) const {
        constexpr const char* kExtents[] = {"ci", "sd", "se"};
        return "errorbar " + NameOf(bar.extent, kExtents) + " " + NumberText(bar.amount) +
               LabelsText(bar.labels) + (bar.caps ? "" : " nocaps") +
               (bar.symbol ? "" : " nosymbol");
    }
    std::string operator()(const Histogram& histogram) const {
        std::string text = "histogram";
        text += histogram.cumulative ? " cum" : "";
        text += histogram.curve ? " curve" : "";
        text += histogram.binCount ? " bins " + NumberText(*histogram.binCount) : "";
        return text + (histogram.binWidth ? " width " + NumberText(*histogram.binWidth) : "");
    }
    std::string operator()(const FitLine& line) const {
        constexpr const char* kMethods[] = {"none", "regression", "origin", "mean", "llr"};
        std::string text = "fitline " + NameOf(line.method, kMethods);
        text += line.meanInterval ? " mean-interval" : "";
        text += line.individualInterval ? " individual-interval" : "";
        text += line.intervalLevel != FitLine().intervalLevel
                    ? " level " + NumberText(line.intervalLevel)
                    : "";
        return text + (line.total ? " total" : "") + (line.eachGroup ? " each" : "");
    }
};

/// Puts the items together.
class ChartDump {
public:
    void Add(const std::string& item) { m_text += (m_text.empty() ? "" : "; ") + item; }

    void Add(const std::string& name, const std::optional<ChartDimension>& dimension) {
        if (dimension) {
            Add(name + " " + DimensionText(*dimension));
        }
    }
    void Add(const std::string& name, const std::optional<ChartVariable>& variable) {
        if (variable) {
            Add(name + " " + VariableText(*variable));
        }
    }
    void Add(const std::string& name, const std::vector<std::string>& lines) {
        if (!lines.empty()) {
            Add(name + LinesText(lines));
        }
    }
    void Add(const std::string& name, const std::optional<double>& value) {
        if (value) {
            Add(name + " " + NumberText(*value));
        }
    }

    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

void AddData(const ChartModel& chart, ChartDump& dump) {
    dump.Add("x1", chart.x1);
    dump.Add("x2", chart.x2);
    dump.Add("y", chart.y);
    dump.Add("color", chart.color);
    dump.Add("style", chart.style);
    dump.Add("size", chart.size);
    if (chart.summaryVariable) {
        dump.Add("summaryvar " + VariableText(chart.summaryVariable->variable) +
                 LinesText(chart.summaryVariable->title));
    }
    std::string panels;
    for (const ChartVariable& panel : chart.panels) {
        panels += " " + VariableText(panel);
    }
    if (!panels.empty()) {
        dump.Add("panel" + panels);
    }
    dump.Add("pointlabel", chart.pointLabel);
    dump.Add("caselabel", chart.caseLabel);
}

void AddOrders(const ChartModel& chart, ChartDump& dump) {
    constexpr const char* kKeys[] = {" value", " label", " count", " occurrence"};
    for (const CategoryOrder& order : chart.categoryOrders) {
        dump.Add("catorder " + VariableText(order.variable) + NameOf(order.key, kKeys) +
                 (order.descending ? " desc" : ""));
    }
    for (const ScaleRange& scale : chart.scaleRanges) {
        dump.Add("scalerange " + VariableText(scale.variable) + RangeText(scale.range));
    }
    for (const ReferenceLine& line : chart.referenceLines) {
        dump.Add("refline " + VariableText(line.variable) + " " + NumberText(line.value) +
                 (line.label ? " label" : ""));
    }
    if (chart.normalize) {
        dump.Add("normalize");
    }
}

void AddFrame(const ChartModel& chart, ChartDump& dump) {
    if (!chart.viewName.empty()) {
        dump.Add("viewname \"" + chart.viewName + "\"");
    }
    dump.Add("title", chart.title);
    dump.Add("subtitle", chart.subtitle);
    dump.Add("caption", chart.caption);
    dump.Add("x1length", chart.x1Length);
    dump.Add("ylength", chart.yLength);
    if (chart.coordinate != Coordinate::kVertical) {
        dump.Add(chart.coordinate == Coordinate::kThree ? "three" : "horizontal");
    }
    dump.Add("looks", chart.chartLooks);
}

/// Parses the command; false when it is none.
bool Parse(const std::string& command, ChartModel& chart) {
    const std::unique_ptr<ZELKTokenSequence> tokens(TokensOf(command));
    return ParseChart(*tokens, chart);
}

} // namespace

std::string DumpChart(const ChartModel& chart) {
    ChartDump dump;
    AddData(chart, dump);
    AddOrders(chart, dump);
    AddFrame(chart, dump);
    for (const ChartElement& element : chart.elements) {
        dump.Add(std::visit(ElementText(), element));
    }
    return dump.Text();
}

std::string DumpParsedChart(const std::string& command) {
    ChartModel chart;
    return Parse(command, chart) ? DumpChart(chart) : "error";
}

std::string DumpCompleteChart(const std::string& command) {
    ChartModel chart;
    if (!Parse(command, chart)) {
        return "error";
    }
    CompleteChart(chart);
    return IsValidChart(chart) ? DumpChart(chart) : "invalid";
}

} // namespace recastor
