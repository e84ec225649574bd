// Which bases a percentage has, by where its base variables stand in the table.

#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "ctables/recastor/percentagebase.h"
#include "ctables/recastor/tbtrnamelistnode.h"
#include "platform/zelkbase/zelkassert.h"

#include <array>

namespace recastor {

namespace {

constexpr unsigned kDimensions = ExpandedDimensions::kDimensions;

/// The base of a percentage whose base variables stand in the rows, columns and layers as told.
int BaseOf(bool rows, bool columns, bool layers) {
    if (rows && layers && !columns) {
        return TBTR_ROWPCT;
    }
    if (columns && layers && !rows) {
        return TBTR_COLPCT;
    }
    if (layers && !rows && !columns) {
        return TBTR_LAYERPCT;
    }
    return rows || columns || layers ? TBTR_OTHERTABPCT : TBTR_TABPCT;
}

/// Whether the flag of a dimension allows `value`: a mixed one allows both.
bool Allows(int flag, bool value) {
    return flag == kMixed || (flag != 0) == value;
}

/// Whether the base variables stand in each dimension.
std::array<int, kDimensions> FlagsOfDimensions(const TbTrParseNode& term, int statsCompDim,
                                               const TbTrParseNode& baseList,
                                               const TbTrParseNode& otherDimensions) {
    const auto statsSlot = static_cast<unsigned>(statsCompDim - 1);
    const ExpandedDimensions* const answering = otherDimensions.AsExpandedDimensions();
    std::array<int, kDimensions> baseInDim{};
    for (unsigned ixDim = 0; ixDim < kDimensions; ++ixDim) {
        const TbTrParseNode* const expression = otherDimensions.GetChild(ixDim);
        const bool isAnswered = answering != nullptr && answering->HasDimension(ixDim);
        if (isAnswered || expression != nullptr) {
            ZELK_ASSERT_AS(ixDim != statsSlot, "ixDim != statsCompDim-1");
            baseInDim[ixDim] = isAnswered
                                   ? answering->FlagOf(ixDim, baseList)
                                   : ParseTree::CheckBaseListInDimension(*expression, baseList);
        } else if (ixDim == statsSlot) {
            baseInDim[ixDim] = ParseTree::CheckBaseListInDimension(term, baseList);
            ZELK_ASSERT(baseInDim[ixDim] != -1);
        } else {
            baseInDim[ixDim] = 1;
        }
    }
    return baseInDim;
}

} // namespace

int ParseTree::DeterminePercentageBases(const TbTrParseNode& term, int statsCompDim,
                                        const TbTrParseNode* baseList,
                                        const TbTrParseNode& otherDimensions) {
    ZELK_ASSERT(0 < statsCompDim && statsCompDim <= 3);
    if (baseList == nullptr || baseList->GetChildCount() == 0) {
        return TBTR_TABPCT;
    }
    ZELK_ASSERT(baseList->GetNodeType() == TBI_VARLIST);
    ZELK_ASSERT(otherDimensions.GetNodeType() == TBI_GENERICLIST);
    ZELK_ASSERT(otherDimensions.GetChildCount() == kDimensions);
    const auto baseInDim = FlagsOfDimensions(term, statsCompDim, *baseList, otherDimensions);
    int mask = 0;
    for (const bool rows : {true, false}) {
        for (const bool columns : {true, false}) {
            for (const bool layers : {true, false}) {
                if (Allows(baseInDim[0], rows) && Allows(baseInDim[1], columns) &&
                    Allows(baseInDim[2], layers)) {
                    mask |= BaseOf(rows, columns, layers);
                }
            }
        }
    }
    return mask;
}

int ParseTree::CheckBaseListInDimension(const TbTrParseNode& expression,
                                        const TbTrParseNode& baseList) {
    const int type = expression.GetNodeType();
    if (type == SP_VARNAME) {
        return CheckBaseListInVariable(expression, baseList);
    }
    if (type == SP_GREATERTHAN) {
        return CheckBaseListInSubtree(expression, baseList);
    }
    ZELK_ASSERT(type == SP_PLUS);
    const int common = CheckBaseListInSubtree(*expression.GetChild(0), baseList);
    for (unsigned i = 1; i < expression.GetChildCount(); ++i) {
        if (CheckBaseListInSubtree(*expression.GetChild(i), baseList) != common) {
            return kMixed;
        }
    }
    return common;
}

int ParseTree::CheckBaseListInVariable(const TbTrParseNode& variable,
                                       const TbTrParseNode& baseList) {
    return FindInNameList(baseList, TokenOf(variable).AsString(false)) != nullptr ? 1 : 0;
}

int ParseTree::CheckBaseListInSubtree(const TbTrParseNode& subtree, const TbTrParseNode& baseList) {
    const bool holdsBase = HoldsForAnyVariable(subtree, [&](const TbTrParseNode& variable) {
        return CheckBaseListInVariable(variable, baseList) != 0;
    });
    return holdsBase ? 1 : 0;
}

} // namespace recastor
