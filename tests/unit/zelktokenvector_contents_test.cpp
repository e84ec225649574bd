// The vector of tokens as a container, and the matchers that fill it.

#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/zelktokenvector.h"
#include "tests/support/textlocale.h"
#include "tests/support/tokens.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The raw texts of the tokens.
std::string Texts(const ZELKTokenVector& tokens) {
    std::string texts;
    for (int i = 0; i < tokens.Count(); ++i) {
        texts += (i == 0 ? "" : " ") + tokens[i].AsString(true);
    }
    return texts;
}

class TokenVectorContents : public Utf8Test {};

TEST_F(TokenVectorContents, AppendedTokenIsACopy) {
    ZELKTokenVector tokens("a", false, 0);
    std::unique_ptr<ZELKToken> word(Word("b"));
    tokens << *word << *word;
    word.reset();
    EXPECT_EQ(Texts(tokens), "a b b");
}

TEST_F(TokenVectorContents, CopyHasTheTokensButNotTheCommandState) {
    ZELKTokenVector tokens("BEGIN DATA", false, 0);
    const ZELKTokenVector copy(tokens);
    EXPECT_EQ(Texts(copy), "BEGIN DATA");
    EXPECT_NE(&copy[0], &tokens[0]);
    EXPECT_EQ(tokens.TypeOfCommand(), kStateInlineData);
    EXPECT_EQ(copy.TypeOfCommand(), 0);
}

TEST_F(TokenVectorContents, AssignmentReplacesTheTokens) {
    const ZELKTokenVector source("a b c", false, 0);
    ZELKTokenVector target("x y", false, 0);
    target = source;
    EXPECT_EQ(Texts(target), "a b c");
    EXPECT_EQ(Texts(source), "a b c");
    EXPECT_NE(&target[0], &source[0]);
}

TEST_F(TokenVectorContents, AssignmentTakesTheCommandStateToo) {
    ZELKTokenVector target("* x", false, 0);
    target = ZELKTokenVector("BEGIN DATA", false, 0);
    EXPECT_EQ(target.TypeOfCommand(), kStateInlineData);
}

TEST_F(TokenVectorContents, AssignmentToItselfChangesNothing) {
    ZELKTokenVector tokens("a b", false, 0);
    const ZELKTokenVector& same = tokens;
    tokens = same;
    EXPECT_EQ(Texts(tokens), "a b");
}

TEST_F(TokenVectorContents, ClearingBehindAnIndexKeepsWhatIsUpToIt) {
    ZELKTokenVector tokens("a b c d", false, 0);
    tokens.ClearTokensAfterIndex(3);
    EXPECT_EQ(Texts(tokens), "a b c d");
    tokens.ClearTokensAfterIndex(100);
    EXPECT_EQ(Texts(tokens), "a b c d");
    tokens.ClearTokensAfterIndex(1);
    EXPECT_EQ(Texts(tokens), "a b");
    tokens.ClearTokensAfterIndex(0);
    EXPECT_EQ(Texts(tokens), "a");
}

TEST_F(TokenVectorContents, ClearingBehindMinusOneEmptiesWithoutDeleting) {
    ZELKTokenVector tokens("a b", false, 0);
    const ZELKToken& held = tokens[1];
    tokens.ClearTokensAfterIndex(-1);
    EXPECT_EQ(tokens.Count(), 0);
    EXPECT_EQ(held.AsString(true), "b");
}

TEST_F(TokenVectorContents, ClearingInFrontOfAnIndexTakesOutWithoutDeleting) {
    ZELKTokenVector tokens("a b c d", false, 0);
    tokens.ClearTokensBeforeIndex(0);
    tokens.ClearTokensBeforeIndex(-1);
    EXPECT_EQ(Texts(tokens), "a b c d");
    const ZELKToken& held = tokens[0];
    tokens.ClearTokensBeforeIndex(3);
    EXPECT_EQ(Texts(tokens), "d");
    EXPECT_EQ(held.AsString(true), "a");
    tokens.ClearTokensBeforeIndex(100);
    EXPECT_EQ(tokens.Count(), 0);
}

TEST_F(TokenVectorContents, AssignedVectorKeepsItsOldTokensAlive) {
    ZELKTokenVector tokens("a", false, 0);
    const ZELKToken& held = tokens[0];
    tokens = ZELKTokenVector("b", false, 0);
    EXPECT_EQ(Texts(tokens), "b");
    EXPECT_EQ(held.AsString(true), "a");
}

TEST(TokenVectorDeathTest, IndexMustBeBelowTheCount) {
    const ZELKTokenVector tokens("a b", false, 0);
    const std::string condition =
        "Assertion failed: 0 <= index && index < \\(int\\)m_TokVec.size\\(\\), function operator";
    EXPECT_DEATH(static_cast<void>(tokens[2]), condition);
    EXPECT_DEATH(static_cast<void>(tokens[-1]), condition);
}

class Matchers : public Utf8Test {
protected:
    using Matcher = bool (ZELKTokenVector::*)(MBCharPointer&, int);

    /// Runs a matcher behind two characters of the text, as on line 9.
    bool Match(const std::string& text, Matcher matcher) {
        m_text = text;
        MBCharPointer cursor(m_text.c_str());
        cursor.Next();
        cursor.Next();
        const bool matched = (m_tokens.*matcher)(cursor, 9);
        m_rest = cursor.Pointer();
        return matched;
    }
    const ZELKToken& Last() const { return m_tokens[m_tokens.Count() - 1]; }

    /// The place must be the first character's, and the token must end where the cursor stands.
    void ExpectToken(const std::string& raw, const std::string& rest) const {
        int line = 0;
        int column = 0;
        Last().StartLocation(line, column);
        EXPECT_EQ(line, 9);
        EXPECT_EQ(column, 3);
        EXPECT_EQ(Last().AsString(true), raw);
        EXPECT_EQ(m_rest, rest);
    }

    ZELKTokenVector m_tokens{nullptr, false, 0};
    std::string m_text;
    std::string m_rest;
};

TEST_F(Matchers, LiteralGetsItsValue) {
    EXPECT_TRUE(Match("\u00E9 'It''s' x", &ZELKTokenVector::MatchLiteral));
    ExpectToken("'It''s' ", "x");
    EXPECT_EQ(Last().Type(), TokenSequenceBase::kLiteral);
    EXPECT_EQ(Last().AsString(false), "It's");
}

TEST_F(Matchers, MacroTokenIsAnUpperCasedWord) {
    EXPECT_TRUE(Match("\u00E9 !ab'", &ZELKTokenVector::MatchMacroToken));
    ExpectToken("!ab", "'");
    EXPECT_EQ(Last().Type(), TokenSequenceBase::kString);
    EXPECT_EQ(Last().AsString(false), "!AB");
    EXPECT_EQ(Last().OpCode(), TokenSequenceBase::kNotOperator);
}

TEST_F(Matchers, NumberGetsItsValue) {
    EXPECT_TRUE(Match("\u00E9 1.50E1x", &ZELKTokenVector::MatchNumber));
    ExpectToken("1.50E1", "x");
    EXPECT_EQ(Last().Type(), TokenSequenceBase::kNumber);
    EXPECT_EQ(Last().AsNumber(), 15.0);
}

TEST_F(Matchers, OperatorGetsItsCode) {
    EXPECT_TRUE(Match("\u00E9 &**x", &ZELKTokenVector::MatchOperator));
    ExpectToken("&**", "x");
    EXPECT_EQ(Last().Type(), TokenSequenceBase::kOperator);
    EXPECT_EQ(Last().OpCode(), TokenSequenceBase::kElemPower);
}

TEST_F(Matchers, CommaIsSteppedOver) {
    EXPECT_TRUE(Match("\u00E9 ,x", &ZELKTokenVector::MatchOperator));
    EXPECT_EQ(m_tokens.Count(), 0);
    EXPECT_EQ(m_rest, "x");
}

TEST_F(Matchers, WordGetsItsCodeWhenItIsReserved) {
    EXPECT_TRUE(Match("\u00E9 with(", &ZELKTokenVector::MatchWord));
    ExpectToken("with", "(");
    EXPECT_EQ(Last().OpCode(), TokenSequenceBase::kWith);
    EXPECT_TRUE(Match("\u00E9 within(", &ZELKTokenVector::MatchWord));
    ExpectToken("within", "(");
    EXPECT_EQ(Last().OpCode(), TokenSequenceBase::kNotOperator);
}

TEST_F(Matchers, OthersLeaveTheCursorAndAppendNothing) {
    EXPECT_FALSE(Match("\u00E9 x", &ZELKTokenVector::MatchLiteral));
    EXPECT_FALSE(Match("\u00E9 x", &ZELKTokenVector::MatchMacroToken));
    EXPECT_FALSE(Match("\u00E9 x", &ZELKTokenVector::MatchNumber));
    EXPECT_FALSE(Match("\u00E9 x", &ZELKTokenVector::MatchOperator));
    EXPECT_EQ(m_rest, "x");
    EXPECT_FALSE(Match("\u00E9 5", &ZELKTokenVector::MatchWord));
    EXPECT_EQ(m_rest, "5");
    EXPECT_EQ(m_tokens.Count(), 0);
}

TEST_F(Matchers, ErrorsAppendNothing) {
    EXPECT_THROW(Match("  'x", &ZELKTokenVector::MatchLiteral), ParseError);
    EXPECT_THROW(Match("  1e", &ZELKTokenVector::MatchNumber), ParseError);
    EXPECT_THROW(Match("  0x1", &ZELKTokenVector::MatchNumber), ParseError);
    EXPECT_EQ(m_tokens.Count(), 0);
}

} // namespace

} // namespace recastor
