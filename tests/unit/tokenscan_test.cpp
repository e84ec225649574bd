// The scanners on their own, and the check of commands that are only copied.

#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/tokenscan.h"
#include "tests/support/dump.h"
#include "tests/support/textlocale.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using Scanner = std::function<bool(MBCharPointer&)>;

/// What a scanner makes of the text: the stretch that it takes, "nothing" when it leaves the cursor
/// in place, or its error.
std::string Scanned(const std::string& text, const Scanner& scan) {
    MBCharPointer cursor(text.c_str());
    try {
        if (scan(cursor)) {
            return std::string(text.c_str(), cursor.Pointer());
        }
        EXPECT_EQ(cursor.CharacterNumber(), 1) << text;
        return cursor.Pointer() == text.c_str() ? "nothing" : "moved";
    } catch (const ParseError& error) {
        EXPECT_EQ(cursor.Pointer(), text.c_str()) << text;
        EXPECT_EQ(cursor.CharacterNumber(), 1) << text;
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        return "error " + std::to_string(error.GetErrorID()) + '@' + std::to_string(line) + ':' +
               std::to_string(column);
    }
}

class Scan : public Utf8Test {};

TEST_F(Scan, ScannersLeaveWhatIsNotTheirs) {
    const Scanner literal = [](MBCharPointer& c) { return ScanLiteral(c, 1, nullptr); };
    const Scanner number = [](MBCharPointer& c) { return ScanNumber(c, 1, nullptr); };
    const Scanner symbol = [](MBCharPointer& c) {
        TokenSequenceBase::OperatorCode code{};
        return ScanOperator(c, code);
    };
    for (const char* text : {"", "a", "5", "+", "\u00E9", " ", "`", "\xFF"}) {
        EXPECT_EQ(Scanned(text, literal), "nothing") << text;
        EXPECT_EQ(Scanned(text, ScanMacroToken), "nothing") << text;
    }
    for (const char* text : {"", "a", "+", ".", "..", ".e5", "'", "\u00E9", "E5"}) {
        EXPECT_EQ(Scanned(text, number), "nothing") << text;
    }
    for (const char* text : {"", "a", "5", "'", "\"", "!", "\u00E9", "`", "\n"}) {
        EXPECT_EQ(Scanned(text, symbol), "nothing") << text;
    }
    for (const char* text : {"", "5", ".", "_", "'", "+", " ", "!"}) {
        EXPECT_EQ(Scanned(text, ScanWord), "nothing") << text;
    }
}

TEST_F(Scan, ScannersTakeTheirTokenOnly) {
    const Scanner literal = [](MBCharPointer& c) { return ScanLiteral(c, 1, nullptr); };
    const Scanner number = [](MBCharPointer& c) { return ScanNumber(c, 1, nullptr); };
    EXPECT_EQ(Scanned("'a'+\"b\"  c", literal), "'a'+\"b\"  ");
    EXPECT_EQ(Scanned("1.5e-3.2", number), "1.5e-3");
    EXPECT_EQ(Scanned("!ab+", ScanMacroToken), "!ab");
    EXPECT_EQ(Scanned("gr\u00F6\u00DFe.5-", ScanWord), "gr\u00F6\u00DFe.5");
}

TEST_F(Scan, ErrorsLeaveTheCursorAtTheTokensStart) {
    const Scanner literal = [](MBCharPointer& c) { return ScanLiteral(c, 7, nullptr); };
    const Scanner number = [](MBCharPointer& c) { return ScanNumber(c, 8, nullptr); };
    EXPECT_EQ(Scanned("'ab\n", literal), "error 1@7:4");
    EXPECT_EQ(Scanned("'ab'+'c\n", literal), "error 1@7:8");
    EXPECT_EQ(Scanned("1.5e+x", number), "error 2@8:6");
    EXPECT_EQ(Scanned("0x1A", number), "error 3@8:1");
    EXPECT_EQ(Scanned("9e999", number), "error 3@8:1");
}

TEST_F(Scan, ValuesAreToldWhenTheyAreAskedFor) {
    MBCharPointer literal("'It''s'+\"!\"");
    std::string text;
    EXPECT_TRUE(ScanLiteral(literal, 1, &text));
    EXPECT_EQ(text, "It's!");
    MBCharPointer number("12.50 ");
    double value = 0.0;
    EXPECT_TRUE(ScanNumber(number, 1, &value));
    EXPECT_EQ(value, 12.5);
    MBCharPointer symbol("&**&");
    TokenSequenceBase::OperatorCode code{};
    EXPECT_TRUE(ScanOperator(symbol, code));
    EXPECT_EQ(code, TokenSequenceBase::kElemPower);
}

TEST_F(Scan, ReservedWordsAreWholeWordsInAnyCase) {
    EXPECT_EQ(ReservedWordCode("WITH"), TokenSequenceBase::kWith);
    EXPECT_EQ(ReservedWordCode("ALL"), TokenSequenceBase::kAll);
    EXPECT_EQ(ReservedWordCode("wItH"), TokenSequenceBase::kWith);
    for (const char* word : {"", "W", "WIT", "WITHIN", "w\xA9th", "TABLE"}) {
        EXPECT_EQ(ReservedWordCode(word), TokenSequenceBase::kNotOperator) << word;
    }
}

TEST_F(Scan, SeparatorsAreBlanksLineBreaksAndComments) {
    struct Row {
        std::string text;
        int line;
        std::string rest;
    };
    for (const auto& [text, line, rest] : std::vector<Row>{
             {"a", 1, "a"},
             {" \t\n a", 2, "a"},
             {"/* x\n/* y\r\n\na", 4, "a"},
             {"/* x */ a", 1, "/ a"},
             {"/ a", 1, "/ a"},
             {"/* x */* y\na", 2, "a"},
             {", a", 1, ", a"},
             {"", 1, ""},
         }) {
        SCOPED_TRACE(testing::PrintToString(text));
        MBCharPointer cursor(text.c_str());
        int reached = 1;
        SkipSeparators(cursor, reached);
        EXPECT_EQ(reached, line);
        EXPECT_STREQ(cursor.Pointer(), rest.c_str());
    }
}

TEST_F(Scan, BatchMarkIsOneSignInFront) {
    const auto behindMark = [](const char* text, bool batch) {
        MBCharPointer cursor(text);
        SkipBatchMark(cursor, batch);
        return std::string(cursor.Pointer());
    };
    EXPECT_EQ(behindMark("+a", true), "a");
    EXPECT_EQ(behindMark("-+a", true), "+a");
    EXPECT_EQ(behindMark("a+", true), "a+");
    EXPECT_EQ(behindMark("*a", true), "*a");
    EXPECT_EQ(behindMark("+a", false), "+a");
    EXPECT_EQ(behindMark("", true), "");
}

/// The error that checking the text throws; "" when it is fine.
std::string Verdict(const std::string& text, bool batch = false) {
    try {
        CheckTokens(text.c_str(), batch);
        return "";
    } catch (const ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        return "error " + std::to_string(error.GetErrorID()) + '@' + std::to_string(line) + ':' +
               std::to_string(column);
    }
}

TEST_F(Scan, CheckPassesWhatIsMadeOfTokens) {
    for (const std::string& text :
         {std::string(), std::string(" \n"), std::string(","), std::string("/* it's `"),
          std::string("FREQ x, y /FORMAT='it''s'+\n\"5\" 1.5E3 !a.\n"), std::string("0x 00x1"),
          std::string(300, '9'), std::string("\u00E9 '\u20AC'"), std::string("a \xFF '")}) {
        EXPECT_EQ(Verdict(text), "") << text;
    }
}

TEST_F(Scan, CheckFindsTheErrorsOfTheTokenizerAtTheirPlaces) {
    for (const std::string& text :
         {std::string("a 'b"), std::string("a\n 'b\nc"), std::string("'a'+b"), std::string("1e"),
          std::string("a\n\n12.5E+ "), std::string("0x1A"), std::string("0X1"),
          std::string("1e999"), std::string(310, '9'), std::string(400, '9') + ".5",
          std::string("a\r\n `"), std::string("\u00E9 \\"), std::string("a \x01"),
          std::string("'a'\n b ^")}) {
        EXPECT_EQ(Verdict(text), DumpTokens(text)) << text;
        EXPECT_TRUE(Verdict(text).starts_with("error ")) << text;
    }
}

TEST_F(Scan, CheckSkipsTheBatchMark) {
    EXPECT_EQ(Verdict("+ `", true), "error 4@1:3");
    EXPECT_EQ(Verdict("+", true), "");
}

} // namespace

} // namespace recastor
