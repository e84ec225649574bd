#include "ctables/recastor/lexicalchars.h"
#include "tests/support/textlocale.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The codes that a cursor can give, and those between.
std::vector<int> AllCodes() {
    std::vector<int> codes;
    for (int code = -128; code <= 4096; ++code) {
        codes.push_back(code);
    }
    return codes;
}

bool IsOneOf(int code, std::string_view characters) {
    return code > 0 && code < 128 &&
           characters.find(static_cast<char>(code)) != std::string_view::npos;
}

TEST(CharacterClasses, DigitsAreThoseOfAscii) {
    for (const int code : AllCodes()) {
        EXPECT_EQ(IsDigit(code), IsOneOf(code, "0123456789")) << code;
    }
}

TEST(CharacterClasses, WordsBeginWithLettersThreeSignsAndAllBeyondAscii) {
    for (const int code : AllCodes()) {
        const bool expected =
            code < 0 || code >= 128 ||
            IsOneOf(code, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz#$@");
        EXPECT_EQ(IsExtendedAlpha(code), expected) << code;
    }
}

TEST(CharacterClasses, PointUnderscoreAndDigitsOnlyContinueAWord) {
    for (const int code : AllCodes()) {
        EXPECT_EQ(IsWordBodyOnly(code), IsOneOf(code, "._0123456789")) << code;
    }
}

TEST(CharacterClasses, ControlCharactersAreInvalidOutsideQuotes) {
    for (const int code : AllCodes()) {
        const bool control = code >= 1 && code < 32;
        const bool expected = (control && !IsOneOf(code, "\t\n\r")) || code == 3895;
        EXPECT_EQ(IsInvalidUnquoted(code), expected) << code;
    }
}

TEST(CharacterClasses, QuotesAreOfTwoKinds) {
    for (const int code : AllCodes()) {
        EXPECT_EQ(IsQuote(code), IsOneOf(code, "'\"")) << code;
    }
}

class LexicalChars : public Utf8Test {};

/// Where a cursor stands: offset and character number.
std::string PlaceOf(const MBCharPointer& cursor, const std::string& text) {
    return '+' + std::to_string(cursor.Pointer() - text.c_str()) + " number " +
           std::to_string(cursor.CharacterNumber());
}

struct Row {
    std::string text;
    std::string expected;
};

std::string SkippedWhitespace(const std::string& text) {
    MBCharPointer cursor(text.c_str());
    int lines = 99;
    const bool skipped = SkipWhitespace(cursor, lines);
    return (skipped ? "" : "nothing, ") + std::to_string(lines) + " lines, " +
           PlaceOf(cursor, text);
}

TEST_F(LexicalChars, WhitespaceIsSkippedAndLinesAreCounted) {
    for (const auto& [text, expected] : std::vector<Row>{
             {"x", "nothing, 0 lines, +0 number 1"},
             {"", "nothing, 0 lines, +0 number 1"},
             {"\vx", "nothing, 0 lines, +0 number 1"},
             {"\fx", "nothing, 0 lines, +0 number 1"},
             {"\u00A0x", "nothing, 0 lines, +0 number 1"},
             {" \t x", "0 lines, +3 number 4"},
             {"  ", "0 lines, +2 number 3"},
             {"\nx", "1 lines, +1 number 0"},
             {"\rx", "1 lines, +1 number 0"},
             {"\r\nx", "1 lines, +2 number 0"},
             {"\n\rx", "1 lines, +2 number 0"},
             {"\n\nx", "2 lines, +2 number 0"},
             {"\r\rx", "2 lines, +2 number 0"},
             {"\r\n\r\nx", "2 lines, +4 number 0"},
             {"\n\r\nx", "2 lines, +3 number 0"},
             {"  \n \t\n  x", "2 lines, +8 number 2"},
             {" \n", "1 lines, +2 number 0"},
         }) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(SkippedWhitespace(text), expected);
    }
}

std::string SkippedComment(const std::string& text) {
    MBCharPointer cursor(text.c_str());
    const bool skipped = SkipComment(cursor);
    return (skipped ? "" : "nothing, ") + PlaceOf(cursor, text);
}

TEST_F(LexicalChars, CommentEndsOnItsClosingSlashOrWithItsLine) {
    for (const auto& [text, expected] : std::vector<Row>{
             {"/* a */b", "+6 number 7"},
             {"/* \u00E9 */b", "+7 number 7"},
             {"/* a", "+4 number 5"},
             {"/* a\nb */", "+4 number 5"},
             {"/* a\rb */", "+4 number 5"},
             {"/* a *\n/", "+6 number 7"},
             {"/**/", "+3 number 4"},
             {"/***/", "+4 number 5"},
             {"/*a*b**/c", "+7 number 8"},
             {"/* /* */ */", "+7 number 8"},
             {"/*/ a */", "+7 number 8"},
             {"/*", "+2 number 3"},
             {"/*a\xFF */", "+3 number 4"},
         }) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(SkippedComment(text), expected);
    }
}

TEST_F(LexicalChars, WithoutACommentTheCursorStays) {
    for (const char* text : {"", "a", "/", "/a", "/ *", "//* a", "*/", "/\n*"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(SkippedComment(text), "nothing, +0 number 1");
    }
    MBCharPointer cursor("\n/ *");
    int lines = 0;
    SkipWhitespace(cursor, lines);
    EXPECT_FALSE(SkipComment(cursor));
    EXPECT_EQ(cursor.CharacterNumber(), 0);
    EXPECT_EQ(cursor.Next(), ' ');
}

std::string SkippedLiteral(const std::string& text, int quote) {
    MBCharPointer cursor(text.c_str());
    const int code = SkipLiteralText(cursor, quote);
    EXPECT_EQ(code, cursor.Code());
    return std::to_string(code) + ' ' + PlaceOf(cursor, text);
}

TEST_F(LexicalChars, LiteralTextGoesToItsQuoteOrBreaksOff) {
    EXPECT_EQ(SkippedLiteral("ab'c", '\''), "39 +2 number 3");
    EXPECT_EQ(SkippedLiteral("a\"b'c", '\''), "39 +3 number 4");
    EXPECT_EQ(SkippedLiteral("a'b\"c", '"'), "34 +3 number 4");
    EXPECT_EQ(SkippedLiteral("'", '\''), "39 +0 number 1");
    EXPECT_EQ(SkippedLiteral("ab\n'", '\''), "10 +2 number 3");
    EXPECT_EQ(SkippedLiteral("ab\r'", '"'), "13 +2 number 3");
    EXPECT_EQ(SkippedLiteral("\u20AC/*\t", '"'), "0 +6 number 5");
    EXPECT_EQ(SkippedLiteral("a\xFF'", '\''), "0 +1 number 2");
}

TEST_F(LexicalChars, UpperCasingChangesAsciiLettersOnly) {
    std::string text = "old";
    UpperCaseString("Gr\u00F6\u00DFe_1.\u0101z@[`{", text);
    EXPECT_EQ(text, "GR\u00F6\u00DFE_1.\u0101Z@[`{");
}

TEST_F(LexicalChars, UpperCasingNothingLeavesTheDestination) {
    std::string text = "old";
    UpperCaseString("", text);
    EXPECT_EQ(text, "old");
}

TEST_F(LexicalChars, UpperCasingMayWriteIntoItsSource) {
    std::string text = "abc";
    UpperCaseString(text, text);
    EXPECT_EQ(text, "ABC");
}

TEST_F(LexicalChars, UpperCasingLeavesTheSecondByteOfALegacyCharacter) {
    const TextLocale chinese("zh_CN.GBK");
    std::string text;
    UpperCaseString("a\x81\x61z", text);
    EXPECT_EQ(text, "A\x81\x61Z");
}

} // namespace

} // namespace recastor
