#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/dump.h"
#include "tests/unit/tbtrgrammar_rows.h"

#include <cstdlib>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

class Grammar : public testing::TestWithParam<RowGroup> {};

TEST_P(Grammar, ParsesAsListed) {
    for (const auto& [command, dump] : GetParam().rows) {
        SCOPED_TRACE(command);
        EXPECT_EQ(DumpParse(command), dump);
    }
}

const auto kGroupName = [](const auto& group) { return group.param.name; };

INSTANTIATE_TEST_SUITE_P(Trees, Grammar, testing::ValuesIn(TreeRows()), kGroupName);
INSTANTIATE_TEST_SUITE_P(Errors, Grammar, testing::ValuesIn(ErrorRows()), kGroupName);

/// The numbers of the grammar's rules that the parser's trace of the rows tells of.
std::set<int> ReducedRules(const std::vector<RowGroup>& groups) {
    testing::internal::CaptureStderr();
    yydebug = 1;
    for (const RowGroup& group : groups) {
        for (const ParseRow& row : group.rows) {
            DumpParse(row.command);
        }
    }
    yydebug = 0;
    const std::string trace = testing::internal::GetCapturedStderr();
    const std::string mark = "Reducing stack by rule ";
    std::set<int> rules;
    for (auto at = trace.find(mark); at != std::string::npos; at = trace.find(mark, at + 1)) {
        rules.insert(std::atoi(trace.c_str() + at + mark.size()));
    }
    return rules;
}

TEST(GrammarRows, ReduceEveryRule) {
    // Behind the rules of the language stand those that only tell where to report an error.
    constexpr int kLastRule = 152;
    std::set<int> rules = ReducedRules(TreeRows());
    rules.merge(ReducedRules(ErrorRows()));
    for (int rule = 1; rule <= kLastRule; ++rule) {
        EXPECT_TRUE(rules.contains(rule)) << "no row reduces rule " << rule;
    }
}

TEST(Grammar, LeavesNoTreeOfACommandThatDoesNotParse) {
    DumpParse("TABLES /TABLE a");
    EXPECT_NE(TbTrTablesCommand::g_tablesCommand.GetParseTree(), nullptr);
    DumpParse("TABLES /TABLE a /TABLE");
    EXPECT_EQ(TbTrTablesCommand::g_tablesCommand.GetParseTree(), nullptr);
}

TEST(Grammar, IsNotTracedByDefault) {
    testing::internal::CaptureStderr();
    DumpParse("TABLES /TABLE a");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Grammar, CountsLinesOnlyOutsideLiterals) {
    // A literal takes the line break behind it along: the count of characters just goes on.
    EXPECT_EQ(DumpParse("TABLES /TABLE a /TITLE 'x'\n /BASE ALL"), "error 4 0@1:30 \"\"");
}

} // namespace

} // namespace recastor
