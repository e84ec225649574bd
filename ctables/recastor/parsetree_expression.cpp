// The writing of table expressions: dimensions, terms, variables.

#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "ctables/recastor/statisticsmemo.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

namespace {

/// A variable that gets statistics.
struct Magnet {
    const TbTrParseNode& table;
    const TbTrParseNode& variable;
    int dimension;
    const TbTrParseNode& expandedDimensions;
};

/// Writes the statistics list of the magnet anew, in brackets; nothing when it is empty.
bool ExpressList(const Magnet& magnet, OutputSequence& list) {
    OutputSequence functions;
    if (!ParseTree::ExpressFunctions(ParseTree::FindSubcommand(magnet.table, TB_STATISTICS, false),
                                     magnet.table, magnet.dimension, magnet.variable,
                                     magnet.expandedDimensions, functions)) {
        return false;
    }
    if (!functions.IsEmpty()) {
        list.PushBack("[", false);
        list.PushBack(functions);
        list.PushBack("]", false);
        list.FuseShortLine();
    }
    return true;
}

void AppendList(const OutputSequence& list, OutputSequence& output) {
    if (!list.IsEmpty()) {
        output.PushBack(list);
    }
}

/// Writes the statistics list of the magnet, one that another term has already where it may.
bool ExpressStatistics(const Magnet& magnet, OutputSequence& output) {
    const ExpandedDimensions* const dimensions = magnet.expandedDimensions.AsExpandedDimensions();
    StatisticsMemo* const memo = dimensions != nullptr ? dimensions->KeptStatistics() : nullptr;
    const auto traits =
        memo != nullptr ? memo->TraitsOf(magnet.variable, magnet.table) : StatisticsMemo::kUntold;
    const bool told = traits != StatisticsMemo::kUntold;
    if (const OutputSequence* kept = told ? memo->Find(traits) : nullptr) {
        AppendList(*kept, output);
        return true;
    }
    OutputSequence list;
    if (!ExpressList(magnet, list)) {
        return false;
    }
    AppendList(told ? memo->Keep(traits, std::move(list)) : list, output);
    return true;
}

/// Writes the operands of a stacking or nesting with their operator between them.
template <typename ExpressOperand>
bool ExpressOperation(const TbTrParseNode& operation, bool parenthesised,
                      const ExpressOperand& expressOperand, OutputSequence& sequence) {
    const int type = operation.GetNodeType();
    ZELK_ASSERT(type == SP_PLUS || type == SP_GREATERTHAN);
    if (parenthesised) {
        sequence.PushBack("(", false);
    }
    for (unsigned i = 0; i < operation.GetChildCount(); ++i) {
        ZELK_ASSERT(operation.GetChild(i) != nullptr);
        if (i > 0) {
            sequence.PushBack(type == SP_PLUS ? "+" : ">", false);
        }
        if (!expressOperand(*operation.GetChild(i))) {
            return false;
        }
    }
    if (parenthesised) {
        sequence.PushBack(")", false);
    }
    return true;
}

} // namespace

bool ParseTree::ExpressDimension(const TbTrParseNode& expression, int dimension, int statsDimension,
                                 const TbTrParseNode& expandedDimensions,
                                 const TbTrParseNode*& firstMagnet, OutputSequence& output) {
    const TbTrParseNode* table = &expression;
    while (table->GetNodeType() != TB_TABLE) {
        table = table->GetParent();
        ZELK_ASSERT(table != nullptr);
    }
    if (dimension != statsDimension) {
        return ExpressSubExpression(expression, *table, nullptr, 0, dimension, expandedDimensions,
                                    output);
    }
    const auto expressTerm = [&](const TbTrParseNode& term) {
        const TbTrParseNode* const magnet = DetermineMagnetVariable(term, *table);
        firstMagnet = firstMagnet == nullptr ? magnet : firstMagnet;
        return ExpressSubExpression(term, *table, magnet, 0, dimension, expandedDimensions, output);
    };
    if (expression.GetNodeType() != SP_PLUS) {
        return expressTerm(expression);
    }
    for (unsigned i = 0; i < expression.GetChildCount(); ++i) {
        ZELK_ASSERT(expression.GetChild(i) != nullptr);
        if (i > 0) {
            output.PushBack("+", false);
        }
        if (!expressTerm(*expression.GetChild(i))) {
            return false;
        }
    }
    return true;
}

bool ParseTree::ExpressSubExpression(const TbTrParseNode& expression, const TbTrParseNode& table,
                                     const TbTrParseNode* magnet, int depth, int dimension,
                                     const TbTrParseNode& expandedDimensions,
                                     OutputSequence& output) {
    output.BeginPart();
    if (expression.GetNodeType() == SP_VARNAME) {
        if (!ExpressVariableInTable(expression, table, &expression == magnet, dimension,
                                    expandedDimensions, output)) {
            return false;
        }
    } else {
        const auto expressOperand = [&](const TbTrParseNode& operand) {
            return ExpressSubExpression(operand, table, magnet, depth + 1, dimension,
                                        expandedDimensions, output);
        };
        if (!ExpressOperation(expression, depth > 0, expressOperand, output)) {
            return false;
        }
    }
    output.FuseShortLine();
    return true;
}

bool ParseTree::ExpressVariableInTable(const TbTrParseNode& variable, const TbTrParseNode& table,
                                       bool withStatistics, int dimension,
                                       const TbTrParseNode& expandedDimensions,
                                       OutputSequence& output) {
    ZELK_ASSERT(variable.GetNodeType() == SP_VARNAME);
    const int type = DeclaredType(variable, table);
    if (IsGroupType(type)) {
        output.PushBack(WrittenName(TokenOf(variable), type), false);
    } else {
        output.PushBack(TokenOf(variable).AsString(true), false);
    }
    if (type == TB_OBSERVATION) {
        output.ExtendLastPiece("[S]");
    } else if (type == 0) {
        output.ExtendLastPiece("[C]");
    }
    return !withStatistics ||
           ExpressStatistics({table, variable, dimension, expandedDimensions}, output);
}

const TbTrParseNode* ParseTree::DetermineMagnetVariable(const TbTrParseNode& term,
                                                        const TbTrParseNode& table) {
    if (term.GetNodeType() == SP_VARNAME) {
        return &term;
    }
    ZELK_ASSERT(term.GetNodeType() == SP_GREATERTHAN);
    const TbTrParseNode* group = nullptr;
    const TbTrParseNode* categorical = nullptr;
    for (unsigned i = term.GetChildCount(); i-- > 0;) {
        const TbTrParseNode* const variable = term.GetChild(i);
        ZELK_ASSERT(variable != nullptr && variable->GetNodeType() == SP_VARNAME);
        const int type = DeclaredType(*variable, table);
        if (type == TB_OBSERVATION) {
            return variable;
        }
        ZELK_ASSERT(type == 0 || IsGroupType(type));
        const TbTrParseNode*& innermost = type == 0 ? categorical : group;
        innermost = innermost == nullptr ? variable : innermost;
    }
    return group != nullptr ? group : categorical;
}

} // namespace recastor
