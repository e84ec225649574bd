// The bracketed statistics list behind a magnet variable.

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_functions.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "ctables/recastor/percentagebase.h"
#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkbase/zelkassert.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace recastor {

namespace {

struct BaseWord {
    PercentageBase base;
    std::string_view word;
};

constexpr std::array<BaseWord, 4> gBaseWords{{
    {TBTR_ROWPCT, "ROWPCT."},
    {TBTR_COLPCT, "COLPCT."},
    {TBTR_LAYERPCT, "LAYERPCT."},
    {TBTR_TABPCT, "TABLEPCT."},
}};

struct TermVariable {
    const TbTrParseNode* node;
    int type;
    const TbTrParseNode* total; ///< the mark that the variable bears; null for none
};

/// What the functions are applied to: one operand of the multiplied-out statistics dimension.
struct Term {
    const TbTrParseNode& table;
    const TbTrParseNode& expression;
    bool groupMagnet;
    bool hasTotals;
    SmallVector<TermVariable> variables; ///< in their order
};

Term MakeTerm(const TbTrParseNode& table, const TbTrParseNode& magnet) {
    Term term{table, TermOfMagnet(magnet), false, false, {}};
    for (const TbTrParseNode* variable = ParseTree::GetNextVariable(term.expression, nullptr);
         variable != nullptr; variable = ParseTree::GetNextVariable(term.expression, variable)) {
        const int type = DeclaredType(*variable, table);
        term.variables.push_back({variable, type, variable->GetChild(1)});
        term.hasTotals = term.hasTotals || variable->GetChild(1) != nullptr;
        if (variable == &magnet) {
            term.groupMagnet = IsGroupType(type);
        }
    }
    return term;
}

/// Whether a function of the kind can be computed for a variable of the type.
bool KindSuits(char kind, int type) {
    if (type == TB_OBSERVATION) {
        return kind != 'R';
    }
    return IsGroupType(type) ? kind != 'S' : kind == 'C';
}

bool KindSuitsAny(char kind, const Term& term) {
    return std::any_of(
        term.variables.begin(), term.variables.end(),
        [=](const TermVariable& variable) { return KindSuits(kind, variable.type); });
}

/// Whether a function applies, and the argument whose label and format are then written (null when
/// it has none).
struct Match {
    bool applies = false;
    const TbTrParseNode* argument = nullptr;
};

/// Name and kind must hold for the same variable of the term.
Match MatchTerm(const TbTrParseNode* arguments, char kind, const Term& term) {
    if (!NamesVariables(arguments)) {
        return {KindSuitsAny(kind, term), arguments != nullptr ? arguments->GetChild(0) : nullptr};
    }
    for (const TermVariable& variable : term.variables) {
        const TbTrParseNode* const argument =
            FindArgument(arguments, TokenOf(*variable.node).AsString(false));
        if (argument != nullptr && KindSuits(kind, variable.type)) {
            return {true, argument};
        }
    }
    return {};
}

/// A total is named like a variable; the kind must suit what it is the total of.
Match MatchTotals(const TbTrParseNode* arguments, char kind, const Term& term,
                  const Match& termMatch) {
    if (!term.hasTotals) {
        return {};
    }
    if (!NamesVariables(arguments)) {
        return termMatch;
    }
    for (const TermVariable& variable : term.variables) {
        if (variable.total == nullptr) {
            continue;
        }
        const TbTrParseNode* const argument =
            FindArgument(arguments, TokenOf(*variable.total).AsString(false));
        if (argument != nullptr && KindSuitsAny(kind, term)) {
            return {true, argument};
        }
    }
    return {};
}

/// A statistic by its new name; `baseWord` is empty for one that is no percentage.
struct Statistic {
    const TbTrParseNode& function;
    std::string_view baseWord;
    std::string_view newName;
};

/// Appends a statistic with its label and format.
void AppendStatistic(const Statistic& statistic, const TbTrParseNode* argument,
                     OutputSequence& list) {
    if (!list.IsEmpty()) {
        list.PushBack(",", false);
    }
    list.BeginPart();
    list.PushBack(IsUnweighted(statistic.function) ? "U" : "", false);
    list.ExtendLastPiece(statistic.baseWord);
    list.ExtendLastPiece(statistic.newName);
    if (const TbTrParseNode* number = FunctionName(statistic.function).GetChild(0)) {
        list.ExtendLastPiece(" ");
        list.ExtendLastPiece(TokenOf(*number).AsString(true));
    }
    if (argument != nullptr) {
        if (const TbTrParseNode* label = ArgumentLabel(*argument)) {
            list.PushBack(",", false);
            list.PushBack(TokenOf(*label).AsString(true), false);
        }
        if (const TbTrParseNode* format = ArgumentFormat(*argument)) {
            list.PushBack(",", false);
            list.PushBack(TokenOf(*format).AsString(false), false);
        }
    }
    list.FuseShortLine();
}

/// The two lists of a magnet: the statistics of the cells and those of its totals.
struct StatisticsLists {
    explicit StatisticsLists(const Term& term) {
        constexpr std::size_t kUsualLength = 120;
        cells.Reserve(kUsualLength);
        if (term.hasTotals) {
            totals.Reserve(kUsualLength);
        }
    }

    OutputSequence cells;
    OutputSequence totals;
};

/// Appends the statistics of one function. False when its name is unknown.
bool ExpressFunction(const TbTrParseNode& function, const Term& term, int dimension,
                     const TbTrParseNode& expandedDimensions, StatisticsLists& lists) {
    const ZELKToken& name = TokenOf(FunctionName(function));
    char kind = 0;
    bool isPercentage = false;
    const std::string newName = ParseTree::MapFunctionName(
        name.AsString(false), true, term.groupMagnet, term.table, kind, isPercentage);
    if (newName.empty()) {
        ReportTranslationError(name, TB_STATISTICS, TbTrTablesCommand::kUnknownFunction);
        return false;
    }
    const TbTrParseNode* const arguments = FunctionArguments(function);
    const Match cells = MatchTerm(arguments, kind, term);
    const Match totals = MatchTotals(arguments, kind, term, cells);
    if (!cells.applies && !totals.applies) {
        return true;
    }
    const auto append = [&](std::string_view baseWord) {
        const Statistic statistic{function, baseWord, newName};
        if (cells.applies) {
            AppendStatistic(statistic, cells.argument, lists.cells);
        }
        if (totals.applies) {
            AppendStatistic(statistic, totals.argument, lists.totals);
        }
    };
    if (!isPercentage) {
        append({});
        return true;
    }
    int bases = ParseTree::DeterminePercentageBases(term.expression, dimension,
                                                    BaseVariables(function), expandedDimensions);
    if ((bases & TBTR_OTHERTABPCT) != 0) {
        bases |= TBTR_TABPCT;
    }
    ZELK_ASSERT(bases != 0);
    for (const BaseWord& row : gBaseWords) {
        if ((bases & row.base) != 0) {
            append(row.word);
        }
    }
    return true;
}

/// Groups have no statistic of their own when none is asked for.
void ExpressDefaultOfGroup(const Term& term, StatisticsLists& lists) {
    if (!term.groupMagnet || !lists.cells.IsEmpty()) {
        return;
    }
    lists.cells.PushBack("RESPONSES", false);
    if (term.hasTotals) {
        if (!lists.totals.IsEmpty()) {
            lists.totals.PushBack(",", false);
        }
        lists.totals.PushBack("RESPONSES", false);
    }
}

} // namespace

bool ParseTree::ExpressFunctions(const TbTrParseNode* statistics, const TbTrParseNode& table,
                                 int dimension, const TbTrParseNode& magnet,
                                 const TbTrParseNode& expandedDimensions, OutputSequence& output) {
    output.Clear();
    const Term term = MakeTerm(table, magnet);
    StatisticsLists lists(term);
    for (unsigned i = 0; statistics != nullptr && i < statistics->GetChildCount(); ++i) {
        if (!ExpressFunction(*statistics->GetChild(i), term, dimension, expandedDimensions,
                             lists)) {
            return false;
        }
    }
    ExpressDefaultOfGroup(term, lists);
    output.PushBack(std::move(lists.cells));
    if (!lists.totals.IsEmpty()) {
        output.PushBack(",", false); // also behind an empty list
        output.BeginPart();
        output.PushBack("TOTALS", false);
        output.PushBack("[", false);
        output.PushBack(lists.totals);
        output.PushBack("]", false);
        output.FuseShortLine();
    }
    return true;
}

} // namespace recastor
