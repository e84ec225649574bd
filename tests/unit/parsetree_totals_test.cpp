#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree_totals.h"
#include "tests/support/commandtree.h"
#include "tests/support/dump.h"
#include "tests/support/run.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// Declares the totals t and u behind, p and q before, the scale variables x and y, and the group
/// g.
std::string WithTable(const std::string& table) {
    return "TABLES /FTOTAL=t 'All',u /PTOTAL=p 'Sum',q /OBSERVATION=x y /MRGROUP=g m1 m2 /TABLE=" +
           table;
}

struct TotalsRow {
    const char* table;
    const char* written; ///< behind "/TABLE "
    const char* totals;  ///< the total lines, each less "/CATEGORIES VAR="
};

constexpr const char* kAll = " TOTAL=YES POSITION=AFTER LABEL='All'";
constexpr const char* kSum = " TOTAL=YES POSITION=BEFORE LABEL='Sum'";

void ExpectTotals(const std::vector<TotalsRow>& rows, const std::string& settings) {
    for (const TotalsRow& row : rows) {
        SCOPED_TRACE(row.table);
        const std::string command = WithTable(row.table);
        EXPECT_EQ(TranslatedTable(command), row.written);
        EXPECT_EQ(TranslatedCategories(command), row.totals + settings);
    }
}

TEST(Totals, FollowingTotalIsWrittenWithItsLabel) {
    ExpectTotals({{"a + t", "a[C]", "a"}}, kAll);
}

TEST(Totals, TotalWithoutLabelIsWrittenWithItsName) {
    ExpectTotals({{"a + u", "a[C]", "a TOTAL=YES POSITION=AFTER LABEL=\"U\""},
                  {"q + a", "a[C]", "a TOTAL=YES POSITION=BEFORE LABEL=\"Q\""}},
                 "");
}

TEST(Totals, PrecedingTotalStandsBefore) {
    ExpectTotals({{"p + a", "a[C]", "a"}}, kSum);
}

TEST(Totals, FollowingTotalBelongsToTheLastOfAStacking) {
    ExpectTotals(
        {
            {"(a + b) + t", "a[C]+b[C]", "b"},
            {"a + b + t", "a[C]+b[C]", "b"},
            {"a + t + b", "a[C]+b[C]", "a"},
            {"(a + b) > c + t", "a[C]>c[C]+b[C]>c[C]", "b"},
            {"(a + (b + d) > e) > c + t", "a[C]>c[C]+b[C]>e[C]>c[C]+d[C]>e[C]>c[C]", "d"},
        },
        kAll);
}

TEST(Totals, PrecedingTotalBelongsToTheFirstOfAStacking) {
    ExpectTotals(
        {
            {"p + (a + b)", "a[C]+b[C]", "a"},
            {"b + p + a", "b[C]+a[C]", "a"},
            {"p + (a + b) > c", "a[C]>c[C]+b[C]>c[C]", "a"},
        },
        kSum);
}

TEST(Totals, TotalBelongsToTheOutermostOfANesting) {
    ExpectTotals({{"a > b + t", "a[C]>b[C]", "a"}, {"a > x + t", "a[C]>x[S]", "a"}}, kAll);
    ExpectTotals({{"p + a > b > c", "a[C]>b[C]>c[C]", "a"}}, kSum);
}

TEST(Totals, TotalInAnInnerStackingStaysThere) {
    ExpectTotals({{"(a + t) > c", "a[C]>c[C]", "a"}, {"c > (a + t)", "c[C]>a[C]", "a"}}, kAll);
    ExpectTotals({{"c > (p + a) > b", "c[C]>a[C]>b[C]", "a"}}, kSum);
}

TEST(Totals, EveryDimensionCanHaveThem) {
    ExpectTotals(
        {
            {"a + t BY b", "a[C] BY b[C]", "a"},
            {"b BY a + t", "b[C] BY a[C]", "a"},
            {"b BY c BY a + t", "b[C] BY c[C] BY a[C]", "a"},
        },
        kAll);
}

TEST(Totals, ScaleVariablePassesItsTotalToWhatItNests) {
    ExpectTotals(
        {
            {"x > a + t", "x[S]>a[C]", "a"},
            {"x > a > b + t", "x[S]>a[C]>b[C]", "a"},
            {"x > (a + b) + t", "x[S]>a[C]+x[S]>b[C]", "a b"},
            {"x > (a > c + b) + t", "x[S]>a[C]>c[C]+x[S]>b[C]", "a b"},
            {"x > (a + b) > c + t", "x[S]>a[C]>c[C]+x[S]>b[C]>c[C]", "a b"},
            {"(b + x) > a + t", "b[C]>a[C]+x[S]>a[C]", "a"},
        },
        kAll);
    ExpectTotals({{"p + x > (a + b)", "x[S]>a[C]+x[S]>b[C]", "a b"}}, kSum);
}

TEST(Totals, GroupIsTotalledUnderItsWrittenName) {
    ExpectTotals(
        {{"g + t", "$g[RESPONSES,TOTALS[RESPONSES]]", "$g"}, {"x > g + t", "x[S]>$g", "$g"}}, kAll);
}

TEST(Totals, TotalThatIsAWholeDimensionVanishes) {
    ExpectTotals(
        {
            {"a BY t", "a[C]", ""},
            {"p BY a", " BY a[C]", ""},
            {"a BY t BY b", "a[C] BY  BY b[C]", ""},
        },
        "");
}

TEST(Totals, TableOfTotalsOnlyIsEmpty) {
    for (const char* table : {"t", "t BY p", "p + t"}) {
        SCOPED_TRACE(table);
        EXPECT_TRUE(TranslatedText(WithTable(table)).ends_with("\n  /TABLE "));
    }
}

TEST(Totals, TotalBesideATotalVanishes) {
    ExpectTotals({{"p + q + a", "a[C]", "a TOTAL=YES POSITION=BEFORE LABEL=\"Q\""},
                  {"a + t + u", "a[C]", "a TOTAL=YES POSITION=AFTER LABEL=\"U\""}},
                 "");
    ExpectTotals({{"a + p + t", "a[C]", "a"}}, kAll);
}

TEST(Totals, VariablesOfOneTotalShareALineInKeyOrder) {
    ExpectTotals(
        {
            {"a + t + b + t", "a[C]+b[C]", "a b"},
            {"b + t + c + a + t", "b[C]+c[C]+a[C]", "a b"},
            {"b + t BY B1 + t", "b[C] BY B1[C]", "B1 b"}, // by bytes
            {"a + t BY a + t", "a[C] BY a[C]", "a"},
        },
        kAll);
}

TEST(Totals, EveryTotalHasItsLine) {
    ExpectTotals({{"b + t + p + a", "b[C]+a[C]",
                   "a TOTAL=YES POSITION=BEFORE LABEL='Sum' | "
                   "b TOTAL=YES POSITION=AFTER LABEL='All'"},
                  {"a + t + b + u + c + t", "a[C]+b[C]+c[C]",
                   "a c TOTAL=YES POSITION=AFTER LABEL='All' | "
                   "b TOTAL=YES POSITION=AFTER LABEL=\"U\""},
                  // The key is the spelling in the table.
                  {"a + t + A > b + u", "a[C]+A[C]>b[C]",
                   "A TOTAL=YES POSITION=AFTER LABEL=\"U\" | "
                   "a TOTAL=YES POSITION=AFTER LABEL='All'"}},
                 "");
}

TEST(Totals, FollowingTotalBeatsAPrecedingOne) {
    ExpectTotals(
        {
            {"p + a + t", "a[C]", "a"},
            {"p + a BY a + t", "a[C] BY a[C]", "a"},
            {"a + t BY p + a", "a[C] BY a[C]", "a"},
        },
        kAll);
}

TEST(Totals, LaterTotalOfTheSameKindWins) {
    ExpectTotals({{"a + u BY a + t", "a[C] BY a[C]", "a"}}, kAll);
    ExpectTotals({{"q + a BY p + a", "a[C] BY a[C]", "a"}}, kSum);
}

TEST(Totals, NamesAreComparedWithoutCase) {
    ExpectTotals({{"a + T", "a[C]", "a"}}, kAll);
}

TEST(Totals, LabelIsWrittenAsItStands) {
    EXPECT_EQ(TranslatedCategories("TABLES /FTOTAL=t \"It's\"/TABLE=a + t"),
              "a TOTAL=YES POSITION=AFTER LABEL=\"It's\"");
    EXPECT_EQ(TranslatedCategories("TABLES /FTOTAL=t 'All'+'  men'  /TABLE=a + t"),
              "a TOTAL=YES POSITION=AFTER LABEL='All'+'  men'  "); // with the blanks behind it
}

struct ErrorRow {
    const char* table; ///< on the command's second line, behind "/TABLE="
    int column;        ///< counted from 1
    const char* message;
};

void ExpectError(const ErrorRow& row) {
    SCOPED_TRACE(row.table);
    const std::string text = ConvertTables(
        std::string("TABLES /FTOTAL=t /PTOTAL=p Ptot /OBSERVATION=x y\n/TABLE=") + row.table);
    EXPECT_EQ(text, "***** Error while parsing or translating input syntax file. Line 2, column " +
                        std::to_string(row.column) + ".\n***** " + row.message + "\n");
}

TEST(Totals, FollowingTotalMustFollowSomething) {
    const char* const message = "Following total t on a TABLE subcommand does not follow anything.";
    ExpectError({"t + a", 8, message});
    ExpectError({"a BY t + b", 13, message});
    ExpectError({"a > (t + b)", 13, message});
}

TEST(Totals, PrecedingTotalMustPrecedeSomething) {
    ExpectError(
        {"a + p", 12, "Preceding total p on a TABLE subcommand does not precede anything."});
    ExpectError(
        {"a + pTOT", 12, "Preceding total pTOT on a TABLE subcommand does not precede anything."});
}

TEST(Totals, TotalBesideAScaleVariableIsAnError) {
    ExpectError({"x + t", 12, "Total variable t stacks with a scale variable."});
    ExpectError({"p + x", 8, "Total variable p stacks with a scale variable."});
    ExpectError({"a + x + t", 16, "Total variable t stacks with a scale variable."});
    ExpectError({"a + (b + x) + t", 22, "Total variable t stacks with a scale variable."});
}

TEST(Totals, NestedTotalIsAnError) {
    const char* const message = "Total variable t does not stack with anything.";
    ExpectError({"a > t", 12, message});
    ExpectError({"t > a", 8, message});
    ExpectError({"a + b > t", 16, message});
}

TEST(Totals, ScaleOrTotalVariableThatWouldBeTotalledIsNamed) {
    ExpectError({"x > y + t", 12, "Total variable wrongly associates with y on TABLE subcommand."});
    ExpectError(
        {"x > (a + y) + t", 17, "Total variable wrongly associates with y on TABLE subcommand."});
    ExpectError(
        {"p + x > (a + t)", 21, "Total variable wrongly associates with t on TABLE subcommand."});
}

// The operations on trees.

/// The table after the totals of each dimension are associated.
std::string Associated(const std::string& expression) {
    TbTrParseNode& table = ParseTable(WithTable(expression));
    TotalsMap totals;
    for (unsigned i = 0; i < table.GetChildCount(); ++i) {
        EXPECT_TRUE(AssociateTotals(*table.GetChild(i), totals));
    }
    return DumpTree(&table);
}

TEST(AssociateTotals, MarksTheVariableAndTakesTheTotalOut) {
    const std::vector<std::pair<const char*, const char*>> rows{
        {"a", "(TABLE a)"},
        {"a + t", "(TABLE a{_ (FTOTALVAR t _ _)})"},
        {"p + a", "(TABLE a{_ (PTOTALVAR p _ _)})"},
        {"(a + t) > b", "(TABLE (> a{_ (FTOTALVAR t _ _)} b))"},
        {"x > (a + b) + t", "(TABLE (> x (+ a{_ (FTOTALVAR t _ _)} b{_ (FTOTALVAR t _ _)})))"},
        {"(STATISTICS) + a + t", "(TABLE (+ (STATISTICS) a{_ (FTOTALVAR t _ _)}))"},
        {"p + a + t", "(TABLE a{_ (FTOTALVAR t _ _)})"},
        {"a + t + u", "(TABLE a{_ (FTOTALVAR u _ _)})"},
        {"a BY t", "(TABLE a _)"},
    };
    for (const auto& [expression, expected] : rows) {
        SCOPED_TRACE(expression);
        EXPECT_EQ(Associated(expression), expected);
    }
}

TEST(AssociateTotals, IsGivenADimensionOfATable) {
    TotalsMap totals;
    const auto tree = TreeFromDump("(+ a b)");
    EXPECT_DEATH(AssociateTotals(*tree, totals), HasSubstr("table != nullptr"));
    EXPECT_DEATH(AssociateTotals(*tree->GetChild(0), totals), HasSubstr("TB_TABLE"));
}

TEST(AssociateTotals, ChecksTheOperandsBesideATotal) {
    TotalsMap totals;
    TbTrParseNode& table = ParseTable(WithTable("a"));
    table.SetChild(0, TreeFromDump("(+ (>) t)").release());
    EXPECT_DEATH(AssociateTotals(*table.GetChild(0), totals),
                 HasSubstr("pChild->GetChildCount() > 0"));
    table.SetChild(0, TreeFromDump("(+ (> x) t)").release());
    EXPECT_DEATH(AssociateTotals(*table.GetChild(0), totals), HasSubstr("second != nullptr"));
}

TEST(FindTotalNode, FindsTheFirstTotalAndItsDeclaration) {
    TbTrParseNode& table = ParseTable(WithTable("(STATISTICS) + (LABELS) > a + x + q > b + t"));
    const TbTrParseNode* declaration = nullptr;
    TbTrParseNode* const found = FindTotalNode(*table.GetChild(0), table, declaration);
    EXPECT_EQ(DumpTree(found), "q");
    ASSERT_NE(declaration, nullptr);
    EXPECT_EQ(DumpTree(declaration->GetParent()), "(PTOTAL p{'Sum' _} q)");
    EXPECT_EQ(FindTotalNode(*table.GetChild(0)->GetChild(1), table, declaration), nullptr);
}

TEST(FindTotalNode, ChecksTheExpression) {
    TbTrParseNode& table = ParseTable(WithTable("a"));
    const auto list = TreeFromDump("(LIST a)");
    const TbTrParseNode* declaration = nullptr;
    EXPECT_DEATH(FindTotalNode(*list, table, declaration),
                 HasSubstr("nodeType == SP_PLUS || nodeType == SP_GREATERTHAN"));
}

/// A parsed table with the declarations of t, u, p and q.
class AttachedTotal : public testing::Test {
protected:
    TbTrParseNode& m_table = ParseTable(WithTable("a + t BY g"));
    TbTrParseNode& m_variable = *m_table.GetChild(0)->GetChild(0);
    TotalsMap m_totals;

    const TbTrParseNode& Declaration(const std::string& name) {
        int type = 0;
        return *ParseTree::FindVariableType(m_table, name, type);
    }
    bool Attach(TbTrParseNode& variable, const std::string& total) {
        return AttachTotal(variable, m_totals, *TreeFromDump(total), Declaration(total), m_table);
    }
    std::string Entry(const std::string& key) { return DumpTree(m_totals.at(key)); }
};

TEST_F(AttachedTotal, MarkAndEntryOfAFollowingTotalAreKeptBeforeAPrecedingOne) {
    EXPECT_TRUE(Attach(m_variable, "U"));
    EXPECT_TRUE(Attach(m_variable, "Q"));
    EXPECT_EQ(DumpTree(&m_variable), "a{_ (FTOTALVAR U _ _)}");
    EXPECT_EQ(Entry("a"), "u");
}

TEST_F(AttachedTotal, AnyOtherMarkAndEntryAreReplaced) {
    EXPECT_TRUE(Attach(m_variable, "P"));
    EXPECT_TRUE(Attach(m_variable, "Q"));
    EXPECT_EQ(DumpTree(&m_variable), "a{_ (PTOTALVAR Q _ _)}");
    EXPECT_EQ(Entry("a"), "q");
    EXPECT_TRUE(Attach(m_variable, "T"));
    EXPECT_TRUE(Attach(m_variable, "U"));
    EXPECT_EQ(DumpTree(&m_variable), "a{_ (FTOTALVAR U _ _)}");
    EXPECT_EQ(Entry("a"), "u");
}

TEST_F(AttachedTotal, GroupIsNotedUnderItsWrittenName) {
    EXPECT_TRUE(Attach(*m_table.GetChild(1), "T"));
    EXPECT_EQ(Entry("$g"), "t{'All' _}");
    EXPECT_EQ(m_totals.size(), 1U);
}

TEST_F(AttachedTotal, OnlyAVariableCanHaveOne) {
    EXPECT_DEATH(Attach(*m_table.GetChild(0), "T"), HasSubstr("GetNodeType() == SP_VARNAME"));
}

TEST_F(AttachedTotal, DistributeTotalReachesEveryOperandOfAStacking) {
    const auto expression = TreeFromDump("(+ a (> b c) (+ d e))");
    EXPECT_TRUE(
        DistributeTotal(*expression, m_totals, *TreeFromDump("t"), Declaration("T"), m_table));
    EXPECT_EQ(DumpTree(expression.get()), "(+ a{_ (FTOTALVAR t _ _)} (> b{_ (FTOTALVAR t _ _)} c) "
                                          "(+ d{_ (FTOTALVAR t _ _)} e{_ (FTOTALVAR t _ _)}))");
    EXPECT_EQ(m_totals.size(), 4U);
}

TEST_F(AttachedTotal, DistributeTotalStopsAtTheFirstError) {
    const auto expression = TreeFromDump("(+ a x b)");
    EXPECT_FALSE(
        DistributeTotal(*expression, m_totals, *TreeFromDump("t"), Declaration("T"), m_table));
    EXPECT_EQ(DumpTree(expression.get()), "(+ a{_ (FTOTALVAR t _ _)} x b)");
    EXPECT_EQ(RecordedError(), "error 7 302@1:1 \"x\"");
}

TEST_F(AttachedTotal, DistributeTotalChecksTheExpression) {
    const auto list = TreeFromDump("(LIST a)");
    EXPECT_DEATH(DistributeTotal(*list, m_totals, *TreeFromDump("t"), Declaration("T"), m_table),
                 HasSubstr("SP_PLUS"));
}

TEST_F(AttachedTotal, TypeFollowsTheDeclaringSubcommand) {
    EXPECT_EQ(TotalVarTypeFromDecl(Declaration("T")), TBI_FTOTALVAR);
    EXPECT_EQ(TotalVarTypeFromDecl(Declaration("P")), TBI_PTOTALVAR);
    EXPECT_DEATH(TotalVarTypeFromDecl(Declaration("G")), HasSubstr("TB_PTOTAL"));
    EXPECT_DEATH(TotalVarTypeFromDecl(*TreeFromDump("t")), HasSubstr("subcommand != nullptr"));
}

TEST_F(AttachedTotal, ExpressingUsesTheEntriesUp) {
    Attach(m_variable, "T");
    Attach(*m_table.GetChild(1), "P");
    m_totals["z"] = &Declaration("T");
    OutputSequence output;
    output.PushBack("old", false);
    EXPECT_TRUE(ExpressCatsForTotals(m_totals, output));
    EXPECT_EQ(Pieces(output), "/CATEGORIES VAR=\n$g\nTOTAL=YES\nPOSITION=BEFORE\nLABEL=\n'Sum'\n"
                              "/CATEGORIES VAR=\na\nz\nTOTAL=YES\nPOSITION=AFTER\nLABEL=\n'All'");
    EXPECT_EQ(m_totals, (TotalsMap{{"$g", nullptr}, {"a", nullptr}, {"z", nullptr}}));
    EXPECT_TRUE(ExpressCatsForTotals(m_totals, output));
    EXPECT_TRUE(output.IsEmpty());
}

TEST(ExpressCatsForTotals, ChecksTheLabel) {
    TbTrParseNode& declaration =
        *ParseCommand("TABLES /FTOTAL=t /TABLE=a").GetChild(0)->GetChild(0)->GetChild(0);
    TotalsMap totals{{"a", &declaration}};
    OutputSequence output;
    declaration.SetChild(0, TreeFromDump("a").release());
    EXPECT_DEATH(ExpressCatsForTotals(totals, output), HasSubstr("SP_SLITERAL"));
    declaration.RemoveChild(1);
    declaration.RemoveChild(0);
    EXPECT_DEATH(ExpressCatsForTotals(totals, output),
                 HasSubstr("declaration->GetChildCount() > 0"));
}

} // namespace

} // namespace recastor
