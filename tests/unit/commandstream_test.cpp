// The commands of a file: `kind@line "text"` each, a line feed in the text shown as "|" and a
// carriage return as "^".

#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/parseerror.h"
#include "tests/support/textlocale.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;

std::string Shown(const std::string& text) {
    std::string shown;
    for (const char c : text) {
        shown += c == '\n' ? '|' : c == '\r' ? '^' : c == '\0' ? '0' : c;
    }
    return shown;
}

/// The commands of the file; the error that ends them last, as `error id@line:column`.
std::string Commands(const std::string& file, bool batch) {
    std::istringstream input(file);
    CommandStream stream(input, batch);
    std::string commands;
    try {
        while (!stream.NextCommand()) {
            commands += (commands.empty() ? "" : " ") + std::to_string(stream.TypeOfCommand()) +
                        '@' + std::to_string(stream.FirstLineNumber()) + " \"" +
                        Shown(stream.CommandString()) + '"';
        }
    } catch (const ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        commands += (commands.empty() ? "error " : " error ") + std::to_string(error.GetErrorID()) +
                    '@' + std::to_string(line) + ':' + std::to_string(column);
    }
    return commands;
}

struct Row {
    std::string file;
    std::string commands;
};

void ExpectCommands(const std::vector<Row>& rows, bool batch = false) {
    for (const auto& [file, commands] : rows) {
        SCOPED_TRACE(Shown(file));
        EXPECT_EQ(Commands(file, batch), commands);
    }
}

class Stream : public Utf8Test {};
class BatchStream : public Utf8Test {};

TEST_F(Stream, FileOfBlankLinesHasNoCommand) {
    ExpectCommands({{"", ""}, {"\n", ""}, {" \t\n\r\n  ", ""}});
    ExpectCommands({{"", ""}, {"\n", ""}, {" \t\n\r\n  ", ""}}, true);
}

TEST_F(Stream, BehindTheLastCommandThereIsNothing) {
    std::istringstream input("x.\n");
    CommandStream stream(input, false);
    EXPECT_EQ(stream.FirstLineNumber(), 0);
    EXPECT_FALSE(stream.NextCommand());
    EXPECT_EQ(stream.FirstLineNumber(), 1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(stream.NextCommand());
        EXPECT_EQ(stream.CommandString(), "");
        EXPECT_EQ(stream.FirstLineNumber(), 0);
        EXPECT_EQ(stream.TypeOfCommand(), 0);
    }
}

TEST_F(Stream, LastCommandsKindIsForgotten) {
    std::istringstream input("* x.\n");
    CommandStream stream(input, false);
    stream.NextCommand();
    EXPECT_EQ(stream.TypeOfCommand(), 1);
    stream.NextCommand();
    EXPECT_EQ(stream.TypeOfCommand(), 0);
}

TEST_F(Stream, BlankLinesBeforeACommandCountInTheLineNumbers) {
    ExpectCommands({
        {"\n\nFREQ x.\n", "0@3 \"FREQ x|\""},
        {"a.\n\n \t\nb.\n", "0@1 \"a|\" 0@4 \"b|\""},
    });
}

TEST_F(Stream, PeriodBecomesALineFeed) {
    ExpectCommands({
        {"FREQ\n  x\n  y.\n", "0@1 \"FREQ|  x|  y|\""},
        {"a. \t\nb.\r\n", "0@1 \"a|\" 0@2 \"b|\""},
        {"a. /* c\nb.\n", "0@1 \"a|\" 0@2 \"b|\""},
        {"a..\n", "0@1 \"a.|\""},
        {".\n", "0@1 \"|\""},
    });
}

TEST_F(Stream, EmptyLinesInsideACommandStay) {
    ExpectCommands({{"a\n\n  \nb.\n", "0@1 \"a||  |b|\""}});
}

TEST_F(Stream, EachLineIsSearchedOnItsOwn) {
    ExpectCommands({
        {"a /* c\nb.\n", "0@1 \"a /* c|b|\""},
        {"a 'x'\n'y'.\n", "0@1 \"a 'x'|'y'|\""},
        {"a x. y\nb.\n", "0@1 \"a x. y|b|\""},
    });
}

TEST_F(Stream, LastCommandNeedsNoPeriod) {
    ExpectCommands({
        {"a.\nb\n", "0@1 \"a|\" 0@2 \"b|\""},
        {"a.\nb", "0@1 \"a|\" 0@2 \"b|\""},
        {"a.", "0@1 \"a|\""},
        {"a\n\n", "0@1 \"a||\""},
        {"* a", "1@1 \"* a|\""},
    });
}

TEST_F(Stream, CommentCommandsEndWithAPeriodAtTheEndOfALine) {
    ExpectCommands({
        {"* it's 1.5. x\n 'y.\nb.\n", "1@1 \"* it's 1.5. x| 'y|\" 0@3 \"b|\""},
        {"COMMENT /* x.\nb.\n", "1@1 \"COMMENT /* x|\" 0@2 \"b|\""},
        {"compute x = 'a.\nb.\n", "1@1 \"compute x = 'a|\" 0@2 \"b|\""},
        {"DOCUMENT it's.\nb.\n", "2@1 \"DOCUMENT it's|\" 0@2 \"b|\""},
    });
}

TEST_F(Stream, DataBlockGoesThroughEndData) {
    ExpectCommands({
        {"BEGIN DATA\n1 x.\n\n'2\nEND DATA.\nb.\n",
         "3@1 \"BEGIN DATA|1 x.||'2|END DATA.|\" 0@6 \"b|\""},
        {"begin data.\nend data and more\nb.\n", "3@1 \"begin data.|end data and more|\" 0@3 "
                                                 "\"b|\""},
        {"BEGIN DATA\n END DATA\nEND DATA\n", "3@1 \"BEGIN DATA| END DATA|END DATA|\""},
        {"BEGIN DATA\n1\n", "3@1 \"BEGIN DATA|1|\""},
        {"BEGIN\nDATA.\n1.\n", "0@1 \"BEGIN|DATA|\" 0@3 \"1|\""},
        {"BEGIN DATA END DATA\nEND DATA\n", "3@1 \"BEGIN DATA END DATA|END DATA|\""},
    });
}

TEST_F(Stream, DataBlockIsTheSameInBatchMode) {
    ExpectCommands({{"BEGIN DATA\n 1\nEND DATA\nb\n", "3@1 \"BEGIN DATA| 1|END DATA|\" 0@4 \"b|\""},
                    {"BEGIN DATA\n\n1\nEND DATA", "3@1 \"BEGIN DATA||1|END DATA|\""}},
                   true);
}

TEST_F(Stream, KindIsThatOfTheFirstLineWithAToken) {
    ExpectCommands({
        {"/* a\n* it's.\nb.\n", "1@1 \"/* a|* it's|\" 0@3 \"b|\""},
        {"/* a\n\n,\nBEGIN DATA\n1.\nEND DATA\n", "3@1 \"/* a||,|BEGIN DATA|1.|END DATA|\""},
        {"/* a\nx\n* y.\n", "0@1 \"/* a|x|* y|\""},
        {"/* a */\n* it's.\n", "error 1@2:8"},
    });
}

TEST_F(Stream, ByteOrderMarkIsLookedPastOnTheFirstLineOnly) {
    ExpectCommands({
        {"\xEF\xBB\xBF* it's.\nb.\n", "1@1 \"\xEF\xBB\xBF* it's|\" 0@2 \"b|\""},
        {"\xEF\xBB\xBF"
         "BEGIN DATA\n1\nEND DATA\n",
         "3@1 \"\xEF\xBB\xBF"
         "BEGIN DATA|1|END DATA|\""},
        {"\xEF\xBB\xBF.\nb.\n", "0@1 \"\xEF\xBB\xBF|\" 0@2 \"b|\""},
        {"\xEF\xBB\xBF\n* it's.\n", "1@1 \"\xEF\xBB\xBF|* it's|\""},
        {"\n\xEF\xBB\xBF* it.\n", "0@2 \"\xEF\xBB\xBF* it|\""},
    });
    ExpectCommands({{"\xEF\xBB\xBF"
                     "a.\n  \nb\n",
                     "0@1 \"\xEF\xBB\xBF"
                     "a|\" 0@3 \"b|\""}},
                   true);
}

TEST_F(Stream, QuoteAmongTheFirstWordsMayCloseLater) {
    ExpectCommands({
        {"'a'+\n'b'.\n", "0@1 \"'a'+|'b'|\""},
        {"/* x 'a\n'b'.\n", "0@1 \"/* x 'a|'b'|\""},
        {"x 'a\n", "error 1@1:5"},
        {"'a\nb.\n", "error 1@1:3"},
    });
}

TEST_F(Stream, ErrorsHaveTheLineOfTheFile) {
    ExpectCommands({
        {"\na.\n\nTITLE 'b\n", "0@2 \"a|\" error 1@4:9"},
        {"a\n  'b\n", "error 1@2:5"},
        {"a.\nb 1e\n", "0@1 \"a|\" error 2@2:5"},
        {"a.\n 0x1\n", "0@1 \"a|\" error 3@2:2"},
        {"/* x\n`.\n", "error 4@2:1"},
        {"\xEF\xBB\xBFx `\n", "error 4@1:3"},
        {"\xEF\xBB\xBFx y 'z\n", "error 1@1:7"},
    });
    // What stands behind the first two tokens is not tokenized here.
    ExpectCommands({{"a b `.\n", "0@1 \"a b `|\""}, {"a\n`.\n", "0@1 \"a|`|\""}});
}

TEST_F(Stream, CarriageReturnsStayBeforeLineFeedsAndEndLinesAlone) {
    ExpectCommands({
        {"a\r\n b.\r\nc\r\n", "0@1 \"a^| b|\" 0@3 \"c^|\""},
        {"a\r b.\rc.\r", "0@1 \"a| b|\" 0@3 \"c|\""},
    });
}

TEST_F(Stream, NulByteHidesThePeriodOfItsLineAndIsKept) {
    ExpectCommands({
        {"a \0.\nb.\n"s, "0@1 \"a 0.|b|\""},
        {"a.\0\nb.\n"s, "0@1 \"a.0|b|\""},
        {"* a.\0\nb.\n"s, "1@1 \"* a.0|b|\""},
    });
}

TEST_F(BatchStream, LineThatBeginsWithABlankContinues) {
    ExpectCommands({{"FREQ A\n  /STATS ALL\nDESC B\n", "0@1 \"FREQ A|  /STATS ALL|\" 0@3 "
                                                       "\"DESC B|\""},
                    {"a\n\tb\n", "0@1 \"a|\" 0@2 \"\tb|\""},
                    {" a\n b\nc\n", "0@1 \" a| b|\" 0@3 \"c|\""}},
                   true);
}

TEST_F(BatchStream, PeriodOfTheLastLineBecomesALineFeed) {
    ExpectCommands({{"a.\nb. \nc. /* d\n", "0@1 \"a|\" 0@2 \"b|\" 0@3 \"c|\""},
                    {"a.\n b.\n", "0@1 \"a.| b|\""},
                    {"a. b\nc\n", "0@1 \"a. b|\" 0@2 \"c|\""},
                    {"a.", "0@1 \"a|\""}},
                   true);
}

TEST_F(BatchStream, BlankLineEndsACommandWhenItIsEmpty) {
    ExpectCommands({{"a\n\n b\n", "0@1 \"a|\" 0@3 \" b|\""}}, true);
}

TEST_F(BatchStream, LinesOfBlanksAreLookedPastForThePeriod) {
    ExpectCommands({{"a.\n  \n   \nb\n", "0@1 \"a|\" 0@4 \"b|\""},
                    {"a\n  b. \n  \nc\n", "0@1 \"a|  b|\" 0@4 \"c|\""},
                    {"a.\n  \n  b.\n  ", "0@1 \"a.|  |  b|\""},
                    {"* it's.\n  \nb\n", "1@1 \"* it's|\" 0@3 \"b|\""}},
                   true);
}

TEST_F(BatchStream, LinesOfBlanksStayWithoutAPeriod) {
    ExpectCommands(
        {{"a\n  \n   \nb\n", "0@1 \"a|  |   |\" 0@4 \"b|\""}, {"a. b\n \n", "0@1 \"a. b| |\""}},
        true);
}

TEST_F(BatchStream, SignInTheFirstColumnBeginsACommand) {
    ExpectCommands({{"a\n+b\n-* it's\nc\n", "0@1 \"a|\" 0@2 \"+b|\" 1@3 \"-* it's|\" 0@4 \"c|\""}},
                   true);
}

TEST_F(BatchStream, ErrorsHaveTheLineInHandNotTheOneAhead) {
    ExpectCommands({{"a\nb 'c\nd\n", "0@1 \"a|\" error 1@2:5"},
                    {"a\n 'b\nd\n", "error 1@2:4"},
                    {"a 'b\n \n\nc\n", "error 1@1:5"},
                    {"a\nb 1e\n", "0@1 \"a|\" error 2@2:5"}},
                   true);
}

TEST_F(BatchStream, OnlyTheLastLineIsSearchedForQuotes) {
    ExpectCommands({{"a 'b\n c\n", "0@1 \"a 'b| c|\""}}, true);
}

} // namespace

} // namespace recastor
