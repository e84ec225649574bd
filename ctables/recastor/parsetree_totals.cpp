#include "ctables/recastor/parsetree_totals.h"

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

namespace {

/// The variable next to a total, and the innermost nesting on the way to it.
struct Neighbour {
    TbTrParseNode* variable;
    TbTrParseNode* nesting; ///< null when no nesting was passed
};

/// From the operand beside the total to the one variable next to it: the last of a stacking before
/// a following total, the first one after a preceding total, the outermost of a nesting.
Neighbour FindNeighbour(TbTrParseNode* partner, bool following) {
    Neighbour neighbour{partner, nullptr};
    for (;;) {
        TbTrParseNode* const node = neighbour.variable;
        const int type = node->GetNodeType();
        if (type != SP_PLUS && type != SP_GREATERTHAN) {
            return neighbour;
        }
        ZELK_ASSERT(node->GetChildCount() > 0);
        if (type == SP_GREATERTHAN) {
            neighbour.nesting = node;
        }
        const bool takeLast = following && type == SP_PLUS;
        neighbour.variable = node->GetChild(takeLast ? node->GetChildCount() - 1 : 0);
    }
}

bool RejectTotal(const TbTrParseNode& named, TbTrTablesCommand::ErrorType type) {
    ReportTranslationError(TokenOf(named), TB_TABLE, type);
    return false;
}

/// Associates a total with the variable beside it.
bool AssociateStackedTotal(const TbTrParseNode& total, const TbTrParseNode& declaration,
                           const TbTrParseNode& table, TotalsMap& totals) {
    const TbTrParseNode& stacking = *total.GetParent();
    const unsigned place = stacking.GetChildIndex(&total);
    const bool following = TotalVarTypeFromDecl(declaration) == TBI_FTOTALVAR;
    if (following && place == 0) {
        return RejectTotal(total, TbTrTablesCommand::kFollowsNothing);
    }
    if (!following && place + 1 == stacking.GetChildCount()) {
        return RejectTotal(total, TbTrTablesCommand::kPrecedesNothing);
    }
    const Neighbour neighbour =
        FindNeighbour(stacking.GetChild(following ? place - 1 : place + 1), following);
    const int type = DeclaredType(*neighbour.variable, table);
    if (type == 0 || IsGroupType(type)) {
        return DistributeTotal(*neighbour.variable, totals, total, declaration, table);
    }
    if (type == TB_FTOTAL || type == TB_PTOTAL) {
        return true;
    }
    if (neighbour.nesting == nullptr) {
        return RejectTotal(total, TbTrTablesCommand::kTotalStacksWithScale);
    }
    // What a scale variable nests is totalled in its place.
    TbTrParseNode* const second = neighbour.nesting->GetChild(1);
    ZELK_ASSERT(second != nullptr);
    return DistributeTotal(*second, totals, total, declaration, table);
}

bool AssociateTotal(TbTrParseNode* total, const TbTrParseNode& declaration,
                    const TbTrParseNode& table, TotalsMap& totals) {
    const int parentType = total->GetParent()->GetNodeType();
    if (parentType == SP_PLUS) {
        if (!AssociateStackedTotal(*total, declaration, table, totals)) {
            return false;
        }
    } else if (parentType != TB_TABLE) {
        return RejectTotal(*total, TbTrTablesCommand::kTotalNotStacked);
    }
    const bool removed = ParseTree::RemoveTableExpressionNode(total);
    ZELK_ASSERT(removed);
    return true;
}

} // namespace

bool AssociateTotals(const TbTrParseNode& expression, TotalsMap& totals) {
    const TbTrParseNode* const table = expression.GetParent();
    ZELK_ASSERT(table != nullptr && table->GetNodeType() == TB_TABLE);
    const unsigned index = table->GetChildIndex(&expression);
    ZELK_ASSERT(index < table->GetChildCount());
    const TbTrParseNode* searched = nullptr;
    // Taking a total out may replace the expression or leave none.
    while (TbTrParseNode* current = table->GetChild(index)) {
        const TbTrParseNode* declaration = nullptr;
        TbTrParseNode* const total = FindTotalNode(*current, *table, declaration, &searched);
        if (total == nullptr) {
            return true;
        }
        if (!AssociateTotal(total, *declaration, *table, totals)) {
            return false;
        }
    }
    return true;
}

TbTrParseNode* FindTotalNode(TbTrParseNode& expression, const TbTrParseNode& table,
                             const TbTrParseNode*& declaration, const TbTrParseNode** searched) {
    const TbTrParseNode* previous = searched != nullptr ? *searched : nullptr;
    while (const TbTrParseNode* variable = ParseTree::GetNextVariable(expression, previous)) {
        const int nodeType = variable->GetNodeType();
        if (nodeType == SP_VARNAME) {
            int type = DeclaredType(*variable, table);
            if (type == TB_FTOTAL || type == TB_PTOTAL) {
                declaration =
                    ParseTree::FindVariableType(table, TokenOf(*variable).AsString(false), type);
                return const_cast<TbTrParseNode*>(variable); // the caller's expression holds it
            }
        } else {
            ZELK_ASSERT_AS(nodeType == TB_STATISTICS || nodeType == TB_LABELS,
                           "nodeType == SP_PLUS || nodeType == SP_GREATERTHAN");
        }
        previous = variable;
        if (searched != nullptr) {
            *searched = variable;
        }
    }
    return nullptr;
}

bool DistributeTotal(TbTrParseNode& expression, TotalsMap& totals, const TbTrParseNode& total,
                     const TbTrParseNode& declaration, const TbTrParseNode& table) {
    switch (expression.GetNodeType()) {
    case SP_VARNAME:
        return AttachTotal(expression, totals, total, declaration, table);
    case SP_GREATERTHAN:
        return DistributeTotal(*expression.GetChild(0), totals, total, declaration, table);
    default:
        break;
    }
    ZELK_ASSERT(expression.GetNodeType() == SP_PLUS);
    for (unsigned i = 0; i < expression.GetChildCount(); ++i) {
        if (!DistributeTotal(*expression.GetChild(i), totals, total, declaration, table)) {
            return false;
        }
    }
    return true;
}

bool AttachTotal(TbTrParseNode& variable, TotalsMap& totals, const TbTrParseNode& total,
                 const TbTrParseNode& declaration, const TbTrParseNode& table) {
    ZELK_ASSERT(variable.GetNodeType() == SP_VARNAME);
    const ZELKToken& token = TokenOf(variable);
    const int type = DeclaredType(variable, table);
    if (type != 0 && !IsGroupType(type)) {
        return RejectTotal(variable, TbTrTablesCommand::kWrongTotalAssociation);
    }
    const int totalType = TotalVarTypeFromDecl(declaration);
    const bool preceding = totalType == TBI_PTOTALVAR;

    const TbTrParseNode* const present = variable.GetChild(1);
    if (present == nullptr || present->GetNodeType() != TBI_FTOTALVAR || !preceding) {
        TbTrParseNode* const mark = total.Clone();
        mark->SetNodeType(totalType);
        variable.SetChild(1, mark);
    }
    const TbTrParseNode*& entry = totals[WrittenName(token, type)];
    if (entry == nullptr || TotalVarTypeFromDecl(*entry) != TBI_FTOTALVAR || !preceding) {
        entry = &declaration;
    }
    return true;
}

int TotalVarTypeFromDecl(const TbTrParseNode& declaration) {
    const TbTrParseNode* const subcommand = declaration.GetParent();
    ZELK_ASSERT(subcommand != nullptr);
    if (subcommand->GetNodeType() == TB_FTOTAL) {
        return TBI_FTOTALVAR;
    }
    ZELK_ASSERT(subcommand->GetNodeType() == TB_PTOTAL);
    return TBI_PTOTALVAR;
}

bool ExpressCatsForTotals(TotalsMap& totals, OutputSequence& output) {
    output.Clear();
    SmallHashMap<const TbTrParseNode*, SmallVector<TotalsMap::iterator>> sharing;
    for (auto entry = totals.begin(); entry != totals.end(); ++entry) {
        sharing[entry->second].push_back(entry);
    }
    for (const auto& entry : totals) {
        const TbTrParseNode* const declaration = entry.second;
        if (declaration == nullptr) {
            continue;
        }
        if (!output.IsEmpty()) {
            output.PushBackNewline();
        }
        output.PushBack("/CATEGORIES VAR=", false);
        output.PushBack(entry.first, false);
        const SmallVector<TotalsMap::iterator>& sharers = sharing[declaration];
        for (const auto& later : sharers) {
            if (later->first != entry.first) {
                output.PushBack(later->first, true);
            }
            later->second = nullptr;
        }
        const bool following = TotalVarTypeFromDecl(*declaration) == TBI_FTOTALVAR;
        output.PushBack(" TOTAL=YES", false);
        output.PushBack(std::string(" POSITION=") + (following ? "AFTER" : "BEFORE"), false);
        output.PushBack(" LABEL=", false);
        ZELK_ASSERT(declaration->GetChildCount() > 0);
        if (const TbTrParseNode* label = declaration->GetChild(0)) {
            ZELK_ASSERT(label->GetNodeType() == SP_SLITERAL);
            output.PushBack(TokenOf(*label).AsString(true), false);
        } else {
            output.PushBack('"' + TokenOf(*declaration).AsString(false) + '"', false);
        }
    }
    return true;
}

} // namespace recastor
