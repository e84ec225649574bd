#include "platform/zelkwigr/chartfacts.h"
#include "tests/support/charts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

TEST(ElementKinds, AreASet) {
    const ElementKinds kinds{ElementKind::kBar, ElementKind::kLine};
    EXPECT_TRUE(kinds.Has(ElementKind::kBar));
    EXPECT_FALSE(kinds.Has(ElementKind::kArea));
    EXPECT_TRUE(kinds.HasAnyOf({ElementKind::kArea, ElementKind::kLine}));
    EXPECT_FALSE(kinds.HasAnyOf({ElementKind::kArea, ElementKind::kPie}));
    EXPECT_TRUE(kinds.HasOnly({ElementKind::kLine, ElementKind::kBar, ElementKind::kPie}));
    EXPECT_FALSE(kinds.HasOnly({ElementKind::kLine}));
    EXPECT_EQ(KindOf(ChartElement(FitLine())), ElementKind::kFitLine);
    EXPECT_EQ(KindOf(ChartElement(Scatter())), ElementKind::kScatter);
}

TEST(ChartFacts, HiddenElementsAreNotDrawn) {
    Line hidden;
    hidden.style = Line::Style::kNone;
    FitLine none;
    none.method = FitLine::Method::kNone;
    ChartModel chart = ChartOf(MeanBar());
    chart.elements.emplace_back(hidden);
    chart.elements.emplace_back(none);
    const ChartFacts facts(chart);
    EXPECT_THAT(facts.drawn, ElementsAre(&chart.elements.front()));
    EXPECT_TRUE(facts.kinds.HasOnly({ElementKind::kBar}));
}

TEST(ChartFacts, AMissingYIsACount) {
    ChartModel chart = ChartOf(Bar());
    chart.y.reset();
    const ChartFacts facts(chart);
    EXPECT_EQ(facts.y->variable.builtIn, BuiltIn::kCount);
    EXPECT_EQ(facts.measure, &facts.y->variable);
}

TEST(ChartFacts, EachFormNumbersItsDimensions) {
    ChartModel chart = ChartOf(MeanBar());
    chart.panels = {Named("p"), Named("q")};
    EXPECT_EQ(ChartFacts(chart).form, ChartForm::kPlain);
    EXPECT_THAT(ChartFacts(chart).PanelDimensions(), ElementsAre(3, 4));
    EXPECT_THAT(ChartFacts(chart).DimensionsBesideMeasure(), ElementsAre(1, 3, 4));
    chart.color = CategoryDimension("c");
    EXPECT_EQ(ChartFacts(chart).form, ChartForm::kClustered);
    EXPECT_THAT(ChartFacts(chart).PanelDimensions(), ElementsAre(4, 5));
    EXPECT_THAT(ChartFacts(chart).DimensionsBesideMeasure(), ElementsAre(1, 3, 4, 5));
    chart = PieChart();
    chart.panels = {Named("p")};
    EXPECT_EQ(ChartFacts(chart).form, ChartForm::kPie);
    EXPECT_THAT(ChartFacts(chart).PanelDimensions(), ElementsAre(2));
    chart = ChartOf(Scatter());
    chart.coordinate = Coordinate::kThree;
    EXPECT_EQ(ChartFacts(chart).form, ChartForm::kThree);
    EXPECT_THAT(ChartFacts(chart).PanelDimensions(), IsEmpty());
    EXPECT_THAT(ChartFacts(chart).DimensionsBesideMeasure(), ElementsAre(1, 2));
}

TEST(ChartFacts, TheClusterIsTheFirstCategoryThatIsNoStack) {
    ChartModel chart = ChartOf(MeanBar());
    EXPECT_EQ(ChartFacts(chart).cluster, nullptr);
    chart.style = CategoryDimension("d");
    EXPECT_EQ(ChartFacts(chart).cluster, &*chart.style);
    chart.color = CategoryDimension("c");
    EXPECT_EQ(ChartFacts(chart).cluster, &*chart.color);
    chart.color->grouping = Grouping::kStack;
    EXPECT_EQ(ChartFacts(chart).cluster, &*chart.style);
    chart.x1.reset();
    EXPECT_EQ(ChartFacts(chart).cluster, &*chart.style);
    chart.x1 = ScaleDimension("x");
    EXPECT_EQ(ChartFacts(chart).cluster, nullptr);
}

TEST(ChartFacts, AStackNeedsBarsOrAHistogramToStandOn) {
    ChartModel chart = ChartOf(MeanBar());
    chart.color = CategoryDimension("c");
    chart.color->grouping = Grouping::kStack;
    EXPECT_TRUE(ChartFacts(chart).stacked);
    chart.elements = {Histogram()};
    EXPECT_TRUE(ChartFacts(chart).stacked);
    chart.elements = {MeanArea()};
    EXPECT_FALSE(ChartFacts(chart).stacked);
    EXPECT_TRUE(ChartFacts(chart).grouped);
    chart.elements = {MeanBar()};
    chart.color = ScaleDimension("c");
    chart.color->grouping = Grouping::kStack;
    EXPECT_FALSE(ChartFacts(chart).stacked);
    EXPECT_FALSE(ChartFacts(chart).grouped);
}

TEST(ChartFacts, VariablesAreTheSameByNameWithoutRegardToCase) {
    EXPECT_TRUE(IsSameVariable(Named("Income"), Named("iNCOME")));
    EXPECT_FALSE(IsSameVariable(Named("income"), Named("incomes")));
    EXPECT_TRUE(IsSameVariable(CountVariable(), {"$COUNT", BuiltIn::kCount}));
    EXPECT_TRUE(IsSameVariable(CaseVariable(), {"$CASE", BuiltIn::kCase}));
    EXPECT_FALSE(IsSameVariable(CountVariable(), PercentVariable()));
    EXPECT_FALSE(IsSameVariable(Named("\xC3\x84"), Named("\xC3\xA4")));
}

} // namespace recastor
