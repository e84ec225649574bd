// Literals: quotes, doubled quotes, joins, and what is wrong with one that is not closed.

#include "ctables/recastor/zelktokenvector.h"
#include "tests/support/dump.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct Row {
    std::string text;
    std::string tokens;
};

void ExpectTokens(const std::vector<Row>& rows) {
    for (const auto& [text, tokens] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(DumpTokens(text), tokens);
    }
}

class Literals : public Utf8Test {};

TEST_F(Literals, ValueIsWhatStandsBetweenTheQuotes) {
    ExpectTokens({
        {"'abc'", "`abc`"},
        {"\"abc\"", "`abc`"},
        {"''", "``"},
        {"\"it's\"", "`it's`"},
        {"'a\"b'", "`a\"b`"},
        {"'/* a. */,'", "`/* a. */,`"},
        {"' gr\u00F6\u00DF\t'", "` gr\u00F6\u00DF\t`"},
        {"'a'b", "`a` b"},
        {"'a'\"b\"", "`a` `b`"},
    });
}

TEST_F(Literals, DoubledQuoteIsOneQuote) {
    ExpectTokens({
        {"'It''s'", "`It's`"},
        {"\"a\"\"b\"", "`a\"b`"},
        {"''''", "`'`"},
        {"'a'''", "`a'`"},
        {"'''a'", "`'a`"},
        {"'a'' b'", "`a' b`"},
        {"'a''''b'", "`a''b`"},
        {"'a\"\"b'", "`a\"\"b`"},
    });
}

TEST_F(Literals, SegmentsAreJoinedByAPlusDirectlyBeforeAQuote) {
    ExpectTokens({
        {"'ab'+'cd'", "`abcd`"},
        {"'ab'+ 'cd'", "`abcd`"},
        {"'ab' +'cd'", "`abcd`"},
        {"'ab'+\"c'd\"", "`abc'd`"},
        {"'ab'\n+'cd'", "`abcd`"},
        {"'ab'+\r\n  'cd'", "`abcd`"},
        {"'a' +'b' +\"c\"", "`abc`"},
        {"'a'+''", "`a`"},
        {"'a'+'b'''", "`ab'`"},
    });
}

TEST_F(Literals, PlusBetweenBlanksIsLostAndJoinsNothing) {
    ExpectTokens({
        {"'ab' + 'cd'", "`ab` `cd`"},
        {"'ab' + x", "`ab` x"},
        {"'ab' +x", "`ab` x"},
        {"'ab'\n+\n'cd'", "`ab` `cd`"},
        {"'ab' + + x", "`ab` x"},
    });
}

TEST_F(Literals, PlusDirectlyBehindAQuoteWithoutAnotherGoesOnWithTheOldSegment) {
    ExpectTokens({
        {"'ab'+x", "error 1@1:7"},
        {"'ab'+", "error 1@1:6"},
        {"'ab'+x'", "`abab'+x`"},
        {"'ab'+ 5 'c'", "error 1@1:12"},
    });
}

TEST_F(Literals, PlusBehindADoubledQuoteJoinsToo) {
    // Behind a doubled quote the blanks are skipped as well, and they stay in the value.
    ExpectTokens({{"'a''+'b'", "`a'b`"}, {"'a''+b'", "`a'+b`"}, {"'a''  b'", "`a'  b`"}});
}

TEST_F(Literals, BlanksAtTheStartOfAJoinedSegmentStay) {
    ExpectTokens({
        {"'a' +' b'", "`a b`"},
        {"'a'+' b'", "`a b`"},
        {"'a' +'+'b'", "`ab`"},
    });
}

TEST_F(Literals, TabIsNoBlankBehindALiteral) {
    ExpectTokens({{"'ab'\t+'cd'", "`ab` kPlus `cd`"}, {"'ab'+\t'cd'", "error 1@1:11"}});
}

TEST_F(Literals, RawTextTakesBlanksLineBreaksAndJoinsAlong) {
    const auto raw = [](const std::string& text) {
        return ZELKTokenVector(text.c_str(), false, 0)[0].AsString(true);
    };
    EXPECT_EQ(raw("'ab'"), "'ab'");
    EXPECT_EQ(raw("'ab'  x"), "'ab'  ");
    EXPECT_EQ(raw("'ab' \r\n\n x"), "'ab' \r\n\n ");
    EXPECT_EQ(raw("'ab'\tx"), "'ab'");
    EXPECT_EQ(raw("'ab' + x"), "'ab' + ");
    EXPECT_EQ(raw("'ab' +\n'cd' /x"), "'ab' +\n");
    EXPECT_EQ(raw("'ab'+\n\"cd\" /x"), "'ab'+\n\"cd\" ");
    EXPECT_EQ(raw("'It''s'/"), "'It''s'");
}

TEST_F(Literals, LineBreaksBehindALiteralAreNotCounted) {
    EXPECT_EQ(DumpTokens("'a'\nB C\nD", false, 0, true), "`a`@1:1 B@1:5 C@1:7 D@2:0");
    EXPECT_EQ(DumpTokens("x\n'a' \r\nB", false, 0, true), "x@1:1 `a`@2:0 B@2:6");
    EXPECT_EQ(DumpTokens("'a'\t\nB", false, 0, true), "`a`@1:1 B@2:0");
}

TEST_F(Literals, UnclosedLiteralIsToldWhereItsLineEnds) {
    ExpectTokens({
        {"'abc", "error 1@1:5"},
        {"'", "error 1@1:2"},
        {"'abc\n'", "error 1@1:5"},
        {"'ab\r'", "error 1@1:4"},
        {"\"ab'", "error 1@1:5"},
        {"x\n'ab", "error 1@2:3"},
        {"'a''", "error 1@1:5"},
        {"'\u00E9\u00E9\n", "error 1@1:4"},
        {"'ab'+\n'cd", "error 1@1:10"},
        {"'a' 'b\n", "error 1@1:7"},
        {"'a\xFF'", "error 1@1:3"},
    });
}

} // namespace

} // namespace recastor
