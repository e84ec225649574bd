#include "platform/zelkwigr/gplsummary.h"
#include "tests/support/charts.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// A function, what is computed for it, what is written over t1 or y, and what an axis says.
struct SummaryRow {
    SummaryFunction function;
    const char* expression;
    const char* call;
    const char* axisText;
};

const SummaryRow kRows[] = {
    {Of(Statistic::kMean), "", "summary.mean(o)", "Mean"},
    {Of(Statistic::kMedian), "", "summary.median(o)", "Median"},
    {Of(Statistic::kMode), "", "summary.mode(o)", "Mode"},
    {Of(Statistic::kMinimum), "", "summary.min(o)", "Minimum"},
    {Of(Statistic::kMaximum), "", "summary.max(o)", "Maximum"},
    {Of(Statistic::kFirst), "", "summary.first(o)", "First"},
    {Of(Statistic::kLast), "", "summary.last(o)", "Last"},
    {Of(Statistic::kSum), "", "summary.sum(o)", "Sum"},
    {Of(Statistic::kSumOfAbsolute), "abs(y)", "summary.sum(o)", "Sum of absolute"},
    {Of(Statistic::kSumOfSquares), "y*y", "summary.sum(o)", "Sum of squared"},
    {Of(Statistic::kStandardDeviation), "", "summary.sd(o)", "Standard deviation"},
    {Of(Statistic::kVariance), "", "summary.variance(o)", "Variance"},
    {Of(Statistic::kStandardError), "", "summary.se(o)", "Standard error of mean"},
    {Of(Statistic::kKurtosis), "", "summary.kurtosis(o)", "Kurtosis"},
    {Of(Statistic::kSkewness), "", "summary.skewness(o)", "Skewness"},
    {Of(Statistic::kStandardErrorOfKurtosis), "", "summary.se.kurtosis(o)",
     "Standard error of kurtosis"},
    {Of(Statistic::kStandardErrorOfSkewness), "", "summary.se.skewness(o)",
     "Standard error of skewness"},
    {Percentile(25), "", "summary.percentile(o, alpha(0.25))", "Percentile 25 of"},
    {Percentile(2.5), "", "summary.percentile(o, alpha(0.025))", "Percentile 2.5 of"},
    {NumberOf(Condition::kAbove, 5), "y>5", "summary.countTrue(o)", "Number above 5 of"},
    {NumberOf(Condition::kAtOrAbove, 5), "y>=5", "summary.countTrue(o)", "Number at or above 5 of"},
    {NumberOf(Condition::kBelow, 5), "y<5", "summary.countTrue(o)", "Number below 5 of"},
    {NumberOf(Condition::kAtOrBelow, 5), "y<=5", "summary.countTrue(o)", "Number at or below 5 of"},
    {NumberOf(Condition::kEqualTo, -0.5), "y==-0.5", "summary.countTrue(o)",
     "Number equal to -0.5 of"},
    {NumberOf(Condition::kInside, 1, 5), "y>=1 && y<=5", "summary.countTrue(o)",
     "Number inside 1 to 5 of"},
    {PercentageOf(Condition::kAbove, 1000), "y>1000", "summary.percentTrue(o)",
     "Percentage above 1000 of"},
    {PercentageOf(Condition::kAtOrAbove, 1), "y>=1", "summary.percentTrue(o)",
     "Percentage at or above 1 of"},
    {PercentageOf(Condition::kBelow, 1), "y<1", "summary.percentTrue(o)", "Percentage below 1 of"},
    {PercentageOf(Condition::kAtOrBelow, 1), "y<=1", "summary.percentTrue(o)",
     "Percentage at or below 1 of"},
    {PercentageOf(Condition::kEqualTo, 1), "y==1", "summary.percentTrue(o)",
     "Percentage equal to 1 of"},
    {PercentageOf(Condition::kInside, -2, -1), "y>=-2 && y<=-1", "summary.percentTrue(o)",
     "Percentage inside -2 to -1 of"},
};

} // namespace

TEST(GplSummary, EveryFunctionIsWrittenAsItsRowSays) {
    for (const SummaryRow& row : kRows) {
        SCOPED_TRACE(row.axisText);
        EXPECT_EQ(SummaryExpression(row.function, "y"), row.expression);
        EXPECT_EQ(SummaryCall(row.function, "o"), row.call);
        EXPECT_EQ(SummaryAxisText(row.function), row.axisText);
    }
}

TEST(GplSummary, AnExpressionIsOfTheMeasuresOwnName) {
    EXPECT_EQ(SummaryExpression(Of(Statistic::kSumOfSquares), "Sales_96"), "Sales_96*Sales_96");
    EXPECT_EQ(SummaryExpression(NumberOf(Condition::kInside, 0, 1), "v_1"), "v_1>=0 && v_1<=1");
}

} // namespace recastor
