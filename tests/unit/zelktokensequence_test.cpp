// The reader's operations on a tokenized command; tokenreading_test has the parser's view of them.

#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/zelktoken.h"
#include "ctables/recastor/zelktokensequence.h"
#include "tests/support/textlocale.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using Base = TokenSequenceBase;
using Reading = void (ZELKTokenSequence::*)(const char*&, unsigned&) const;

std::string Text(const ZELKTokenSequence& tokens, Reading reading) {
    const char* text = "old";
    unsigned length = 99;
    (tokens.*reading)(text, length);
    return text == nullptr && length == 0 ? "(null)" : std::string(text, length);
}

class TokenSequence : public Utf8Test {};

TEST_F(TokenSequence, FreshSequenceAnswersForTheFirstToken) {
    const ZELKTokenSequence tokens("with b", false, 0);
    EXPECT_EQ(tokens.Tell(), 0U);
    EXPECT_EQ(tokens.Size(), 2U);
    EXPECT_EQ(tokens.Type(), Base::kString);
    EXPECT_EQ(tokens.Operator(), Base::kWith);
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "with");
    EXPECT_EQ(tokens.Column(), 1);
    EXPECT_EQ(tokens.LineNumber(), 1);
}

TEST_F(TokenSequence, NextGoesFromTheFirstTokenToTheEnd) {
    ZELKTokenSequence tokens("a b", false, 0);
    EXPECT_TRUE(tokens.Next());
    EXPECT_EQ(tokens.Tell(), 0U);
    EXPECT_TRUE(tokens.Next());
    EXPECT_EQ(tokens.Tell(), 1U);
    EXPECT_FALSE(tokens.Next());
    EXPECT_FALSE(tokens.Next());
    EXPECT_EQ(tokens.Tell(), 2U);
}

TEST_F(TokenSequence, SeekLeavesTheCurrentTokenUntilNext) {
    ZELKTokenSequence tokens("a b c", false, 0);
    tokens.Next();
    tokens.Seek(2);
    EXPECT_EQ(tokens.Tell(), 0U);
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "a");
    EXPECT_TRUE(tokens.Next());
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "c");
    tokens.Seek(3);
    EXPECT_FALSE(tokens.Next());
    EXPECT_EQ(tokens.Tell(), 3U);
    tokens.Seek(1);
    EXPECT_TRUE(tokens.Next());
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "b");
}

TEST_F(TokenSequence, EveryOperationHasAnAnswerAtTheEnd) {
    ZELKTokenSequence tokens("a", false, 0);
    tokens.Next();
    tokens.Next();
    EXPECT_EQ(tokens.Type(), Base::kAtEnd);
    EXPECT_EQ(tokens.Operator(), Base::kNotOperator);
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "(null)");
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsUpperString), "(null)");
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsRawString), "(null)");
    EXPECT_EQ(tokens.AsNumber(), 0.0);
    EXPECT_EQ(tokens.Column(), 0);
    EXPECT_EQ(tokens.CompareAsUpperString("", 0), -1);
    EXPECT_EQ(tokens.DupToken(), nullptr);
    EXPECT_EQ(tokens.VarNameCategory(), 0);
    std::ostringstream out;
    tokens.Print(out);
    EXPECT_EQ(out.str(), "");
}

TEST(TokenSequenceDeathTest, LineNumberNeedsACurrentToken) {
    const ZELKTokenSequence tokens("", false, 0);
    EXPECT_DEATH(static_cast<void>(tokens.LineNumber()),
                 "Assertion failed: m_pImp->m_curr < m_pImp->m_tokenVec.Count\\(\\), function "
                 "LineNumber, source unit .*ctables/recastor/zelktokensequence\n");
}

TEST_F(TokenSequence, TextsOfEveryKindOfToken) {
    ZELKTokenSequence tokens("aB 1.50 <> 'It''s' !x", false, 0);
    struct Texts {
        std::string text;
        std::string upper;
        std::string raw;
    };
    for (const auto& [text, upper, raw] : std::vector<Texts>{
             {"aB", "AB", "aB"},
             {"1.50", "1.50", "1.50"},
             {"<>", "<>", "<>"},
             {"It's", "It's", "'It''s' "},
             {"!x", "!X", "!x"},
         }) {
        ASSERT_TRUE(tokens.Next());
        EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), text);
        EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsUpperString), upper);
        EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsRawString), raw);
    }
}

TEST_F(TokenSequence, EmptyLiteralHasATextOfNoLength) {
    const ZELKTokenSequence tokens("''", false, 0);
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsString), "");
    EXPECT_EQ(Text(tokens, &ZELKTokenSequence::AsRawString), "''");
}

TEST_F(TokenSequence, NumbersAndOperatorsOfTheCurrentToken) {
    ZELKTokenSequence tokens("2.5 NE", false, 0);
    tokens.Next();
    EXPECT_EQ(tokens.Type(), Base::kNumber);
    EXPECT_EQ(tokens.AsNumber(), 2.5);
    tokens.Next();
    EXPECT_EQ(tokens.AsNumber(), 0.0);
    EXPECT_EQ(tokens.Operator(), Base::kNotEqual);
}

TEST_F(TokenSequence, PlaceOfTheCurrentToken) {
    ZELKTokenSequence tokens("a\n\n  b", false, 0);
    tokens.Next();
    tokens.Next();
    EXPECT_EQ(tokens.LineNumber(), 3);
    EXPECT_EQ(tokens.Column(), 2);
}

TEST_F(TokenSequence, PrintsTheCurrentTokenWithoutIndent) {
    ZELKTokenSequence tokens("a by", false, 0);
    tokens.Next();
    tokens.Next();
    std::ostringstream out;
    tokens.Print(out);
    EXPECT_EQ(out.str(), "kString\t1:3\tkBy\tby\n");
}

TEST_F(TokenSequence, DuplicatedTokenOutlivesTheSequence) {
    auto tokens = std::make_unique<ZELKTokenSequence>("abc", false, 0);
    const std::unique_ptr<ZELKToken> token(tokens->DupToken());
    tokens.reset();
    EXPECT_EQ(token->AsString(false), "ABC");
}

TEST_F(TokenSequence, TakenTokenOutlivesTheSequenceWhichGoesOnBehindIt) {
    auto tokens = std::make_unique<ZELKTokenSequence>("abc /", false, 0);
    tokens->Next();
    const std::unique_ptr<ZELKToken> token(tokens->TakeToken());
    EXPECT_EQ(tokens->Tell(), 0U);
    EXPECT_EQ(tokens->Size(), 2U);
    ASSERT_TRUE(tokens->Next());
    EXPECT_EQ(tokens->Operator(), Base::kSlash);
    EXPECT_FALSE(tokens->Next());
    EXPECT_EQ(tokens->TakeToken(), nullptr);
    tokens.reset();
    EXPECT_EQ(token->AsString(false), "ABC");
}

TEST(TokenSequenceDeathTest, TakenTokenIsNotReadAgain) {
    ZELKTokenSequence tokens("abc", false, 0);
    tokens.Next();
    delete tokens.TakeToken();
    tokens.Seek(0);
    EXPECT_DEATH(tokens.Next(), "token != nullptr");
}

TEST_F(TokenSequence, ComparesTheUpperCasedText) {
    const ZELKTokenSequence tokens("tab", false, 0);
    EXPECT_EQ(tokens.CompareAsUpperString("TABLES", 3), 0);
    EXPECT_NE(tokens.CompareAsUpperString("TABLES", 0), 0);
    EXPECT_EQ(tokens.CompareAsUpperString("TAB", 0), 0);
    EXPECT_NE(tokens.CompareAsUpperString("tab", 0), 0);
}

TEST_F(TokenSequence, CategoryOfAVariableName) {
    struct Row {
        std::string text;
        int category;
    };
    for (const auto& [text, category] : std::vector<Row>{
             {"age", 1},
             {"\u00E9t\u00E9", 1},
             {"#tmp", 2},
             {"$sysmis", 3},
             {"by", 0},
             {"5", 0},
             {"'age'", 0},
             {"+", 0},
             {"!x", 0},
             {std::string(64, 'x'), 1},
             {std::string(65, 'x'), 0},
         }) {
        EXPECT_EQ(ZELKTokenSequence(text, false, 0).VarNameCategory(), category) << text;
    }
}

TEST_F(TokenSequence, TypeOfCommandIsToldByItsFirstWords) {
    struct Row {
        std::string text;
        CommandKind kind;
    };
    for (const auto& [text, kind] : std::vector<Row>{
             {"FREQ x", kOrdinaryCommand},
             {"", kOrdinaryCommand},
             {"* x", kCommentCommand},
             {"compute x", kCommentCommand},
             {"DOCUMENT x", kDocumentCommand},
             {"begin data", kInlineDataCommand},
             {"begin gpl", kOrdinaryCommand},
             {"begin", kOrdinaryCommand},
         }) {
        EXPECT_EQ(ZELKTokenSequence(text, false, 0).TypeOfCommand(), kind) << text;
        EXPECT_EQ(ZELKTokenSequence(text, false, kTokensThatTellTheKind).TypeOfCommand(), kind);
    }
}

TEST_F(TokenSequence, ErrorLeavesTheConstructor) {
    try {
        const ZELKTokenSequence tokens("a\n`", false, 0);
        FAIL() << "no error";
    } catch (const ParseError& error) {
        EXPECT_EQ(error.GetErrorID(), ParseError::kInvalidCharacter);
    }
}

TEST_F(TokenSequence, NulByteIsTheEndOfTheTokens) {
    EXPECT_EQ(ZELKTokenSequence(std::string("a b\0c '", 7), false, 0).Size(), 2U);
}

TEST_F(TokenSequence, ForwardsToTheCommandBoundaries) {
    EXPECT_EQ(ZELKTokenSequence::FindEndOfCommand("'a.b'.\n", false), 5);
    EXPECT_EQ(ZELKTokenSequence::FindEndOfCommand("it's.\n", true), 4);
    EXPECT_EQ(ZELKTokenSequence::FindEndOfCommand(std::string("a. \0\n", 5), false), -1);
    EXPECT_TRUE(ZELKTokenSequence::IsEndData("end data.\n"));
    EXPECT_FALSE(ZELKTokenSequence::IsEndData(" end data.\n"));
}

} // namespace

} // namespace recastor
