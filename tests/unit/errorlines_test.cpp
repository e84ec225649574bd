#include "ctables/recastor/errorlines.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/run.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct Row {
    int id;
    const char* text;
};

TEST(TokenErrorLines, TellPlaceAndReason) {
    for (const auto& [id, text] : {
             Row{1, "Literal unclosed at the end of a line or command"},
             Row{2, "Number has a trailing E[+|-] but no digits after that."},
             Row{3, "Invalid or out-of-range number"},
             Row{4, "Encountered a character that is not valid in Quantix syntax."},
         }) {
        std::string first = "old";
        std::string second = "old";
        GetParseErrorStrings({12, 34, static_cast<ParseError::ErrorID>(id)}, first, second);
        EXPECT_EQ(first, "Error while tokenizing input syntax file. Line 12, column 34.");
        EXPECT_EQ(second, text);
    }
}

TEST(TokenErrorLines, AreEmptyWithoutAnError) {
    std::string first = "old";
    std::string second = "old";
    GetParseErrorStrings({12, 34, ParseError::kNoError}, first, second);
    EXPECT_EQ(first + second, "");
}

TEST(TokenErrorLines, LinesMayExceedThirtyTwoBits) {
    ParseError error(5'000'000'000, 0, ParseError::kInvalidNumber);
    error.IncrementLine(5'000'000'000);
    std::string first;
    std::string second;
    GetParseErrorStrings(error, first, second);
    EXPECT_EQ(first, "Error while tokenizing input syntax file. Line 10000000000, column 0.");
}

TEST(TokenErrorLines, ErrorInLineSevenOfTheFileIsToldWithLineSeven) {
    std::string file;
    for (int line = 1; line < 7; ++line) {
        file += "FREQUENCIES x.\n";
    }
    const TextResult result = RunOnText(file + "TITLE 'abc\nLIST.\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.ends_with(
        "\n***** Error while tokenizing input syntax file. Line 7, column 11.\n"
        "***** Literal unclosed at the end of a line or command.\n"))
        << result.output;
}

TEST(ErrorLine, BeginsWithFiveAsterisksAndEndsWithAPeriod) {
    std::ostringstream output;
    PrintErrorLine("with one.", output);
    PrintErrorLine("without one", output);
    EXPECT_EQ(output.str(), "***** with one.\n***** without one.\n");
}

TEST(ParseErrorLines, TellFilePlaceAndReason) {
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    for (const auto& [id, text] : {
             Row{1, "Unable to parse the syntax of the SORT subcommand."},
             Row{2, "TABLES commands using TO on the OBSERVATION subcommand cannot be converted."},
             Row{3, "The table expression contains a word in parentheses that is not a keyword or "
                    "variable name."},
             Row{4, "Invalid TABLES command syntax."},
             Row{5, "Unrecognized summary function nAme."},
             Row{6, "Unrecognized function nAme on SORT subcommand."},
             Row{7, "Total variable wrongly associates with nAme on TABLE subcommand."},
             Row{8, "Following total nAme on a TABLE subcommand does not follow anything."},
             Row{9, "Preceding total nAme on a TABLE subcommand does not precede anything."},
             Row{10, "Total variable nAme does not stack with anything."},
             Row{11, "Total variable nAme stacks with a scale variable."},
             Row{12, "The table expression that begins with nAme multiplies out to too many "
                     "variables."},
         }) {
        command.Reset(nullptr);
        command.SetParseError({2, 0, 3, 5}, TB_SORT, static_cast<TbTrTablesCommand::ErrorType>(id));
        command.SetParseErrorString("nAme");
        std::ostringstream output;
        PrintParseOrTranslateError(output, 9);
        EXPECT_EQ(output.str(), "***** Error while parsing or translating input syntax file. "
                                "Line 11, column 1.\n***** " +
                                    std::string(text) + '\n');
    }
    command.Reset(nullptr);
}

TEST(ParseErrorLines, AreNotWrittenWithoutAnError) {
    TbTrTablesCommand::g_tablesCommand.Reset(nullptr);
    std::ostringstream output;
    PrintParseOrTranslateError(output, 9);
    EXPECT_EQ(output.str(), "");
}

TEST(ErrorLinesDeathTest, UnknownErrorsAreInternalErrors) {
    std::string first;
    std::string second;
    EXPECT_DEATH(GetParseErrorStrings({1, 1, static_cast<ParseError::ErrorID>(5)}, first, second),
                 "Assertion failed");
    std::ostringstream output;
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    command.SetParseError({}, 0, static_cast<TbTrTablesCommand::ErrorType>(13));
    EXPECT_DEATH(PrintParseOrTranslateError(output, 0), "Assertion failed");
    command.Reset(nullptr);
}

} // namespace

} // namespace recastor
