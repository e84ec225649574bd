#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/run.h"
#include "tests/support/translatedtext.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

TEST(TablesCommand, OneTableAndNothingElse) {
    EXPECT_EQ(TranslatedText("TABLES /TABLE a"),
              "CTABLES\n"
              "  /MRSETS COUNTDUPLICATES=YES\n"
              "  /FORMAT EMPTY=BLANK\n"
              "  /TABLE a[C]\n"
              "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
              "  /SLABELS VISIBLE=NO");
}

TEST(TablesCommand, GroupsAreDeclaredInACommandOfTheirOwn) {
    EXPECT_EQ(
        TranslatedText("TABLES /MRGROUP g q1 TO q3 /FORMAT ZERO /TABLE g BY a /STATISTICS cases"),
        "MRSETS\n"
        "  /MCGROUP NAME=$g VARIABLES=q1 TO q3.\n"
        "CTABLES\n"
        "  /MRSETS COUNTDUPLICATES=YES\n"
        "  /FORMAT EMPTY=ZERO\n"
        "  /TABLE $g BY a[C]\n"
        "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
        "  /SLABELS POSITION=COLUMN");
}

TEST(TablesCommand, TablesKeepTheirOrder) {
    EXPECT_EQ(TranslatedText("TABLES /TABLE a /TITLE 'T'/TABLE b + c /STATISTICS count /TABLE d"),
              "CTABLES\n"
              "  /MRSETS COUNTDUPLICATES=YES\n"
              "  /FORMAT EMPTY=BLANK\n"
              "  /TABLE a[C]\n"
              "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
              "  /SLABELS VISIBLE=NO\n"
              "  /TITLES TITLE='T'\n"
              "  /TABLE b[C][COUNT]+c[C][COUNT]\n"
              "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
              "  /SLABELS POSITION=ROW\n"
              "  /TABLE d[C]\n"
              "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
              "  /SLABELS VISIBLE=NO");
}

TEST(TablesCommand, SurveyTableConvertsWhole) {
    EXPECT_EQ(
        TranslatedText("TABLES /OBSERVATION income /FTOTAL everyone 'Everyone',both\n"
                       "/MDGROUP media 'Read daily'paper TO radio (1) /GBASE RESPONSES\n"
                       "/TABLE income > (sex + everyone) + (LABELS) + media BY region + both\n"
                       "/SORT ASCENDING media(cpct) region\n"
                       "/TITLE 'Income','and media'/CORNER 'Wave 1'/CAPTION 'Table',\n"
                       "/STATISTICS mean(income'Mean'(F8.1)) cpct('%'(pct5.1):region)"),
        "MRSETS\n"
        "  /MDGROUP NAME=$media LABEL='Read daily' VARIABLES=paper TO radio VALUE=1.\n"
        "CTABLES\n"
        "  /MRSETS COUNTDUPLICATES=YES\n"
        "  /FORMAT EMPTY=BLANK\n"
        "  /TABLE income[S][MEAN,'Mean',F8.1,COLPCT.VALIDN,'%',PCT5.1,TOTALS[\n"
        "  COLPCT.VALIDN,'%',PCT5.1]]>sex[C]+$media[COLPCT.COUNT.RESPONSES,'%',PCT5.1]\n"
        "  BY region[C]\n"
        "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
        "  /CATEGORIES VAR=region TOTAL=YES POSITION=AFTER LABEL=\"BOTH\"\n"
        "  /CATEGORIES VAR=sex TOTAL=YES POSITION=AFTER LABEL='Everyone'\n"
        "  /CLABELS COL=OPPOSITE\n"
        "  /SLABELS POSITION=ROW\n"
        "  /CATEGORIES VAR=$media ORDER=A KEY=COUNT\n"
        "  /CATEGORIES VAR=region ORDER=A KEY=COUNT(income)\n"
        "  /TITLES TITLE='Income' 'and media' CAPTION='Table' CORNER='Wave 1'");
}

TEST(TablesCommand, EveryTableHasItsOwnTotals) {
    EXPECT_EQ(
        TranslatedSubcommands("TABLES /FTOTAL t /TABLE a + t /TABLE a /TABLE b + t", "/CATEGORIES"),
        "/CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE | "
        "/CATEGORIES VAR=a TOTAL=YES POSITION=AFTER LABEL=\"T\" | "
        "/CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE | "
        "/CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE | "
        "/CATEGORIES VAR=b TOTAL=YES POSITION=AFTER LABEL=\"T\"");
}

TEST(TablesCommand, FailureOfAnyTableLeavesNoText) {
    for (const char* tables :
         {"/TABLE t + a", "/TABLE a /TABLE t + a /TABLE b", "/TABLE a /TABLE b /STATISTICS foo"}) {
        SCOPED_TRACE(tables);
        std::string text = "old";
        EXPECT_FALSE(ParseTree::TranslateTablesCommand(
            &ParseCommand(std::string("TABLES /FTOTAL t /MRGROUP g q ") + tables), text));
        EXPECT_EQ(text, "");
    }
}

TEST(TablesCommand, FirstTableThatFailsEndsTheCommand) {
    EXPECT_EQ(TranslatedText("TABLES\n/TABLE a /STATISTICS foo /TABLE b /STATISTICS bar"),
              "error 5 301@2:21 \"foo\"");
}

TEST(TablesCommand, OldTextIsReplaced) {
    std::string text = "old";
    EXPECT_TRUE(ParseTree::TranslateTablesCommand(&ParseCommand("TABLES /TABLE a"), text));
    EXPECT_THAT(text, testing::StartsWith("CTABLES\n"));
}

TEST(TablesCommand, LinesHaveNoMoreThanEightyBytes) {
    // 9 bytes to the rows, 12 operands of 5 bytes and 11 signs: 80.
    EXPECT_EQ(TranslatedTable("TABLES /TABLE a1 + a2 + a3 + a4 + a5 + a6 + a7 + a8 + a9 + b1 + b2 "
                              "+ b3 BY c"),
              "a1[C]+a2[C]+a3[C]+a4[C]+a5[C]+a6[C]+a7[C]+a8[C]+a9[C]+b1[C]+b2[C]+b3[C]\n"
              "  BY c[C]");
}

TEST(TablesCommand, CommandsBehindAFailedOneAreConverted) {
    const std::string text = ConvertText("FREQUENCIES a.\n"
                                         "TABLES /FTOTAL t\n"
                                         "  /TABLE t + a.\n"
                                         "TABLES /TABLE a.\n"
                                         "DESCRIPTIVES x.\n");
    EXPECT_THAT(text, HasSubstr("***** Error while parsing or translating input syntax file. "
                                "Line 3, column 10.\n"
                                "***** Following total t on a TABLE subcommand does not follow "
                                "anything.\n"
                                "COMMENT -- End CTABLES command.\n"));
    EXPECT_THAT(text, HasSubstr("  /TABLE a[C]\n"
                                "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
                                "  /SLABELS VISIBLE=NO.\n"
                                "COMMENT -- End CTABLES command.\n"
                                "DESCRIPTIVES x.\n"));
}

TEST(TablesCommand, TreeIsChecked) {
    std::string text;
    EXPECT_DEATH(ParseTree::TranslateTablesCommand(nullptr, text), HasSubstr("root != nullptr"));
    const auto expectDeath = [&](const char* dump, const char* condition) {
        SCOPED_TRACE(dump);
        EXPECT_DEATH(ParseTree::TranslateTablesCommand(TreeFromDump(dump).get(), text),
                     HasSubstr(condition));
    };
    expectDeath("(VARLIST (LIST))", "root->GetNodeType() == TBI_GENERICLIST");
    expectDeath("(LIST)", "root.GetChildCount() > 0");
    expectDeath("(LIST (LIST) _)", "group != nullptr");
    expectDeath("(LIST (LIST) (TABLE a))", "group->GetNodeType() == TBI_GENERICLIST");
    expectDeath("(LIST (LIST) (LIST _))", "group->GetChild(0) != nullptr");
    expectDeath("(LIST (LIST) (LIST a))", "table.GetNodeType() == TB_TABLE");
}

} // namespace

} // namespace recastor
