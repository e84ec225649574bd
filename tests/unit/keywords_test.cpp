#include "platform/zelkwigr/keywords.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

constexpr Keyword<int> kTable[] = {
    {"BOX", 1}, {"BOXPLOT", 1}, {"BAR", 2}, {"BARBASE", 3}, {"BASELINE", 4}, {"N", 5},
};

/// The meaning of a word in the table, 0 for none.
int Meaning(std::string_view word, const std::vector<std::string_view>& rivals = {}) {
    const int* found = FindKeyword<int>(word, kTable, rivals);
    return found == nullptr ? 0 : *found;
}

TEST(Keywords, AreSpelledOut) {
    EXPECT_EQ(Meaning("BOX"), 1);
    EXPECT_EQ(Meaning("BASELINE"), 4);
    EXPECT_EQ(Meaning("N"), 5);
    EXPECT_EQ(Meaning("BASELINES"), 0);
    EXPECT_EQ(Meaning("X"), 0);
    EXPECT_EQ(Meaning(""), 0);
}

TEST(Keywords, AreAbbreviatedToThreeCharacters) {
    EXPECT_EQ(Meaning("BAS"), 4);
    EXPECT_EQ(Meaning("BASELIN"), 4);
    EXPECT_EQ(Meaning("BARB"), 3);
    EXPECT_EQ(Meaning("BA"), 0);
    EXPECT_EQ(Meaning("BASIC"), 0);
}

TEST(Keywords, AreThemselvesEvenWhenTheyBeginAnother) {
    EXPECT_EQ(Meaning("BAR"), 2);
}

TEST(Keywords, AreOneThingInTwoSpellings) {
    EXPECT_EQ(Meaning("BOXP"), 1);
    constexpr Keyword<int> kValues[] = {{"VALUE", 7}, {"VALUES", 7}};
    EXPECT_NE(FindKeyword<int>("VAL", kValues, {}), nullptr);
}

TEST(Keywords, AreNoneWhenTheyMayBeTwo) {
    constexpr Keyword<int> kStarts[] = {{"START", 1}, {"STACK", 2}};
    EXPECT_EQ(FindKeyword<int>("STA", kStarts, {}), nullptr);
    EXPECT_NE(FindKeyword<int>("STAR", kStarts, {}), nullptr);
}

TEST(Keywords, AreNoneWhenTheyMayBeARival) {
    EXPECT_EQ(Meaning("BAS", {"BASIS"}), 0);
    EXPECT_EQ(Meaning("BAS", {"BAS"}), 0);
    EXPECT_EQ(Meaning("BASE", {"BASIS"}), 4);
    EXPECT_EQ(Meaning("BASELINE", {"BASELINES"}), 4);
}

} // namespace

} // namespace recastor
