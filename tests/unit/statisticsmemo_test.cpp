#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/statisticsmemo.h"
#include "tests/support/commandtree.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using Traits = StatisticsMemo::Traits;

OutputSequence ListOf(const char* text) {
    OutputSequence list;
    list.PushBack(text, false);
    return list;
}

/// The traits of each term of the rows. Scale variables x and y, groups g and h.
std::vector<Traits> TraitsOfTerms(const std::string& rows, const std::string& statistics) {
    const TbTrParseNode& table =
        ParseTable("TABLES /OBSERVATION=x y /MRGROUP=g m1 /MDGROUP=h m2 (1) /TABLE=" + rows +
                   " /STATISTICS=" + statistics);
    const StatisticsMemo memo(ParseTree::FindSubcommand(table, TB_STATISTICS, false));
    const TbTrParseNode& stacking = *table.GetChild(0);
    std::vector<Traits> traits;
    for (unsigned i = 0; i < stacking.GetChildCount(); ++i) {
        const TbTrParseNode& magnet =
            *ParseTree::DetermineMagnetVariable(*stacking.GetChild(i), table);
        traits.push_back(memo.TraitsOf(magnet, table));
    }
    return traits;
}

/// Which of the rows' two terms have the same list as far as the traits tell.
bool AreAlike(const std::string& rows, const std::string& statistics) {
    const auto traits = TraitsOfTerms(rows, statistics);
    EXPECT_EQ(traits.size(), 2U);
    return traits.at(0) == traits.at(1) && traits.at(0) != StatisticsMemo::kUntold;
}

TEST(StatisticsMemo, TermsOfVariablesOfTheSameKindAreAlike) {
    EXPECT_TRUE(AreAlike("a + b", "count"));
    EXPECT_TRUE(AreAlike("a + b > c", "count"));
    EXPECT_TRUE(AreAlike("x > a + b > y", "mean"));
    EXPECT_TRUE(AreAlike("g > a + h > b", "cases"));
}

TEST(StatisticsMemo, TermsOfVariablesOfOtherKindsAreNot) {
    EXPECT_FALSE(AreAlike("a + x", "count"));
    EXPECT_FALSE(AreAlike("a + g", "count"));
    EXPECT_FALSE(AreAlike("x + x > a", "mean"));
    EXPECT_FALSE(AreAlike("g + g > a", "cases"));
    EXPECT_FALSE(AreAlike("x > g + g > a", "cases"));
}

TEST(StatisticsMemo, TermsWithAndWithoutTotalsAreNotAlike) {
    TbTrParseNode& table = ParseTable("TABLES /TABLE=a + b > c + e");
    const StatisticsMemo memo(nullptr);
    TbTrParseNode& a = *table.GetChild(0)->GetChild(0);
    TbTrParseNode& b = *table.GetChild(0)->GetChild(1)->GetChild(0);
    const TbTrParseNode& c = *table.GetChild(0)->GetChild(1)->GetChild(1);
    const Traits before = memo.TraitsOf(a, table);
    EXPECT_EQ(memo.TraitsOf(c, table), before);
    b.SetChild(1, new TbTrParseNode(TBI_FTOTALVAR, nullptr)); // of the term, not of its magnet
    EXPECT_NE(memo.TraitsOf(c, table), before);
    a.SetChild(1, new TbTrParseNode(TBI_PTOTALVAR, nullptr));
    EXPECT_EQ(memo.TraitsOf(a, table), memo.TraitsOf(c, table));
}

TEST(StatisticsMemo, TermsAreToldApartByTheBaseVariablesThatTheyHold) {
    EXPECT_FALSE(AreAlike("a + b", "cpct('%':a)"));
    EXPECT_TRUE(AreAlike("a + b", "cpct('%':c)"));
    EXPECT_TRUE(AreAlike("a + b > a", "cpct('%':a)"));
    EXPECT_FALSE(AreAlike("a + b", "cpct('%':a) cpct('%':b)"));
    EXPECT_TRUE(AreAlike("a + b", "cpct('%':a b) cpct('%':b a)"));
}

TEST(StatisticsMemo, NothingIsToldWhereFunctionsNameVariables) {
    const std::vector<Traits> untold(2, StatisticsMemo::kUntold);
    EXPECT_EQ(TraitsOfTerms("x + y", "count mean(x)"), untold);
    EXPECT_NE(TraitsOfTerms("x + y", "count mean((f5) 'Mean')"), untold);
}

TEST(StatisticsMemo, NothingIsToldOfMoreBaseListsThanBits) {
    std::string functions;
    for (int i = 0; i < 24; ++i) {
        functions += " cpct('%':b)";
    }
    EXPECT_FALSE(AreAlike("a + b", functions));
    EXPECT_TRUE(AreAlike("a + c", functions));
    EXPECT_FALSE(AreAlike("a + c", functions + " cpct('%':b)"));
}

TEST(StatisticsMemo, FindsWhatWasKept) {
    StatisticsMemo memo(nullptr);
    EXPECT_EQ(memo.Find(4), nullptr);
    EXPECT_EQ(Pieces(memo.Keep(4, ListOf("[COUNT]"))), "[COUNT]");
    memo.Keep(1, ListOf("[MEAN]"));
    EXPECT_EQ(Pieces(*memo.Find(4)), "[COUNT]");
    EXPECT_EQ(Pieces(*memo.Find(1)), "[MEAN]");
    EXPECT_EQ(memo.Find(2), nullptr);
}

TEST(StatisticsMemo, ForgetsTheOldestOfMany) {
    StatisticsMemo memo(nullptr);
    constexpr Traits kMany = 100;
    for (Traits traits = 1; traits <= kMany; ++traits) {
        memo.Keep(traits, ListOf(std::to_string(traits).c_str()));
    }
    EXPECT_EQ(Pieces(*memo.Find(kMany)), "100");
    EXPECT_EQ(Pieces(*memo.Find(kMany - 1)), "99");
    EXPECT_EQ(memo.Find(1), nullptr);
}

} // namespace

} // namespace recastor
