#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/run.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct StatisticsRow {
    const char* table;
    const char* statistics;
    const char* written; ///< behind "/TABLE "
};

/// Scale variables x and y, groups g (of categories) and d (of dichotomies), totals t and u.
void ExpectStatistics(const std::vector<StatisticsRow>& rows, const std::string& globals = "") {
    for (const StatisticsRow& row : rows) {
        const std::string command =
            "TABLES " + globals + "/OBSERVATION=x y /MRGROUP=g m1 /MRGROUP=h m2 " +
            "/MDGROUP=d m3(1) /FTOTAL=t 'All',u /TABLE=" + row.table +
            (*row.statistics != '\0' ? std::string("/STATISTICS=") + row.statistics : "");
        SCOPED_TRACE(command);
        EXPECT_EQ(TranslatedTable(command), row.written);
    }
}

TEST(Statistics, PercentileArgumentIsWrittenBehindPtile) {
    ExpectStatistics({{"x", "hptile 25", "x[S][PTILE 25]"}});
}

TEST(Statistics, SumAndValidPercentagesHaveABaseWordForEachBase) {
    ExpectStatistics({
        {"x", "spct", "x[S][TABLEPCT.SUM]"},
        {"x", "vpct", "x[S][TABLEPCT.VALIDN]"},
        {"x BY a + b", "spct(x:a)", "x[S][COLPCT.SUM,LAYERPCT.SUM] BY a[C]+b[C]"},
        {"x BY a + b", "vpct(x:a)", "x[S][COLPCT.VALIDN,LAYERPCT.VALIDN] BY a[C]+b[C]"},
    });
}

TEST(Statistics, PercentageOfCasesFollowsBase) {
    ExpectStatistics({{"a", "cpct", "a[C][TABLEPCT.VALIDN]"}});
    ExpectStatistics({{"a", "cpct", "a[C][TABLEPCT.TOTALN]"}}, "/BASE=ALL ");
    ExpectStatistics({{"a", "cpct", "a[C][TABLEPCT.COUNT]"}}, "/BASE=QUALIFIED ");
}

TEST(Statistics, PercentagesOfResponsesFollowGbase) {
    ExpectStatistics({{"g", "cspct", "$g[TABLEPCT.RESPONSES.COUNT]"},
                      {"g", "rpct", "$g[TABLEPCT.RESPONSES.COUNT]"},
                      {"g", "cpct", "$g[TABLEPCT.COUNT]"}});
    ExpectStatistics({{"g", "cspct", "$g[TABLEPCT.RESPONSES]"},
                      {"g", "rpct", "$g[TABLEPCT.RESPONSES]"},
                      {"g", "cpct", "$g[TABLEPCT.COUNT.RESPONSES]"}},
                     "/GBASE=RESPONSES ");
}

TEST(Statistics, ThreeLettersOfAFunctionAreAccepted) {
    ExpectStatistics({{"x", "min", "x[S][MINIMUM]"}});
}

TEST(Statistics, ScaleFunctionOfACategoricalTableIsWrittenNowhere) {
    ExpectStatistics({{"a + b", "mean", "a[C]+b[C]"}, {"a > b BY c", "mean", "a[C]>b[C] BY c[C]"}});
}

TEST(Statistics, PercentageWithoutBaseVariablesIsOfTheTable) {
    ExpectStatistics({{"a BY b", "cpct", "a[C] BY b[C][TABLEPCT.VALIDN]"},
                      {"a BY b", "cpct(a)", "a[C][TABLEPCT.VALIDN] BY b[C]"}});
}

TEST(Statistics, BaseVariableInTheColumnsGivesAColumnPercentage) {
    ExpectStatistics({{"a BY b", "cpct(a:b)", "a[C][COLPCT.VALIDN] BY b[C]"}});
}

TEST(Statistics, UnknownFunctionIsAnErrorThatNamesIt) {
    const std::string place = "***** Error while parsing or translating input syntax file. ";
    EXPECT_EQ(ConvertTables("TABLES\n/TABLE=a\n/STATISTICS=count Foo mean"),
              place + "Line 3, column 19.\n***** Unrecognized summary function Foo.\n");
    EXPECT_EQ(ConvertTables("TABLES\n/TABLE=a /STATISTICS=me(z)"),
              place + "Line 2, column 22.\n***** Unrecognized summary function me.\n");
    // On the first line columns begin with 1 and are told one higher.
    EXPECT_EQ(ConvertTables("TABLES /TABLE=x/STATISTICS=foo"),
              place + "Line 1, column 29.\n***** Unrecognized summary function foo.\n");
}

TEST(Statistics, UnknownFunctionOfATableWithoutVariablesIsNotLookedAt) {
    EXPECT_TRUE(
        TranslatedText("TABLES /FTOTAL=t /TABLE=t /STATISTICS=foo").ends_with("\n  /TABLE "));
}

TEST(Statistics, KindsApplyToTheTypesOfVariables) {
    const std::string all = "count cases mean cpct rpct spct";
    ExpectStatistics({
        {"a", all.c_str(), "a[C][COUNT,TABLEPCT.VALIDN]"},
        {"x", all.c_str(), "x[S][COUNT,MEAN,TABLEPCT.VALIDN,TABLEPCT.SUM]"},
        {"g", all.c_str(), "$g[COUNT,RESPONSES,TABLEPCT.COUNT,TABLEPCT.RESPONSES.COUNT]"},
        {"d", all.c_str(), "$d[COUNT,RESPONSES,TABLEPCT.COUNT,TABLEPCT.RESPONSES.COUNT]"},
    });
}

TEST(Statistics, ApplicabilityIsDecidedForEachTerm) {
    ExpectStatistics({
        {"a + x", "count mean", "a[C][COUNT]+x[S][COUNT,MEAN]"},
        {"a + g + x", "count cases mean", "a[C][COUNT]+$g[COUNT,RESPONSES]+x[S][COUNT,MEAN]"},
        {"x > a + b", "mean count", "x[S][MEAN,COUNT]>a[C]+b[C][COUNT]"},
        {"(a + x) > b", "mean", "a[C]>b[C]+x[S][MEAN]>b[C]"},
    });
}

TEST(Statistics, AnyVariableOfATermMakesAFunctionApply) {
    ExpectStatistics({
        {"a > x", "count mean", "a[C]>x[S][COUNT,MEAN]"},
        {"a > g > x", "cases mean", "a[C]>$g>x[S][RESPONSES,MEAN]"},
        {"g > a", "cases mean", "$g[RESPONSES]>a[C]"},
    });
}

TEST(Statistics, GroupMarkOfAPercentageIsThatOfTheMagnet) {
    ExpectStatistics({
        {"g > a", "cpct", "$g[TABLEPCT.COUNT]>a[C]"},
        {"g > x", "cpct", "$g>x[S][TABLEPCT.VALIDN]"},
        {"a + d", "cpct", "a[C][TABLEPCT.VALIDN]+$d[TABLEPCT.COUNT]"},
    });
}

TEST(Statistics, ArgumentsNarrowAFunctionToTheirTerms) {
    ExpectStatistics({
        {"a + b", "count(a)", "a[C][COUNT]+b[C]"},
        {"a + b", "count(A)", "a[C][COUNT]+b[C]"},
        {"a > b", "count(a)", "a[C]>b[C][COUNT]"},
        {"a + x", "mean(x)", "a[C]+x[S][MEAN]"},
        {"a + b + c", "count(c a)", "a[C][COUNT]+b[C]+c[C][COUNT]"},
        {"a", "count(z)", "a[C]"},
        {"a + g", "cases(a)", "a[C]+$g[RESPONSES]"}, // its default
        {"a + g", "count(g)", "a[C]+$g[COUNT]"},
        {"a + b", "count(a) cpct(b)", "a[C][COUNT]+b[C][TABLEPCT.VALIDN]"},
    });
}

TEST(Statistics, NameAndKindMustHoldForTheSameVariable) {
    ExpectStatistics({
        {"x > a", "mean(a)", "x[S]>a[C]"},
        {"x > a", "count(a)", "x[S][COUNT]>a[C]"},
        {"x > a", "mean(a x)", "x[S][MEAN]>a[C]"},
        {"g > x", "cases(x)", "$g>x[S]"},
        {"g > x", "cases(g)", "$g>x[S][RESPONSES]"},
    });
}

TEST(Statistics, EmptyParenthesesAreNoArguments) {
    ExpectStatistics({{"a + b", "count()", "a[C][COUNT]+b[C][COUNT]"}});
}

TEST(Statistics, LabelStandsBeforeTheFormat) {
    ExpectStatistics({
        {"a", "count('N')", "a[C][COUNT,'N']"},
        {"a", "count((F5.0))", "a[C][COUNT,F5.0]"},
        {"a", "count((f5.0)'N')", "a[C][COUNT,'N',F5.0]"},
        {"a", "count(\"It's\"(pct5.1))", "a[C][COUNT,\"It's\",PCT5.1]"},
        {"a", "count(a'N'(F5))", "a[C][COUNT,'N',F5]"},
        {"a", "count(a(F5)'N')", "a[C][COUNT,'N',F5]"},
        {"a", "count('N' )", "a[C][COUNT,'N' ]"}, // as it stands, with the blank behind it
    });
}

TEST(Statistics, LabelAndFormatAloneHoldForEveryTerm) {
    ExpectStatistics({{"a + b", "count('N')", "a[C][COUNT,'N']+b[C][COUNT,'N']"}});
}

TEST(Statistics, LabelAndFormatAreThoseOfTheMatchingArgument) {
    ExpectStatistics({
        {"a + b", "count(a'A'b(F8.2)'B')", "a[C][COUNT,'A']+b[C][COUNT,'B',F8.2]"},
        {"a + b", "count(a b'B')", "a[C][COUNT]+b[C][COUNT,'B']"},
        {"x > a", "mean(a'A'x'X')", "x[S][MEAN,'X']>a[C]"},
        // The first variable of the term that the function applies to.
        {"a > b", "count(b'B'a'A')", "a[C]>b[C][COUNT,'A']"},
    });
}

TEST(Statistics, EveryStatisticOfAPercentageHasLabelAndFormat) {
    ExpectStatistics({{"a BY b + c", "cpct(a'%'(F3):b)",
                       "a[C][COLPCT.VALIDN,'%',F3,LAYERPCT.VALIDN,'%',F3] BY b[C]+c[C]"}});
}

TEST(Statistics, UnweightedIsTheLetterInFront) {
    ExpectStatistics({
        {"a", "unweighted count", "a[C][UCOUNT]"},
        {"a", "U count count", "a[C][UCOUNT,COUNT]"},
        {"a BY b", "U cpct(a:b)", "a[C][UCOLPCT.VALIDN] BY b[C]"},
        {"x", "U ptile 25", "x[S][UPTILE 25]"},
        {"a BY b + c", "U cpct(a:b)", "a[C][UCOLPCT.VALIDN,ULAYERPCT.VALIDN] BY b[C]+c[C]"},
    });
}

TEST(Statistics, NumberIsWrittenAsItStands) {
    ExpectStatistics({
        {"x", "ptile 25", "x[S][PTILE 25]"},
        {"x", "ptile 02.50", "x[S][PTILE 02.50]"},
        {"x", "aptile +5 (x'Q')", "x[S][PTILE +5,'Q']"},
        {"x", "rptile 10 eptile 20 wptile 30", "x[S][PTILE 10,PTILE 20,PTILE 30]"},
        {"x", "spct 5", "x[S][TABLEPCT.SUM 5]"},
    });
}

TEST(Statistics, FunctionsKeepTheirOrder) {
    ExpectStatistics({{"x", "sum mean count mean", "x[S][SUM,MEAN,COUNT,MEAN]"}});
}

TEST(Statistics, GroupWithoutFunctionGetsResponses) {
    ExpectStatistics({
        {"g", "", "$g[RESPONSES]"},
        {"d", "", "$d[RESPONSES]"},
        {"g", "mean", "$g[RESPONSES]"},
        {"g", "count(a)", "$g[RESPONSES]"},
        {"g > a", "", "$g[RESPONSES]>a[C]"},
        {"g > h", "", "$g>$h[RESPONSES]"},
        {"g > x", "", "$g>x[S]"},
        {"g BY a", "", "$g BY a[C]"}, // not in the statistics dimension
    });
}

TEST(Statistics, FirstStatisticsSubcommandOfATableCounts) {
    EXPECT_EQ(TranslatedTable("TABLES /TABLE=a /STATISTICS=count /STATISTICS=cpct"), "a[C][COUNT]");
    EXPECT_EQ(TranslatedSubcommands("TABLES /TABLE=a /STATISTICS=count /TABLE=b", "/TABLE"),
              "/TABLE a[C][COUNT] | /TABLE b[C]");
}

// Totals.

TEST(TotalsStatistics, FunctionWithoutArgumentsAppliesToTheTotalToo) {
    ExpectStatistics({
        {"a + t", "count", "a[C][COUNT,TOTALS[COUNT]]"},
        {"a + t", "count cpct", "a[C][COUNT,TABLEPCT.VALIDN,TOTALS[COUNT,TABLEPCT.VALIDN]]"},
        {"a + t", "count('N'(F5))", "a[C][COUNT,'N',F5,TOTALS[COUNT,'N',F5]]"},
        {"a + t", "U count()", "a[C][UCOUNT,TOTALS[UCOUNT]]"},
        {"x > a + t", "mean", "x[S][MEAN,TOTALS[MEAN]]>a[C]"},
    });
}

TEST(TotalsStatistics, NothingIsWrittenWithoutAFunctionForTheTotal) {
    ExpectStatistics({
        {"a + t", "", "a[C]"},
        {"a + t", "mean", "a[C]"},
        {"a + t", "count(a)", "a[C][COUNT]"},
        {"a", "count(t)", "a[C]"}, // no total in the table
    });
}

TEST(TotalsStatistics, NamedTotalHasItsOwnLabelAndFormat) {
    ExpectStatistics({
        {"a + t", "count(a'A't'T')", "a[C][COUNT,'A',TOTALS[COUNT,'T']]"},
        {"a + t", "count(t(F5)a)", "a[C][COUNT,TOTALS[COUNT,F5]]"},
        {"a + t", "count(a'A'T)", "a[C][COUNT,'A',TOTALS[COUNT]]"},
    });
}

TEST(TotalsStatistics, CommaStandsBehindAnEmptyListToo) {
    ExpectStatistics({
        {"a + t", "count(t)", "a[C][,TOTALS[COUNT]]"},
        {"a + t", "count(t'T')cpct(t)", "a[C][,TOTALS[COUNT,'T',TABLEPCT.VALIDN]]"},
    });
}

TEST(TotalsStatistics, KindMustSuitAVariableOfTheTerm) {
    ExpectStatistics({
        {"a + t", "mean(t)", "a[C]"},
        {"a + t", "cases(t)", "a[C]"},
        {"x > a + t", "mean(t)", "x[S][,TOTALS[MEAN]]>a[C]"},
        {"x > a + t", "mean count(t)", "x[S][MEAN,TOTALS[MEAN,COUNT]]>a[C]"},
        {"a > g + t", "cases(t)", "a[C]>$g[RESPONSES,TOTALS[RESPONSES,RESPONSES]]"},
    });
}

TEST(TotalsStatistics, OnlyTheTermOfTheTotalHasThem) {
    ExpectStatistics({
        {"a + t + b", "count", "a[C][COUNT,TOTALS[COUNT]]+b[C][COUNT]"},
        {"(a + t + b) > c", "count(t)", "a[C]>c[C][,TOTALS[COUNT]]+b[C]>c[C]"},
        {"a > (b + t + c)", "count", "a[C]>b[C][COUNT,TOTALS[COUNT]]+a[C]>c[C][COUNT]"},
        {"a BY b + t", "count", "a[C] BY b[C][COUNT,TOTALS[COUNT]]"},
        {"a + t BY b", "count", "a[C] BY b[C][COUNT]"}, // the total is in the other dimension
    });
}

TEST(TotalsStatistics, EveryMarkOfATermCounts) {
    const char* const table = "(a + t) > (b + u)";
    ExpectStatistics({
        {table, "count", "a[C]>b[C][COUNT,TOTALS[COUNT]]"},
        {table, "count(t'T')", "a[C]>b[C][,TOTALS[COUNT,'T']]"},
        {table, "count(u'U')", "a[C]>b[C][,TOTALS[COUNT,'U']]"},
        {table, "count(u'U't'T')", "a[C]>b[C][,TOTALS[COUNT,'T']]"}, // the first mark
        {table, "count(t)cpct(u)", "a[C]>b[C][,TOTALS[COUNT,TABLEPCT.VALIDN]]"},
    });
}

TEST(TotalsStatistics, GroupGetsResponsesInBothLists) {
    ExpectStatistics({
        {"g + t", "", "$g[RESPONSES,TOTALS[RESPONSES]]"},
        {"g + t", "mean", "$g[RESPONSES,TOTALS[RESPONSES]]"},
        {"g + t", "count(t)", "$g[RESPONSES,TOTALS[COUNT,RESPONSES]]"},
        {"g + t", "count", "$g[COUNT,TOTALS[COUNT]]"},
        {"g + t", "count(g)", "$g[COUNT]"},
        {"g > (a + t)", "", "$g[RESPONSES,TOTALS[RESPONSES]]>a[C]"},
    });
}

TEST(TotalsStatistics, PercentagesOfATotalHaveTheBasesOfTheTerm) {
    ExpectStatistics({
        {"a + t BY b + c", "cpct(a t:b)",
         "a[C][COLPCT.VALIDN,LAYERPCT.VALIDN,TOTALS[COLPCT.VALIDN,\n"
         "  LAYERPCT.VALIDN]] BY b[C]+c[C]"},
    });
}

// The list as pieces.

/// The pieces of the list of a table's one variable.
std::string ListPieces(const std::string& command) {
    TbTrParseNode& table = ParseTable(command);
    const auto expanded = TreeFromDump("(LIST _ _ _)");
    OutputSequence output;
    output.PushBack("old", false);
    EXPECT_TRUE(
        ParseTree::ExpressFunctions(ParseTree::FindNodeByType(table.GetParent(), TB_STATISTICS),
                                    table, 1, *table.GetChild(0), *expanded, output));
    return Pieces(output);
}

TEST(ExpressFunctions, EveryStatisticIsAPiece) {
    EXPECT_EQ(ListPieces("TABLES /TABLE=a /STATISTICS=count('N'(F5))cpct"),
              "COUNT,'N',F5,\nTABLEPCT.VALIDN");
    EXPECT_EQ(ListPieces("TABLES /TABLE=a"), "");
}

TEST(ExpressFunctions, StatisticOfLessThanSeventyNineBytesIsKeptTogether) {
    const std::string label = '\'' + std::string(70, 'l') + '\''; // COUNT, and this: 78
    EXPECT_EQ(ListPieces("TABLES /TABLE=a /STATISTICS=count(" + label + ")"), "COUNT," + label);
    const std::string longer = '\'' + std::string(71, 'l') + '\'';
    EXPECT_EQ(ListPieces("TABLES /TABLE=a /STATISTICS=count(" + longer + ")"), "COUNT,\n" + longer);
}

TEST(ExpressFunctions, ListIsClearedWhenAFunctionIsUnknown) {
    TbTrParseNode& table = ParseTable("TABLES\n/TABLE=a /STATISTICS=foo");
    const auto expanded = TreeFromDump("(LIST _ _ _)");
    OutputSequence output;
    EXPECT_FALSE(
        ParseTree::ExpressFunctions(ParseTree::FindNodeByType(table.GetParent(), TB_STATISTICS),
                                    table, 1, *table.GetChild(0), *expanded, output));
    EXPECT_TRUE(output.IsEmpty());
    EXPECT_EQ(RecordedError(), "error 5 301@2:21 \"foo\"");
}

TEST(ExpressFunctions, LongStatisticsAreBrokenBetweenPieces) {
    const std::string label = '\'' + std::string(70, 'l') + '\'';
    EXPECT_EQ(TranslatedTable("TABLES /TABLE=a /STATISTICS=count(" + label + ")"),
              "a[C][\n  COUNT," + label + "\n  ]");
    const std::string longer = '\'' + std::string(71, 'l') + '\'';
    EXPECT_EQ(TranslatedTable("TABLES /TABLE=a /STATISTICS=count(" + longer + ")"),
              "a[C][COUNT,\n  " + longer + "]");
}

TEST(ExpressFunctions, BracketStaysWithAStatisticOfSeventySevenBytes) {
    // 9 bytes, "b[C]>", the name and "[C]": 80, so that the opening bracket begins a line.
    const std::string name(63, 'v');
    const std::string label = '\'' + std::string(69, 'l') + '\'';
    EXPECT_EQ(TranslatedTable("TABLES /TABLE=b > " + name + " /STATISTICS=count(" + label + ")"),
              "b[C]>" + name + "[C]\n  [\n  COUNT," + label + "]");
}

TEST(ExpressFunctions, LastStatisticOfATotalKeepsItsBracket) {
    const std::string name(60, 'v'); // 80 bytes to TOTALS
    const std::string label = '\'' + std::string(69, 'l') + '\'';
    EXPECT_EQ(TranslatedTable("TABLES /FTOTAL=t /TABLE=" + name + " + t /STATISTICS=count(t" +
                              label + ")"),
              name + "[C][,TOTALS\n  [\n  COUNT," + label + "]\n  ]");
}

TEST(ExpressFunctions, ShortLastStatisticKeepsItsBracket) {
    const std::string name(56, 'v');
    // 9 bytes before the name, "[C]", "[", "COUNT": the comma still fits, the next does not.
    EXPECT_EQ(TranslatedTable("TABLES /TABLE=" + name + " /STATISTICS=count cpct"),
              name + "[C][COUNT,\n  TABLEPCT.VALIDN]");
    // Without room for the comma the statistic before it moves too.
    const std::string longer(62, 'v');
    EXPECT_EQ(TranslatedTable("TABLES /TABLE=" + longer + " /STATISTICS=count cpct"),
              longer + "[C][\n  COUNT,TABLEPCT.VALIDN]");
}

} // namespace

} // namespace recastor
