#include "platform/zelkwigr/gplsummary.h"

#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkwigr/gpltext.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace recastor {

namespace {

struct StatisticRow {
    Statistic statistic;
    const char* function;
    const char* axisText; ///< kPercentile, kNumber and kPercentage: its first word
};

constexpr std::array<StatisticRow, 20> kStatistics{{
    {Statistic::kMean, "summary.mean", "Mean"},
    {Statistic::kMedian, "summary.median", "Median"},
    {Statistic::kMode, "summary.mode", "Mode"},
    {Statistic::kMinimum, "summary.min", "Minimum"},
    {Statistic::kMaximum, "summary.max", "Maximum"},
    {Statistic::kFirst, "summary.first", "First"},
    {Statistic::kLast, "summary.last", "Last"},
    {Statistic::kSum, "summary.sum", "Sum"},
    {Statistic::kSumOfAbsolute, "summary.sum", "Sum of absolute"},
    {Statistic::kSumOfSquares, "summary.sum", "Sum of squared"},
    {Statistic::kStandardDeviation, "summary.sd", "Standard deviation"},
    {Statistic::kVariance, "summary.variance", "Variance"},
    {Statistic::kStandardError, "summary.se", "Standard error of mean"},
    {Statistic::kKurtosis, "summary.kurtosis", "Kurtosis"},
    {Statistic::kSkewness, "summary.skewness", "Skewness"},
    {Statistic::kStandardErrorOfKurtosis, "summary.se.kurtosis", "Standard error of kurtosis"},
    {Statistic::kStandardErrorOfSkewness, "summary.se.skewness", "Standard error of skewness"},
    {Statistic::kPercentile, "summary.percentile", "Percentile"},
    {Statistic::kNumber, "summary.countTrue", "Number"},
    {Statistic::kPercentage, "summary.percentTrue", "Percentage"},
}};

struct ConditionRow {
    Condition condition;
    const char* sign; ///< none for kInside, which has two
    const char* words;
};

constexpr std::array<ConditionRow, 6> kConditions{{
    {Condition::kAbove, ">", "above"},
    {Condition::kAtOrAbove, ">=", "at or above"},
    {Condition::kBelow, "<", "below"},
    {Condition::kAtOrBelow, "<=", "at or below"},
    {Condition::kEqualTo, "==", "equal to"},
    {Condition::kInside, "", "inside"},
}};

const StatisticRow& RowOf(Statistic statistic) {
    const auto* const row =
        std::find_if(kStatistics.begin(), kStatistics.end(),
                     [&](const StatisticRow& each) { return each.statistic == statistic; });
    ZELK_ASSERT(row != kStatistics.end());
    return *row;
}

const ConditionRow& RowOf(Condition condition) {
    const auto* const row =
        std::find_if(kConditions.begin(), kConditions.end(),
                     [&](const ConditionRow& each) { return each.condition == condition; });
    ZELK_ASSERT(row != kConditions.end());
    return *row;
}

std::string ConditionExpression(const SummaryFunction& function, const std::string& y) {
    const std::string first = GplNumber(function.first);
    if (function.condition == Condition::kInside) {
        return y + ">=" + first + " && " + y + "<=" + GplNumber(function.second);
    }
    return y + RowOf(function.condition).sign + first;
}

std::string ConditionAxisText(const SummaryFunction& function) {
    std::string text = RowOf(function.condition).words;
    text += ' ' + GplNumber(function.first);
    if (function.condition == Condition::kInside) {
        text += " to " + GplNumber(function.second);
    }
    return text;
}

} // namespace

std::string SummaryExpression(const SummaryFunction& function, const std::string& y) {
    switch (function.statistic) {
    case Statistic::kSumOfAbsolute:
        return "abs(" + y + ')';
    case Statistic::kSumOfSquares:
        return y + '*' + y;
    case Statistic::kNumber:
    case Statistic::kPercentage:
        return ConditionExpression(function, y);
    default:
        return {};
    }
}

std::string SummaryCall(const SummaryFunction& function, std::string_view operand) {
    std::string alpha;
    if (function.statistic == Statistic::kPercentile) {
        alpha = GplCall("alpha", {GplNumber(function.first / 100)});
    }
    return GplCall(RowOf(function.statistic).function, {operand, alpha});
}

std::string SummaryAxisText(const SummaryFunction& function) {
    std::string text = RowOf(function.statistic).axisText;
    switch (function.statistic) {
    case Statistic::kPercentile:
        return text + ' ' + GplNumber(function.first) + " of";
    case Statistic::kNumber:
    case Statistic::kPercentage:
        return text + ' ' + ConditionAxisText(function) + " of";
    default:
        return text;
    }
}

} // namespace recastor
