#include "platform/zelkwigr/parsesummary.h"

#include "platform/zelkwigr/charttokenreader.h"

namespace recastor {

namespace {

/// A function less the values of its arguments.
struct FunctionForm {
    Statistic statistic = Statistic::kMean;
    int arguments = 0;
    Condition condition = Condition::kAbove;

    bool operator==(const FunctionForm&) const = default;
};

constexpr Keyword<FunctionForm> kFunctions[] = {
    {"MEAN", {Statistic::kMean}},
    {"MEDIAN", {Statistic::kMedian}},
    {"GMEDIAN", {Statistic::kMedian}},
    {"MODE", {Statistic::kMode}},
    {"MINIMUM", {Statistic::kMinimum}},
    {"MAXIMUM", {Statistic::kMaximum}},
    {"FIRST", {Statistic::kFirst}},
    {"LAST", {Statistic::kLast}},
    {"SUM", {Statistic::kSum}},
    {"SUMAV", {Statistic::kSumOfAbsolute}},
    {"SUMSQ", {Statistic::kSumOfSquares}},
    {"STDDEV", {Statistic::kStandardDeviation}},
    {"SD", {Statistic::kStandardDeviation}},
    {"VARIANCE", {Statistic::kVariance}},
    {"SEMEAN", {Statistic::kStandardError}},
    {"SE", {Statistic::kStandardError}},
    {"KURTOSIS", {Statistic::kKurtosis}},
    {"SKEWNESS", {Statistic::kSkewness}},
    {"SEKURT", {Statistic::kStandardErrorOfKurtosis}},
    {"SESKEW", {Statistic::kStandardErrorOfSkewness}},
    {"PTILE", {Statistic::kPercentile, 1}},
    {"NGT", {Statistic::kNumber, 1, Condition::kAbove}},
    {"NGE", {Statistic::kNumber, 1, Condition::kAtOrAbove}},
    {"NLT", {Statistic::kNumber, 1, Condition::kBelow}},
    {"NLE", {Statistic::kNumber, 1, Condition::kAtOrBelow}},
    {"NEQ", {Statistic::kNumber, 1, Condition::kEqualTo}},
    {"NIN", {Statistic::kNumber, 2, Condition::kInside}},
    {"PGT", {Statistic::kPercentage, 1, Condition::kAbove}},
    {"PGE", {Statistic::kPercentage, 1, Condition::kAtOrAbove}},
    {"PLT", {Statistic::kPercentage, 1, Condition::kBelow}},
    {"PLE", {Statistic::kPercentage, 1, Condition::kAtOrBelow}},
    {"PEQ", {Statistic::kPercentage, 1, Condition::kEqualTo}},
    {"PIN", {Statistic::kPercentage, 2, Condition::kInside}},
};

void ReadArguments(ChartTokenReader& reader, int count, SummaryFunction& function) {
    if (count == 0) {
        return;
    }
    reader.Expect(TokenSequenceBase::kLeftParen);
    function.first = reader.Number();
    if (count == 2) {
        function.second = reader.Number();
        reader.Require(function.first <= function.second);
    }
    if (function.statistic == Statistic::kPercentile) {
        reader.Require(function.first > 0 && function.first < 100);
    }
    reader.Expect(TokenSequenceBase::kRightParen);
}

} // namespace

std::optional<SummaryFunction> ReadSummaryFunction(ChartTokenReader& reader) {
    if (!reader.Take(TokenSequenceBase::kLeftParen)) {
        return std::nullopt;
    }
    const FunctionForm form = reader.Choice(kFunctions);
    SummaryFunction function;
    function.statistic = form.statistic;
    function.condition = form.condition;
    ReadArguments(reader, form.arguments, function);
    reader.Expect(TokenSequenceBase::kRightParen);
    return function;
}

} // namespace recastor
