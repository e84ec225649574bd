// One TABLES command from its tokens to the lines that replace it.

#include "ctables/recastor/recastor.h"
#include "tests/support/dump.h"
#include "tests/support/run.h"

#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// The lines of a text that begin with five asterisks, without them.
std::vector<std::string> Notes(const std::string& text) {
    const std::string mark = "***** ";
    std::vector<std::string> notes;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(mark)) {
            notes.push_back(line.substr(mark.size()));
        }
    }
    return notes;
}

/// What ParseTables writes, and what it says on standard output.
struct Conversion {
    std::string written;
    std::string said;
};

Conversion Convert(const std::string& command, std::int64_t lineOffset) {
    std::ostringstream output;
    testing::internal::CaptureStdout();
    ParseTables(TokensOf(command), output, lineOffset);
    std::cout.flush();
    return {output.str(), testing::internal::GetCapturedStdout()};
}

std::string ErrorAt(int line, int column) {
    return "Error while parsing or translating input syntax file. Line " + std::to_string(line) +
           ", column " + std::to_string(column) + ".";
}

TEST(ParseTables, FramesTheErrorOfACommand) {
    const Conversion conversion = Convert("TABLES\n  /TABLE a b", 11);
    EXPECT_EQ(conversion.written,
              "COMMENT -- Begin CTABLES command.\n"
              "***** Error while parsing or translating input syntax file. Line 13, column 4.\n"
              "***** Unable to parse the syntax of the TABLE subcommand.\n"
              "COMMENT -- End CTABLES command.\n");
    EXPECT_EQ(conversion.said, "Tables conversion failed!\n");
}

TEST(ParseTables, FramesWarningsAndTheNewCommand) {
    const Conversion conversion = Convert("TABLES /WRITE x /TABLE a", 0);
    EXPECT_THAT(conversion.written, StartsWith("COMMENT -- Begin CTABLES command.\n"
                                               "***** Obsolete subcommand WRITE has been ignored.\n"
                                               "CTABLES\n"));
    EXPECT_TRUE(conversion.written.ends_with(".\nCOMMENT -- End CTABLES command.\n"));
    EXPECT_EQ(conversion.said, "Tables conversion was successful!\n");
}

TEST(ParseTables, ArgumentErrorNamesTheSubcommandInFull) {
    struct Row {
        const char* command;
        int column;
        const char* keyword;
    };
    for (const auto& [command, column, keyword] : {
             Row{"TABLES /AUTOLABEL 5 /TABLE t", 10, "AUTOLABEL"},
             Row{"TABLES BAS 5 /TABLE t", 9, "BASE"},
             Row{"TABLES /GBASE 5 /TABLE t", 10, "GBASE"},
             Row{"TABLES /missing /TABLE t", 10, "MISSING"},
             Row{"TABLES /FTOTAL /TABLE t", 10, "FTOTAL"},
             Row{"TABLES /PTO 5 /TABLE t", 10, "PTOTAL"},
             Row{"TABLES /MRGROUP g /TABLE t", 10, "MRGROUP"},
             Row{"TABLES /MDGROUP g a /TABLE t", 10, "MDGROUP"},
             Row{"TABLES /observe 5 /TABLE t", 10, "OBSERVATION"},
             Row{"TABLES /TABLE t /CAPTION t", 19, "CAPTION"},
             Row{"TABLES /TABLE t /TITLE t", 19, "TITLE"},
             Row{"TABLES /TABLE t /CORNER t", 19, "CORNER"},
             Row{"TABLES /TABLE t /SORT", 19, "SORT"},
             Row{"TABLES /TABLE t /Stat 5", 19, "STATISTICS"},
             Row{"TABLES /tabulate 5", 10, "TABLE"},
         }) {
        SCOPED_TRACE(command);
        EXPECT_THAT(
            Notes(Convert(command, 0).written),
            ElementsAre(ErrorAt(1, column), std::string("Unable to parse the syntax of the ") +
                                                keyword + " subcommand."));
    }
}

TEST(ParseTables, OtherErrorsHaveTheirOwnTexts) {
    struct Row {
        const char* command;
        int line;
        int column;
        const char* text;
    };
    const char* const range =
        "TABLES commands using TO on the OBSERVATION subcommand cannot be converted.";
    const char* const word = "The table expression contains a word in parentheses that is not a "
                             "keyword or variable name.";
    const char* const syntax = "Invalid TABLES command syntax.";
    for (const auto& [command, line, column, text] : {
             Row{"TABLES /OBSERVATION a TO b /TABLE t", 1, 10, range},
             Row{"TABLES\n/OBSERVATION a TO b\n/TABLE t", 2, 2, range},
             Row{"TABLES /TABLE (!x)", 1, 16, word},
             Row{"TABLES\n /TABLE a BY\n (!x)", 3, 2, word},
             Row{"TABLES", 1, 2, syntax},
             Row{"TABLES /FTOTAL t", 1, 17, syntax},
             Row{"TABLES /SORT x /TABLE t", 1, 10, syntax},
             Row{"TABLES\n /TABLE t\n /BASE ALL", 3, 3, syntax},
         }) {
        SCOPED_TRACE(command);
        EXPECT_THAT(Notes(Convert(command, 0).written), ElementsAre(ErrorAt(line, column), text));
    }
}

TEST(ParseTables, ErrorsCarryTheLinesOfTheFile) {
    const std::string file = "GET FILE='a'.\n"             // 1
                             "TABLES /TABLE a b.\n"        // 2
                             "FREQUENCIES x\n"             // 3
                             "  y.\n"                      // 4
                             "* A remark.\n"               // 5
                             "TABLES\n"                    // 6
                             "  /FTOTAL t\n"               // 7
                             "  /SORT x.\n"                // 8
                             "TABLES /TABLE a.\n"          // 9
                             "TABLES\n"                    // 10
                             "/OBSERVATION a\n"            // 11
                             " TO b /TABLE c.\n"           // 12
                             "  TABLES /TABLE a + (!x).\n" // 13
                             "LIST.\n";                    // 14
    EXPECT_THAT(Notes(ConvertText(file)),
                ElementsAre(ErrorAt(2, 10), "Unable to parse the syntax of the TABLE subcommand.",
                            ErrorAt(8, 4), "Invalid TABLES command syntax.", ErrorAt(11, 2),
                            "TABLES commands using TO on the OBSERVATION subcommand cannot be "
                            "converted.",
                            ErrorAt(13, 22),
                            "The table expression contains a word in parentheses that is not a "
                            "keyword or variable name."));
}

TEST(ParseTables, ErrorAtColumnZeroOfTheSecondLineIsAtColumnOne) {
    std::string file;
    for (int line = 1; line < 10; ++line) {
        file += "FREQUENCIES x.\n";
    }
    EXPECT_THAT(Notes(ConvertText(file + "TABLES\nTABLE a b.\n")),
                ElementsAre(ErrorAt(11, 1), "Unable to parse the syntax of the TABLE subcommand."));
}

TEST(ParseTables, EveryWarningIsShownInItsPlaceInTheOrder) {
    EXPECT_THAT(Notes(ConvertTables("TABLES /BOXCHARS x /CONTINUED x /TFOOTNOTE x /FONTCHARS x\n"
                                    " /FORMAT=BOX /oDd 1 /TABLE a /FOOTNOTE x /INDEX x\n"
                                    " /PFOOTNOTE x /PTITLE x /WRITE x /\xC3\xBC"
                                    "ber x")),
                ElementsAre("Obsolete subcommand BOXCHARS has been ignored.",
                            "Obsolete subcommand CONTINUED has been ignored.",
                            "Obsolete subcommand TFOOTNOTE has been ignored.",
                            "Obsolete subcommand FONTCHARS has been ignored.",
                            "Obsolete form of the FORMAT subcommand has been ignored.",
                            "Unrecognized or obsolete subcommand oDd has been ignored.",
                            "Obsolete subcommand FOOTNOTE has been ignored.",
                            "Obsolete subcommand INDEX has been ignored.",
                            "Obsolete subcommand PFOOTNOTE has been ignored.",
                            "Obsolete subcommand PTITLE has been ignored.",
                            "Obsolete subcommand WRITE has been ignored.",
                            "Unrecognized or obsolete subcommand \xC3\xBC"
                            "ber has been ignored."));
}

TEST(ParseTables, WarningsOfACommandThatFailsAreNotShown) {
    EXPECT_THAT(Notes(ConvertTables("TABLES /WRITE x /FORMAT y /TABLE a b")),
                ElementsAre(ErrorAt(1, 29), "Unable to parse the syntax of the TABLE subcommand."));
    EXPECT_THAT(Notes(ConvertTables("TABLES /odd x /TABLE a /STATISTICS nosuch")),
                ElementsAre(ErrorAt(1, 37), "Unrecognized summary function nosuch."));
}

TEST(ParseTables, NothingOfACommandIsLeftForTheNextOne) {
    const std::string output = ConvertText("TABLES /WRITE x /BREAK BY z /TABLE a.\n"
                                           "TABLES /TABLE a b.\n"
                                           "TABLES /TABLE a.\n");
    EXPECT_THAT(Notes(output),
                ElementsAre("Obsolete subcommand WRITE has been ignored.", ErrorAt(2, 10),
                            "Unable to parse the syntax of the TABLE subcommand."));
    EXPECT_TRUE(
        output.ends_with(ConvertTables("TABLES /TABLE a") + "COMMENT -- End CTABLES command.\n"));
}

TEST(ParseTables, DroppedSubcommandsLeaveNoTrace) {
    const std::string plain = ConvertTables("TABLES /TABLE a BY b");
    EXPECT_THAT(Notes(plain), IsEmpty());
    EXPECT_EQ(ConvertTables("TABLES /FORMAT /TABLE a BY b"), plain);
    EXPECT_EQ(ConvertTables("TABLES /WRITE x /TABLE a BY b"),
              "***** Obsolete subcommand WRITE has been ignored.\n" + plain);
    EXPECT_EQ(ConvertTables("TABLES /FORMAT x /TABLE a BY b"),
              "***** Obsolete form of the FORMAT subcommand has been ignored.\n" + plain);
    EXPECT_EQ(ConvertTables("TABLES /TABLE a BY b /odd x"),
              "***** Unrecognized or obsolete subcommand odd has been ignored.\n" + plain);
}

TEST(ParseTables, RepeatedFormatSettingsCountOnce) {
    EXPECT_EQ(ConvertTables("TABLES /FORMAT BLANK BLANK /TABLE a"),
              ConvertTables("TABLES /FORMAT BLANK /TABLE a"));
    EXPECT_EQ(ConvertTables("TABLES /FORMAT ZERO ZERO /TABLE a"),
              ConvertTables("TABLES /FORMAT ZERO /TABLE a"));
    EXPECT_EQ(ConvertTables("TABLES /FORMAT MISSING('a') MISSING('b') /TABLE a"),
              ConvertTables("TABLES /FORMAT MISSING('b') /TABLE a"));
}

TEST(ParseTables, BreakIsWrittenIntoTheTablesBehindIt) {
    EXPECT_EQ(ConvertTables("TABLES /BREAK BY z /TABLE a"), ConvertTables("TABLES /TABLE a BY z"));
    EXPECT_EQ(ConvertTables("TABLES /TABLE a /BREAK BY z /TABLE b"),
              ConvertTables("TABLES /TABLE a /TABLE b BY z"));
}

} // namespace

} // namespace recastor
