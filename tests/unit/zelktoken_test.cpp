#include "ctables/recastor/zelktoken.h"
#include "tests/support/tokens.h"

#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using Base = TokenSequenceBase;
using TokenPtr = std::unique_ptr<ZELKToken>;

/// A token of each kind, with a raw text of its own, at line 3, column 7.
TokenPtr Make(Base::TokenType type) {
    const PaddedText raw("raw");
    switch (type) {
    case Base::kNumber:
        return std::make_unique<ZELKNumberToken>(raw, 3, 7, 2.5);
    case Base::kString:
        return std::make_unique<ZELKStringToken>(raw, 3, 7, PaddedText("VALUE"), Base::kBy);
    case Base::kOperator:
        return std::make_unique<ZELKOperatorToken>(raw, 3, 7, Base::kPlus);
    default:
        return std::make_unique<ZELKLiteralToken>(raw, 3, 7, "value");
    }
}

constexpr Base::TokenType kTypes[] = {Base::kNumber, Base::kString, Base::kOperator,
                                      Base::kLiteral};

TEST(Token, RawTextIsWhatStandsBetweenFirstAndEnd) {
    for (const Base::TokenType type : kTypes) {
        EXPECT_EQ(Make(type)->AsString(true), "raw") << type;
    }
}

TEST(Token, TypeIsThatOfItsClass) {
    for (const Base::TokenType type : kTypes) {
        EXPECT_EQ(Make(type)->Type(), type);
    }
}

TEST(Token, ValueIsAWordsOrALiteralsOwn) {
    EXPECT_EQ(Make(Base::kNumber)->AsString(false), "raw");
    EXPECT_EQ(Make(Base::kOperator)->AsString(false), "raw");
    EXPECT_EQ(Make(Base::kString)->AsString(false), "VALUE");
    EXPECT_EQ(Make(Base::kLiteral)->AsString(false), "value");
}

TEST(Token, OnlyANumberHasANumber) {
    for (const Base::TokenType type : kTypes) {
        EXPECT_EQ(Make(type)->AsNumber(), type == Base::kNumber ? 2.5 : 0.0) << type;
    }
}

TEST(Token, WordsAndOperatorsHaveAnOperatorCode) {
    EXPECT_EQ(Make(Base::kNumber)->OpCode(), Base::kNotOperator);
    EXPECT_EQ(Make(Base::kLiteral)->OpCode(), Base::kNotOperator);
    EXPECT_EQ(Make(Base::kString)->OpCode(), Base::kBy);
    EXPECT_EQ(Make(Base::kOperator)->OpCode(), Base::kPlus);
}

TEST(Token, StartIsItsLineAndColumn) {
    for (const Base::TokenType type : kTypes) {
        int line = 0;
        int column = 0;
        Make(type)->StartLocation(line, column);
        EXPECT_EQ(line, 3);
        EXPECT_EQ(column, 7);
    }
}

std::string Printed(const ZELKToken& token, int indent) {
    std::ostringstream out;
    token.Print(out, indent);
    return out.str();
}

TEST(Token, PrintsTypePlaceAndWhatItIs) {
    EXPECT_EQ(Printed(*Make(Base::kNumber), 0), "kNumber\t3:7\t2.5\traw\n");
    EXPECT_EQ(Printed(*Make(Base::kString), 0), "kString\t3:7\tkBy\traw\n");
    EXPECT_EQ(Printed(*Make(Base::kOperator), 0), "kOperator\t3:7\tkPlus\traw\n");
    EXPECT_EQ(Printed(*Make(Base::kLiteral), 0), "kLiteral\t3:7\n`value`\n");
}

TEST(Token, PrintsTheIndentInFrontOfEachLine) {
    EXPECT_EQ(Printed(*Make(Base::kNumber), 1), "\tkNumber\t3:7\t2.5\traw\n");
    EXPECT_EQ(Printed(*Make(Base::kLiteral), 2), "\t\tkLiteral\t3:7\n\t\t`value`\n");
    EXPECT_EQ(Printed(*Make(Base::kString), 20).substr(0, 21), std::string(20, '\t') + 'k');
}

TEST(Token, PrintsNoIndentBelowNoughtOrAboveTwenty) {
    for (const int indent : {-1, -100, 21, 1000}) {
        EXPECT_EQ(Printed(*Make(Base::kOperator), indent), "kOperator\t3:7\tkPlus\traw\n");
        EXPECT_EQ(Printed(*Make(Base::kLiteral), indent), "kLiteral\t3:7\n`value`\n");
    }
}

TEST(Token, DuplicateIsEqualAndLivesOn) {
    for (const Base::TokenType type : kTypes) {
        TokenPtr token = Make(type);
        const std::string print = Printed(*token, 0);
        const TokenPtr copy(token->Dup());
        EXPECT_NE(copy, token);
        token.reset();
        EXPECT_EQ(Printed(*copy, 0), print);
        EXPECT_EQ(copy->AsString(true), "raw");
        EXPECT_EQ(copy->AsNumber(), Make(type)->AsNumber());
        EXPECT_EQ(copy->AsString(false), Make(type)->AsString(false));
    }
}

/// -1, 0 or 1, as the comparison of the word `text` says.
int Compared(const std::string& text, const std::string& s, unsigned n, bool raw = false) {
    const int result = TokenPtr(Word(text))->CompareAsString(s, n, raw);
    return result < 0 ? -1 : result > 0 ? 1 : 0;
}

TEST(TokenComparison, WithoutACountTheWholeTextsAreCompared) {
    EXPECT_EQ(Compared("compute", "COMPUTE", 0), 0);
    EXPECT_EQ(Compared("comput", "COMPUTE", 0), -1);
    EXPECT_EQ(Compared("computes", "COMPUTE", 0), 1);
    EXPECT_EQ(Compared("computa", "COMPUTE", 0), -1);
    EXPECT_EQ(Compared("computx", "COMPUTE", 0), 1);
    EXPECT_EQ(Compared("a", "", 0), 1);
}

TEST(TokenComparison, WithACountTheFirstBytesOfBothAreCompared) {
    EXPECT_EQ(Compared("compute", "COMMENT", 3), 0);
    EXPECT_NE(Compared("compute", "COMMENT", 4), 0);
    EXPECT_EQ(Compared("tab", "TABLES", 3), 0);
    EXPECT_EQ(Compared("tables", "TAB", 3), 0);
    EXPECT_EQ(Compared("tables", "TABLES", 100), 0);
}

TEST(TokenComparison, ShorterTextTakesPartWhole) {
    EXPECT_EQ(Compared("ta", "TABLES", 3), -1);
    EXPECT_EQ(Compared("tables", "TA", 3), 1);
    EXPECT_EQ(Compared("ta", "TA", 3), 0);
    EXPECT_EQ(Compared("", "", 3), 0);
}

TEST(TokenComparison, RawTextIsComparedAsWritten) {
    EXPECT_EQ(Compared("By", "By", 0, true), 0);
    EXPECT_NE(Compared("By", "BY", 0, true), 0);
    EXPECT_EQ(Compared("By", "BY", 0, false), 0);
    EXPECT_EQ(TokenPtr(Literal("ab"))->CompareAsString("ab", 0, false), 0);
    EXPECT_EQ(TokenPtr(Literal("ab"))->CompareAsString("'ab'", 0, true), 0);
}

TEST(TokenComparison, HighBytesAreGreaterThanAscii) {
    EXPECT_EQ(Compared("\xE9", "Z", 0), 1);
    EXPECT_EQ(Compared("\xE9", "Z", 1), 1);
    EXPECT_EQ(Compared("Z", "\xE9", 0), -1);
}

TEST(TokenNames, EveryTypeHasItsName) {
    EXPECT_EQ(TokenTypeName(Base::kAtEnd), "kAtEnd");
    EXPECT_EQ(TokenTypeName(Base::kString), "kString");
    EXPECT_EQ(TokenTypeName(Base::kNumber), "kNumber");
    EXPECT_EQ(TokenTypeName(Base::kLiteral), "kLiteral");
    EXPECT_EQ(TokenTypeName(Base::kOperator), "kOperator");
}

TEST(TokenNames, ValueThatIsNoTypeIsTheFirstRow) {
    for (const int value : {-1, 0, 6, 1000}) {
        EXPECT_EQ(TokenTypeName(static_cast<Base::TokenType>(value)), "kAtEnd") << value;
    }
}

TEST(TokenNames, EveryOperatorButNotEqualHasItsName) {
    const char* const names[] = {
        "kNotOperator",
        "kLessThan",
        "kGreaterThan",
        "kEquals",
        "kLtOrEq",
        "kGtOrEq",
        nullptr,
        "kNot",
        "kPlus",
        "kMinus",
        "kAsterisk",
        "kSlash",
        "kPower",
        "kLeftParen",
        "kRightParen",
        "kComma",
        "kColon",
        "kSemicolon",
        "kPeriod",
        "kUnderscore",
        "kQuestionMark",
        "kPercent",
        "kVerticalBar",
        "kAmpersand",
        "kLeftBrace",
        "kRightBrace",
        "kElemMult",
        "kElemDiv",
        "kElemPower",
        "kXtabNest",
        "kTo",
        "kWith",
        "kAnd",
        "kOr",
        "kBy",
        "kAll",
        "kLeftSqBracket",
        "kRightSqBracket",
    };
    int code = 0;
    for (const char* name : names) {
        EXPECT_EQ(OperatorTypeName(static_cast<Base::OperatorCode>(code)),
                  name != nullptr ? name : "kNotOperator")
            << code;
        ++code;
    }
    EXPECT_EQ(code, 38);
}

TEST(TokenNames, ValueThatIsNoOperatorIsNoOperator) {
    for (const int value : {-1, 38, 1000}) {
        EXPECT_EQ(OperatorTypeName(static_cast<Base::OperatorCode>(value)), "kNotOperator");
    }
}

} // namespace

} // namespace recastor
