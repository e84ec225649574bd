// How the parser reads a command's tokens: the answers that the classifier relies on.

#include "ctables/recastor/zelkformat.h"
#include "ctables/recastor/zelktoken.h"
#include "ctables/recastor/zelktokensequence.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using Base = TokenSequenceBase;
using Reading = void (ZELKTokenSequence::*)(const char*&, unsigned&) const;

/// The text that one of the reading operations gives; "(null)" for none.
std::string Text(const ZELKTokenSequence& tokens, Reading reading) {
    const char* text = "";
    unsigned length = 99;
    (tokens.*reading)(text, length);
    return text == nullptr && length == 0 ? "(null)" : std::string(text, length);
}

TEST(TokenReading, EmptyCommandIsAtItsEnd) {
    ZELKTokenSequence tokens("", false, 0);
    EXPECT_EQ(tokens.Size(), 0U);
    EXPECT_FALSE(tokens.Next());
    EXPECT_EQ(tokens.Type(), Base::kAtEnd);
    EXPECT_EQ(tokens.Operator(), 0);
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "(null)");
    EXPECT_EQ(tokens.Column(), 0);
}

TEST(TokenReading, BehindTheLastTokenThePositionIsTheSize) {
    ZELKTokenSequence tokens("a b", false, 0);
    EXPECT_TRUE(tokens.Next());
    EXPECT_TRUE(tokens.Next());
    EXPECT_EQ(tokens.Tell(), 1U);
    EXPECT_FALSE(tokens.Next());
    EXPECT_EQ(tokens.Tell(), tokens.Size());
}

TEST(TokenReading, SeekingTheStartMakesTheFirstTokenCurrentAgain) {
    ZELKTokenSequence tokens("a b", false, 0);
    while (tokens.Next()) {
    }
    tokens.Seek(0);
    EXPECT_TRUE(tokens.Next());
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "a");
}

TEST(TokenReading, ReservedWordIsAWordWithAnOperator) {
    ZELKTokenSequence tokens("with", false, 0);
    tokens.Next();
    EXPECT_EQ(tokens.Type(), Base::kString);
    EXPECT_EQ(tokens.Operator(), Base::kWith);
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "with");
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsUpperString), "WITH");
}

TEST(TokenReading, LiteralIsUnquotedButForItsRawText) {
    ZELKTokenSequence tokens("'It''s'", false, 0);
    tokens.Next();
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "It's");
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsUpperString), "It's");
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsRawString), "'It''s'");
}

TEST(TokenReading, NamesOfNotEqualAndOfNoTypeAreTheFirstRows) {
    EXPECT_EQ(OperatorTypeName(Base::kNotEqual), "kNotOperator");
    EXPECT_EQ(TokenTypeName(static_cast<Base::TokenType>(0)), "kAtEnd");
}

TEST(TokenReading, ComparisonOfThreeCharactersIgnoresTheRest) {
    ZELKTokenSequence tokens("compute", false, 0);
    tokens.Next();
    EXPECT_EQ(tokens.CompareAsUpperString("COMMENT", 3), 0);
    EXPECT_NE(tokens.CompareAsUpperString("COMMENT", 4), 0);
}

TEST(TokenReading, NumericFormatsAreAtMostFortyWide) {
    EXPECT_EQ(ZELK_Format(ZELK_Format::kNumericFormat, 60, 2).Width(), 40);
    EXPECT_EQ(ZELK_Format(ZELK_Format::kStringFormat, 60, 0).Width(), 60);
}

} // namespace

} // namespace recastor
