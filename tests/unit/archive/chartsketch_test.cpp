#include "archive/picture/picturejson.h"
#include "tests/support/charts.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string AsItIs(std::string_view text) {
    return std::string(text);
}

/// What the sketch says of `key`, up to the comma behind it.
std::string Sketched(const ChartModel& chart, const std::string& key) {
    const std::string sketch = SketchOfChart(chart, AsItIs);
    const std::string name = '"' + key + "\":";
    const std::size_t start = sketch.find(name);
    if (start == std::string::npos) {
        return "not there";
    }
    std::size_t end = start + name.size();
    for (int depth = 0; depth > 0 || (sketch[end] != ',' && sketch[end] != '}'); ++end) {
        depth += sketch[end] == '{' || sketch[end] == '[' ? 1 : 0;
        depth -= sketch[end] == '}' || sketch[end] == ']' ? 1 : 0;
    }
    return sketch.substr(start + name.size(), end - start - name.size());
}

TEST(SketchOfChart, SaysAllOfAChart) {
    ChartModel chart = ChartOf(MeanBar());
    chart.color = CategoryDimension("c");
    chart.color->legend = false;
    chart.panels = {Named("p")};
    chart.coordinate = Coordinate::kHorizontal;
    chart.title = {"One", "Two"};
    EXPECT_EQ(SketchOfChart(chart, AsItIs),
              R"({"form":"clustered","horizontal":true,)"
              R"("x":{"label":"x","category":true,"legend":true},"z":null,)"
              R"("y":{"label":"Mean y","category":false,"legend":true},)"
              R"("color":{"label":"c","category":true,"legend":false},"style":null,"size":null,)"
              R"("cluster":"color","slice":null,"panels":["p"],"elements":[{"type":"bar"}],)"
              R"("stacked":false,"normalized":false,"references":[],)"
              R"("title":["One","Two"],"subtitle":[],"caption":[]})");
}

TEST(SketchOfChart, StackIsNoCluster) {
    ChartModel chart = ChartOf(MeanBar());
    chart.style = CategoryDimension("c");
    chart.style->grouping = Grouping::kStack;
    chart.normalize = true;
    EXPECT_EQ(Sketched(chart, "form"), R"("plain")");
    EXPECT_EQ(Sketched(chart, "cluster"), "null");
    EXPECT_EQ(Sketched(chart, "stacked"), "true");
    EXPECT_EQ(Sketched(chart, "normalized"), "true");
    EXPECT_EQ(Sketched(chart, "y"), R"({"label":"Percent","category":false,"legend":true})");
}

TEST(SketchOfChart, BarsBesideEachOtherAreAClusterAlsoWithALine) {
    ChartModel chart = ChartOf(MeanBar());
    chart.style = CategoryDimension("c");
    chart.elements.emplace_back(MeanLine());
    EXPECT_EQ(Sketched(chart, "form"), R"("plain")");
    EXPECT_EQ(Sketched(chart, "cluster"), R"("style")");
}

TEST(SketchOfChart, ChartWithoutYCounts) {
    ChartModel chart = ChartOf(Bar());
    chart.y.reset();
    EXPECT_EQ(Sketched(chart, "y"), R"({"label":"Count","category":false,"legend":true})");
}

TEST(SketchOfChart, PieIsSlicedByItsColor) {
    EXPECT_EQ(Sketched(PieChart(), "form"), R"("pie")");
    EXPECT_EQ(Sketched(PieChart(), "slice"), R"("color")");
    ChartModel chart = PieChart();
    chart.x1 = chart.color;
    chart.color.reset();
    EXPECT_EQ(Sketched(chart, "slice"), R"("x")");
}

TEST(SketchOfChart, ThreeDimensionsAreAFormOfTheirOwn) {
    ChartModel chart = ChartOf(Scatter());
    chart.coordinate = Coordinate::kThree;
    chart.x2 = ScaleDimension("z");
    EXPECT_EQ(Sketched(chart, "form"), R"("three")");
    EXPECT_EQ(Sketched(chart, "z"), R"({"label":"z","category":false,"legend":true})");
}

TEST(SketchOfChart, ElementsAreThoseThatAreDrawn) {
    Line line = MeanLine();
    line.style = Line::Style::kDotLine;
    line.interpolation = Interpolation::kSpline;
    Line none = MeanLine();
    none.style = Line::Style::kNone;
    Line dots = MeanLine();
    dots.style = Line::Style::kDot;
    Area area = MeanArea();
    area.interpolation = Interpolation::kRightJump;
    ChartModel chart = ChartOf(line);
    chart.elements = {line, none, dots, area, Box(), ErrorBar()};
    EXPECT_EQ(Sketched(chart, "elements"),
              R"([{"type":"line","curve":"smooth","points":true},{"type":"dots"},)"
              R"({"type":"area","curve":"stepBefore"},{"type":"box"},)"
              R"({"type":"errorBar","points":true}])");
}

TEST(SketchOfChart, HistogramsAndFitLinesSayWhatTheyAdd) {
    Histogram histogram;
    histogram.curve = true;
    EXPECT_EQ(Sketched(ChartOf(histogram), "elements"),
              R"([{"type":"histogram","cumulative":false,"density":true}])");
    FitLine line;
    line.method = FitLine::Method::kLoess;
    line.eachGroup = true;
    EXPECT_EQ(Sketched(ChartOf(line), "elements"),
              R"([{"type":"fitLine","method":"loess","groups":true}])");
}

TEST(SketchOfChart, ReferenceLinesStandOnTheScalesThatTheyName) {
    ChartModel chart = ChartOf(Scatter());
    chart.referenceLines = {
        {Named("Y"), 5, false}, {Named("x"), 0.5, false}, {Named("q"), 1, false}};
    EXPECT_EQ(Sketched(chart, "references"),
              R"([{"axis":"y","value":5},{"axis":"x","value":0.5}])");
}

TEST(SketchOfChart, TextsAreDecodedAndAlwaysValid) {
    ChartModel chart = ChartOf(Scatter());
    chart.title = {"\xE4"};
    EXPECT_EQ(Sketched(chart, "title"), "[\"\xEF\xBF\xBD\"]");
    const auto decode = [](std::string_view) { return std::string("ok"); };
    EXPECT_NE(SketchOfChart(chart, decode).find(R"("title":["ok"])"), std::string::npos);
}

} // namespace

} // namespace recastor
