// How far a run is, as a bar and as a line.

#include "archive/tree/progress.h"

#include <sstream>

#include <gtest/gtest.h>

namespace recastor {

namespace {

ProgressState Half() {
    ProgressState state;
    state.done = 50;
    state.total = 100;
    state.counts.commandsConverted = 7;
    state.counts.filesFailed = 1;
    state.counts.filesIncomplete = 2;
    state.seconds = 2;
    return state;
}

const std::string kHalf =
    "50 of 100 files, 7 commands converted, 3 failures, 25 files/s, 0:02 left";

TEST(ProgressLine, TellsWhatIsDoneAndWhatIsLeft) {
    EXPECT_EQ(ProgressLine(Half()), kHalf);
    ProgressState state = Half();
    state.total = 50 + 25 * 3723; // an hour, two minutes and three seconds at 25 files a second
    EXPECT_TRUE(ProgressLine(state).ends_with(", 1:02:03 left")) << ProgressLine(state);
}

TEST(ProgressLine, TellsNothingThatIsNotKnown) {
    ProgressState state;
    EXPECT_EQ(ProgressLine(state), "0 files, 0 commands converted, 0 failures, 0 files/s");
    state.done = 3;
    state.total = 2; // files came while the run went on
    state.seconds = 1;
    EXPECT_EQ(ProgressLine(state), "3 of 2 files, 0 commands converted, 0 failures, 3 files/s");
}

const std::string kShortHalf = "50/100 files, 7 converted, 3 failures, 25/s, 0:02 left";

TEST(ProgressBar, FillsTheWidthButForTheLastColumn) {
    const std::string bar = ProgressBar(Half(), 3 + kShortHalf.size() + 20 + 1);
    EXPECT_EQ(bar, "[##########          ] " + kShortHalf);
    ProgressState over = Half();
    over.done = 200;
    EXPECT_EQ(ProgressBar(over, 120).find(' '), ProgressBar(over, 120).find(']') + 1)
        << "never longer than full";
}

TEST(ProgressBar, HasRoomOnATerminalOf80Columns) {
    ProgressState state = Half();
    state.done = 5000;
    state.total = 10000;
    state.counts.commandsConverted = 100000;
    EXPECT_EQ(ProgressBar(state, 80),
              "[#####      ] 5000/10000 files, 100000 converted, 3 failures, 2500/s, 0:02 left");
}

TEST(ProgressBar, GivesWayToTheWordsOnANarrowTerminal) {
    EXPECT_EQ(ProgressBar(Half(), 40), kShortHalf.substr(0, 39));
    EXPECT_EQ(ProgressBar(Half(), 0), "");
}

TEST(Progress, TellsNothingBeforeItsTimeOrWhenQuiet) {
    std::ostringstream output;
    Progress(output, Progress::Form::kLines, 10).Tell(1, {});
    Progress quiet(output, Progress::Form::kNone, 10);
    quiet.Tell(1, {});
    quiet.Clear();
    EXPECT_EQ(output.str(), "");
}

} // namespace

} // namespace recastor
