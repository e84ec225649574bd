// The conversion command by command: what is converted, what is copied, what ends the run.

#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/recastor.h"
#include "ctables/recastor/zelktokensequence.h"
#include "tests/support/run.h"
#include "tests/support/textlocale.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

const std::string kConverted = "COMMENT -- End commenting out TABLES command.\n"
                               "COMMENT -- Begin CTABLES command.\n"
                               "CTABLES\n"
                               "  /MRSETS COUNTDUPLICATES=YES\n"
                               "  /FORMAT EMPTY=BLANK\n"
                               "  /TABLE sex[C] BY region[C]\n"
                               "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
                               "  /SLABELS VISIBLE=NO.\n"
                               "COMMENT -- End CTABLES command.\n";
const std::string kBeginComment =
    "COMMENT -- Begin commenting out TABLES command to be converted to CTABLES.\n";
const std::string kNotATable =
    "***** Error while parsing or translating input syntax file. Line 1, column 10.\n"
    "***** Unable to parse the syntax of the TABLE subcommand.\n";

class Conversion : public Utf8Test {
protected:
    /// What the file's commands become, blank lines included.
    std::string Convert(const std::string& file, bool batch = false) {
        std::istringstream input(file);
        std::ostringstream output;
        CommandStream commands(input, batch);
        const CapturedStreams streams;
        m_finished = ConvertCommands(commands, batch, output);
        m_said = streams.Output();
        EXPECT_EQ(streams.Errors(), "");
        return output.str();
    }

    bool m_finished = false;
    std::string m_said;
};

TEST_F(Conversion, OtherCommandsAreCopied) {
    EXPECT_EQ(Convert("FREQ\n\n  x.\n\n* it's `.\nBEGIN DATA\n'1\nEND DATA\n"),
              "FREQ\n\n  x.\n* it's `.\nBEGIN DATA\n'1\nEND DATA.\n");
    EXPECT_TRUE(m_finished);
    EXPECT_EQ(m_said, "");
}

TEST_F(Conversion, TablesCommandIsShownAsACommentAndConverted) {
    EXPECT_EQ(Convert("TABLES /TABLE sex BY region.\n"),
              kBeginComment + " *TABLES /TABLE sex BY region\n *.\n" + kConverted);
    EXPECT_EQ(m_said, "Tables conversion was successful!\n");
    EXPECT_TRUE(m_finished);
}

TEST_F(Conversion, FirstThreeLettersInAnyCaseMakeATablesCommand) {
    for (const std::string word : {"TAB", "tables", "Tabl", "tabular", "TABLES.X"}) {
        EXPECT_EQ(Convert(word + " /TABLE sex BY region.\n"),
                  kBeginComment + " *" + word + " /TABLE sex BY region\n *.\n" + kConverted);
    }
    for (const std::string word : {"TA", "TBLES", "CTABLES", "!TABLES", "X TABLES"}) {
        EXPECT_EQ(Convert(word + " /TABLE sex BY region.\n"), word + " /TABLE sex BY region.\n");
    }
}

TEST_F(Conversion, SignInFrontOfABatchCommandIsNoPartOfIt) {
    for (const std::string sign : {"+", "-"}) {
        EXPECT_EQ(Convert(sign + "TABLES /TABLE sex BY region\n", true),
                  kBeginComment + " *" + sign + "TABLES /TABLE sex BY region\n *.\n" + kConverted);
    }
    EXPECT_EQ(Convert("+TABLES /TABLE sex.\n"), "+TABLES /TABLE sex.\n");
}

TEST_F(Conversion, CommandsOfAnotherKindAreNoCandidates) {
    for (const std::string text :
         {"COMMENT TABLES /TABLE sex.\n", "* TABLES.\n", "DOCUMENT TABLES.\n",
          "BEGIN DATA\nTABLES.\nEND DATA.\n", "/* a */ TABLES /TABLE sex.\n"}) {
        EXPECT_EQ(Convert(text), text);
    }
    EXPECT_EQ(m_said, "");
}

TEST_F(Conversion, IgraphCommandIsFramedToo) {
    const std::string output = Convert("igr /X.\nFREQ x.\n");
    EXPECT_TRUE(output.starts_with(
        "COMMENT -- Begin commenting out IGRAPH command to be converted to GGRAPH.\n"
        " *igr /X\n *.\n"
        "COMMENT -- End commenting out IGRAPH command.\n"
        "COMMENT -- Begin GGRAPH command.\n"))
        << output;
    EXPECT_TRUE(output.ends_with("COMMENT -- End GGRAPH command.\nFREQ x.\n")) << output;
    EXPECT_TRUE(m_finished);
}

TEST_F(Conversion, FailedTablesCommandLeavesTwoLinesAndTheRunGoesOn) {
    EXPECT_EQ(Convert("TABLES /TABLE.\nFREQ x.\n"),
              kBeginComment +
                  " *TABLES /TABLE\n *.\n"
                  "COMMENT -- End commenting out TABLES command.\n"
                  "COMMENT -- Begin CTABLES command.\n" +
                  kNotATable + "COMMENT -- End CTABLES command.\nFREQ x.\n");
    EXPECT_EQ(m_said, "Tables conversion failed!\n");
    EXPECT_TRUE(m_finished);
}

TEST_F(Conversion, PlaceInATablesCommandIsThatOfTheFile) {
    const std::string output =
        Convert(std::string(9, '\n') + "TABLES /TABLE x /STATISTICS\nnone.\n");
    EXPECT_NE(output.find("***** Error while parsing or translating input syntax file. Line 11, "
                          "column 1.\n***** Unrecognized summary function none.\n"),
              std::string::npos)
        << output;
}

TEST_F(Conversion, WarningsStandBeforeTheConvertedCommand) {
    const std::string output = Convert("TABLES /WRITE x /TABLE sex BY region.\n");
    EXPECT_NE(output.find("Begin CTABLES command.\n"
                          "***** Obsolete subcommand WRITE has been ignored.\nCTABLES\n"),
              std::string::npos)
        << output;
}

TEST_F(Conversion, ByteOrderMarkOfTheFileComesFirst) {
    EXPECT_EQ(Convert("\xEF\xBB\xBFTABLES /TABLE sex BY region.\n"),
              "\xEF\xBB\xBF" + kBeginComment + " *TABLES /TABLE sex BY region\n *.\n" + kConverted);
    EXPECT_EQ(Convert("\xEF\xBB\xBF"
                      "FREQ x.\n"),
              "\xEF\xBB\xBF"
              "FREQ x.\n");
}

TEST_F(Conversion, ByteOrderMarkFurtherDownIsLeftAlone) {
    EXPECT_EQ(Convert("FREQ x.\n\xEF\xBB\xBFTABLES /TABLE x.\n"),
              "FREQ x.\n\xEF\xBB\xBFTABLES /TABLE x.\n");
}

TEST_F(Conversion, ErrorInTheTokensEndsTheRunAtItsPlaceInTheFile) {
    struct Row {
        std::string file;
        std::string place;
        std::string reason;
    };
    for (const auto& [file, place, reason] : std::vector<Row>{
             {"TITLE 'a\n", "Line 2, column 9",
              "Literal unclosed at the end of a line or command."},
             {"x y\n  z 1e+.\n", "Line 3, column 7",
              "Number has a trailing E[+|-] but no digits after that."},
             {"x y 0x1A.\n", "Line 2, column 5", "Invalid or out-of-range number."},
             {"x y\n\n z `.\n", "Line 4, column 3",
              "Encountered a character that is not valid in Quantix syntax."},
             {"TABLES /TABLE x\n  `.\n", "Line 3, column 2",
              "Encountered a character that is not valid in Quantix syntax."},
         }) {
        EXPECT_EQ(Convert("FREQ x.\n" + file + "DESC y.\n"),
                  "FREQ x.\n***** Error while tokenizing input syntax file. " + place +
                      ".\n***** " + reason + '\n');
        EXPECT_FALSE(m_finished);
    }
}

TEST_F(Conversion, WhatWasConvertedBeforeAnErrorStays) {
    EXPECT_TRUE(Convert("TABLES /TABLE sex BY region.\nx `.\n").starts_with(kBeginComment));
    EXPECT_EQ(m_said, "Tables conversion was successful!\n");
    EXPECT_FALSE(m_finished);
}

TEST_F(Conversion, NoCommandsAreConvertedToNothing) {
    EXPECT_EQ(Convert(""), "");
    EXPECT_TRUE(m_finished);
}

TEST_F(Conversion, TablesAreParsedFromTheirTokens) {
    std::ostringstream output;
    const CapturedStreams streams;
    ParseTables(new ZELKTokenSequence("TABLES /TABLE sex BY region\n", false, 0), output, 0);
    EXPECT_EQ(output.str(), kConverted.substr(kConverted.find("COMMENT -- Begin")));
    output.str("");
    ParseTables(new ZELKTokenSequence("TABLES /TABLE\n", false, 0), output, 0);
    EXPECT_EQ(output.str(), "COMMENT -- Begin CTABLES command.\n" + kNotATable +
                                "COMMENT -- End CTABLES command.\n");
    EXPECT_EQ(streams.Output(), "Tables conversion was successful!\nTables conversion failed!\n");
}

} // namespace

} // namespace recastor
