#include "platform/zelkwigr/gplobstacles.h"
#include "tests/support/charts.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string Obstacle(const ChartModel& chart) {
    return WhyChartHasNoGpl(ChartFacts(chart));
}

std::string Message(const std::string& what, const std::string& reason) {
    return "*IGRAPH command " + what + " cannot be converted: " + reason + ".";
}

ChartModel With(ChartModel chart, const ChartElement& element) {
    chart.elements.push_back(element);
    return chart;
}

ChartModel InThree(ChartModel chart) {
    chart.coordinate = Coordinate::kThree;
    chart.x2 = ScaleDimension("z");
    return chart;
}

ChartModel ColoredBy(ChartModel chart, const ChartDimension& color) {
    chart.color = color;
    return chart;
}

Line HiddenLine() {
    Line line = MeanLine();
    line.style = Line::Style::kNone;
    return line;
}

FitLine FitLineOf(FitLine::Method method) {
    FitLine fitLine;
    fitLine.method = method;
    return fitLine;
}

FitLine FitLineWithCases(FitLine::Method method) {
    FitLine fitLine = FitLineOf(method);
    fitLine.individualInterval = true;
    return fitLine;
}

ChartModel PanelledBy(ChartModel chart, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        chart.panels.push_back(Named("p" + std::to_string(i)));
    }
    return chart;
}

const std::string kPieBeside =
    Message("with PIE and another element", "a pie has no axes to share");
const std::string kPieAlongAxis =
    Message("with PIE and X1 beside COLOR or STYLE", "pies along an axis have no GPL form");
const std::string kPanelsInThree =
    Message("with PANEL and COORDINATE=THREE", "panels have no three-dimensional form");
const std::string kClustersInThree =
    Message("with clusters and COORDINATE=THREE", "clusters have no three-dimensional form");
const std::string kManyPanels =
    Message("with more than two PANEL variables", "panels have two directions");
const std::string kOrigin =
    Message("with FITLINE METHOD=ORIGIN", "fit lines through the origin have no GPL form");
const std::string kCases =
    Message("with FITLINE INTERVAL=INDIVIDUAL", "intervals of individual cases have no GPL form");
const std::string kNothing = Message("with nothing to draw", "the chart would be empty");
const std::string kNoVariable = Message("without a variable", "the chart has no data");

std::string FlatInThree(const std::string& keyword, const std::string& plural) {
    return Message("with " + keyword + " and COORDINATE=THREE",
                   plural + " have no three-dimensional form");
}

std::string ClusterBeside(const std::string& keyword) {
    return Message("with clusters and " + keyword,
                   "only bars, boxes and error bars can be clustered");
}

} // namespace

TEST(GplObstacles, AnOrdinaryChartHasNone) {
    for (const ChartElement& element :
         {ChartElement(Scatter()), ChartElement(MeanBar()), ChartElement(MeanLine()),
          ChartElement(MeanArea()), ChartElement(Box()), ChartElement(ErrorBar()),
          ChartElement(Histogram()), ChartElement(FitLine())}) {
        EXPECT_EQ(Obstacle(ChartOf(element)), "");
    }
    EXPECT_EQ(Obstacle(PieChart()), "");
}

TEST(GplObstacles, PieBesideAnotherElement) {
    EXPECT_EQ(Obstacle(With(PieChart(), MeanBar())), kPieBeside);
    EXPECT_EQ(Obstacle(With(PieChart(), SumPie())), kPieBeside);
    EXPECT_EQ(Obstacle(With(PieChart(), HiddenLine())), kPieBeside);
    EXPECT_EQ(Obstacle(With(ChartOf(MeanBar()), SumPie())), kPieBeside);
}

TEST(GplObstacles, PieAlongAnAxis) {
    ChartModel chart = PieChart();
    chart.x1 = CategoryDimension("x");
    EXPECT_EQ(Obstacle(chart), kPieAlongAxis);
    chart.color.reset();
    EXPECT_EQ(Obstacle(chart), "");
    chart.style = CategoryDimension("s");
    EXPECT_EQ(Obstacle(chart), kPieAlongAxis);
}

TEST(GplObstacles, FlatElementsInThreeDimensions) {
    EXPECT_EQ(Obstacle(InThree(PieChart())), FlatInThree("PIE", "pies"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(MeanArea()))), FlatInThree("AREA", "areas"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(MeanLine()))), FlatInThree("LINE", "lines"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(Box()))), FlatInThree("BOX", "boxes"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(ErrorBar()))), FlatInThree("ERRORBAR", "error bars"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(Histogram()))), FlatInThree("HISTOGRAM", "histograms"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(FitLine()))), FlatInThree("FITLINE", "fit lines"));
    EXPECT_EQ(Obstacle(InThree(ChartOf(Scatter()))), "");
    EXPECT_EQ(Obstacle(InThree(ChartOf(MeanBar()))), "");
}

TEST(GplObstacles, TheFirstFlatElementIsNamed) {
    const ChartModel bars = ChartOf(MeanBar());
    EXPECT_EQ(Obstacle(InThree(With(With(bars, MeanLine()), MeanArea()))),
              FlatInThree("LINE", "lines"));
    EXPECT_EQ(Obstacle(InThree(With(With(bars, HiddenLine()), MeanArea()))),
              FlatInThree("LINE", "lines"));
}

TEST(GplObstacles, PanelsInThreeDimensions) {
    EXPECT_EQ(Obstacle(InThree(PanelledBy(ChartOf(MeanBar()), 1))), kPanelsInThree);
    EXPECT_EQ(Obstacle(InThree(PanelledBy(ChartOf(MeanBar()), 3))), kPanelsInThree);
}

TEST(GplObstacles, ClustersInThreeDimensions) {
    const ChartModel bars = InThree(ChartOf(MeanBar()));
    EXPECT_EQ(Obstacle(ColoredBy(bars, CategoryDimension("c"))), kClustersInThree);
    EXPECT_EQ(Obstacle(ColoredBy(bars, ScaleDimension("c"))), "");
    ChartModel styled = bars;
    styled.style = CategoryDimension("c");
    EXPECT_EQ(Obstacle(styled), kClustersInThree);
    ChartModel stacked = ColoredBy(bars, CategoryDimension("c"));
    stacked.color->grouping = Grouping::kStack;
    EXPECT_EQ(Obstacle(stacked), "");
    ChartModel overScale = ColoredBy(bars, CategoryDimension("c"));
    overScale.x1 = ScaleDimension("x");
    EXPECT_EQ(Obstacle(overScale), "");
    EXPECT_EQ(Obstacle(ColoredBy(InThree(ChartOf(Scatter())), CategoryDimension("c"))), "");
}

TEST(GplObstacles, ClustersBesideOtherElements) {
    const ChartModel bars = ColoredBy(ChartOf(MeanBar()), CategoryDimension("c"));
    const ChartModel boxes = ColoredBy(ChartOf(Box()), CategoryDimension("c"));
    for (const ChartModel& chart : {bars, boxes}) {
        EXPECT_EQ(Obstacle(With(chart, Scatter())), ClusterBeside("SCATTER"));
        EXPECT_EQ(Obstacle(With(chart, MeanArea())), ClusterBeside("AREA"));
        EXPECT_EQ(Obstacle(With(chart, MeanLine())), ClusterBeside("LINE"));
        EXPECT_EQ(Obstacle(With(chart, Histogram())), ClusterBeside("HISTOGRAM"));
        EXPECT_EQ(Obstacle(With(chart, FitLine())), ClusterBeside("FITLINE"));
        EXPECT_EQ(Obstacle(With(chart, ErrorBar())), "");
        EXPECT_EQ(Obstacle(With(chart, HiddenLine())), "");
    }
    EXPECT_EQ(Obstacle(With(With(bars, MeanLine()), MeanArea())), ClusterBeside("LINE"));
}

TEST(GplObstacles, WhatIsNotClusteredStandsBesideAnything) {
    const ChartDimension categories = CategoryDimension("c");
    EXPECT_EQ(Obstacle(With(ColoredBy(ChartOf(ErrorBar()), categories), MeanLine())), "");
    EXPECT_EQ(Obstacle(With(ColoredBy(ChartOf(MeanArea()), categories), MeanLine())), "");
    ChartModel stacked = With(ColoredBy(ChartOf(MeanBar()), categories), MeanLine());
    stacked.color->grouping = Grouping::kStack;
    EXPECT_EQ(Obstacle(stacked), "");
}

TEST(GplObstacles, StackMeansNothingWithoutBarsAndHistograms) {
    ChartModel chart = With(ColoredBy(ChartOf(Box()), CategoryDimension("c")), MeanLine());
    chart.color->grouping = Grouping::kStack;
    EXPECT_EQ(Obstacle(chart), ClusterBeside("LINE"));
}

TEST(GplObstacles, MoreThanTwoPanelVariables) {
    EXPECT_EQ(Obstacle(PanelledBy(ChartOf(MeanBar()), 2)), "");
    EXPECT_EQ(Obstacle(PanelledBy(ChartOf(MeanBar()), 3)), kManyPanels);
    EXPECT_EQ(Obstacle(PanelledBy(ChartOf(MeanBar()), 100'000)), kManyPanels);
}

TEST(GplObstacles, FitLinesThroughTheOrigin) {
    const FitLine fitLine = FitLineOf(FitLine::Method::kOrigin);
    EXPECT_EQ(Obstacle(ChartOf(fitLine)), kOrigin);
    EXPECT_EQ(Obstacle(With(ChartOf(Scatter()), fitLine)), kOrigin);
    EXPECT_EQ(Obstacle(ChartOf(FitLineWithCases(FitLine::Method::kOrigin))), kOrigin);
}

TEST(GplObstacles, IntervalsOfIndividualCases) {
    EXPECT_EQ(Obstacle(ChartOf(FitLineWithCases(FitLine::Method::kRegression))), kCases);
    EXPECT_EQ(Obstacle(ChartOf(FitLineWithCases(FitLine::Method::kMean))), kCases);
    EXPECT_EQ(Obstacle(ChartOf(FitLineWithCases(FitLine::Method::kLoess))), "");
    EXPECT_EQ(Obstacle(With(ChartOf(Scatter()), FitLineWithCases(FitLine::Method::kNone))), "");
}

TEST(GplObstacles, NothingToDraw) {
    EXPECT_EQ(Obstacle(ChartOf(HiddenLine())), kNothing);
    EXPECT_EQ(Obstacle(ChartOf(FitLineOf(FitLine::Method::kNone))), kNothing);
    EXPECT_EQ(Obstacle(With(ChartOf(HiddenLine()), MeanBar())), "");
}

TEST(GplObstacles, NoVariable) {
    ChartModel chart = ChartOf(Bar());
    chart.x1.reset();
    chart.y = CountDimension();
    EXPECT_EQ(Obstacle(chart), kNoVariable);
    chart.y.reset();
    EXPECT_EQ(Obstacle(chart), kNoVariable);
    chart.x1 = CaseDimension();
    EXPECT_EQ(Obstacle(chart), kNoVariable);
    chart.panels = {Named("p")};
    EXPECT_EQ(Obstacle(chart), "");
}

TEST(GplObstacles, AVariableThatNoLineNamesIsNone) {
    ChartModel chart = ChartOf(Bar());
    chart.x1.reset();
    chart.y = CountDimension();
    chart.pointLabel = Named("l");
    chart.caseLabel = Named("l");
    chart.size = ScaleDimension("s");
    chart.summaryVariable = SummaryVariable{Named("m"), {}};
    EXPECT_EQ(Obstacle(chart), kNoVariable);
}

TEST(GplObstacles, TheFirstOfSeveralIsTold) {
    ChartModel chart = InThree(PanelledBy(PieChart(), 3));
    chart.x1 = CategoryDimension("x");
    chart.elements.emplace_back(FitLineWithCases(FitLine::Method::kOrigin));
    EXPECT_EQ(Obstacle(chart), kPieBeside);
    chart.elements.pop_back();
    EXPECT_EQ(Obstacle(chart), kPieAlongAxis);
    chart.x1.reset();
    EXPECT_EQ(Obstacle(chart), FlatInThree("PIE", "pies"));

    chart = InThree(PanelledBy(ColoredBy(ChartOf(MeanBar()), CategoryDimension("c")), 3));
    EXPECT_EQ(Obstacle(chart), kPanelsInThree);
    chart.panels.clear();
    EXPECT_EQ(Obstacle(chart), kClustersInThree);

    chart = PanelledBy(ColoredBy(ChartOf(MeanBar()), CategoryDimension("c")), 3);
    chart.elements.emplace_back(FitLineWithCases(FitLine::Method::kOrigin));
    EXPECT_EQ(Obstacle(chart), ClusterBeside("FITLINE"));
    chart.color.reset();
    EXPECT_EQ(Obstacle(chart), kManyPanels);
    chart.panels.clear();
    EXPECT_EQ(Obstacle(chart), kOrigin);
}

} // namespace recastor
