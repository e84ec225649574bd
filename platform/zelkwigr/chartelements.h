/// The layers of a chart: what each element subcommand of IGRAPH says.
#pragma once

#include <optional>
#include <variant>

namespace recastor {

/// What a summary function makes of the values of its measure.
enum class Statistic {
    kMean,
    kMedian,
    kMode,
    kMinimum,
    kMaximum,
    kFirst,
    kLast,
    kSum,
    kSumOfAbsolute,
    kSumOfSquares,
    kStandardDeviation,
    kVariance,
    kStandardError,
    kKurtosis,
    kSkewness,
    kStandardErrorOfKurtosis,
    kStandardErrorOfSkewness,
    kPercentile, ///< of `first`
    kNumber,     ///< of the values that the condition holds for
    kPercentage, ///< of the values that the condition holds for
};

/// What is counted by kNumber and kPercentage.
enum class Condition { kAbove, kAtOrAbove, kBelow, kAtOrBelow, kEqualTo, kInside };

/// A summary function with its arguments: PTILE(first), NGT(first), NIN(first second).
struct SummaryFunction {
    Statistic statistic = Statistic::kMean;
    Condition condition = Condition::kAbove; ///< of kNumber and kPercentage only
    double first = 0;
    double second = 0; ///< of kInside only
};

/// The texts on an element. `label` is the slice's own, known to pies only.
struct ElementLabels {
    bool label = false;
    bool value = false;
    bool count = false;
    bool percent = false;
};

enum class Interpolation {
    kStraight,
    kLeftStep,
    kCenterStep,
    kRightStep,
    kLeftJump,
    kCenterJump,
    kRightJump,
    kSpline,
    kLagrange3,
    kLagrange5,
};

/// BREAK: a missing point leaves a gap or is bridged.
enum class Break { kMissing, kNone };

struct Scatter {
    bool jitter = false;
};

struct Bar {
    std::optional<SummaryFunction> function;
    ElementLabels labels;
    std::optional<double> baseline; ///< none for AUTO
};

struct Area {
    std::optional<SummaryFunction> function;
    ElementLabels labels;
    Interpolation interpolation = Interpolation::kStraight;
    Break breaks = Break::kMissing;
    std::optional<double> baseline;
};

struct Line {
    enum class Style { kLine, kDotLine, kDot, kNone };

    std::optional<SummaryFunction> function;
    Style style = Style::kLine;
    ElementLabels labels;
    Interpolation interpolation = Interpolation::kStraight;
    Break breaks = Break::kMissing;
};

struct Pie {
    std::optional<SummaryFunction> function;
    double start = 0; ///< degrees, as written
    bool counterClockwise = false;
    ElementLabels labels;
};

struct Box {};

struct ErrorBar {
    enum class Extent { kConfidence, kDeviations, kStandardErrors };

    Extent extent = Extent::kConfidence;
    double amount = 95; ///< a percentage for kConfidence, else a multiple
    ElementLabels labels;
    bool caps = true; ///< CAPSTYLE other than NONE
    bool symbol = true;
};

struct Histogram {
    bool cumulative = false;
    bool curve = false;
    std::optional<double> binCount; ///< a whole number; not beside binWidth
    std::optional<double> binWidth;
};

struct FitLine {
    enum class Method { kNone, kRegression, kOrigin, kMean, kLoess };

    Method method = Method::kRegression;
    bool meanInterval = false;
    bool individualInterval = false;
    double intervalLevel = 95; ///< percent
    bool total = true;         ///< one line for all cases
    bool eachGroup = false;    ///< one line for each category
};

using ChartElement = std::variant<Scatter, Bar, Area, Line, Pie, Box, ErrorBar, Histogram, FitLine>;

} // namespace recastor
