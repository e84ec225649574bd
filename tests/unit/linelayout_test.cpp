#include "ctables/recastor/linelayout.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The pieces laid out in lines of 8 bytes, indented by 2; "\n" breaks the line.
std::string LaidOut(const std::vector<std::string>& pieces) {
    std::size_t size = 0;
    for (const std::string& piece : pieces) {
        size += piece.size();
    }
    LineLayout layout(8, 2, size, pieces.size());
    for (const std::string& piece : pieces) {
        if (piece == "\n") {
            layout.BreakLine();
        } else {
            layout.Place(piece);
        }
    }
    return layout.TakeText();
}

TEST(LineLayout, FirstLineIsNotIndented) {
    EXPECT_EQ(LaidOut({" ab", "\n", " cd"}), "ab\n  cd");
}

TEST(LineLayout, OnlyTheFirstPieceOfAllBeginsTheFirstLine) {
    EXPECT_EQ(LaidOut({"", "ab"}), "  ab");
    EXPECT_EQ(LaidOut({"\n", "ab"}), "\n  ab");
}

TEST(LineLayout, LineMayBeFull) {
    EXPECT_EQ(LaidOut({"abcd", "efgh"}), "abcdefgh");
    EXPECT_EQ(LaidOut({"abcd", "efghi"}), "abcd\n  efghi");
}

TEST(LineLayout, PieceLongerThanALineStandsAlone) {
    EXPECT_EQ(LaidOut({"ab", "0123456789", "cd"}), "ab\n  0123456789\n  cd");
}

TEST(LineLayout, CommaTakesThePieceBeforeIt) {
    EXPECT_EQ(LaidOut({"abcd", " efg", ","}), "abcd\n  efg,");
}

TEST(LineLayout, CommaStaysBehindAPieceThatEndsLikeOne) {
    // ",x" is read without its last character as a lone comma.
    EXPECT_EQ(LaidOut({"abcdef", ",x", ","}), "abcdef,x,");
}

TEST(LineLayout, LeadingBlanksGoAtTheStartOfALineOnly) {
    EXPECT_EQ(LaidOut({"ab", "  c", "     d"}), "ab  c\n  d");
}

TEST(LineLayout, TakesMoreOnceItIsBegunUntilItIsTooLong) {
    LineLayout layout(8, 2, 40, 10);
    EXPECT_FALSE(layout.TakesMore());
    layout.Place("");
    EXPECT_FALSE(layout.TakesMore());
    layout.Place("abcd");
    ASSERT_TRUE(layout.TakesMore()); // behind two blanks
    EXPECT_EQ(layout.Room(), 2U);
    layout.Place("ef");
    ASSERT_TRUE(layout.TakesMore());
    EXPECT_EQ(layout.Room(), 0U);
    layout.Place("0123456789");
    EXPECT_FALSE(layout.TakesMore());
}

TEST(LineLayout, PiecesThatFitArePlacedAtOnce) {
    LineLayout layout(8, 2, 40, 10);
    const std::string text = "ab cd ef,";
    layout.Place(std::string_view(text).substr(0, 2));
    layout.PlaceWhereTheyFit(std::string_view(text).substr(2, 6), 3);
    EXPECT_EQ(layout.Room(), 0U);
    layout.Place(std::string_view(text).substr(8)); // takes " ef" along
    EXPECT_EQ(layout.TakeText(), "ab cd\n  ef,");
}

} // namespace

} // namespace recastor
