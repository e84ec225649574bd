#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_totals.h"
#include "tests/support/commandtree.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// The statistics dimension of a table with the scale variables x and y, the group g, the totals
/// t and u.
int StatsDimension(const std::string& table) {
    TbTrParseNode& node =
        ParseTable("TABLES /OBSERVATION=x y /MRGROUP=g m1 /FTOTAL=t u /TABLE=" + table);
    TotalsMap totals;
    for (unsigned i = 0; i < node.GetChildCount(); ++i) {
        EXPECT_TRUE(AssociateTotals(*node.GetChild(i), totals));
    }
    return ParseTree::DetermineStatsDimension(node, totals);
}

struct DimensionRow {
    const char* table;
    int dimension;
};

void ExpectDimensions(const std::vector<DimensionRow>& rows) {
    for (const DimensionRow& row : rows) {
        SCOPED_TRACE(row.table);
        EXPECT_EQ(StatsDimension(row.table), row.dimension);
    }
}

TEST(StatsDimension, RowsOfATableOfRowsElseColumns) {
    ExpectDimensions({
        {"a", 1},
        {"a + b > c", 1},
        {"a BY b", 2},
        {"a BY b BY c", 2},
        {"a BY b /STATISTICS=count mean", 2}, // named for no variable
        {"a BY b /STATISTICS=count(z)", 2},
    });
}

TEST(StatsDimension, FirstDimensionWithAScaleVariableTakesThem) {
    ExpectDimensions({
        {"x BY a", 1},
        {"a BY x", 2},
        {"a BY b BY x", 3},
        {"a BY x BY y", 2},
        {"x BY a BY y", 1},
        {"a > (b + x) BY y", 1},
        {"a BY (STATISTICS) + b BY c > (LABELS) > x", 3},
    });
}

TEST(StatsDimension, FunctionForAVariableChoosesItsDimension) {
    ExpectDimensions({
        {"a BY b /STATISTICS=count(a)", 1},
        {"a BY b /STATISTICS=count(A)", 1},
        {"a BY b /STATISTICS=count(b)", 2},
        {"a BY b BY c /STATISTICS=count count(c)", 3},
        {"a BY b BY c /STATISTICS=count(c b)", 2},
        {"a BY b > g /STATISTICS=count(g)", 2},
        {"a BY x /STATISTICS=count(a)", 1},
        {"x BY a /STATISTICS=count(a)", 1},
        {"a BY b /STATISTICS=count('N')", 2},
        {"a BY b /STATISTICS=cpct(z:a)", 2}, // a base variable is no argument
    });
}

TEST(StatsDimension, FunctionForATotalChoosesTheDimensionOfWhatItTotals) {
    ExpectDimensions({
        {"a + t BY b /STATISTICS=count(t)", 1},
        {"a + t BY b /STATISTICS=count(T)", 1},
        {"g + t BY b /STATISTICS=count(t)", 1},
        {"a BY b + t /STATISTICS=count(t)", 2},
        {"a BY b BY c + t /STATISTICS=count(t)", 3},
        {"a + t BY b /STATISTICS=count(u)", 2},
        {"a BY b BY a + t /STATISTICS=count(t)", 1}, // by name, wherever the total stands
        {"a BY b BY A + t /STATISTICS=count(t)", 3}, // in the spelling of the table
    });
}

TEST(StatsDimension, AbsentDimensionsArePassed) {
    TotalsMap totals;
    const std::vector<DimensionRow> rows{
        {"(TABLE _ a)", 2},
        {"(TABLE a _ b)", 1},
        {"(TABLE _ _ a)", 3},
        {"(TABLE _ _)", 0},
    };
    TbTrParseNode& root = ParseCommand("TABLES /TABLE=a");
    for (const DimensionRow& row : rows) {
        SCOPED_TRACE(row.table);
        root.GetChild(1)->SetChild(0, TreeFromDump(row.table).release());
        EXPECT_EQ(ParseTree::DetermineStatsDimension(*root.GetChild(1)->GetChild(0), totals),
                  row.dimension);
    }
}

TEST(StatsDimension, TableIsChecked) {
    const TotalsMap totals;
    EXPECT_DEATH(ParseTree::DetermineStatsDimension(*TreeFromDump("(LIST a)"), totals),
                 HasSubstr("TB_TABLE"));
    EXPECT_DEATH(ParseTree::DetermineStatsDimension(*TreeFromDump("(TABLE)"), totals),
                 HasSubstr("0 < count && count <= 3"));
    EXPECT_DEATH(ParseTree::DetermineStatsDimension(*TreeFromDump("(TABLE a b c d)"), totals),
                 HasSubstr("0 < count && count <= 3"));
    const auto group = TreeFromDump("(LIST (TABLE (LIST)))");
    EXPECT_DEATH(ParseTree::DetermineStatsDimension(*group->GetChild(0), totals),
                 HasSubstr("nodeType == TB_STATISTICS || nodeType == TB_LABELS"));
}

struct TableRow {
    const char* table;
    const char* written;
};

void ExpectTables(const std::vector<TableRow>& rows) {
    for (const TableRow& row : rows) {
        SCOPED_TRACE(row.table);
        EXPECT_EQ(
            TranslatedTable(std::string("TABLES /OBSERVATION=x /MRGROUP=g m1 /TABLE=") + row.table),
            row.written);
    }
}

TEST(TableSubcommand, DimensionsAreJoinedByBy) {
    ExpectTables({
        {"a", "a[C]"},
        {"a BY b", "a[C] BY b[C]"},
        {"a BY b BY c", "a[C] BY b[C] BY c[C]"},
        {"x BY g", "x[S] BY $g"},
    });
}

TEST(TableSubcommand, AbsentMiddleDimensionLeavesTwoBys) {
    ExpectTables({
        {"a BY (STATISTICS) BY b", "a[C] BY  BY b[C]"},
        {"(STATISTICS) BY (LABELS) BY c", " BY  BY c[C]"},
    });
}

TEST(TableSubcommand, AbsentFirstDimensionLeavesABy) {
    ExpectTables({
        {"(STATISTICS) BY a", " BY a[C]"},
        {"(STATISTICS) + (LABELS) BY a BY b", " BY a[C] BY b[C]"},
    });
}

TEST(TableSubcommand, AbsentLastDimensionsLeaveNothing) {
    ExpectTables({
        {"a BY (STATISTICS)", "a[C]"},
        {"a BY (LABELS) BY (STATISTICS)", "a[C]"},
        {"a BY b BY (STATISTICS)", "a[C] BY b[C]"},
    });
}

TEST(TableSubcommand, PseudoVariablesAreNotWritten) {
    ExpectTables({
        {"a + (STATISTICS)", "a[C]"},
        {"(LABELS) > a > (STATISTICS) BY b", "a[C] BY b[C]"},
        {"a + ((STATISTICS) + b) > c", "a[C]+b[C]>c[C]"},
        {"(status) BY (lab) + a", " BY a[C]"}, // three letters are enough
    });
}

TEST(TableSubcommand, PseudoVariablesAloneLeaveAnEmptyTable) {
    for (const char* table : {"(STATISTICS)", "(LABELS) BY (STATISTICS)",
                              "(STATISTICS) + (LABELS) /TITLE 'T' /STATISTICS=count /SORT a"}) {
        SCOPED_TRACE(table);
        EXPECT_EQ(TranslatedText(std::string("TABLES /AUTOLABEL=ON /TABLE=") + table),
                  "CTABLES\n  /MRSETS COUNTDUPLICATES=YES\n  /FORMAT EMPTY=BLANK\n  /TABLE ");
    }
}

TEST(TableSubcommand, StatisticsDimensionIsMultipliedOutAndTheOthersAreNot) {
    ExpectTables({
        {"(a + b) > c", "a[C]>c[C]+b[C]>c[C]"},
        {"(a + b) > c BY d", "(a[C]+b[C])>c[C] BY d[C]"},
        {"(a + b) > c BY (d + e) > f", "(a[C]+b[C])>c[C] BY d[C]>f[C]+e[C]>f[C]"},
        {"(a + x) > c BY (d + e) > f", "a[C]>c[C]+x[S]>c[C] BY (d[C]+e[C])>f[C]"},
    });
}

TEST(TableSubcommand, MissingValuesFollowTheMissingSubcommand) {
    const std::vector<TableRow> rows{
        {"", "EXCLUDE"},
        {"/MISSING=INCLUDE", "INCLUDE"},
        {"/MISSING=EXCLUDE", "EXCLUDE"},
        {"/MISSING=INCLUDE /MISSING=EXCLUDE", "EXCLUDE"},
        {"/MISSING=EXCLUDE /MISSING=INCLUDE", "INCLUDE"},
    };
    for (const TableRow& row : rows) {
        SCOPED_TRACE(row.table);
        EXPECT_EQ(
            TranslatedSubcommands(std::string("TABLES ") + row.table + " /TABLE=a", "/CATEGORIES"),
            std::string("/CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=") + row.written);
    }
}

void ExpectLabels(const std::vector<TableRow>& rows, const char* start) {
    for (const TableRow& row : rows) {
        SCOPED_TRACE(row.table);
        EXPECT_EQ(
            TranslatedSubcommands(std::string("TABLES /OBSERVATION=x /TABLE=") + row.table, start),
            row.written);
    }
}

TEST(TableSubcommand, CategoryLabelsMoveFromRowsToColumnsAndBack) {
    ExpectLabels(
        {
            {"a", ""},
            {"a > (LABELS)", "/CLABELS COL=OPPOSITE"},
            {"(LABELS) BY a", "/CLABELS COL=OPPOSITE"},
            {"a BY b + (LABELS)", "/CLABELS ROW=OPPOSITE"},
            {"a BY (LABELS)", "/CLABELS ROW=OPPOSITE"},
            {"a + (LABELS) + (LABELS)", "/CLABELS COL=OPPOSITE"},
        },
        "/CLABELS");
}

TEST(TableSubcommand, LabelsInLayersOrSeveralDimensionsHaveNoEffect) {
    ExpectLabels(
        {
            {"a BY b BY c > (LABELS)", ""},
            {"a BY b BY (LABELS)", ""},
            {"a > (LABELS) BY b > (LABELS)", ""},
            {"a > (LABELS) BY b BY (LABELS)", ""},
            {"(LABELS) BY (LABELS) BY a > (LABELS)", ""},
        },
        "/CLABELS");
}

TEST(TableSubcommand, NamesOfStatisticsAreHiddenWithoutAStatisticsSubcommand) {
    ExpectLabels(
        {
            {"a", "/SLABELS VISIBLE=NO"},
            {"a BY b", "/SLABELS VISIBLE=NO"},
            {"a + (STATISTICS)", "/SLABELS POSITION=ROW VISIBLE=NO"},
            {"a BY (STATISTICS)", "/SLABELS POSITION=COLUMN VISIBLE=NO"},
            {"a BY b BY c > (STATISTICS)", "/SLABELS POSITION=LAYER VISIBLE=NO"},
            {"a > (STATISTICS) BY (STATISTICS)", "/SLABELS VISIBLE=NO"},
        },
        "/SLABELS");
}

TEST(TableSubcommand, NamesOfStatisticsStandWhereThePseudoVariableStood) {
    ExpectLabels(
        {
            {"a > (STATISTICS) BY b /STATISTICS=count", "/SLABELS POSITION=ROW"},
            {"a BY (STATISTICS) /STATISTICS=count", "/SLABELS POSITION=COLUMN"},
            {"a BY b BY (STATISTICS) /STATISTICS=count", "/SLABELS POSITION=LAYER"},
            {"x BY (STATISTICS) /STATISTICS=mean", "/SLABELS POSITION=COLUMN"},
        },
        "/SLABELS");
}

TEST(TableSubcommand, NamesOfStatisticsElseStandInTheStatisticsDimension) {
    ExpectLabels(
        {
            {"a /STATISTICS=count", "/SLABELS POSITION=ROW"},
            {"a BY b /STATISTICS=count", "/SLABELS POSITION=COLUMN"},
            {"x BY b /STATISTICS=count", "/SLABELS POSITION=ROW"},
            {"a BY b BY x /STATISTICS=count", "/SLABELS POSITION=LAYER"},
            // In several dimensions counts as in none.
            {"x > (STATISTICS) BY b BY (STATISTICS) /STATISTICS=count", "/SLABELS POSITION=ROW"},
        },
        "/SLABELS");
}

TEST(TableSubcommand, SubcommandsOfATableHaveTheirOrder) {
    EXPECT_EQ(TranslatedText("TABLES /OBSERVATION=x /FTOTAL=t 'All'/MISSING=INCLUDE "
                             "/TABLE=a > (LABELS) + t BY x + (STATISTICS) /TITLE 'T'"
                             "/SORT=ASCENDING a(mean(x)) x /CAPTION 'C'/STATISTICS=mean"),
              "CTABLES\n"
              "  /MRSETS COUNTDUPLICATES=YES\n"
              "  /FORMAT EMPTY=BLANK\n"
              "  /TABLE a[C] BY x[S][MEAN]\n"
              "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=INCLUDE\n"
              "  /CATEGORIES VAR=a TOTAL=YES POSITION=AFTER LABEL='All'\n"
              "  /CLABELS COL=OPPOSITE\n"
              "  /SLABELS POSITION=COLUMN\n"
              "  /CATEGORIES VAR=a ORDER=A KEY=MEAN(x)\n"
              "  /CATEGORIES VAR=x ORDER=A KEY=COUNT\n"
              "  /TITLES TITLE='T' CAPTION='C'");
}

TEST(TableSubcommand, DimensionThatDoesNotFitBeginsALine) {
    const std::string name(60, 'b');
    ExpectTables(
        {{("a234567890 BY " + name).c_str(), ("a234567890[C] BY \n  " + name + "[C]").c_str()}});
}

TEST(TableSubcommand, LongDimensionIsBrokenBetweenItsOperands) {
    const std::string name(38, 'b');
    ExpectTables({{(name + " + " + name + " BY c").c_str(),
                   (name + "[C]+\n  " + name + "[C] BY c[C]").c_str()}});
}

TEST(TableSubcommand, FailureOfAnyStepFailsTheTable) {
    const std::string globals = "TABLES /FTOTAL=t\n/TABLE=";
    EXPECT_EQ(TranslatedText(globals + "t + a"), "error 8 302@2:7 \"t\"");
    EXPECT_EQ(TranslatedText(globals + "a BY t + a"), "error 8 302@2:12 \"t\"");
    EXPECT_EQ(TranslatedText(globals + "a /STATISTICS=foo"), "error 5 301@2:21 \"foo\"");
    EXPECT_EQ(TranslatedText(globals + "a > b > c /STATISTICS=foo"), "error 5 301@2:29 \"foo\"");
    EXPECT_EQ(TranslatedText(globals + "a /SORT=a(foo)"), "error 6 295@2:17 \"foo\"");
    // The first step that fails ends it.
    EXPECT_EQ(TranslatedText(globals + "t + a /SORT=a(foo) /STATISTICS=foo"),
              "error 8 302@2:7 \"t\"");
    EXPECT_EQ(TranslatedText(globals + "a /SORT=a(foo) /STATISTICS=bar"),
              "error 5 301@2:34 \"bar\"");
}

TEST(TableSubcommand, IsGivenATable) {
    OutputSequence output;
    EXPECT_DEATH(ParseTree::TranslateTableSubcommand(*TreeFromDump("(LIST a)"), output),
                 HasSubstr("function TranslateTableSubcommand"));
}

} // namespace

} // namespace recastor
