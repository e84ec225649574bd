#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/percentagebase.h"
#include "tests/support/commandtree.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// Where the base variable z stands: in no operand of a dimension, in all, in some.
enum Presence : int { kNone, kAll, kSome };

/// The mask for each combination of rows, columns and layers; an absent dimension counts as kAll.
struct MaskRow {
    Presence dimensions[3];
    int mask;
};

constexpr MaskRow kMasks[] = {
    {{kNone, kNone, kNone}, 8},
    {{kAll, kNone, kNone}, 16},
    {{kNone, kAll, kNone}, 16},
    {{kNone, kNone, kAll}, 4},
    {{kAll, kAll, kNone}, 16},
    {{kAll, kNone, kAll}, 1},
    {{kNone, kAll, kAll}, 2},
    {{kAll, kAll, kAll}, 16},
    {{kNone, kNone, kSome}, 8 + 4},
    {{kNone, kAll, kSome}, 16 + 2},
    {{kAll, kNone, kSome}, 16 + 1},
    {{kAll, kAll, kSome}, 16},
    {{kNone, kSome, kNone}, 8 + 16},
    {{kNone, kSome, kAll}, 4 + 2},
    {{kAll, kSome, kNone}, 16},
    {{kAll, kSome, kAll}, 1 + 16},
    {{kSome, kNone, kNone}, 8 + 16},
    {{kSome, kNone, kAll}, 4 + 1},
    {{kSome, kAll, kNone}, 16},
    {{kSome, kAll, kAll}, 2 + 16},
    {{kNone, kSome, kSome}, 8 + 4 + 16 + 2},
    {{kAll, kSome, kSome}, 16 + 1},
    {{kSome, kNone, kSome}, 8 + 4 + 16 + 1},
    {{kSome, kAll, kSome}, 16 + 2},
    {{kSome, kSome, kNone}, 8 + 16},
    {{kSome, kSome, kAll}, 4 + 2 + 1 + 16},
};

/// An expression in which the base variable stands like that.
std::string Expression(Presence presence) {
    return presence == kNone ? "(> a b)" : presence == kAll ? "(> a z)" : "(+ (> a z) b)";
}

int Mask(const std::string& term, int statsCompDim, const std::string& bases,
         const std::string& otherDimensions) {
    const auto baseList = TreeFromDump(bases);
    return ParseTree::DeterminePercentageBases(*TreeFromDump(term), statsCompDim, baseList.get(),
                                               *TreeFromDump(otherDimensions));
}

/// Checks a row for one statistics dimension, whose term is no stacking; `absent` has a bit for
/// each other dimension that is left out.
void ExpectMask(const MaskRow& row, int statsCompDim, int absent) {
    std::string others = "(LIST";
    std::string term;
    for (int i = 0; i < 3; ++i) {
        const bool isStats = i + 1 == statsCompDim;
        const bool isAbsent = (absent >> i & 1) != 0;
        if ((isStats && (row.dimensions[i] == kSome || isAbsent)) ||
            (isAbsent && row.dimensions[i] != kAll)) {
            return;
        }
        term = isStats ? Expression(row.dimensions[i]) : term;
        others += isStats || isAbsent ? " _" : " " + Expression(row.dimensions[i]);
    }
    others += ')';
    SCOPED_TRACE("statistics in " + std::to_string(statsCompDim) + ": " + term + ", " + others);
    EXPECT_EQ(Mask(term, statsCompDim, "(VARLIST z)", others), row.mask);
}

TEST(PercentageBases, MaskFollowsWhereTheBaseVariablesStand) {
    for (const MaskRow& row : kMasks) {
        for (int statsCompDim = 1; statsCompDim <= 3; ++statsCompDim) {
            for (int absent = 0; absent < 8; ++absent) {
                ExpectMask(row, statsCompDim, absent);
            }
        }
    }
}

TEST(PercentageBases, NoBaseVariablesGiveTheTableAndNothingIsExamined) {
    for (const char* bases : {"_", "(VARLIST)", "(LIST)"}) {
        SCOPED_TRACE(bases);
        EXPECT_EQ(Mask("(+ a z)", 1, bases, "(VARLIST)"), TBTR_TABPCT);
    }
}

TEST(PercentageBases, ArgumentsAreChecked) {
    EXPECT_DEATH(Mask("a", 0, "_", "(LIST)"), HasSubstr("0 < statsCompDim && statsCompDim <= 3"));
    EXPECT_DEATH(Mask("a", 4, "_", "(LIST)"), HasSubstr("0 < statsCompDim && statsCompDim <= 3"));
    EXPECT_DEATH(Mask("a", 1, "(LIST z)", "(LIST _ _ _)"), HasSubstr("TBI_VARLIST"));
    EXPECT_DEATH(Mask("a", 1, "(VARLIST z)", "(VARLIST _ _ _)"), HasSubstr("TBI_GENERICLIST"));
    EXPECT_DEATH(Mask("a", 1, "(VARLIST z)", "(LIST _ _)"), HasSubstr("GetChildCount()"));
    EXPECT_DEATH(Mask("a", 2, "(VARLIST z)", "(LIST _ b _)"), HasSubstr("ixDim != statsCompDim-1"));
    EXPECT_DEATH(Mask("(+ a z)", 1, "(VARLIST z)", "(LIST _ _ _)"),
                 HasSubstr("baseInDim[ixDim] != -1"));
}

struct CheckRow {
    const char* expression;
    const char* bases;
    int inDimension;
    int inSubtree;
};

TEST(PercentageBases, OperandsOfAStackingMayDiffer) {
    const std::vector<CheckRow> rows{
        {"a", "a", 1, 1},
        {"a", "b", 0, 0},
        {"a", "b c a", 1, 1},
        {"A", "a", 1, 1},
        {"(> a b)", "b", 1, 1},
        {"(> a b)", "c", 0, 0},
        {"(> a (+ b c))", "c", 1, 1},
        {"(+ a b)", "a b", 1, 1},
        {"(+ a b)", "c", 0, 0},
        {"(+ a b)", "a", -1, 1},
        {"(+ a b)", "b", -1, 1},
        {"(+ a b c)", "a b", -1, 1},
        {"(+ (> a b) (> b c))", "b", 1, 1},
        {"(+ (> a b) c)", "b", -1, 1},
    };
    for (const CheckRow& row : rows) {
        SCOPED_TRACE(std::string(row.expression) + " of " + row.bases);
        const auto expression = TreeFromDump(row.expression);
        const auto bases = TreeFromDump(std::string("(VARLIST ") + row.bases + ')');
        EXPECT_EQ(ParseTree::CheckBaseListInDimension(*expression, *bases), row.inDimension);
        EXPECT_EQ(ParseTree::CheckBaseListInSubtree(*expression, *bases), row.inSubtree);
    }
}

TEST(PercentageBases, VariableIsLookedUpByName) {
    const auto bases = TreeFromDump("(VARLIST ab C)");
    EXPECT_EQ(ParseTree::CheckBaseListInVariable(*TreeFromDump("AB"), *bases), 1);
    EXPECT_EQ(ParseTree::CheckBaseListInVariable(*TreeFromDump("c"), *bases), 1);
    EXPECT_EQ(ParseTree::CheckBaseListInVariable(*TreeFromDump("a"), *bases), 0);
    EXPECT_EQ(ParseTree::CheckBaseListInVariable(*TreeFromDump("abc"), *bases), 0);
}

TEST(PercentageBases, OtherNodesAreNoDimension) {
    const auto bases = TreeFromDump("(VARLIST a)");
    EXPECT_DEATH(ParseTree::CheckBaseListInDimension(*TreeFromDump("(LIST a)"), *bases),
                 HasSubstr("SP_PLUS"));
}

struct TextRow {
    const char* table;
    const char* statistics;
    const char* written;
};

void ExpectTexts(const std::vector<TextRow>& rows) {
    for (const TextRow& row : rows) {
        SCOPED_TRACE(std::string(row.table) + ", " + row.statistics);
        EXPECT_EQ(TranslatedTable(std::string("TABLES /TABLE=") + row.table +
                                  " /STATISTICS=" + row.statistics),
                  row.written);
    }
}

TEST(PercentageText, OfATableOfRows) {
    ExpectTexts({
        {"a", "cpct", "a[C][TABLEPCT.VALIDN]"},
        {"a", "cpct(a)", "a[C][TABLEPCT.VALIDN]"},
        {"a", "cpct(a:a)", "a[C][TABLEPCT.VALIDN]"},
        {"a", "cpct(a:z)", "a[C][COLPCT.VALIDN]"},
        {"a > b", "cpct(a:b)", "a[C]>b[C][TABLEPCT.VALIDN]"},
    });
}

TEST(PercentageText, OfRowsAndColumns) {
    ExpectTexts({
        {"a BY b", "cpct(a:a)", "a[C][ROWPCT.VALIDN] BY b[C]"},
        {"a BY b", "cpct(a:b)", "a[C][COLPCT.VALIDN] BY b[C]"},
        {"a BY b", "cpct(a:a b)", "a[C][TABLEPCT.VALIDN] BY b[C]"},
        {"a BY b", "cpct(a:z)", "a[C][LAYERPCT.VALIDN] BY b[C]"},
        {"b BY a", "cpct(a:a)", "b[C] BY a[C][COLPCT.VALIDN]"},
        {"b BY a", "cpct(a:b)", "b[C] BY a[C][ROWPCT.VALIDN]"},
    });
}

TEST(PercentageText, OfRowsColumnsAndLayers) {
    ExpectTexts({
        {"a BY b BY c", "cpct(a:a)", "a[C][TABLEPCT.VALIDN] BY b[C] BY c[C]"},
        {"a BY b BY c", "cpct(a:b)", "a[C][TABLEPCT.VALIDN] BY b[C] BY c[C]"},
        {"a BY b BY c", "cpct(a:c)", "a[C][LAYERPCT.VALIDN] BY b[C] BY c[C]"},
        {"a BY b BY c", "cpct(a:a c)", "a[C][ROWPCT.VALIDN] BY b[C] BY c[C]"},
        {"a BY b BY c", "cpct(a:b c)", "a[C][COLPCT.VALIDN] BY b[C] BY c[C]"},
        {"a BY b BY c", "cpct(a:a b c)", "a[C][TABLEPCT.VALIDN] BY b[C] BY c[C]"},
        {"a BY b BY c", "cpct(a:z)", "a[C][TABLEPCT.VALIDN] BY b[C] BY c[C]"},
        {"b BY c BY a", "cpct(a:a)", "b[C] BY c[C] BY a[C][LAYERPCT.VALIDN]"},
    });
}

TEST(PercentageText, OfStackedDimensionsHasSeveralBasesLowestFirst) {
    ExpectTexts({
        {"a BY b + d", "cpct(a:b)", "a[C][COLPCT.VALIDN,LAYERPCT.VALIDN] BY b[C]+d[C]"},
        {"a BY b + d", "cpct(a:a b)", "a[C][ROWPCT.VALIDN,TABLEPCT.VALIDN] BY b[C]+d[C]"},
        {"b + d BY a", "cpct(a:b)", "b[C]+d[C] BY a[C][ROWPCT.VALIDN,LAYERPCT.VALIDN]"},
        {"a BY b + d BY c + e", "cpct(a:b c)",
         "a[C][COLPCT.VALIDN,LAYERPCT.VALIDN,TABLEPCT.VALIDN] BY b[C]+d[C] BY \n  c[C]+e[C]"},
        {"b + d BY c + e BY a", "cpct(a:a b c)",
         "b[C]+d[C] BY c[C]+e[C] BY a[C][ROWPCT.VALIDN,COLPCT.VALIDN,\n"
         "  LAYERPCT.VALIDN,TABLEPCT.VALIDN]"},
    });
}

TEST(PercentageText, OtherDimensionsCountAsMultipliedOut) {
    ExpectTexts({
        {"a BY (b + d) > e", "cpct(a:b)",
         "a[C][COLPCT.VALIDN,LAYERPCT.VALIDN] BY (b[C]+d[C])>e[C]"},
        {"a BY (b + d) > e", "cpct(a:e)", "a[C][COLPCT.VALIDN] BY (b[C]+d[C])>e[C]"},
    });
}

TEST(PercentageText, EveryTermHasItsOwnBases) {
    ExpectTexts({
        {"a + f BY b", "cpct(a f:a)", "a[C][ROWPCT.VALIDN]+f[C][LAYERPCT.VALIDN] BY b[C]"},
        {"(a + f) > e BY b", "cpct(e:f)",
         "a[C]>e[C][LAYERPCT.VALIDN]+f[C]>e[C][ROWPCT.VALIDN] BY b[C]"},
    });
}

TEST(PercentageText, AbsentDimensionCountsAsHoldingTheBase) {
    ExpectTexts({
        {"(STATISTICS) BY a", "cpct(a:z)", " BY a[C][ROWPCT.VALIDN]"},
        {"(STATISTICS) BY a", "cpct(a:a)", " BY a[C][TABLEPCT.VALIDN]"},
        {"a BY (LABELS) BY c", "cpct(a:c)", "a[C][COLPCT.VALIDN] BY  BY c[C]"},
        {"a BY (LABELS) BY c", "cpct(a:z)", "a[C][TABLEPCT.VALIDN] BY  BY c[C]"},
    });
}

} // namespace

} // namespace recastor
