// What is written down of a file's commands.

#include "archive/tree/outcomerecorder.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/recastor.h"
#include "tests/support/run.h"
#include "tests/support/textlocale.h"

#include <sstream>

#include <gtest/gtest.h>

namespace recastor {

namespace {

class Recorder : public Utf8Test {
protected:
    static FileOutcome Record(const std::string& file, bool batch = false) {
        FileOutcome outcome;
        const TextShower shower("UTF-8");
        OutcomeRecorder recorder(outcome, shower);
        std::istringstream input(file);
        std::ostringstream output;
        CommandStream commands(input, batch);
        const CapturedStreams streams;
        ConvertCommands(commands, batch, output, recorder);
        return outcome;
    }
};

TEST_F(Recorder, ConvertedCommandHasBothFormsWithTheirPeriods) {
    const FileOutcome outcome = Record("FREQ x.\nTABLES\n /TABLE sex BY region.\n");
    ASSERT_EQ(outcome.commands.size(), 1U);
    const CommandOutcome& command = outcome.commands[0];
    EXPECT_EQ(command.kind, ReportedKind::kTables);
    EXPECT_EQ(command.firstLine, 2);
    EXPECT_EQ(command.lastLine, 3);
    EXPECT_EQ(command.oldText, "TABLES\n /TABLE sex BY region.");
    EXPECT_TRUE(command.newText.starts_with("CTABLES\n")) << command.newText;
    EXPECT_TRUE(command.newText.ends_with("/SLABELS VISIBLE=NO.")) << command.newText;
    EXPECT_FALSE(command.error);
    EXPECT_EQ(outcome.copied, 1U);
}

TEST_F(Recorder, FailedCommandHasItsOldFormAndItsError) {
    const FileOutcome outcome = Record("\nTABLES /TABLE.\nIGRAPH /X.\n");
    ASSERT_EQ(outcome.commands.size(), 2U);
    EXPECT_EQ(outcome.commands[0].oldText, "TABLES /TABLE.");
    EXPECT_EQ(outcome.commands[0].newText, "");
    EXPECT_EQ(outcome.commands[0].error->line, 2);
    EXPECT_EQ(outcome.commands[0].error->column, 9);
    EXPECT_EQ(outcome.commands[1].error->line, 0);
    EXPECT_EQ(outcome.commands[1].error->text,
              "IGRAPH syntax is not valid, and can't be converted!");
}

TEST_F(Recorder, ErrorThatEndsTheFileBelongsToItsCommand) {
    const FileOutcome inTables = Record("TABLES /TABLE x\n `.\nFREQ x.\n");
    ASSERT_EQ(inTables.commands.size(), 1U);
    EXPECT_EQ(inTables.commands[0].kind, ReportedKind::kTables);
    EXPECT_EQ(inTables.commands[0].error->line, 2);
    const FileOutcome inCopied = Record("FREQ x.\nx y `.\n");
    ASSERT_EQ(inCopied.commands.size(), 1U);
    EXPECT_EQ(inCopied.commands[0].kind, ReportedKind::kOther);
    EXPECT_EQ(inCopied.commands[0].firstLine, 2);
}

TEST_F(Recorder, ErrorInTextThatIsNoCommandYetStandsAlone) {
    const FileOutcome outcome = Record("TABLES /TABLE sex.\nTITLE\n 'a\n");
    ASSERT_EQ(outcome.commands.size(), 2U);
    EXPECT_FALSE(outcome.commands[0].error);
    EXPECT_EQ(outcome.commands[1].firstLine, 3);
    EXPECT_EQ(outcome.commands[1].error->text, "Literal unclosed at the end of a line or command");
}

TEST_F(Recorder, CopiedCommandsAreCountedAndThoseThatSwallowAreKept) {
    const FileOutcome outcome = Record("FREQ x.\n* a\nTABLES /TABLE x\n IGRAPH.\nDESC y.\n");
    EXPECT_EQ(outcome.copied, 3U);
    ASSERT_EQ(outcome.commands.size(), 1U);
    EXPECT_EQ(outcome.commands[0].kind, ReportedKind::kComment);
    EXPECT_EQ(outcome.commands[0].missedLines, (std::vector<std::int64_t>{3, 4}));
}

TEST_F(Recorder, ConvertedCommandsMaySwallowToo) {
    const FileOutcome outcome =
        Record("TABLES /TABLE a BY b. /* note */\nTABLES /TABLE c.\nTABLES /TABLE d.\n");
    ASSERT_EQ(outcome.commands.size(), 2U);
    EXPECT_EQ(outcome.commands[0].missedLines, std::vector<std::int64_t>{2});
    EXPECT_EQ(outcome.commands[1].missedLines, std::vector<std::int64_t>());
}

TEST_F(Recorder, LastLineOfABatchCommandIsThatOfItsText) {
    const FileOutcome outcome = Record("TABLES /TABLE sex\n BY region.\n \nFREQ x\n", true);
    ASSERT_EQ(outcome.commands.size(), 1U);
    EXPECT_EQ(outcome.commands[0].lastLine, 2);
}

TEST(SwallowedLines, BeginWithAWholeWordInAnyCaseBehindBlanks) {
    EXPECT_EQ(SwallowedLines("a\nTABLES\n tables /x\n\tIGRAPH\r\nTABLES/x\n", 10),
              (std::vector<std::int64_t>{11, 12, 13, 14}));
    EXPECT_EQ(SwallowedLines("TABLES\n", 1), std::vector<std::int64_t>());
    EXPECT_EQ(SwallowedLines("a\nTABLESX\nCTABLES\nTABLES_x\nTAB\n*TABLES\nx TABLES\n", 1),
              std::vector<std::int64_t>());
    EXPECT_EQ(SwallowedLines("", 1), std::vector<std::int64_t>());
}

} // namespace

} // namespace recastor
