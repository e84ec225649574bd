/// What an IGRAPH command says, as plain data: the parser fills it, the generator reads it.
///
/// Every enumerator stands for a keyword or a family of keywords of the language; what is read and
/// ignored by the language does not stand here. A test may build a chart by hand.
#pragma once

#include "platform/zelkwigr/chartelements.h"

#include <optional>
#include <string>
#include <vector>

namespace recastor {

/// The built-in dimensions; kNone for a variable of the data.
enum class BuiltIn { kNone, kCount, kPercent, kCase };

/// How the values of a dimension are meant.
enum class Measurement { kScale, kCategorical };

/// A variable or a built-in dimension.
struct ChartVariable {
    std::string name; ///< in its first spelling in the command; `$count` and the like included
    BuiltIn builtIn = BuiltIn::kNone;
};

/// The ends of an axis; either may be missing.
struct ValueRange {
    std::optional<double> min;
    std::optional<double> max;
};

/// Bars beside each other or on top of each other.
enum class Grouping { kNone, kCluster, kStack };

/// X1, X2, Y, COLOR, SIZE or STYLE. Legend and grouping are there for the last three only.
struct ChartDimension {
    ChartVariable variable;
    std::optional<Measurement> type; ///< without TYPE there is none until defaults are filled in
    ValueRange range;                ///< of TYPE = SCALE
    std::vector<std::string> title;  ///< lines; empty without TITLE
    bool legend = true;
    Grouping grouping = Grouping::kNone;
};

/// SUMMARYVAR: the measure of a pie.
struct SummaryVariable {
    ChartVariable variable;
    std::vector<std::string> title; ///< lines
};

/// CATORDER of one variable.
struct CategoryOrder {
    enum class Key { kValue, kLabel, kCount, kOccurrence };

    ChartVariable variable;
    Key key = Key::kValue;
    bool descending = false;
};

/// SCALERANGE of one variable.
struct ScaleRange {
    ChartVariable variable;
    ValueRange range;
};

/// REFLINE.
struct ReferenceLine {
    ChartVariable variable;
    double value = 0;
    bool label = false;
};

enum class Coordinate { kVertical, kHorizontal, kThree };

/// One chart. Texts are lists of lines, empty when the subcommand is missing.
struct ChartModel {
    std::optional<ChartDimension> x1;
    std::optional<ChartDimension> x2;
    std::optional<ChartDimension> y;
    std::optional<ChartDimension> color;
    std::optional<ChartDimension> style;
    std::optional<ChartDimension> size;
    std::optional<SummaryVariable> summaryVariable;
    std::vector<ChartVariable> panels;       ///< each once
    std::optional<ChartVariable> pointLabel; ///< none with NONE
    std::optional<ChartVariable> caseLabel;
    std::vector<CategoryOrder> categoryOrders; ///< one a variable
    std::vector<ScaleRange> scaleRanges;       ///< one a variable
    std::vector<ReferenceLine> referenceLines;
    bool normalize = false;

    std::string viewName;
    std::vector<std::string> title;
    std::vector<std::string> subtitle;
    std::vector<std::string> caption;
    std::optional<double> x1Length; ///< inches
    std::optional<double> yLength;  ///< inches
    Coordinate coordinate = Coordinate::kVertical;
    std::vector<std::string> chartLooks; ///< those that GGRAPH can read

    std::vector<ChartElement> elements; ///< in the order of their subcommands
};

} // namespace recastor
