// Deep and long commands: the parser's stack has an end.

#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/dump.h"
#include "tests/support/run.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string Repeated(const std::string& text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

/// A table expression with its parentheses closed again.
std::string Nested(const std::string& opening, int depth) {
    const auto parentheses = std::count(opening.begin(), opening.end(), '(');
    return "TABLES /TABLE " + Repeated(opening, depth) + "x" +
           std::string(static_cast<std::size_t>(parentheses * depth), ')');
}

const TbTrParseNode& Rows() {
    return *TbTrTablesCommand::g_tablesCommand.GetParseTree()->GetChild(1)->GetChild(0)->GetChild(
        0);
}

bool Parses(const std::string& command) {
    TbTrTablesCommand::g_tablesCommand.Reset(TokensOf(command));
    return yyparse() == 0;
}

TEST(GrammarDepth, ThreeThousandParenthesesAreAVariable) {
    EXPECT_EQ(DumpParse(Nested("(", 3000)), "(LIST (LIST) (LIST (TABLE x)))");
    EXPECT_EQ(ConvertTables(Nested("(", 3000)), ConvertTables("TABLES /TABLE x"));
}

TEST(GrammarDepth, NestedOperationsOfOneOperatorAreFlat) {
    ASSERT_TRUE(Parses(Nested("(a + ", 3000)));
    EXPECT_EQ(Rows().GetNodeType(), SP_PLUS);
    EXPECT_EQ(Rows().GetChildCount(), 3001U);
    ASSERT_TRUE(Parses(Nested("a > (", 3000)));
    EXPECT_EQ(Rows().GetNodeType(), SP_GREATERTHAN);
    EXPECT_EQ(Rows().GetChildCount(), 3001U);
    ASSERT_TRUE(Parses("TABLES /TABLE " + std::string(3000, '(') + "x" + Repeated(" + a)", 3000)));
    EXPECT_EQ(Rows().GetChildCount(), 3001U);
}

TEST(GrammarDepth, NestedOperationsOfBothOperatorsAreDeep) {
    constexpr int kPairs = 1500;
    const std::string tree =
        Repeated("(+ a (> b ", kPairs) + "x" + std::string(std::size_t{2} * kPairs, ')');
    EXPECT_EQ(DumpParse(Nested("(a + (b > ", kPairs)), "(LIST (LIST) (LIST (TABLE " + tree + ")))");
}

TEST(GrammarDepth, NearlyTenThousandSymbolsWaitOnTheStack) {
    EXPECT_TRUE(Parses(Nested("(", 9990)));
    EXPECT_FALSE(Parses(Nested("(", 10000)));
}

TEST(GrammarDepth, FullStackRecordsNothingByItself) {
    EXPECT_EQ(DumpParse(Nested("(", 20000)), "error 0 0@0:0 \"\"");
    EXPECT_EQ(DumpParse("TABLES /TABLE a"), "(LIST (LIST) (LIST (TABLE a)))");
}

TEST(GrammarDepth, FullStackIsBadSyntaxAtTheLastTokenRead) {
    // Behind the start, the global subcommands and TABLE, parenthesis 9997 is the ten thousandth
    // entry and asks for more room. It is character 14 + 9997 of the line.
    EXPECT_EQ(ConvertTables(Nested("(", 20000)),
              "***** Error while parsing or translating input syntax file. Line 1, column 10012.\n"
              "***** Invalid TABLES command syntax.\n");
    EXPECT_EQ(ConvertTables("TABLES\n/TABLE\n" + std::string(10000, '(')),
              "***** Error while parsing or translating input syntax file. Line 3, column 9997.\n"
              "***** Invalid TABLES command syntax.\n");
}

TEST(GrammarDepth, HundredThousandVariablesAreStacked) {
    constexpr int kVariables = 100'000;
    ASSERT_TRUE(Parses("TABLES /TABLE x" + Repeated(" + y", kVariables - 1)));
    EXPECT_EQ(Rows().GetNodeType(), SP_PLUS);
    ASSERT_EQ(Rows().GetChildCount(), static_cast<unsigned>(kVariables));
    EXPECT_EQ(Rows().GetChild(0)->GetToken()->AsString(true), "x");
    EXPECT_EQ(Rows().GetChild(kVariables - 1)->GetToken()->AsString(true), "y");
}

} // namespace

} // namespace recastor
