/// The skeleton of a table: what a reader sees of it before there is any data.
///
/// It is made twice, from the old command's tree (skeletonoftree.h) and from the new command's text
/// (skeletonofctables.h), by code that shares nothing but this model. The first asks the translator
/// how names and functions are written in CTABLES, so that a mistake there is in both. Where the
/// conversion is right both are equal. For that the model holds what the two languages mean alike:
///
/// - A dimension is the list of its terms, the plain nestings that it stacks: `(a + b) > c` and
///   `a > c + b > c` are the same two.
/// - Names are those of CTABLES: a group's begins with `$` and is at most eight bytes long.
/// - Statistics have their names in CTABLES, one for each base of a percentage, and stand on that
///   variable of a term that they are computed for. None stands there when the table asks for none,
///   or for none that suits the term.
/// - A total belongs to every variable of its spelling in the table, since CTABLES knows no total
///   of one place only; a following total wins over a preceding one. Which statistics the total
///   shows is told for each place.
/// - A percentage as a key to sort by is the count.
/// - Texts are less their quotes. A table of which no dimension is left has no headings either.
///
/// What the estimation of a percentile, the layout of the old FORMAT and obsolete subcommands said
/// is not here: the new language has no words for it.
#pragma once

#include "archive/picture/tableexpression.h"

#include <optional>
#include <string>
#include <vector>

namespace recastor {

/// A statistic in the cells: `ROWPCT.VALIDN`, `PTILE 90`.
struct SkeletonStatistic {
    std::string function;
    std::optional<std::string> label;
    std::optional<std::string> format;
    bool operator==(const SkeletonStatistic&) const = default;
};

/// The total of a variable's categories.
struct SkeletonTotal {
    bool isAfter = false; ///< behind the categories
    std::string label;
    bool operator==(const SkeletonTotal&) const = default;
};

/// A header: a variable with its categories.
struct SkeletonVariable {
    std::string name;
    char kind = 'C';                  ///< 'C' categorical, 'S' scale, 'G' a group
    std::optional<std::string> label; ///< a group's
    std::optional<SkeletonTotal> total;
    std::vector<SkeletonStatistic> statistics;      ///< of its categories
    std::vector<SkeletonStatistic> totalStatistics; ///< of its total
    bool operator==(const SkeletonVariable&) const = default;
};

/// A nesting, the outermost variable first.
using SkeletonTerm = std::vector<SkeletonVariable>;

/// The terms of rows, columns or layers.
struct SkeletonDimension {
    std::vector<SkeletonTerm> terms;
    bool isTooLarge = false; ///< to be looked at: it has terms, but they are not kept
    bool operator==(const SkeletonDimension&) const = default;
};

/// Whether a dimension with terms of the size is too large to be looked at.
bool IsTooLarge(const TermsSize& size);

/// `KEY=MEAN(income)` for the categories of a variable.
struct SkeletonSort {
    std::string variable;
    bool isAscending = false;
    std::string key;
    bool operator==(const SkeletonSort&) const = default;
};

/// Rows, columns, layers.
enum class TableSide { kRows, kColumns, kLayers };

/// One table.
struct TableSkeleton {
    /// Rows, columns, layers, up to the last that is there; one that is not there is empty.
    std::vector<SkeletonDimension> dimensions;
    std::optional<TableSide> statisticsSide; ///< where the names of the statistics are asked for
    bool areStatisticsNamed = false;
    std::optional<TableSide> movedLabels; ///< whose category labels stand on the opposite side
    bool isMissingIncluded = false;
    std::vector<SkeletonSort> sorts;
    std::vector<std::string> title; ///< lines
    std::vector<std::string> caption;
    std::vector<std::string> corner;
    bool operator==(const TableSkeleton&) const = default;
};

/// The tables of one command.
struct CommandSkeleton {
    bool areEmptyCellsZero = false;
    std::optional<std::string> missingText;
    std::vector<TableSkeleton> tables;
    bool operator==(const CommandSkeleton&) const = default;
};

/// The text of a literal: less its quotes, its joins and the doubling of quotes in it.
std::string TextOfLiteral(const std::string& literal);

} // namespace recastor
