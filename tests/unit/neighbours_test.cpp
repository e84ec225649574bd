#include "platform/zelkbase/neighbours.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

bool HasPair(const std::string& text, char first, char second) {
    return IsAnywhere(
        text, [=](Neighbours c, Neighbours next) { return (c == first) & (next == second); });
}

TEST(NeighboursOfAText, ArePairedWhereverTheyStand) {
    for (std::size_t size = 2; size <= 50; ++size) {
        for (std::size_t place = 0; place + 1 < size; ++place) {
            SCOPED_TRACE(std::to_string(size) + '@' + std::to_string(place));
            std::string text(size, '.');
            EXPECT_FALSE(HasPair(text, 'a', 'b'));
            text.replace(place, 2, "ab");
            EXPECT_TRUE(HasPair(text, 'a', 'b'));
            EXPECT_FALSE(HasPair(text, 'b', 'a'));
        }
    }
}

TEST(NeighboursOfAText, LastOneOnlyStandsBehind) {
    const auto isA = [](Neighbours c, Neighbours /*next*/) { return c == 'a'; };
    for (std::size_t size = 1; size <= 50; ++size) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(IsAnywhere(std::string(size - 1, '.') + 'a', isA));
        EXPECT_TRUE(IsAnywhere(std::string(size, 'a') + '.', isA));
    }
}

TEST(NeighboursOfAText, BytesBeyondAsciiAreNegative) {
    const auto isNegative = [](Neighbours c, Neighbours /*next*/) { return c < 0; };
    EXPECT_TRUE(IsAnywhere("\x80.", isNegative));
    EXPECT_TRUE(IsAnywhere("\xFF.", isNegative));
    EXPECT_FALSE(IsAnywhere("\x7F.", isNegative));
}

TEST(NeighboursOfAText, FirstOneIsFoundWhereverItStands) {
    const auto isA = [](Neighbours c, Neighbours /*next*/) { return c == 'a'; };
    for (const std::size_t size : {2U, 16U, 17U, 18U, 40U, 256U, 257U, 258U, 300U, 700U}) {
        EXPECT_EQ(FindFirst(std::string(size - 1, '.') + 'a', isA), std::string::npos) << size;
        for (std::size_t place = 0; place + 1 < size; ++place) {
            std::string text(size, '.');
            text.replace(place, 1, "a");
            EXPECT_EQ(FindFirst(text, isA), place) << size;
            text[size - 2] = 'a';
            EXPECT_EQ(FindFirst(text, isA), place) << size;
        }
    }
}

TEST(NeighboursOfAText, BlankInFrontOfAShortTextIsToldAsItsFirstByte) {
    const auto isBlank = [](Neighbours c, Neighbours /*next*/) { return c == ' '; };
    EXPECT_EQ(FindFirst("abcd", isBlank), 0U);
    for (std::size_t size = 17; size <= 600; ++size) {
        EXPECT_EQ(FindFirst(std::string(size, 'a'), isBlank), std::string::npos) << size;
    }
}

} // namespace

} // namespace recastor
