// Whole blocks: charts made by hand against what golden cases record for the commands that say the
// same, and what goes around the lines.

#include "platform/zelkwigr/gplgenerator.h"
#include "tests/support/charts.h"
#include "tests/support/run.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The GPL block of a golden case's first graph.
std::string GoldenGpl(const std::string& name) {
    const auto folder = std::filesystem::path(RECASTOR_TESTS) / "golden" / name;
    const std::string output = ReadFile(folder / "output.syn");
    const std::string opening = "BEGIN GPL";
    const std::size_t begin = output.find(opening) + opening.size();
    return output.substr(begin, output.find("END GPL.") - begin);
}

} // namespace

TEST(WriteGpl, PointsWithAFitLineOnAPage) {
    FitLine fitLine;
    fitLine.meanInterval = true;
    fitLine.intervalLevel = 90;
    ChartModel chart;
    chart.viewName = "Scatterplot";
    chart.x1 = ScaleDimension("height");
    chart.y = ScaleDimension("weight");
    chart.x1Length = 5;
    chart.yLength = 3;
    chart.elements = {fitLine, Scatter()};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_fit_line_and_points_on_a_page"));
}

TEST(WriteGpl, ClusteredBarsThatLie) {
    ChartModel chart;
    chart.x1 = CategoryDimension("region");
    chart.y = ScaleDimension("income");
    chart.y->title = {"Mean income"};
    chart.color = CategoryDimension("sex");
    chart.color->grouping = Grouping::kCluster;
    chart.coordinate = Coordinate::kHorizontal;
    chart.categoryOrders = {{Named("region"), CategoryOrder::Key::kValue, true}};
    chart.elements = {MeanBar()};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_clustered_bars_that_lie"));
}

TEST(WriteGpl, StackedBarsOfPercentages) {
    Bar bar;
    bar.labels.count = true;
    ChartModel chart;
    chart.x1 = CategoryDimension("educ");
    chart.y = CountDimension();
    chart.color = CategoryDimension("sex");
    chart.color->grouping = Grouping::kStack;
    chart.color->legend = false;
    chart.normalize = true;
    chart.elements = {bar};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_stacked_bars_of_percentages"));
}

TEST(WriteGpl, AHistogramInPanels) {
    Histogram histogram;
    histogram.curve = true;
    histogram.binCount = 20;
    ChartModel chart;
    chart.x1 = ScaleDimension("area");
    chart.y = CountDimension();
    chart.panels = {Named("group")};
    chart.scaleRanges = {{Named("area"), {-1.1, 1.1}}, {CountVariable(), {0, 600}}};
    chart.elements = {histogram};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_histogram_in_panels"));
}

TEST(WriteGpl, LinesWithPointsOfAComputedMeasure) {
    Line line;
    line.function = PercentageOf(Condition::kAbove, 1000);
    line.style = Line::Style::kDotLine;
    line.interpolation = Interpolation::kLeftStep;
    line.breaks = Break::kNone;
    ChartModel chart;
    chart.x1 = CategoryDimension("year");
    chart.y = ScaleDimension("income");
    chart.style = CategoryDimension("sex");
    chart.referenceLines = {{Named("income"), 25.5, true}};
    chart.elements = {line};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_lines_with_points_of_a_computed_measure"));
}

TEST(WriteGpl, StackedAreasOfAVariableWithAPeriodInItsName) {
    Area area;
    area.function = Of(Statistic::kSum);
    ChartModel chart;
    chart.x1 = CategoryDimension("year");
    chart.y = ScaleDimension("Sales.96");
    chart.color = CategoryDimension("region");
    chart.color->title = {"Sales", "region"};
    chart.title = {"Say \"yes\""};
    chart.elements = {area};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_stacked_areas_of_sums"));
}

TEST(WriteGpl, APieAgainstTheClock) {
    Pie pie = SumPie();
    pie.start = 450;
    pie.counterClockwise = true;
    pie.labels.label = true;
    pie.labels.percent = true;
    ChartModel chart;
    chart.summaryVariable = SummaryVariable{Named("sales"), {}};
    chart.color = CategoryDimension("region");
    chart.elements = {pie};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_pie_against_the_clock"));
}

TEST(WriteGpl, OneBoxWithLabelledCases) {
    ChartModel chart;
    chart.y = ScaleDimension("pain");
    chart.caseLabel = Named("id");
    chart.caption = {"All wards"};
    chart.elements = {Box()};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_box_with_labelled_cases"));
}

TEST(WriteGpl, ClusteredErrorBarsWithTheirMeans) {
    ErrorBar errorBar;
    errorBar.extent = ErrorBar::Extent::kStandardErrors;
    errorBar.amount = 2;
    errorBar.caps = false;
    errorBar.labels.value = true;
    ChartModel chart;
    chart.x1 = CategoryDimension("ward");
    chart.y = ScaleDimension("pain");
    chart.color = CategoryDimension("sex");
    chart.elements = {errorBar};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_clustered_error_bars_with_their_means"));
}

TEST(WriteGpl, PointsInThreeDimensions) {
    ChartModel chart;
    chart.x1 = ScaleDimension("a");
    chart.x2 = ScaleDimension("b");
    chart.y = ScaleDimension("c");
    chart.y->range.min = 0;
    chart.size = ScaleDimension("d");
    chart.size->range = {1, 9};
    chart.coordinate = Coordinate::kThree;
    chart.pointLabel = Named("name");
    chart.elements = {Scatter()};
    EXPECT_EQ(GplText(chart), GoldenGpl("igraph_points_in_three_dimensions"));
}

namespace {

bool HasPage(const ChartModel& chart) {
    const std::string gpl = GplText(chart);
    const bool begins = gpl.starts_with("\n PAGE: begin(");
    EXPECT_EQ(begins, gpl.ends_with("\n PAGE: end()\n"));
    return begins;
}

} // namespace

TEST(WriteGpl, APageNeedsBothLengths) {
    ChartModel chart = ChartOf(Scatter());
    EXPECT_FALSE(HasPage(chart));
    chart.x1Length = 5;
    EXPECT_FALSE(HasPage(chart));
    chart.yLength = 3.25;
    EXPECT_TRUE(HasPage(chart));
    EXPECT_EQ(GplLines(chart, "PAGE").front(), "begin(scale(5in,3.25in))");
    chart.x1Length.reset();
    EXPECT_FALSE(HasPage(chart));
}

TEST(WriteGpl, WorkGrowsWithTheChartOnly) {
    constexpr int kMany = 100'000;
    ChartModel chart = ChartOf(Bar());
    chart.elements.clear();
    for (int i = 0; i < kMany; ++i) {
        Bar bar;
        bar.function = NumberOf(Condition::kAbove, i);
        chart.elements.emplace_back(bar);
        chart.referenceLines.push_back({Named("y"), static_cast<double>(i), false});
        chart.categoryOrders.push_back({Named("v" + std::to_string(i)), {}, false});
        chart.scaleRanges.push_back({Named("w" + std::to_string(i)), {}});
    }
    EXPECT_EQ(GplLines(chart, "ELEMENT").size(), kMany);
    EXPECT_EQ(GplLines(chart, "TRANS").back(), "t100000=eval(y>99999)");
}

} // namespace recastor
