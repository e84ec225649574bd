#include "tests/support/charts.h"

#include "platform/zelkwigr/gplgenerator.h"

#include <sstream>

namespace recastor {

namespace {

ChartDimension Dimension(ChartVariable variable, Measurement type) {
    ChartDimension dimension;
    dimension.variable = std::move(variable);
    dimension.type = type;
    return dimension;
}

} // namespace

ChartVariable Named(const std::string& name) {
    return {name, BuiltIn::kNone};
}

ChartDimension ScaleDimension(const std::string& name) {
    return Dimension(Named(name), Measurement::kScale);
}

ChartDimension CategoryDimension(const std::string& name) {
    return Dimension(Named(name), Measurement::kCategorical);
}

ChartVariable CountVariable() {
    return {"$count", BuiltIn::kCount};
}

ChartVariable PercentVariable() {
    return {"$pct", BuiltIn::kPercent};
}

ChartVariable CaseVariable() {
    return {"$case", BuiltIn::kCase};
}

ChartDimension CountDimension() {
    return Dimension(CountVariable(), Measurement::kScale);
}

ChartDimension PercentDimension() {
    return Dimension(PercentVariable(), Measurement::kScale);
}

ChartDimension CaseDimension() {
    return Dimension(CaseVariable(), Measurement::kCategorical);
}

SummaryFunction Of(Statistic statistic) {
    SummaryFunction function;
    function.statistic = statistic;
    return function;
}

SummaryFunction Percentile(double percent) {
    SummaryFunction function = Of(Statistic::kPercentile);
    function.first = percent;
    return function;
}

SummaryFunction NumberOf(Condition condition, double first, double second) {
    return {Statistic::kNumber, condition, first, second};
}

SummaryFunction PercentageOf(Condition condition, double first, double second) {
    return {Statistic::kPercentage, condition, first, second};
}

Bar MeanBar() {
    Bar bar;
    bar.function = Of(Statistic::kMean);
    return bar;
}

Line MeanLine() {
    Line line;
    line.function = Of(Statistic::kMean);
    return line;
}

Area MeanArea() {
    Area area;
    area.function = Of(Statistic::kMean);
    return area;
}

Pie SumPie() {
    Pie pie;
    pie.function = Of(Statistic::kSum);
    return pie;
}

ChartModel ChartOf(const ChartElement& element) {
    const bool counts = std::holds_alternative<Histogram>(element);
    const bool isScale = counts || std::holds_alternative<Scatter>(element) ||
                         std::holds_alternative<FitLine>(element);
    ChartModel chart;
    chart.x1 = isScale ? ScaleDimension("x") : CategoryDimension("x");
    chart.y = counts ? CountDimension() : ScaleDimension("y");
    chart.elements = {element};
    return chart;
}

ChartModel PieChart() {
    ChartModel chart;
    chart.y = ScaleDimension("y");
    chart.color = CategoryDimension("c");
    chart.elements = {SumPie()};
    return chart;
}

std::string GplText(const ChartModel& chart) {
    const ChartFacts facts(chart);
    return WriteGpl(facts, GplVariables(facts));
}

std::vector<std::string> GplLines(const ChartModel& chart, const std::string& keyword) {
    const std::string opening = ' ' + keyword + ": ";
    std::istringstream text(GplText(chart));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with(opening)) {
            lines.push_back(line.substr(opening.size()));
        }
    }
    return lines;
}

} // namespace recastor
