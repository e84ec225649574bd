#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/quickscan.h"
#include "ctables/recastor/tokenscan.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;

class QuickScan : public Utf8Test {};

struct EndRow {
    std::string line;
    int end; ///< of the full walk as well
};

TEST_F(QuickScan, EndsOfPlainLinesAreKnown) {
    for (const EndRow& row : std::vector<EndRow>{
             {"LIST.\n", 4},
             {"LIST. \t \n", 4},
             {"LIST.\r\n", 4},
             {"LIST\n", -1},
             {"COMPUTE x=.5\n", -1},
             {"COMPUTE x=1. 5\n", -1},
             {"TITLE 'a. '\n", -1},
             {"TITLE 'a'.\n", 9},
             {"TITLE \"it's. \".\n", 14},
             {"a/b.\n", 3},
             {"..\n", 1},
             {". .\n", 2},
             {"\n", -1},
             {"LIST \xC3\xA4.\n", 7},
             {"TITLE '\xC3\xA4.'\n", -1},
             {"TITLE '\xC3\xA4 \xE2\x82\xAC'.\n", 14},
             {"VARIABLE LABELS \xC3\xA4 \"\xF0\x9F\x99\x82\" /b 'c'.\n", 32},
         }) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(QuickEndOfCommand(row.line), std::optional(row.end));
        EXPECT_EQ(FindEndOfCommand(row.line.c_str(), row.line.size(), false), row.end);
    }
}

TEST_F(QuickScan, OddLinesAreLeftToTheFullWalk) {
    for (const std::string& line :
         {"LIST. /* all\n"s, "LIST /* all.\n"s, "TITLE 'a.\n"s, "LIST \xC3.\n"s, "LIST.\0\n"s,
          "LIST"s, "LIST."s, "LIST. "s, "TITLE '\xA4'.\n"s, "TITLE 'a\xC3\n"s, "a\rb.\n"s,
          "a.\rb\n"s, "a/"s, ""s}) {
        SCOPED_TRACE(line);
        EXPECT_EQ(QuickEndOfCommand(line), std::nullopt);
    }
}

TEST_F(QuickScan, EndsOfPlainCommentLinesAreKnown) {
    for (const EndRow& row : std::vector<EndRow>{
             {"* it's so.\n", 9},
             {"* it's so. \t\n", 9},
             {"* so.\r\n", 4},
             {"* a. b\n", -1},
             {"* /* a.\n", 6},
             {"\n", -1},
             {".\n", 0},
             {"* \xC3\xA4.\n", 4},
             {"* \xC3\xA4 it's.\tso\n", -1},
         }) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(QuickEndOfCommentCommand(row.line), std::optional(row.end));
        EXPECT_EQ(FindEndOfCommentCommand(row.line.c_str(), row.line.size()), row.end);
    }
}

TEST_F(QuickScan, OddCommentLinesAreLeftToTheFullWalk) {
    for (const std::string& line :
         {"* \xC3.\n"s, "* \xC3\xA4\x01.\n"s, "* a\0.\n"s, "* a"s, "* a."s, "* a\r.\n"s, ""s}) {
        SCOPED_TRACE(line);
        EXPECT_EQ(QuickEndOfCommentCommand(line), std::nullopt);
    }
}

TEST_F(QuickScan, SoundTokensNeedNoFullCheck) {
    for (const std::string& text :
         {""s, " \t\r\n"s, "COMPUTE x = a**2 + 3.5/b.\n"s, "a<>b~=c|d {[1;2]} ?%:_\n"s,
          "TITLE 'a' \"it's\"\n 'b'"s, "1 .5 5. 007"s, "@a #b $c d.e_f\n"s, "a. b ."s,
          "!macro !1a !1e !* ! !b.5"s, std::string(300, '9'), "\xC3\xA4 a\xC3\xA4 !m\xC3\xA4"s,
          "'\xC3\xA4' 5\xC3\xA4"s}) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(QuickCheckTokens(text));
        EXPECT_NO_THROW(CheckTokens(text.c_str(), false));
    }
}

TEST_F(QuickScan, WhatMayBeFaultyNeedsTheFullCheck) {
    for (const std::string& text :
         {"1e5"s, "1E"s, "0x1A"s, std::string(301, '9'), "'a"s, "'a\nb'"s, "'a''b'"s, "'a'+'b'"s,
          "'a' + 'b'"s, "/* a */"s, "a &/ b"s, "!m\xC3"s, "a ` b"s, "\x01"s, "\xC3"s, "a\xA4"s,
          "'\xC3 '"s, "a\0b"s}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(QuickCheckTokens(text));
    }
}

TEST_F(QuickScan, FirstTokensAreWords) {
    const auto tokens = QuickFirstTokens("BEGIN data.\n", false);
    ASSERT_TRUE(tokens);
    EXPECT_EQ(tokens->first, "BEGIN");
    EXPECT_EQ(tokens->secondWord, "data.");
}

TEST_F(QuickScan, SecondTokenIsGivenOnlyAsAWord) {
    for (const std::string& text : {"LIST\n"s, "LIST .\n"s, "LIST 5"s, "LIST 'a'\n"s, "LIST=a\n"s,
                                    "LIST !m\n"s, "LIST '\xC3\xA4'"s}) {
        SCOPED_TRACE(text);
        const auto tokens = QuickFirstTokens(text, false);
        ASSERT_TRUE(tokens);
        EXPECT_EQ(tokens->first, "LIST");
        EXPECT_EQ(tokens->secondWord, "");
    }
}

TEST_F(QuickScan, FirstTokenMayBeAMacroName) {
    for (const std::string& name : {"!tab1.5"s, "!12"s, "!*"s, "!"s}) {
        SCOPED_TRACE(name);
        const std::string text = name + " vars=a\n";
        const auto tokens = QuickFirstTokens(text, false);
        ASSERT_TRUE(tokens);
        EXPECT_EQ(tokens->first, name);
        EXPECT_EQ(tokens->secondWord, "vars");
    }
}

TEST_F(QuickScan, AsteriskNeedsNoSecondToken) {
    const auto tokens = QuickFirstTokens(" * it's `\n", false);
    ASSERT_TRUE(tokens);
    EXPECT_EQ(tokens->first, "*");
}

TEST_F(QuickScan, BatchMarkIsNoToken) {
    const auto tokens = QuickFirstTokens("+ LIST a\n", true);
    ASSERT_TRUE(tokens);
    EXPECT_EQ(tokens->first, "LIST");
    EXPECT_FALSE(QuickFirstTokens("+ LIST a\n", false));
}

TEST_F(QuickScan, OtherOpeningsAreLeftToTheTokens) {
    for (const std::string& text :
         {""s, " "s, "\nLIST"s, "5 a"s, "'a' b"s, ", LIST"s, "LIST , a"s, "LIST 1e"s, "LIST 'a\n"s,
          "!m\xC3\xA4 a"s, "LIST !m\xC3"s, "LIST !m\xC3\xA4"s, "LIST !m\xC3\xA4 a"s,
          "LI\xC3\xA4 a"s, "LIST a\xC3\xA4"s, "\xEF\xBB\xBFLIST a"s, "LIST `"s}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(QuickFirstTokens(text, false));
    }
}

} // namespace

} // namespace recastor
