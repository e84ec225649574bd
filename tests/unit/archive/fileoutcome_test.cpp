// How much of an outcome needs a look.

#include "archive/outcome/fileoutcome.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(OutcomeCounts, FileCountsOnceByItsStatus) {
    FileOutcome outcome;
    const auto countOf = [&](FileStatus status, std::uint64_t OutcomeCounts::*count) {
        outcome.status = status;
        const OutcomeCounts counts = CountsOf(outcome);
        const auto all = counts.filesConverted + counts.filesIncomplete + counts.filesFailed +
                         counts.filesSkipped;
        return counts.files == 1 && all == 1 && counts.*count == 1;
    };
    EXPECT_TRUE(countOf(FileStatus::kCopied, &OutcomeCounts::filesConverted));
    EXPECT_TRUE(countOf(FileStatus::kConverted, &OutcomeCounts::filesConverted));
    EXPECT_TRUE(countOf(FileStatus::kIncomplete, &OutcomeCounts::filesIncomplete));
    EXPECT_TRUE(countOf(FileStatus::kEnded, &OutcomeCounts::filesIncomplete));
    EXPECT_TRUE(countOf(FileStatus::kFailed, &OutcomeCounts::filesFailed));
    EXPECT_TRUE(countOf(FileStatus::kSkipped, &OutcomeCounts::filesSkipped));
}

TEST(OutcomeCounts, CommandsCountByWhatBecameOfThem) {
    FileOutcome outcome;
    outcome.copied = 7;
    outcome.notes = {"a note"};
    outcome.commands.resize(4);
    outcome.commands[0].kind = ReportedKind::kTables;
    outcome.commands[0].warnings = {"one", "two"};
    outcome.commands[1].kind = ReportedKind::kIgraph;
    outcome.commands[1].error = ConversionError{3, 4, "why"};
    outcome.commands[2].kind = ReportedKind::kComment;
    outcome.commands[2].missedLines = {5, 6};
    outcome.commands[3].kind = ReportedKind::kOther;
    outcome.commands[3].error = ConversionError{9, 1, "not a token"};
    const OutcomeCounts counts = CountsOf(outcome);
    EXPECT_EQ(counts.commandsConverted, 1U);
    EXPECT_EQ(counts.commandsNotConverted, 1U);
    EXPECT_EQ(counts.commandsCopied, 7U);
    EXPECT_EQ(counts.warnings, 3U);
    EXPECT_EQ(counts.missedLines, 2U);
}

TEST(OutcomeCounts, CountsOfManyFilesAddUp) {
    OutcomeCounts sum{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    sum += OutcomeCounts{10, 20, 30, 40, 50, 60, 70, 80, 90, 100};
    EXPECT_EQ(sum.files, 11U);
    EXPECT_EQ(sum.filesConverted, 22U);
    EXPECT_EQ(sum.filesIncomplete, 33U);
    EXPECT_EQ(sum.filesFailed, 44U);
    EXPECT_EQ(sum.filesSkipped, 55U);
    EXPECT_EQ(sum.commandsConverted, 66U);
    EXPECT_EQ(sum.commandsNotConverted, 77U);
    EXPECT_EQ(sum.commandsCopied, 88U);
    EXPECT_EQ(sum.warnings, 99U);
    EXPECT_EQ(sum.missedLines, 110U);
}

} // namespace

} // namespace recastor
