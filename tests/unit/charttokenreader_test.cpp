// The pieces that the language of charts is made of.

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/charttokenreader.h"
#include "tests/support/checkedtokens.h"
#include "tests/support/dump.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

constexpr Keyword<int> kWords[] = {{"LINEAR", 1}, {"CUBIC", 2}};
constexpr Keyword<int> kOptions[] = {{"LINE", 3}, {"METHOD", 4}};

/// A reader of a text of its own.
class Reading {
public:
    explicit Reading(const std::string& text) :
        m_tokens(TokensOf(text)), m_checked(*m_tokens), m_reader(m_checked) {}

    ChartTokenReader* operator->() { return &m_reader; }
    bool WasRight() const { return m_checked.WasReadRightly(); }

private:
    std::unique_ptr<ZELKTokenSequence> m_tokens;
    CheckedTokens m_checked;
    ChartTokenReader m_reader;
};

TEST(ChartTokenReader, IsAtTheEndOfNoTokens) {
    Reading reading("");
    EXPECT_TRUE(reading->AtEnd());
    EXPECT_FALSE(reading->HasFailed());
    reading->Skip();
    EXPECT_TRUE(reading.WasRight());
}

TEST(ChartTokenReader, EndsASubcommandAtASlashAndAtTheEnd) {
    Reading reading("a / b");
    EXPECT_FALSE(reading->AtSubcommandEnd());
    reading->Skip();
    EXPECT_TRUE(reading->AtSubcommandEnd());
    EXPECT_FALSE(reading->AtEnd());
    reading->Skip();
    reading->Skip();
    EXPECT_TRUE(reading->AtSubcommandEnd());
    EXPECT_TRUE(reading->AtEnd());
}

TEST(ChartTokenReader, StopsForGoodWhereItFails) {
    Reading reading("a 5 'b'");
    EXPECT_EQ(reading->Number(), 0);
    EXPECT_TRUE(reading->HasFailed());
    EXPECT_TRUE(reading->AtEnd());
    EXPECT_FALSE(reading->AtWord());
    EXPECT_FALSE(reading->Take(TokenSequenceBase::kSlash));
    EXPECT_EQ(reading->Number(), 0);
    EXPECT_TRUE(reading->Text().empty());
    EXPECT_EQ(reading->Variable().name, "");
    EXPECT_EQ(reading->Choice(kWords), 0);
    EXPECT_TRUE(reading.WasRight());
}

TEST(ChartTokenReader, TakesSymbolsButNoReservedWords) {
    Reading reading("= EQ");
    EXPECT_TRUE(reading->Take(TokenSequenceBase::kEquals));
    EXPECT_FALSE(reading->Take(TokenSequenceBase::kEquals));
    EXPECT_TRUE(reading->AtWord());
    reading->Expect(TokenSequenceBase::kEquals);
    EXPECT_TRUE(reading->HasFailed());
}

TEST(ChartTokenReader, ReadsNumbersWithOneSign) {
    Reading reading("5 -5 + .5 (6) (- 7)");
    EXPECT_EQ(reading->Number(), 5);
    EXPECT_EQ(reading->Number(), -5);
    EXPECT_EQ(reading->Number(), 0.5);
    EXPECT_EQ(reading->NumberOrInParentheses(), 6);
    EXPECT_EQ(reading->NumberOrInParentheses(), -7);
    EXPECT_TRUE(reading->AtEnd());
    EXPECT_FALSE(reading->HasFailed());
    for (const char* wrong : {"--5", "+-5", "-", "a", "'5'", "(5"}) {
        Reading other(wrong);
        other->NumberOrInParentheses();
        EXPECT_TRUE(other->HasFailed()) << wrong;
        EXPECT_TRUE(other.WasRight()) << wrong;
    }
}

TEST(ChartTokenReader, ReadsNamesInTheirFirstSpelling) {
    Reading reading("Age VAR(AGE) VAR var(age Sex) $Count");
    EXPECT_EQ(reading->Variable().name, "Age");
    EXPECT_EQ(reading->Variable().name, "Age");
    EXPECT_EQ(reading->Variable().name, "VAR");
    const auto listed = reading->VariableOrList();
    ASSERT_EQ(listed.size(), 2U);
    EXPECT_EQ(listed[0].name, "Age");
    EXPECT_EQ(listed[1].name, "Sex");
    EXPECT_EQ(reading->Variable().builtIn, BuiltIn::kCount);
    EXPECT_FALSE(reading->HasFailed());
}

TEST(ChartTokenReader, FindsWordsOfATableOnly) {
    Reading reading("cub method 5");
    EXPECT_EQ(reading->TakeKeyword(kOptions), nullptr);
    EXPECT_EQ(reading->Choice(kWords), 2);
    EXPECT_EQ(reading->TakeKeyword(kWords), nullptr);
    EXPECT_EQ(reading->Choice(kOptions), 4);
    EXPECT_EQ(reading->TakeKeyword(kOptions), nullptr);
    EXPECT_FALSE(reading->HasFailed());
}

TEST(ChartTokenReader, TakesTablesTriedAtOneWordForOnePlace) {
    Reading reading("lin");
    reading->OpenOptions(kOptions);
    EXPECT_EQ(reading->TakeKeywordBesideOptions(kWords), nullptr);
    EXPECT_EQ(reading->TakeKeyword(kOptions), nullptr);
    Reading other("meth lin");
    other->OpenOptions(kOptions);
    EXPECT_EQ(other->TakeKeywordBesideOptions(kWords), nullptr);
    EXPECT_EQ(other->Choice(kOptions), 4);
    EXPECT_EQ(other->Choice(kOptions), 3);
}

} // namespace

} // namespace recastor
