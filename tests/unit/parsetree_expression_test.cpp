#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/dump.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// Scale variables x and y, groups g (of categories) and d (of dichotomies), the total t.
const std::string kDeclarations =
    "TABLES /OBSERVATION=x y /MRGROUP=g m1 /MDGROUP=d m2 (1) /FTOTAL=t /TABLE=";

struct ExpressionRow {
    const char* table;
    const char* written; ///< behind "/TABLE "
};

void ExpectExpressions(const std::vector<ExpressionRow>& rows) {
    for (const ExpressionRow& row : rows) {
        SCOPED_TRACE(row.table);
        EXPECT_EQ(TranslatedTable(kDeclarations + row.table), row.written);
    }
}

TEST(Expression, ScaleVariableOfANestingHasTheStatistics) {
    ExpectExpressions({{"a > x > c /STATISTICS=mean", "a[C]>x[S][MEAN]>c[C]"}});
}

TEST(Expression, InnermostCategoricalVariableHasTheStatisticsElse) {
    ExpectExpressions({{"a > b > c /STATISTICS=count", "a[C]>b[C]>c[C][COUNT]"}});
}

TEST(Expression, OtherDimensionIsWrittenWithParenthesesAndNoStatistics) {
    ExpectExpressions(
        {{"(a + b) > c BY x /STATISTICS=mean count", "(a[C]+b[C])>c[C] BY x[S][MEAN,COUNT]"}});
}

TEST(Expression, VariablesAreMarkedByTheirType) {
    ExpectExpressions({
        {"a BY b", "a[C] BY b[C]"},
        {"x", "x[S]"},
        {"g BY a", "$g BY a[C]"},
        {"d BY x", "$d BY x[S]"},
        {"a > x > g > d BY y", "a[C]>x[S]>$g>$d BY y[S]"},
    });
}

TEST(Expression, NamesKeepTheirSpelling) {
    ExpectExpressions({{"Age BY X", "Age[C] BY X[S]"}, {"G BY b", "$G BY b[C]"}});
}

TEST(Expression, OperationsInsideOthersAreParenthesised) {
    ExpectExpressions({
        {"a + b BY c", "a[C]+b[C] BY c[C]"},
        {"a > b BY c", "a[C]>b[C] BY c[C]"},
        {"a + b > c BY e", "a[C]+(b[C]>c[C]) BY e[C]"},
        {"(a > b + c) > f BY e", "((a[C]>b[C])+c[C])>f[C] BY e[C]"},
        {"a > (b + c) + f BY e", "(a[C]>(b[C]+c[C]))+f[C] BY e[C]"},
    });
}

TEST(Expression, TermsOfTheStatisticsDimensionAreNotParenthesised) {
    ExpectExpressions({
        {"a + b > c", "a[C]+b[C]>c[C]"},
        {"a > (b + c)", "a[C]>b[C]+a[C]>c[C]"},
        {"a BY (b + c) > (e + f)", "a[C] BY b[C]>e[C]+b[C]>f[C]+c[C]>e[C]+c[C]>f[C]"},
    });
}

TEST(Expression, EveryTermHasItsMagnet) {
    ExpectExpressions({
        {"a + b > c + x > e + f /STATISTICS=count",
         "a[C][COUNT]+b[C]>c[C][COUNT]+x[S][COUNT]>e[C]+f[C][COUNT]"},
    });
}

struct MagnetRow {
    const char* term;
    const char* magnet;
};

TEST(Magnet, IsTheInnermostOfTheMostPreferredKind) {
    const std::vector<MagnetRow> rows{
        {"a", "a"},         {"x", "x"},         {"g", "g"},         {"a > b > c", "c"},
        {"x > a > b", "x"}, {"x > a > y", "y"}, {"a > y > b", "y"}, {"g > a > b", "g"},
        {"g > a > d", "d"}, {"a > d > b", "d"}, {"x > g > a", "x"}, {"g > a > x > d > b", "x"},
    };
    for (const MagnetRow& row : rows) {
        SCOPED_TRACE(row.term);
        const TbTrParseNode& table = ParseTable(kDeclarations + row.term);
        const TbTrParseNode* const magnet =
            ParseTree::DetermineMagnetVariable(*table.GetChild(0), table);
        EXPECT_EQ(DumpTree(magnet), row.magnet);
    }
}

TEST(Magnet, TermIsChecked) {
    const TbTrParseNode& table = ParseTable(kDeclarations + "a");
    EXPECT_DEATH(ParseTree::DetermineMagnetVariable(*TreeFromDump("(+ a b)"), table),
                 HasSubstr("SP_GREATERTHAN"));
    EXPECT_DEATH(ParseTree::DetermineMagnetVariable(*TreeFromDump("(> a (+ b c))"), table),
                 HasSubstr("SP_VARNAME"));
    EXPECT_DEATH(ParseTree::DetermineMagnetVariable(*TreeFromDump("(> a _)"), table),
                 HasSubstr("variable != nullptr"));
    EXPECT_DEATH(ParseTree::DetermineMagnetVariable(*TreeFromDump("(> a t)"), table),
                 HasSubstr("type == 0 || IsGroupType(type)"));
}

/// Parsed tables with nothing expanded beside them.
class ExpressedTree : public testing::Test {
protected:
    TbTrParseNode::NodePtr m_expanded = TreeFromDump("(LIST _ _ _)");
    OutputSequence m_output;
    const TbTrParseNode* m_firstMagnet = nullptr;

    bool ExpressRows(const TbTrParseNode& rows, int statsDimension) {
        return ParseTree::ExpressDimension(rows, 1, statsDimension, *m_expanded, m_firstMagnet,
                                           m_output);
    }
    std::string SubExpression(const std::string& expression, int depth) {
        const TbTrParseNode& table = ParseTable(kDeclarations + "a");
        m_output.Clear();
        EXPECT_TRUE(ParseTree::ExpressSubExpression(*TreeFromDump(expression), table, nullptr,
                                                    depth, 1, *m_expanded, m_output));
        return m_output.Print(80, 2);
    }
};

TEST_F(ExpressedTree, DepthAboveNoughtParenthesisesAnOperation) {
    EXPECT_EQ(SubExpression("(> a b)", 0), "a[C]>b[C]");
    EXPECT_EQ(SubExpression("(> a b)", 1), "(a[C]>b[C])");
    EXPECT_EQ(SubExpression("(+ a (> b c))", 2), "(a[C]+(b[C]>c[C]))");
    EXPECT_EQ(SubExpression("a", 3), "a[C]");
}

TEST_F(ExpressedTree, ClosingParenthesisStaysWithTheLastOperand) {
    SubExpression("(+ a b)", 1);
    EXPECT_EQ(Pieces(m_output), "(\na[C]\n+\nb[C])");
    SubExpression("(> a (+ b c) e)", 0);
    EXPECT_EQ(Pieces(m_output), "a[C]\n>\n(\nb[C]\n+\nc[C])\n>\ne[C]");
}

TEST_F(ExpressedTree, OperandsAreChecked) {
    const TbTrParseNode& table = ParseTable(kDeclarations + "a");
    EXPECT_DEATH(ParseTree::ExpressSubExpression(*TreeFromDump("(+ a _)"), table, nullptr, 0, 1,
                                                 *m_expanded, m_output),
                 HasSubstr("operation.GetChild(i) != nullptr"));
    EXPECT_DEATH(ParseTree::ExpressSubExpression(*TreeFromDump("(LIST a)"), table, nullptr, 0, 1,
                                                 *m_expanded, m_output),
                 HasSubstr("type == SP_PLUS || type == SP_GREATERTHAN"));
    EXPECT_DEATH(ParseTree::ExpressVariableInTable(*TreeFromDump("(LIST a)"), table, false, 1,
                                                   *m_expanded, m_output),
                 HasSubstr("SP_VARNAME"));
}

TEST_F(ExpressedTree, VariableHasStatisticsOnlyWhenAskedFor) {
    const TbTrParseNode& table = ParseTable(kDeclarations + "a /STATISTICS=count cpct");
    for (const bool withStatistics : {false, true}) {
        m_output.Clear();
        EXPECT_TRUE(ParseTree::ExpressVariableInTable(*table.GetChild(0), table, withStatistics, 1,
                                                      *m_expanded, m_output));
        EXPECT_EQ(Pieces(m_output), withStatistics ? "a[C]\n[\nCOUNT,\nTABLEPCT.VALIDN]" : "a[C]");
    }
}

TEST_F(ExpressedTree, EmptyStatisticsHaveNoBrackets) {
    const TbTrParseNode& table = ParseTable(kDeclarations + "a /STATISTICS=mean");
    EXPECT_TRUE(ParseTree::ExpressVariableInTable(*table.GetChild(0), table, true, 1, *m_expanded,
                                                  m_output));
    EXPECT_EQ(Pieces(m_output), "a[C]");
}

TEST_F(ExpressedTree, FirstMagnetOfTheTableIsNoted) {
    const TbTrParseNode& rows = *ParseTable(kDeclarations + "a > b + x > c + e").GetChild(0);
    EXPECT_TRUE(ExpressRows(rows, 1));
    EXPECT_EQ(m_firstMagnet, rows.GetChild(0)->GetChild(1)); // b
    EXPECT_EQ(m_output.Print(80, 2), "a[C]>b[C]+x[S]>c[C]+e[C]");
    EXPECT_TRUE(ExpressRows(*rows.GetChild(2), 1));
    EXPECT_EQ(DumpTree(m_firstMagnet), "b"); // still
}

TEST_F(ExpressedTree, OtherDimensionHasNoMagnet) {
    const TbTrParseNode& table = ParseTable(kDeclarations + "g BY b /STATISTICS=count");
    EXPECT_TRUE(ExpressRows(*table.GetChild(0), 2));
    EXPECT_EQ(m_firstMagnet, nullptr);
    EXPECT_EQ(m_output.Print(80, 2), "$g");
}

TEST_F(ExpressedTree, DimensionIsChecked) {
    EXPECT_DEATH(ExpressRows(*TreeFromDump("a"), 1), HasSubstr("table != nullptr"));
    const auto table = TreeFromDump("(TABLE (+ _ a))");
    EXPECT_DEATH(ExpressRows(*table->GetChild(0), 1),
                 HasSubstr("expression.GetChild(i) != nullptr"));
}

TEST_F(ExpressedTree, FailureOfTheStatisticsIsPassedOn) {
    for (const char* expression : {"a", "a > b", "a + b"}) {
        SCOPED_TRACE(expression);
        const TbTrParseNode& table = ParseTable(kDeclarations + expression + " /STATISTICS=foo");
        EXPECT_FALSE(ExpressRows(*table.GetChild(0), 1));
    }
}

} // namespace

} // namespace recastor
