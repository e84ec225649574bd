#include "archive/picture/oldstatistics.h"

#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_functions.h"
#include "ctables/recastor/parsetree_lookup.h"

#include <algorithm>
#include <utility>

namespace recastor {

namespace {

std::size_t IndexOf(TableSide side) {
    return static_cast<std::size_t>(side);
}

const TbTrParseNode* StatisticsSubcommand(const TbTrParseNode& node) {
    return ParseTree::FindSubcommand(node, TB_STATISTICS, false);
}

/// Whether a function is asked for the variable, or for its total, by name.
bool IsNamedInStatistics(const OldVariable& variable, const OldTable& table,
                         const TbTrParseNode& node) {
    if (ParseTree::GetStatFunction(node, variable.token->AsString(false)) != nullptr) {
        return true;
    }
    const auto total = table.totals.find(variable.name);
    return total != table.totals.end() &&
           ParseTree::GetStatFunction(node, TokenOf(*total->second.declaration).AsString(false)) !=
               nullptr;
}

bool CarriesStatistics(const OldExpression& expression, const OldTable& table,
                       const TbTrParseNode& node) {
    if (expression.operation == 0) {
        return expression.variable.type == TB_OBSERVATION ||
               IsNamedInStatistics(expression.variable, table, node);
    }
    return std::any_of(expression.operands.begin(), expression.operands.end(),
                       [&](const auto& one) { return CarriesStatistics(one, table, node); });
}

// The bases of percentages.

bool IsBase(const OldVariable& variable, const TbTrParseNode& bases) {
    for (unsigned i = 0; i < bases.GetChildCount(); ++i) {
        if (IsSameName(*variable.token, TokenOf(*bases.GetChild(i)).AsString(false))) {
            return true;
        }
    }
    return false;
}

/// Whether the terms of a dimension hold base variables: some may, and others not.
struct BasesInTerms {
    bool someHold = false;
    bool someLack = false;
};

BasesInTerms FindBases(const OldExpression& expression, const TbTrParseNode& bases) {
    if (expression.operation == 0) {
        const bool holds = IsBase(expression.variable, bases);
        return {holds, !holds};
    }
    const bool isNesting = expression.operation == '>';
    BasesInTerms found{false, isNesting};
    for (const OldExpression& operand : expression.operands) {
        const BasesInTerms inner = FindBases(operand, bases);
        found.someHold = found.someHold || inner.someHold;
        found.someLack =
            isNesting ? found.someLack && inner.someLack : found.someLack || inner.someLack;
    }
    return found;
}

/// The word for the base of a percentage whose base variables stand in the sides as told.
std::size_t BaseWordIndex(bool rows, bool columns, bool layers) {
    constexpr std::size_t kRow = 0;
    constexpr std::size_t kColumn = 1;
    constexpr std::size_t kLayer = 2;
    constexpr std::size_t kTable = 3;
    if (!layers || (rows && columns)) {
        return kTable;
    }
    return rows ? kRow : columns ? kColumn : kLayer;
}

std::vector<std::string> BaseWords(const std::array<BasesInTerms, kTableSides>& found) {
    static const std::array<const char*, 4> kWords{"ROWPCT.", "COLPCT.", "LAYERPCT.", "TABLEPCT."};
    std::array<bool, kWords.size()> isUsed{};
    constexpr unsigned kCombinations = 8;
    for (unsigned holds = 0; holds < kCombinations; ++holds) {
        bool isPossible = true;
        for (std::size_t side = 0; side < kTableSides; ++side) {
            isPossible = isPossible && ((holds >> side & 1U) != 0 ? found.at(side).someHold
                                                                  : found.at(side).someLack);
        }
        if (isPossible) {
            isUsed.at(BaseWordIndex((holds & 1U) != 0, (holds & 2U) != 0, (holds & 4U) != 0)) =
                true;
        }
    }
    std::vector<std::string> words;
    for (std::size_t i = 0; i < kWords.size(); ++i) {
        if (isUsed.at(i)) {
            words.emplace_back(kWords.at(i));
        }
    }
    return words;
}

std::vector<std::string> BaseWordsOf(const TbTrParseNode* bases, const OldTerm& term,
                                     const OldTable& table, TableSide side) {
    if (bases == nullptr || bases->GetChildCount() == 0) {
        return {"TABLEPCT."};
    }
    std::array<BasesInTerms, kTableSides> found{};
    for (std::size_t i = 0; i < kTableSides; ++i) {
        if (i == IndexOf(side)) {
            found.at(i).someHold = std::any_of(
                term.begin(), term.end(), [&](const auto& one) { return IsBase(one, *bases); });
            found.at(i).someLack = !found.at(i).someHold;
        } else if (table.dimensions.at(i)) {
            found.at(i) = FindBases(*table.dimensions.at(i), *bases);
        } else {
            found.at(i) = {true, false}; // a side that is not there lies within every base
        }
    }
    return BaseWords(found);
}

// What a function applies to.

/// Whether a function of the kind can be computed for a variable of the type.
bool IsSuited(char kind, int type) {
    if (type == TB_OBSERVATION) {
        return kind != 'R';
    }
    return IsGroupType(type) ? kind != 'S' : kind == 'C';
}

bool IsSuitedToAny(char kind, const OldTerm& term) {
    return std::any_of(term.begin(), term.end(),
                       [kind](const OldVariable& one) { return IsSuited(kind, one.type); });
}

/// Whether a function applies, and with which argument's label and format.
struct Application {
    bool applies = false;
    const TbTrParseNode* argument = nullptr;
};

Application ApplyToCells(const TbTrParseNode* arguments, bool namesVariables, char kind,
                         const OldTerm& term) {
    if (!namesVariables) {
        return {IsSuitedToAny(kind, term), arguments != nullptr ? arguments->GetChild(0) : nullptr};
    }
    for (const OldVariable& variable : term) {
        const auto* argument = FindArgument(arguments, variable.token->AsString(false));
        if (argument != nullptr && IsSuited(kind, variable.type)) {
            return {true, argument};
        }
    }
    return {};
}

Application ApplyToTotals(const TbTrParseNode* arguments, bool namesVariables, char kind,
                          const OldTerm& term, const Application& cells) {
    for (const OldVariable& variable : term) {
        if (variable.total.declaration == nullptr) {
            continue;
        }
        if (!namesVariables) {
            return cells;
        }
        const auto* argument =
            FindArgument(arguments, TokenOf(*variable.total.declaration).AsString(false));
        if (argument != nullptr && IsSuitedToAny(kind, term)) {
            return {true, argument};
        }
    }
    return {};
}

SkeletonStatistic MakeStatistic(const std::string& function, const TbTrParseNode* argument) {
    SkeletonStatistic statistic{function, {}, {}};
    if (argument != nullptr) {
        if (const TbTrParseNode* label = ArgumentLabel(*argument)) {
            statistic.label = TokenOf(*label).AsString(false);
        }
        if (const TbTrParseNode* format = ArgumentFormat(*argument)) {
            statistic.format = TokenOf(*format).AsString(false);
        }
    }
    return statistic;
}

/// One function of STATISTICS, with its new name.
struct NamedFunction {
    std::string name;
    char kind = 'C';
    bool isPercentage = false;
};

NamedFunction NameOf(const TbTrParseNode& function, bool isForGroup, const TbTrParseNode& node) {
    const TbTrParseNode& name = FunctionName(function);
    NamedFunction named;
    named.name = ParseTree::MapFunctionName(TokenOf(name).AsString(false), true, isForGroup, node,
                                            named.kind, named.isPercentage);
    if (named.name.empty()) {
        named.name = TokenOf(name).AsString(false); // nothing that the new language knows
    }
    if (const TbTrParseNode* number = name.GetChild(0)) {
        named.name += ' ' + TokenOf(*number).AsString(true);
    }
    return named;
}

} // namespace

std::optional<TableSide> StatisticsSideOf(const OldTable& table, const TbTrParseNode& node) {
    std::optional<TableSide> first;
    for (std::size_t i = 0; i < kTableSides; ++i) {
        const auto& dimension = table.dimensions.at(i);
        if (!dimension) {
            continue;
        }
        const auto side = static_cast<TableSide>(i);
        if (CarriesStatistics(*dimension, table, node)) {
            return side;
        }
        first = first ? first : side;
    }
    return table.dimensions.at(IndexOf(TableSide::kColumns)) ? TableSide::kColumns : first;
}

std::size_t SummarisedVariable(const OldTerm& term) {
    const auto preference = [](const OldVariable& variable) {
        return variable.type == TB_OBSERVATION ? 2 : IsGroupType(variable.type) ? 1 : 0;
    };
    std::size_t best = 0;
    for (std::size_t i = 1; i < term.size(); ++i) {
        if (preference(term[i]) >= preference(term[best])) {
            best = i; // the innermost of its kind
        }
    }
    return best;
}

TermStatistics StatisticsOfTerm(const OldTerm& term, const OldTable& table, TableSide side,
                                const TbTrParseNode& node) {
    TermStatistics statistics;
    const bool isForGroup = IsGroupType(term[SummarisedVariable(term)].type);
    const TbTrParseNode* const functions = StatisticsSubcommand(node);
    for (unsigned i = 0; functions != nullptr && i < functions->GetChildCount(); ++i) {
        const TbTrParseNode& function = *functions->GetChild(i);
        const NamedFunction named = NameOf(function, isForGroup, node);
        const TbTrParseNode* const arguments = FunctionArguments(function);
        const bool namesVariables =
            arguments != nullptr && ArgumentVariable(*arguments->GetChild(0)) != nullptr;
        const Application cells = ApplyToCells(arguments, namesVariables, named.kind, term);
        const Application totals =
            ApplyToTotals(arguments, namesVariables, named.kind, term, cells);
        const std::vector<std::string> bases =
            named.isPercentage ? BaseWordsOf(BaseVariables(function), term, table, side)
                               : std::vector<std::string>{""};
        for (const std::string& base : bases) {
            const std::string name = (IsUnweighted(function) ? "U" : "") + base + named.name;
            if (cells.applies) {
                statistics.cells.push_back(MakeStatistic(name, cells.argument));
            }
            if (totals.applies) {
                statistics.totals.push_back(MakeStatistic(name, totals.argument));
            }
        }
    }
    if (isForGroup && statistics.cells.empty()) { // a group shows something of its own
        const bool hasTotal = std::any_of(term.begin(), term.end(), [](const OldVariable& one) {
            return one.total.declaration != nullptr;
        });
        statistics.cells.push_back({"RESPONSES", {}, {}});
        if (hasTotal) {
            statistics.totals.push_back({"RESPONSES", {}, {}});
        }
    }
    return statistics;
}

} // namespace recastor
