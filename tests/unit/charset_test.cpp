#include "ctables/recastor/charset.h"
#include "ctables/recastor/mbcharpointer.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The ASCII characters of the set.
std::string AsciiOf(const CharSet& set) {
    std::string characters;
    for (int code = 0; code < 128; ++code) {
        EXPECT_EQ(set.Has(code), set.HasAscii(static_cast<char>(code))) << code;
        if (set.Has(code)) {
            characters += static_cast<char>(code);
        }
    }
    return characters;
}

/// Whether the set holds the characters beyond ASCII, all of which it must treat alike.
bool HasBeyondAscii(const CharSet& set) {
    const bool has = set.Has(MBCharPointer::kMultibyte);
    for (const int code : {-128, -23, -1, 128, 255}) {
        EXPECT_EQ(set.Has(code), has) << code;
    }
    for (int byte = 128; byte < 256; ++byte) {
        EXPECT_FALSE(set.HasAscii(static_cast<char>(byte))) << byte;
    }
    return has;
}

TEST(CharSet, ListedCharactersAreItsMembers) {
    constexpr CharSet set = CharSet::Of(" \t");
    EXPECT_EQ(AsciiOf(set), "\t ");
    EXPECT_FALSE(HasBeyondAscii(set));
    EXPECT_EQ(AsciiOf(CharSet::Of("")), "");
}

TEST(CharSet, AllButTheListedHoldsCharactersBeyondAscii) {
    constexpr CharSet set = CharSet::AllBut("\n\r'");
    EXPECT_EQ(AsciiOf(set).size(), 127U - 3U);
    EXPECT_FALSE(set.Has('\n') || set.Has('\r') || set.Has('\''));
    EXPECT_TRUE(HasBeyondAscii(set));
}

TEST(CharSet, PredicateIsAskedForEveryAsciiCharacterAndOnceBeyond) {
    constexpr CharSet upper = CharSet::Where([](int code) { return code > 'X'; });
    EXPECT_EQ(AsciiOf(upper).substr(0, 3), "YZ[");
    EXPECT_TRUE(HasBeyondAscii(upper));
    constexpr CharSet lower = CharSet::Where([](int code) { return code < 3; });
    EXPECT_EQ(AsciiOf(lower), "\1\2");
    EXPECT_FALSE(HasBeyondAscii(lower));
}

TEST(CharSet, BytesBeyondAsciiCannotBeListed) {
    EXPECT_FALSE(HasBeyondAscii(CharSet::Of("a\xE9")));
    EXPECT_TRUE(HasBeyondAscii(CharSet::AllBut("a\xE9")));
}

TEST(CharSet, EndIsNeverAMember) {
    EXPECT_EQ(AsciiOf(CharSet::Of(std::string_view("\0a", 2))), "a");
    EXPECT_FALSE(CharSet::AllBut("x").Has(0));
    EXPECT_FALSE(CharSet::Where([](int) { return true; }).Has(0));
}

} // namespace

} // namespace recastor
