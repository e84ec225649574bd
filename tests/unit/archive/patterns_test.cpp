// Which files patterns mean, and which names differ in case only.

#include "archive/tree/patterns.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(MatchesAny, PatternWithoutASlashIsForTheLastName) {
    EXPECT_TRUE(MatchesAny({"*.syn"}, "a/b.syn"));
    EXPECT_FALSE(MatchesAny({"*.syn"}, "a.syn/b"));
    EXPECT_TRUE(MatchesAny({"?.syn", "x*"}, "b.syn"));
    EXPECT_FALSE(MatchesAny({"b.SYN"}, "b.syn"));
    EXPECT_FALSE(MatchesAny({}, "b.syn"));
}

TEST(MatchesAny, PatternWithASlashIsForThePath) {
    EXPECT_TRUE(MatchesAny({"old/*"}, "old/a/b.syn"));
    EXPECT_FALSE(MatchesAny({"old/*"}, "x/old/b.syn"));
    EXPECT_TRUE(MatchesAny({"*/old/*"}, "x/old/b.syn"));
}

TEST(MatchesAny, AnyBytesAreMatched) {
    EXPECT_TRUE(MatchesAny({"*.syn"}, "\xFF\n.syn"));
    EXPECT_TRUE(MatchesAny({"*.syn"}, ".syn"));
}

TEST(FoldedCase, IsTheSameForNamesThatDifferInCaseOnly) {
    EXPECT_EQ(FoldedCase("ReporT.SYN"), "report.syn");
    EXPECT_EQ(FoldedCase("\xC3\x84"), FoldedCase("\xC3\xA4"));
    EXPECT_EQ(FoldedCase("\xD0\x96"), FoldedCase("\xD0\xB6"));
    EXPECT_NE(FoldedCase("a"), FoldedCase("b"));
    EXPECT_EQ(FoldedCase("\xFF"
                         "A"),
              "\xFF"
              "a");
}

} // namespace

} // namespace recastor
