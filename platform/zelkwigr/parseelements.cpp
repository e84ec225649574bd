#include "platform/zelkwigr/parseelements.h"

#include "platform/zelkwigr/elementoptions.h"
#include "platform/zelkwigr/parsesummary.h"

#include <cmath>

namespace recastor {

namespace {

template <class Element, std::size_t n>
void AddElement(ChartTokenReader& reader, const Option<Element> (&options)[n], ChartModel& chart) {
    Element element;
    if constexpr (requires { element.function; }) {
        element.function = ReadSummaryFunction(reader);
    }
    ReadOptions(reader, options, element);
    chart.elements.emplace_back(element);
}

// SCATTER

/// Whether points that coincide are moved apart.
constexpr Keyword<bool> kCoincident[] = {{"NONE", false}, {"JITTER", true}};

void SetCoincident(ChartTokenReader& reader, Scatter& scatter) {
    scatter.jitter = reader.Choice(kCoincident);
    if (scatter.jitter && reader.Take(TokenSequenceBase::kLeftParen)) {
        reader.Number();
        reader.Expect(TokenSequenceBase::kRightParen);
    }
}

constexpr Option<Scatter> kScatterOptions[] = {
    {"COINCIDENT", SetCoincident},
    {"KEY", IgnoreSwitch},
};

// BAR, AREA, LINE

constexpr Option<Bar> kBarOptions[] = {
    {"LABEL", SetLabels},    {"BASELINE", SetBaseline}, {"SHAPE", IgnoreWord},
    {"BARBASE", IgnoreWord}, {"KEY", IgnoreSwitch},
};

constexpr Option<Area> kAreaOptions[] = {
    {"POINTLABEL", SetLabels}, {"INTERPOLATE", SetInterpolation}, {"BREAK", SetBreak},
    {"BASELINE", SetBaseline}, {"AREALABEL", IgnoreSideLabels},   {"KEY", IgnoreSwitch},
};

constexpr Keyword<Line::Style> kLineStyles[] = {
    {"DOTLINE", Line::Style::kDotLine},
    {"LINE", Line::Style::kLine},
    {"DOT", Line::Style::kDot},
    {"NONE", Line::Style::kNone},
};

constexpr Option<Line> kLineOptions[] = {
    {"STYLE",
     [](ChartTokenReader& reader, Line& line) { line.style = reader.Choice(kLineStyles); }},
    {"LABEL", SetLabels},
    {"INTERPOLATE", SetInterpolation},
    {"BREAK", SetBreak},
    {"DROPLINE", IgnoreSwitch},
    {"LINELABEL", IgnoreSideLabels},
    {"KEY", IgnoreSwitch},
};

// PIE

constexpr Flag<ElementLabels> kSliceWords[] = {
    {"LABEL", &ElementLabels::label},
    {"VAL", &ElementLabels::value},
    {"N", &ElementLabels::count},
    {"PCT", &ElementLabels::percent},
    {"INSIDE", nullptr},
    {"OUTSIDE", nullptr},
    {"TEXTIN", nullptr},
    {"NUMIN", nullptr},
    {"URIGHT", nullptr},
    {"LRIGHT", nullptr},
    {"ULEFT", nullptr},
    {"LLEFT", nullptr},
};

void SetSlice(ChartTokenReader& reader, Pie& pie) {
    pie.labels = ElementLabels();
    ReadFlags(reader, kSliceWords, pie.labels);
}

void IgnoreSlice(ChartTokenReader& reader, Pie&) {
    ElementLabels ignored;
    ReadFlags(reader, kSliceWords, ignored);
}

constexpr Option<Pie> kPieOptions[] = {
    {"START", [](ChartTokenReader& reader, Pie& pie) { pie.start = reader.Number(); }},
    {"CW", [](ChartTokenReader&, Pie& pie) { pie.counterClockwise = false; }},
    {"CCW", [](ChartTokenReader&, Pie& pie) { pie.counterClockwise = true; }},
    {"SLICE", SetSlice},
    {"STACK", IgnoreSlice},
    {"CLUSTER", IgnoreSlice},
    {"KEY", IgnoreSwitch},
};

// BOX

constexpr Option<Box> kBoxOptions[] = {
    {"OUTLIERS", IgnoreSwitch},
    {"EXTREME", IgnoreSwitch},
    {"MEDIAN", IgnoreSwitch},
    {"LABEL", IgnoreLabels},
    {"BOXBASE", IgnoreWord},
    {"WHISKER", IgnoreWord},
    {"CAPWIDTH", IgnoreNumberOrInParentheses},
    {"KEY", IgnoreSwitch},
};

// ERRORBAR

template <ErrorBar::Extent kExtent, int kMost>
void SetExtent(ChartTokenReader& reader, ErrorBar& bar) {
    bar.extent = kExtent;
    bar.amount = reader.NumberOrInParentheses();
    reader.Require(bar.amount >= 0 && bar.amount <= kMost);
}

/// Whether the bar has caps.
constexpr Keyword<bool> kCapStyles[] = {{"T", true}, {"NONE", false}, {"FANCY", true}};

constexpr Option<ErrorBar> kErrorBarOptions[] = {
    {"CI", SetExtent<ErrorBar::Extent::kConfidence, 100>},
    {"SD", SetExtent<ErrorBar::Extent::kDeviations, 6>},
    {"SE", SetExtent<ErrorBar::Extent::kStandardErrors, 6>},
    {"LABEL", SetLabels},
    {"CAPSTYLE",
     [](ChartTokenReader& reader, ErrorBar& bar) { bar.caps = reader.Choice(kCapStyles); }},
    {"SYMBOL",
     [](ChartTokenReader& reader, ErrorBar& bar) { bar.symbol = reader.Choice(kSwitch); }},
    {"DIRECTION", IgnoreWord},
    {"BASELINE", IgnoreBaseline},
    {"CAPWIDTH", IgnoreNumberOrInParentheses},
    {"KEY", IgnoreSwitch},
};

// HISTOGRAM

void ReadBinCount(ChartTokenReader& reader, Histogram& histogram) {
    constexpr double kMostBins = 250;
    histogram.binCount = NumberBetween(reader, 1, kMostBins);
    reader.Require(std::trunc(*histogram.binCount) == *histogram.binCount);
}

void ReadBinWidth(ChartTokenReader& reader, Histogram& histogram) {
    histogram.binWidth = reader.Number();
    reader.Require(*histogram.binWidth > 0);
}

constexpr Option<Histogram> kIntervals[] = {
    {"AUTO", IgnoreNothing},
    {"NUM", ReadBinCount},
    {"WIDTH", ReadBinWidth},
};

void SetInterval(ChartTokenReader& reader, Histogram& histogram) {
    histogram.binCount.reset();
    histogram.binWidth.reset();
    ReadOption(reader, kIntervals, histogram);
}

void IgnoreInterval(ChartTokenReader& reader, Histogram&) {
    Histogram ignored;
    SetInterval(reader, ignored);
}

/// Where the first interval begins, in percent of its width.
void IgnoreStart(ChartTokenReader& reader, Histogram&) {
    NumberBetween(reader, 0, 99);
}

constexpr Keyword<bool> kHistogramShapes[] = {{"HISTOGRAM", true}};

constexpr Option<Histogram> kHistogramOptions[] = {
    {"CUM", [](ChartTokenReader&, Histogram& histogram) { histogram.cumulative = true; }},
    {"CURVE", [](ChartTokenReader& reader,
                 Histogram& histogram) { histogram.curve = reader.Choice(kSwitch); }},
    {"X1INTERVAL", SetInterval},
    {"SHAPE", [](ChartTokenReader& reader, Histogram&) { reader.Choice(kHistogramShapes); }},
    {"SURFACE", IgnoreSwitch},
    {"X2INTERVAL", IgnoreInterval},
    {"X1START", IgnoreStart},
    {"X2START", IgnoreStart},
    {"KEY", IgnoreSwitch},
};

// FITLINE

constexpr Keyword<FitLine::Method> kMethods[] = {
    {"NONE", FitLine::Method::kNone},     {"REGRESSION", FitLine::Method::kRegression},
    {"ORIGIN", FitLine::Method::kOrigin}, {"MEAN", FitLine::Method::kMean},
    {"LLR", FitLine::Method::kLoess},
};

/// The only form of a regression; the word may be left out.
constexpr Keyword<bool> kRegressionForms[] = {{"LINEAR", true}};

/// The kernels of LLR are read and ignored.
constexpr Keyword<bool> kKernels[] = {{"NORMAL", true}, {"EPANECHNIKOV", true}, {"UNIFORM", true}};

constexpr Keyword<bool> kBandwidths[] = {{"FAST", true}, {"CONSTRAINED", true}};

void SetMethod(ChartTokenReader& reader, FitLine& line) {
    line.method = reader.Choice(kMethods);
    if (line.method == FitLine::Method::kRegression || line.method == FitLine::Method::kOrigin) {
        reader.TakeKeywordBesideOptions(kRegressionForms);
    } else if (line.method == FitLine::Method::kLoess) {
        reader.TakeKeywordBesideOptions(kKernels);
    }
}

constexpr Flag<FitLine> kIntervalWords[] = {
    {"MEAN", &FitLine::meanInterval},
    {"INDIVIDUAL", &FitLine::individualInterval},
};

void SetFitInterval(ChartTokenReader& reader, FitLine& line) {
    line.intervalLevel = FitLine().intervalLevel;
    if (reader.Take(TokenSequenceBase::kLeftParen)) {
        line.intervalLevel = NumberBetween(reader, 50, 100);
        reader.Expect(TokenSequenceBase::kRightParen);
        reader.SkipEquals();
    }
    line.meanInterval = false;
    line.individualInterval = false;
    ReadFlags(reader, kIntervalWords, line);
}

constexpr Flag<FitLine> kLineWords[] = {
    {"TOTAL", &FitLine::total},
    {"MEFFECT", &FitLine::eachGroup},
};

void SetLines(ChartTokenReader& reader, FitLine& line) {
    line.total = false;
    line.eachGroup = false;
    ReadFlags(reader, kLineWords, line);
}

constexpr Option<FitLine> kFitLineOptions[] = {
    {"METHOD", SetMethod},
    {"INTERVAL", SetFitInterval},
    {"LINE", SetLines},
    {"BANDWIDTH", [](ChartTokenReader& reader, FitLine&) { reader.Choice(kBandwidths); }},
    {"X1MULTIPLIER", IgnoreNumber},
    {"X2MULTIPLIER", IgnoreNumber},
    {"SPIKE", IgnoreSwitch},
    {"KEY", IgnoreSwitch},
};

} // namespace

void ReadScatter(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kScatterOptions, chart);
}

void ReadBar(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kBarOptions, chart);
}

void ReadArea(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kAreaOptions, chart);
}

void ReadLine(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kLineOptions, chart);
}

void ReadPie(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kPieOptions, chart);
}

void ReadBox(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kBoxOptions, chart);
}

void ReadErrorBar(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kErrorBarOptions, chart);
}

void ReadHistogram(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kHistogramOptions, chart);
}

void ReadFitLine(ChartTokenReader& reader, ChartModel& chart) {
    AddElement(reader, kFitLineOptions, chart);
}

} // namespace recastor
