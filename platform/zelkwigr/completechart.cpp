#include "platform/zelkwigr/completechart.h"

#include "platform/zelkwigr/chartquestions.h"

namespace recastor {

namespace {

void CompleteElements(ChartModel& chart) {
    if (!chart.elements.empty() || !(chart.x1 || chart.x2 || chart.y)) {
        return;
    }
    const bool points = chart.x1 && IsVariable(chart.y) &&
                        !HasType(chart.x1, Measurement::kCategorical) &&
                        !HasType(chart.y, Measurement::kCategorical);
    if (points) {
        chart.elements.emplace_back(Scatter());
    } else {
        chart.elements.emplace_back(Bar());
    }
}

void CompleteY(ChartModel& chart) {
    if (!chart.y && HasElement<Bar, Line, Area, Histogram>(chart)) {
        chart.y.emplace();
        chart.y->variable = {"$count", BuiltIn::kCount};
    }
}

void CompleteType(std::optional<ChartDimension>& dimension, Measurement type) {
    if (dimension && !dimension->type) {
        dimension->type = type;
    }
}

/// The types of the axes; cases have no order of size.
void CompleteAxisType(std::optional<ChartDimension>& axis, Measurement type) {
    const bool cases = axis && axis->variable.builtIn == BuiltIn::kCase;
    CompleteType(axis, cases ? Measurement::kCategorical : type);
}

void CompleteTypes(ChartModel& chart) {
    const bool groups = HasElement<Bar, Pie, Line, Area, Box, ErrorBar>(chart);
    const Measurement ofX = groups ? Measurement::kCategorical : Measurement::kScale;
    CompleteAxisType(chart.x1, ofX);
    CompleteAxisType(chart.x2, ofX);
    CompleteAxisType(chart.y, Measurement::kScale);
    CompleteType(chart.color,
                 IsVariable(chart.color) ? Measurement::kCategorical : Measurement::kScale);
    CompleteType(chart.style, Measurement::kCategorical);
    CompleteType(chart.size, Measurement::kScale);
}

/// Gives each element that summarises a function where its measure has values to summarise.
struct CompleteFunction {
    const ChartModel& chart;

    void operator()(Bar& bar) const { Measure(bar.function); }
    void operator()(Line& line) const { Measure(line.function); }
    void operator()(Area& area) const { Measure(area.function); }
    void operator()(Pie& pie) const {
        const ChartVariable* measure = PieMeasure(chart);
        if (measure && !IsCounted(*measure)) {
            Default(pie.function, Statistic::kSum);
        }
    }
    template <class Element>
    void operator()(Element&) const {}

private:
    void Measure(std::optional<SummaryFunction>& function) const {
        if (IsVariable(chart.y)) {
            const bool categorical = HasType(chart.y, Measurement::kCategorical);
            Default(function, categorical ? Statistic::kMode : Statistic::kMean);
        }
    }

    static void Default(std::optional<SummaryFunction>& function, Statistic statistic) {
        if (!function) {
            function.emplace();
            function->statistic = statistic;
        }
    }
};

} // namespace

void CompleteChart(ChartModel& chart) {
    CompleteElements(chart);
    CompleteY(chart);
    CompleteTypes(chart);
    for (ChartElement& element : chart.elements) {
        std::visit(CompleteFunction{chart}, element);
    }
}

} // namespace recastor
