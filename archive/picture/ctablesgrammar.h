/// A reader of the MRSETS and CTABLES commands that the converter writes. It knows what these
/// commands must look like and nothing of how they are made, so that it can judge them.
#pragma once

#include "archive/picture/tableexpression.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// `MEAN,'Label',F8.2`: a function with its prefix, base and number, as written.
struct CtablesStatistic {
    std::string function;
    std::optional<std::string> label; ///< with its quotes
    std::optional<std::string> format;
};

/// A variable of a /TABLE line, with what stands in brackets behind it.
struct CtablesVariable {
    std::string name;
    char kind = 'G'; ///< 'C' categorical, 'S' scale, 'G' a multiple-response set
    bool hasStatistics = false;
    std::vector<CtablesStatistic> statistics;
    std::vector<CtablesStatistic> totals;
};

using CtablesExpression = TableExpression<CtablesVariable>;

/// `/CATEGORIES VAR=a b TOTAL=YES POSITION=AFTER LABEL='All'`.
struct CtablesTotal {
    std::vector<std::string> variables;
    bool isAfter = false;
    std::string label; ///< with its quotes
};

/// `/CATEGORIES VAR=a ORDER=D KEY=MEAN(x)`.
struct CtablesSort {
    std::string variable;
    char order = 'D';
    std::string key; ///< with its argument
};

/// What belongs to one /TABLE subcommand. A table without any dimension is the bare word.
struct CtablesTable {
    std::vector<std::optional<CtablesExpression>> dimensions; ///< rows, columns, layers
    bool isMissingIncluded = false;
    std::vector<CtablesTotal> totals;
    std::optional<std::string> oppositeLabels; ///< COL or ROW
    std::optional<std::string> labelPosition;  ///< ROW, COLUMN or LAYER
    bool areLabelsHidden = false;
    std::vector<CtablesSort> sorts;
    std::map<std::string, std::vector<std::string>> headings; ///< TITLE, CAPTION, CORNER
};

struct CtablesGroup {
    std::string name;
    bool isDichotomy = false;
    std::optional<std::string> label;
    std::vector<std::string> variables;
    std::string value; ///< empty when the set is none of dichotomies
};

/// An MRSETS command, if there is any group, and the CTABLES command behind it.
struct CtablesText {
    std::vector<CtablesGroup> groups;
    std::string emptyCells; ///< BLANK or ZERO
    std::optional<std::string> missingText;
    std::vector<CtablesTable> tables;
};

/// Reads the commands, with their periods. Throws std::invalid_argument, which tells the line and
/// what was expected there, when the text is not well-formed.
CtablesText ReadCtables(std::string_view text);

/// The variables of an expression (none for a dimension that is not there), in their order.
std::vector<CtablesVariable> VariablesOf(const std::optional<CtablesExpression>& expression);

} // namespace recastor
