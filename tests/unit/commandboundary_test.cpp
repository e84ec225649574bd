#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/zelktokenvector.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;

class Boundary : public Utf8Test {};

/// The state that the first token of `text` leads to from `state`.
int StateAfter(int state, const std::string& text) {
    SwitchCommandState(state, ZELKTokenVector(text.c_str(), false, 1)[0]);
    return state;
}

TEST_F(Boundary, FirstWordOnThreeCharactersTellsTheKind) {
    struct Row {
        std::string word;
        int state;
    };
    for (const auto& [word, state] : std::vector<Row>{
             {"*", 3},        {"**", 3},     {"*>", 3},     {"COMMENT", 3}, {"COMPUTE", 3},
             {"COM", 3},      {"com", 3},    {"Comx", 3},   {"CO", 1},      {"CO.M", 1},
             {"DOCUMENT", 4}, {"doc", 4},    {"DOCS", 4},   {"DO", 1},      {"BEGIN", 2},
             {"begin", 2},    {"BEG", 1},    {"BEGINS", 1}, {"BEGIN.", 1},  {"TABLES", 1},
             {"5", 1},        {"+", 1},      {"&*", 1},     {"!COM", 1},    {"DATA", 1},
             {"'*'", 3},      {"'comp'", 1},
         }) {
        EXPECT_EQ(StateAfter(kStateStart, word), state) << word;
    }
}

TEST_F(Boundary, WordBehindBeginTellsInlineData) {
    for (const char* word : {"DATA", "data", "DATA.", "Data."}) {
        EXPECT_EQ(StateAfter(kStateBegin, word), kStateInlineData) << word;
    }
    for (const char* word :
         {"GPL", "DAT", "DATA..", "DATAX", "DATA_", "DATABASE", "D", "'data'", "*", "COMMENT"}) {
        EXPECT_EQ(StateAfter(kStateBegin, word), kStateOrdinary) << word;
    }
}

TEST_F(Boundary, KindThatIsKnownStays) {
    for (const int state : {kStateOrdinary, kStateComment, kStateDocument, kStateInlineData}) {
        for (const char* word : {"COMMENT", "BEGIN", "DATA", "x"}) {
            EXPECT_EQ(StateAfter(state, word), state) << word;
        }
    }
}

struct Row {
    std::string text;
    int end;
};

void ExpectEnds(const std::vector<Row>& rows, bool commentMode) {
    for (const auto& [text, end] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(FindEndOfCommand(text.c_str(), text.size(), commentMode), end);
        if (commentMode) {
            EXPECT_EQ(FindEndOfCommentCommand(text.c_str(), text.size()), end);
        }
    }
}

TEST_F(Boundary, PeriodThatIsLastOnItsLineEndsACommand) {
    ExpectEnds(
        {
            {"FREQUENCIES x.\n", 13},
            {"x.  \t\n", 1},
            {"x. ", 1},
            {"x.\t", 1},
            {"x.\r\n", 1},
            {"x.\r", 1},
            {".\n", 0},
            {" .\n", 1},
            {"x.y.\n", 3},
            {"x..\n", 2},
            {"\u00E9\u20AC.\n", 5},
            {"x.\ny.\n", 1},
            {"x\ny.\n", 3},
            {"\n\nx.\n", 3},
        },
        false);
}

TEST_F(Boundary, PeriodInsideANumberOrANameDoesNotEnd) {
    ExpectEnds({{"COMPUTE y = 1.5.\n", 15}, {"v.1 < .5.\n", 8}, {"v.1 < .5\n", -1}}, false);
}

TEST_F(Boundary, PeriodBeforeOtherTextOnItsLineDoesNotEnd) {
    ExpectEnds({{"x. y\n", -1}, {"x. y.\n", 4}, {"x.,\n", -1}, {"x. \v\n", -1}}, false);
}

TEST_F(Boundary, PeriodWithNothingBehindItInTheTextDoesNotEnd) {
    ExpectEnds({{"x.", -1}, {".", -1}, {"", -1}, {"x", -1}, {"x\n", -1}}, false);
}

TEST_F(Boundary, PeriodInsideQuotesDoesNotEnd) {
    ExpectEnds(
        {
            {"TITLE 'a.b'.\n", 11},
            {"'a. '\n", -1},
            {"\"a. \" b.\n", 7},
            {"'It''s. '.\n", 9},
            {"\"it's. \".\n", 8},
            {"'a.'\n'b.'.\n", 9},
        },
        false);
}

TEST_F(Boundary, PeriodInsideACommentDoesNotEnd) {
    ExpectEnds(
        {
            {"x /* a.\n", -1},
            {"x /* a.\ny.\n", 9},
            {"x /* a. */ y.\n", 12},
            {"x /* a */.\n", 9},
            {"x /* it's\ny.\n", 11},
            {"x / y.\n", 5},
            {"x /.\n", 3},
        },
        false);
}

TEST_F(Boundary, OpenCommentBehindThePeriodLeavesItTheLast) {
    ExpectEnds(
        {
            {"x. /* c\n", 1},
            {"x./* c\n", 1},
            {"x. \t/* c. /* d\n", 1},
            {"x. /* c\r\n", 1},
        },
        false);
}

TEST_F(Boundary, ClosedCommentBehindThePeriodLeavesItsSlashBehind) {
    ExpectEnds({{"x. /* c */\n", -1}, {"x. /* c */.\n", 10}, {"x. /* c", -1}}, false);
}

TEST_F(Boundary, NulByteOrInvalidBytesHideThePeriodsAroundThem) {
    ExpectEnds(
        {
            {"x.\0\n"s, -1},
            {"x. \0\n"s, -1},
            {"x\0 y.\n"s, -1},
            {"x. \xFF\n", -1},
            {"x\xFF y.\n", -1},
        },
        false);
    ExpectEnds({{"* x.\0\n"s, -1}, {"* x. \0"s, -1}, {"* x \0.\n"s, -1}, {"* x. \xFF\n", -1}},
               true);
}

TEST_F(Boundary, LegacyCharacterMayEndInAQuoteLikeByte) {
    const TextLocale chinese("zh_CN.GBK");
    ExpectEnds({{"\x81\x5C\x81\x7E.\n", 4}, {"'\x81\x7C.'.\n", 5}}, false);
    ExpectEnds({{"* \x81\x5C.\n", 4}}, true);
}

TEST_F(Boundary, HighBytesThatAreCharactersHideNothing) {
    TreatHighBytesAsCharacters();
    ExpectEnds({{"\xE9\xFF.\n", 2}, {"'\xE9.'.\n", 4}}, false);
    ExpectEnds({{"* \xE9\xFF.\n", 4}}, true);
}

TEST_F(Boundary, PeriodThatIsLastOnItsLineEndsAComment) {
    ExpectEnds(
        {
            {"* x.\n", 3},
            {"* x. \t\n", 3},
            {"* x.\r\n", 3},
            {"* x.", 3},
            {"* x. ", 3},
            {"* a. b.\n", 6},
            {"* a..\n", 4},
            {"*\nx.\n", 3},
            {"* \u00E9.\n", 4},
            {".", 0},
        },
        true);
}

TEST_F(Boundary, PeriodBeforeMoreTextDoesNotEndAComment) {
    ExpectEnds({{"* x. y\n", -1}, {"* 1.5\n", -1}, {"*\n", -1}, {"", -1}, {"* x. \v\n", -1}}, true);
}

TEST_F(Boundary, QuotesAndCommentsMeanNothingInAComment) {
    ExpectEnds({{"* it's.\n", 6}, {"* /* x.\n", 6}, {"* x. /* y\n", -1}, {"* \"x.\n", 4}}, true);
}

/// The error that looking for the end throws.
std::string ErrorOf(const std::string& text) {
    try {
        return std::to_string(FindEndOfCommand(text.c_str(), text.size(), false));
    } catch (const ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        return std::to_string(error.GetErrorID()) + '@' + std::to_string(line) + ':' +
               std::to_string(column);
    }
}

TEST_F(Boundary, UnclosedQuoteIsToldWhereItsLineEnds) {
    EXPECT_EQ(ErrorOf("TITLE 'abc\n"), "1@1:11");
    EXPECT_EQ(ErrorOf("TITLE \"ab'\n"), "1@1:11");
    EXPECT_EQ(ErrorOf("TITLE 'abc"), "1@1:11");
    EXPECT_EQ(ErrorOf("TITLE '\u00E9\u00E9\r\n"), "1@1:10");
    EXPECT_EQ(ErrorOf("x\n 'a\n"), "1@2:3");
    EXPECT_EQ(ErrorOf("x /* c\r\n\n'a\n"), "1@3:2");
    EXPECT_EQ(ErrorOf("x\r'a\n"), "1@2:2");
    EXPECT_EQ(ErrorOf("x. \ny\n"), "1");
    EXPECT_EQ(ErrorOf("x. y\n'a\n"), "1@2:2");
    EXPECT_EQ(ErrorOf("x. /* c */ 'a\n"), "1@1:14");
    EXPECT_EQ(ErrorOf("'a' \"b"), "1@1:7");
    EXPECT_EQ(ErrorOf("/* 'a\n"), "-1");
}

TEST(BoundaryDeathTest, NullTextIsAnInternalError) {
    EXPECT_DEATH(FindEndOfCommand(nullptr, 0, false), "Assertion failed: lines, function");
}

TEST_F(Boundary, QuotedSegmentIsSteppedOver) {
    const auto rest = [](const char* text) {
        MBCharPointer cursor(text);
        const bool skipped = SkipLiteralSegment(cursor, 1);
        return (skipped ? "" : "not ") + std::string(cursor.Pointer());
    };
    EXPECT_EQ(rest("'a.'b"), "b");
    EXPECT_EQ(rest("\"a'\"'"), "'");
    EXPECT_EQ(rest("''''"), "''");
    EXPECT_EQ(rest("''"), "");
    EXPECT_EQ(rest("a'b'"), "not a'b'");
    EXPECT_EQ(rest(""), "not ");
}

TEST_F(Boundary, UnclosedSegmentLeavesTheCursorOnItsQuote) {
    MBCharPointer cursor("'ab\n'");
    try {
        SkipLiteralSegment(cursor, 5);
        FAIL() << "no error";
    } catch (const ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        EXPECT_EQ(line, 5);
        EXPECT_EQ(column, 4);
        EXPECT_EQ(error.GetErrorID(), ParseError::kUnclosedLiteral);
    }
    EXPECT_EQ(cursor.Code(), '\'');
    EXPECT_EQ(cursor.CharacterNumber(), 1);
}

TEST_F(Boundary, EndDataIsToldByTheFirstEightBytes) {
    for (const char* line : {"END DATA", "end data.", "End Data\n", "END DATABASE", "end data x",
                             "END DATA\r\n", "END DATA\xFF"}) {
        EXPECT_TRUE(IsEndData(line)) << line;
    }
    for (const char* line : {"  END DATA", "\tEND DATA", "END  DATA", "END\tDATA", "ENDDATA",
                             "END DAT", "END", "", "\n", "BEGIN DATA",
                             "\xEF\xBB\xBF"
                             "END DATA"}) {
        EXPECT_FALSE(IsEndData(line)) << line;
    }
    EXPECT_FALSE(IsEndData(nullptr));
}

} // namespace

} // namespace recastor
