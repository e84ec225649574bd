#include "ctables/recastor/mbcharpointer.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// Every place of the cursor on its way through the text: `code@number+offset`.
std::string Walk(const std::string& text) {
    MBCharPointer cursor(text.c_str());
    std::string places;
    for (;;) {
        places += (places.empty() ? "" : " ") + std::to_string(cursor.Code()) + '@' +
                  std::to_string(cursor.CharacterNumber()) + '+' +
                  std::to_string(cursor.Pointer() - text.c_str());
        if (cursor.Code() == 0) {
            return places;
        }
        const int code = cursor.Next();
        EXPECT_EQ(code, cursor.Code());
    }
}

struct Row {
    std::string text;
    std::string places;
};

void ExpectWalks(const std::vector<Row>& rows) {
    for (const auto& [text, places] : rows) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Walk(text), places);
    }
}

class Cursor : public Utf8Test {};

TEST_F(Cursor, EmptyTextIsAtItsEndAndStaysThere) {
    MBCharPointer cursor("");
    EXPECT_EQ(cursor.Code(), 0);
    EXPECT_EQ(cursor.CharacterNumber(), 1);
    EXPECT_EQ(cursor.Next(), 0);
    EXPECT_EQ(cursor.Next(), 0);
    EXPECT_EQ(cursor.CharacterNumber(), 1);
}

TEST_F(Cursor, CharactersAndTheEndAreNumbered) {
    ExpectWalks({{"AB", "65@1+0 66@2+1 0@3+2"}, {"\t\x7F", "9@1+0 127@2+1 0@3+2"}});
}

TEST_F(Cursor, EveryCharacterOfSeveralBytesHasTheOneCode) {
    ExpectWalks({
        {"a\u00E9b", "97@1+0 4096@2+1 98@3+3 0@4+4"},
        {"\u20ACx", "4096@1+0 120@2+3 0@3+4"},
        {"\U0001F600\u00DFy", "4096@1+0 4096@2+4 121@3+6 0@4+7"},
        {"\u0800\uD7FF\uE000\uFFFD", "4096@1+0 4096@2+3 4096@3+6 4096@4+9 0@5+12"},
    });
}

TEST_F(Cursor, TruncatedCharacterIsTheEndAtItsFirstByte) {
    ExpectWalks({
        {"a\xC3", "97@1+0 0@2+1"},
        {"a\xE2\x82", "97@1+0 0@2+1"},
        {"ab\xF0\x9F\x98", "97@1+0 98@2+1 0@3+2"},
    });
}

TEST_F(Cursor, InvalidBytesAreTheEnd) {
    for (const char* invalid :
         {"\x80 b", "\xFF b", "\xC3( b", "\xE2\x82( b", "\xC0\xAF b", "\xC1\xBF b",
          "\xE0\x80\xAF b", "\xED\xA0\x80 b", "\xF0\x80\x80\x80 b", "\xFE b"}) {
        ExpectWalks({{std::string("a") + invalid, "97@1+0 0@2+1"}});
        MBCharPointer cursor(invalid);
        EXPECT_EQ(cursor.Next(), 0) << "moved past its end";
        EXPECT_EQ(cursor.Pointer(), invalid);
    }
}

TEST_F(Cursor, HighByteThatIsACharacterHasANegativeCode) {
    TreatHighBytesAsCharacters();
    ExpectWalks({{"a\xE9\x80\xFF", "97@1+0 -23@2+1 -128@3+2 -1@4+3 0@5+4"}});
}

TEST_F(Cursor, HighByteOfAnEightBitLocaleHasANegativeCode) {
    const TextLocale latin("de_DE.ISO-8859-1");
    ExpectWalks({{"gr\xF6\xDF", "103@1+0 114@2+1 -10@3+2 -33@4+3 0@5+4"}});
}

TEST_F(Cursor, SecondByteOfALegacyCharacterIsNoAsciiCharacter) {
    const TextLocale chinese("zh_CN.GBK");
    // The second bytes are a backslash, an "a" and a vertical bar.
    ExpectWalks({{"\x81\x5C.\x81\x61\x81\x7C", "4096@1+0 46@2+2 4096@3+3 4096@4+5 0@5+7"}});
    ExpectWalks({{"a\x81", "97@1+0 0@2+1"}});
}

TEST_F(Cursor, AfterAResetTheNextCharacterIsNumberOne) {
    MBCharPointer cursor("a\nb\u00E9d");
    cursor.Next();
    cursor.Next();
    cursor.ResetCharacterNumber();
    EXPECT_EQ(cursor.Code(), 'b');
    EXPECT_EQ(cursor.CharacterNumber(), 0);
    cursor.Next();
    EXPECT_EQ(cursor.CharacterNumber(), 1);
    cursor.Next();
    EXPECT_EQ(cursor.CharacterNumber(), 2);
}

TEST_F(Cursor, CopyRemembersThePlace) {
    MBCharPointer cursor("a\u00E9b");
    cursor.Next();
    const MBCharPointer mark = cursor;
    cursor.Next();
    cursor.Next();
    EXPECT_EQ(cursor.Code(), 0);
    cursor = mark;
    EXPECT_EQ(cursor.Code(), MBCharPointer::kMultibyte);
    EXPECT_EQ(cursor.CharacterNumber(), 2);
    EXPECT_EQ(cursor.Next(), 'b');
}

/// Where the cursor stands after it skipped the set from the text's character `start` on.
std::string PlaceBehind(const std::string& text, const CharSet& set, int start = 1) {
    MBCharPointer cursor(text.c_str());
    while (cursor.CharacterNumber() < start) {
        cursor.Next();
    }
    const int stop = cursor.SkipWhile(set);
    EXPECT_EQ(stop, cursor.Code());
    return std::to_string(stop) + '@' + std::to_string(cursor.CharacterNumber()) + '+' +
           std::to_string(cursor.Pointer() - text.c_str());
}

TEST_F(Cursor, SkippingStopsAtTheFirstCharacterOutsideTheSet) {
    const CharSet letters = CharSet::Of("abc");
    EXPECT_EQ(PlaceBehind("abcabc.x", letters), "46@7+6");
    EXPECT_EQ(PlaceBehind("a.x", letters), "46@2+1");
    EXPECT_EQ(PlaceBehind(".x", letters), "46@1+0");
    EXPECT_EQ(PlaceBehind("abc", letters), "0@4+3");
    EXPECT_EQ(PlaceBehind("", letters), "0@1+0");
    EXPECT_EQ(PlaceBehind("ab\u00E9", letters), "4096@3+2");
    EXPECT_EQ(PlaceBehind("x..ab.", letters, 4), "46@6+5");
}

TEST_F(Cursor, SkippingCountsCharactersOfSeveralBytesOnce) {
    const CharSet notPeriods = CharSet::AllBut(".");
    EXPECT_EQ(PlaceBehind("a\u00E9\u20ACbc\u00E9.x", notPeriods), "46@7+10");
    EXPECT_EQ(PlaceBehind("\u00E9\u00E9", notPeriods), "0@3+4");
    EXPECT_EQ(PlaceBehind("ab\xFF.", notPeriods), "0@3+2");
}

TEST_F(Cursor, SkippingTakesHighBytesThatAreCharacters) {
    TreatHighBytesAsCharacters();
    EXPECT_EQ(PlaceBehind("\xE9\xE9"
                          "ab\xFF.",
                          CharSet::AllBut(".")),
              "46@6+5");
    EXPECT_EQ(PlaceBehind("ab\xE9.", CharSet::Of("ab")), "-23@3+2");
}

} // namespace

} // namespace recastor
