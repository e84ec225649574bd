#include "platform/zelkwigr/gplnames.h"
#include "tests/support/charts.h"

#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::ElementsAre;

/// The GPL name of a variable that is there alone.
std::string Taken(const std::string& base) {
    return GplNames().Take(base);
}

std::vector<std::string> Data(const ChartModel& chart) {
    return GplLines(chart, "DATA");
}

std::string DataNames(const ChartModel& chart) {
    return GplVariables(ChartFacts(chart)).DataNames();
}

std::string Scale(const std::string& gpl, const std::string& name) {
    return gpl + "=col(source(s), name(\"" + name + "\"))";
}

std::string Category(const std::string& gpl, const std::string& name) {
    return gpl + "=col(source(s), name(\"" + name + "\"), unit.category())";
}

std::string Scale(const std::string& name) {
    return Scale(name, name);
}

std::string Category(const std::string& name) {
    return Category(name, name);
}

} // namespace

TEST(GplNames, HoldLettersDigitsAndUnderscores) {
    EXPECT_EQ(Taken("income"), "income");
    EXPECT_EQ(Taken("Sales.96"), "Sales_96");
    EXPECT_EQ(Taken("a_B9"), "a_B9");
    EXPECT_EQ(Taken("a@b#c$d"), "a_b_c_d");
    EXPECT_EQ(Taken("stra\xC3\x9F"
                    "e"),
              "stra__e"); // one underscore a byte
}

TEST(GplNames, BeginWithALetter) {
    EXPECT_EQ(Taken("@a"), "v__a");
    EXPECT_EQ(Taken("#tmp"), "v__tmp");
    EXPECT_EQ(Taken("_x"), "v__x");
    EXPECT_EQ(Taken("$date"), "v__date");
    EXPECT_EQ(Taken("1st"), "v_1st");
    EXPECT_EQ(Taken("\xC3\xA4rzte"), "v___rzte");
}

TEST(GplNames, AreTakenOnceWithoutRegardToCase) {
    GplNames names;
    EXPECT_EQ(names.Take("a.b"), "a_b");
    EXPECT_EQ(names.Take("a_b"), "a_b_2");
    EXPECT_EQ(names.Take("A@B"), "A_B_3");
    EXPECT_EQ(names.Take("a_b_2"), "a_b_2_2");
    EXPECT_EQ(names.Take("a", "_c"), "a_c");
    EXPECT_EQ(names.Take("A", "_c"), "A_c_2");
    EXPECT_EQ(names.Take("@a"), "v__a");
    EXPECT_EQ(names.Take("#a"), "v__a_2");
}

TEST(GplNames, TheSourcesOwnNameIsTaken) {
    EXPECT_EQ(Taken("s"), "s_2");
    EXPECT_EQ(Taken("S"), "S_2");
    EXPECT_EQ(GplNames().Take("s", "_c"), "s_c");
}

TEST(GplVariables, StandInTheOrderOfTheirSubcommands) {
    ChartModel chart = ChartOf(Scatter());
    chart.size = ScaleDimension("siz");
    chart.style = CategoryDimension("sty");
    chart.color = CategoryDimension("col");
    chart.panels = {Named("p"), Named("q")};
    chart.pointLabel = Named("lab");
    chart.caseLabel = Named("cas");
    chart.elements.emplace_back(Box());
    chart.x1 = ScaleDimension("x");
    EXPECT_THAT(Data(chart),
                ElementsAre(Scale("x"), Scale("y"), Category("col"), Category("sty"), Scale("siz"),
                            Category("p"), Category("q"), Category("lab"), Category("cas")));
    EXPECT_EQ(DataNames(chart), "x y col sty siz p q lab cas");
}

TEST(GplVariables, ThreeDimensionsHaveX2BehindX1) {
    ChartModel chart = ChartOf(Scatter());
    chart.coordinate = Coordinate::kThree;
    chart.x2 = ScaleDimension("z");
    EXPECT_THAT(Data(chart), ElementsAre(Scale("x"), Scale("z"), Scale("y")));
}

TEST(GplVariables, CountsAreNoVariables) {
    ChartModel chart = ChartOf(Scatter());
    chart.color = CountDimension();
    chart.size = PercentDimension();
    EXPECT_THAT(Data(chart), ElementsAre(Scale("x"), Scale("y")));
    chart = ChartOf(Bar());
    chart.y = PercentDimension();
    EXPECT_THAT(Data(chart), ElementsAre(Category("x")));
    chart.y.reset();
    EXPECT_THAT(Data(chart), ElementsAre(Category("x")));
}

TEST(GplVariables, ScaleAndCategoryAreTwoLinesAtTheFirstPlace) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CategoryDimension("income");
    chart.y = ScaleDimension("income");
    chart.panels = {Named("p")};
    EXPECT_THAT(Data(chart),
                ElementsAre(Scale("income"), Category("income_c", "income"), Category("p")));
    EXPECT_EQ(DataNames(chart), "income p");
    EXPECT_THAT(GplLines(chart, "ELEMENT"),
                ElementsAre("interval(position(summary.mean(income_c*income*p)))"));
}

TEST(GplVariables, TheSecondNameMakesWayForAVariable) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CategoryDimension("a_c");
    chart.y = ScaleDimension("a");
    chart.panels = {Named("a")};
    EXPECT_THAT(Data(chart), ElementsAre(Category("a_c"), Scale("a"), Category("a_c_2", "a")));
}

TEST(GplVariables, NamesAreComparedWithoutRegardToCase) {
    ChartModel chart = ChartOf(Scatter());
    chart.x1 = ScaleDimension("Income");
    chart.y = ScaleDimension("INCOME");
    chart.color = CategoryDimension("income");
    EXPECT_THAT(Data(chart), ElementsAre(Scale("Income"), Category("Income_c", "Income")));
    EXPECT_EQ(DataNames(chart), "Income");
}

TEST(GplVariables, VariablesWhoseGplNamesCoincideGetNumbers) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CategoryDimension("a.b");
    chart.y = ScaleDimension("A_B");
    chart.panels = {Named("a#b"), Named("s")};
    EXPECT_THAT(Data(chart), ElementsAre(Category("a_b", "a.b"), Scale("A_B_2", "A_B"),
                                         Category("a_b_3", "a#b"), Category("s_2", "s")));
}

TEST(GplVariables, ALabelTakesTheVariableAsItIsThere) {
    ChartModel chart = ChartOf(Scatter());
    chart.pointLabel = Named("Y");
    EXPECT_THAT(Data(chart), ElementsAre(Scale("x"), Scale("y")));
    EXPECT_THAT(GplLines(chart, "ELEMENT"), ElementsAre("point(position(x*y), label(y))"));
    chart.panels = {Named("y")};
    EXPECT_THAT(Data(chart), ElementsAre(Scale("x"), Scale("y"), Category("y_c", "y")));
    EXPECT_THAT(GplLines(chart, "ELEMENT"), ElementsAre("point(position(x*y*y_c), label(y))"));
    chart.pointLabel = Named("p");
    chart.panels = {Named("p")};
    EXPECT_THAT(Data(chart), ElementsAre(Scale("x"), Scale("y"), Category("p")));
}

TEST(GplVariables, PointLabelNeedsPointsAndCaseLabelABox) {
    ChartModel chart = ChartOf(MeanBar());
    chart.pointLabel = Named("p");
    chart.caseLabel = Named("c");
    EXPECT_THAT(Data(chart), ElementsAre(Category("x"), Scale("y")));
    chart.elements = {Box()};
    EXPECT_THAT(Data(chart), ElementsAre(Category("x"), Scale("y"), Category("c")));
    chart.elements = {Scatter()};
    EXPECT_THAT(Data(chart), ElementsAre(Category("x"), Scale("y"), Category("p")));
}

TEST(GplVariables, SizeNeedsPointsOrLines) {
    ChartModel chart = ChartOf(MeanBar());
    chart.size = ScaleDimension("z");
    EXPECT_THAT(Data(chart), ElementsAre(Category("x"), Scale("y")));
    chart.elements = {MeanLine()};
    EXPECT_THAT(Data(chart), ElementsAre(Category("x"), Scale("y"), Scale("z")));
}

TEST(GplVariables, FitLinesAloneNameOnlyWhatSplitsThem) {
    FitLine fitLine;
    ChartModel chart = ChartOf(fitLine);
    chart.color = ScaleDimension("c");
    chart.style = CategoryDimension("t");
    chart.size = CategoryDimension("z");
    EXPECT_EQ(DataNames(chart), "x y");
    fitLine.eachGroup = true;
    chart.elements = {fitLine};
    EXPECT_EQ(DataNames(chart), "x y t");
    chart.style.reset();
    EXPECT_EQ(DataNames(chart), "x y z");
    chart.color = CategoryDimension("c");
    EXPECT_EQ(DataNames(chart), "x y c");
    chart.elements = {FitLine(), Scatter()};
    EXPECT_EQ(DataNames(chart), "x y c z");
}

TEST(GplVariables, APieNamesItsMeasureAndItsSlices) {
    ChartModel chart = PieChart();
    EXPECT_THAT(Data(chart), ElementsAre(Scale("y"), Category("c")));
    chart.summaryVariable = SummaryVariable{Named("m"), {}};
    EXPECT_THAT(Data(chart), ElementsAre(Scale("m"), Category("c")));
    chart.summaryVariable = SummaryVariable{CountVariable(), {}};
    EXPECT_THAT(Data(chart), ElementsAre(Category("c")));
    chart.summaryVariable.reset();
    chart.y.reset();
    EXPECT_THAT(Data(chart), ElementsAre(Category("c")));
    chart.style = CategoryDimension("t");
    EXPECT_THAT(Data(chart), ElementsAre(Category("c"), Category("t")));
}

TEST(GplVariables, APieThatSlicesByX1NamesItFirst) {
    ChartModel chart = PieChart();
    chart.color.reset();
    chart.x1 = CategoryDimension("x");
    EXPECT_THAT(Data(chart), ElementsAre(Category("x"), Scale("y")));
}

TEST(GplVariables, TheCaseNumberIsNotOfTheData) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CaseDimension();
    EXPECT_THAT(Data(chart), ElementsAre(Category("casenum", "$CASENUM"), Scale("y")));
    EXPECT_EQ(DataNames(chart), "y");
    EXPECT_THAT(GplLines(chart, "GUIDE"), ElementsAre("axis(dim(1), label(\"$CASENUM\"))",
                                                      "axis(dim(2), label(\"Mean y\"))"));
}

TEST(GplVariables, TheCaseNumberMakesWayForAVariable) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CategoryDimension("CaseNum");
    chart.panels = {CaseVariable()};
    EXPECT_THAT(Data(chart),
                ElementsAre(Category("CaseNum"), Scale("y"), Category("casenum_2", "$CASENUM")));
}

TEST(GplVariables, TheCaseNumberByItsOwnNameIsTheSame) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CaseDimension();
    chart.panels = {Named("$casenum")};
    EXPECT_THAT(Data(chart), ElementsAre(Category("casenum", "$CASENUM"), Scale("y")));
    chart.x1 = CategoryDimension("$casenum");
    EXPECT_THAT(Data(chart), ElementsAre(Category("casenum", "$casenum"), Scale("y")));
    EXPECT_EQ(DataNames(chart), "y");
}

TEST(GplVariables, QuotesInANameAreEscaped) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CategoryDimension("a\"b\\c");
    EXPECT_EQ(Data(chart).front(), "a_b_c=col(source(s), name(\"a\\\"b\\\\c\"), unit.category())");
}

TEST(GplComputed, EachExpressionIsComputedOnceInTheOrderOfTheElements) {
    ChartModel chart = ChartOf(MeanBar());
    Bar above = MeanBar();
    above.function = NumberOf(Condition::kAbove, 5);
    Line share = MeanLine();
    share.function = PercentageOf(Condition::kAbove, 5);
    Line squares = MeanLine();
    squares.function = Of(Statistic::kSumOfSquares);
    Area absolute = MeanArea();
    absolute.function = Of(Statistic::kSumOfAbsolute);
    chart.elements = {MeanBar(), squares, above, share, absolute};
    EXPECT_THAT(GplLines(chart, "TRANS"),
                ElementsAre("t1=eval(y*y)", "t2=eval(y>5)", "t3=eval(abs(y))"));
}

TEST(GplComputed, NamesMakeWayForVariables) {
    ChartModel chart = ChartOf(MeanBar());
    chart.x1 = CategoryDimension("T1");
    Bar bar;
    bar.function = NumberOf(Condition::kInside, 1, 2);
    chart.elements = {bar};
    EXPECT_THAT(GplLines(chart, "TRANS"), ElementsAre("t1_2=eval(y>=1 && y<=2)"));
    EXPECT_THAT(GplLines(chart, "ELEMENT"),
                ElementsAre("interval(position(summary.countTrue(T1*t1_2)))"));
}

TEST(GplComputed, ExpressionsAreOfTheGplName) {
    ChartModel chart = ChartOf(MeanBar());
    chart.y = ScaleDimension("Sales.96");
    Bar bar;
    bar.function = Of(Statistic::kSumOfSquares);
    chart.elements = {bar};
    EXPECT_THAT(GplLines(chart, "TRANS"), ElementsAre("t1=eval(Sales_96*Sales_96)"));
}

TEST(GplComputed, NothingIsComputedForElementsThatAreNotDrawn) {
    Line hidden;
    hidden.function = Of(Statistic::kSumOfSquares);
    hidden.style = Line::Style::kNone;
    ChartModel chart = ChartOf(MeanBar());
    chart.elements.emplace_back(hidden);
    EXPECT_TRUE(GplLines(chart, "TRANS").empty());
}

TEST(GplComputed, APieComputesItsOwnMeasure) {
    ChartModel chart = PieChart();
    chart.summaryVariable = SummaryVariable{Named("m"), {}};
    Pie pie;
    pie.function = NumberOf(Condition::kEqualTo, 1);
    pie.labels.value = true;
    chart.elements = {pie};
    EXPECT_THAT(GplLines(chart, "TRANS"), ElementsAre("t1=eval(m==1)"));
    EXPECT_THAT(GplLines(chart, "ELEMENT"),
                ElementsAre("interval.stack(position(summary.percent(summary.countTrue(t1))), "
                            "color.interior(c), label(summary.countTrue(t1)))"));
}

} // namespace recastor
