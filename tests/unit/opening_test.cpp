#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/opening.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/zelktokensequence.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

class OpeningOfCommand : public Utf8Test {};

struct OpeningRow {
    std::string text;
    int kind;
    std::string word; ///< empty when the text holds no token
};

TEST_F(OpeningOfCommand, IsToldByTheFirstTokens) {
    for (const OpeningRow& row : std::vector<OpeningRow>{
             {"LIST a\n", kOrdinaryCommand, "LIS"},
             {"tables /t=a\n", kOrdinaryCommand, "TAB"},
             {"ta\n", kOrdinaryCommand, "TA"},
             {"* it's\n", kCommentCommand, "*"},
             {"** it's\n", kCommentCommand, "*"},
             {"compute x=1\n", kCommentCommand, "COM"},
             {"Document it's\n", kDocumentCommand, "DOC"},
             {"begin data\n", kInlineDataCommand, "BEG"},
             {"begin data.\n", kInlineDataCommand, "BEG"},
             {"begin dat\n", kOrdinaryCommand, "BEG"},
             {"beginning data\n", kOrdinaryCommand, "BEG"},
             {"begin 'DATA'\n", kInlineDataCommand, "BEG"},
             {"begin\n", kOrdinaryCommand, "BEG"},
             {"'tables' a\n", kOrdinaryCommand, "tab"},
             {"/* a */\nLIST\n", kOrdinaryCommand, "/"},
             {", LIST\n", kOrdinaryCommand, "LIS"},
             {"t\xC3\xA4 a\n", kOrdinaryCommand, "T\xC3\xA4"},
             {"5 a\n", kOrdinaryCommand, "5"},
             {"!tab1 a\n", kOrdinaryCommand, "!TA"},
             {"!m\xC3\xA4 a\n", kOrdinaryCommand, "!M\xC3"},
             {"!* a\n", kOrdinaryCommand, "!*"},
             {"!12a\n", kOrdinaryCommand, "!12"},
             {"begin !data\n", kOrdinaryCommand, "BEG"},
         }) {
        SCOPED_TRACE(row.text);
        const Opening opening = ReadOpening(row.text, false);
        EXPECT_TRUE(opening.holdsToken);
        EXPECT_EQ(opening.kind, row.kind);
        EXPECT_EQ(opening.abbreviation, Abbreviation(row.word));
    }
}

TEST_F(OpeningOfCommand, IsWholeWhenNothingBehindTheTextCanChangeIt) {
    for (const std::string text : {"LIST a\n", "LIST / a\n", "BEGIN DATA.\n", "* a\n"}) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(ReadOpening(text, false).isWhole);
    }
    for (const std::string text : {"LIST\n", "BEGIN\n", "TITLE 'a'\n", ",\n", "t\xC3\xA4 a\n"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(ReadOpening(text, false).isWhole);
    }
}

TEST_F(OpeningOfCommand, MayHoldNoToken) {
    for (const std::string text : {"", "\n", ",\n", "/* a\n"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(ReadOpening(text, false).holdsToken);
    }
}

TEST_F(OpeningOfCommand, FaultyTokenIsAnErrorUpToTheSecond) {
    EXPECT_THROW(ReadOpening("` a\n", false), ParseError);
    EXPECT_THROW(ReadOpening("LIST `\n", false), ParseError);
    EXPECT_NO_THROW(ReadOpening("LIST a `\n", false));
}

TEST_F(OpeningOfCommand, BatchMarkIsSkipped) {
    EXPECT_EQ(ReadOpening("-LIST\n", true).abbreviation, Abbreviation("LIS"));
    EXPECT_EQ(ReadOpening("-LIST\n", false).abbreviation, Abbreviation("-"));
}

TEST(AbbreviationOfWord, ComparesThreeCharacters) {
    EXPECT_EQ(Abbreviation("TABLES"), Abbreviation("TABULATE"));
    EXPECT_EQ(Abbreviation("TAB"), Abbreviation("TABLES"));
    EXPECT_NE(Abbreviation("TA"), Abbreviation("TABLES"));
    EXPECT_NE(Abbreviation("TAB"), Abbreviation("tab"));
    EXPECT_EQ(Abbreviation(""), 0U);
}

} // namespace

} // namespace recastor
