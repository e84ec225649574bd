// An outcome as a line of JSON and back.

#include "archive/outcome/outcomejson.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

OutcomeRecord Sample() {
    OutcomeRecord record;
    FileOutcome& outcome = record.outcome;
    outcome.path = "a/\"\xFF\n.syn";
    outcome.status = FileStatus::kEnded;
    outcome.message = "a \"message\"\n<script>";
    outcome.notes = {"one", "two"};
    outcome.sourceSize = 1;
    outcome.targetSize = 2;
    outcome.modified = 951782400000000001;
    outcome.milliseconds = 0.5;
    outcome.contentHash = "00ff";
    outcome.encoding = "8-bit";
    outcome.copied = 3;
    outcome.commands.resize(2);
    outcome.commands[0].kind = ReportedKind::kTables;
    outcome.commands[0].firstLine = 4;
    outcome.commands[0].lastLine = 5;
    outcome.commands[0].warnings = {"w"};
    outcome.commands[1].kind = ReportedKind::kData;
    outcome.commands[1].missedLines = {7, 8};
    outcome.commands[1].error = ConversionError{9, 10, "why"};
    record.by = {"1.2.3", "batch, auto"};
    return record;
}

TEST(OutcomeLine, IsOneLineThatBeginsWithItsPath) {
    const std::string line = OutcomeLine(Sample());
    EXPECT_TRUE(line.starts_with(R"({"uri":"a/%22%FF%0A.syn","path":"a/\"\\xFF\\x0A.syn",)"))
        << line;
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(PathOfLine(line), Sample().outcome.path);
}

TEST(OutcomeLine, IsReadBackButForTextsAndPictures) {
    const auto record = ReadOutcomeLine(OutcomeLine(Sample()));
    ASSERT_TRUE(record);
    EXPECT_EQ(OutcomeLine(*record), OutcomeLine(Sample()));
    EXPECT_EQ(record->outcome.path, Sample().outcome.path);
    EXPECT_EQ(record->outcome.modified, Sample().outcome.modified);
    EXPECT_EQ(record->outcome.commands.at(1).error->column, 10);
    EXPECT_EQ(record->by.settings, "batch, auto");
}

TEST(OutcomeLine, ErrorWithoutAPlaceHasNoLine) {
    OutcomeRecord record = Sample();
    record.outcome.commands[1].error = ConversionError{0, 0, "why"};
    EXPECT_NE(OutcomeLine(record).find(R"("error":{"text":"why"})"), std::string::npos);
    EXPECT_EQ(ReadOutcomeLine(OutcomeLine(record))->outcome.commands[1].error->line, 0);
}

TEST(ReadOutcomeLine, OtherTextsAreNoRecords) {
    const std::string line = OutcomeLine(Sample());
    EXPECT_FALSE(ReadOutcomeLine(""));
    EXPECT_FALSE(ReadOutcomeLine("{}"));
    EXPECT_FALSE(ReadOutcomeLine("[1]"));
    for (std::size_t size = 0; size < line.size(); ++size) {
        EXPECT_FALSE(ReadOutcomeLine(line.substr(0, size))) << size;
    }
    std::string otherStatus = line;
    otherStatus.replace(otherStatus.find("\"ended\""), 7, "\"other\"");
    EXPECT_FALSE(ReadOutcomeLine(otherStatus));
}

TEST(PathOfLine, OtherTextsHaveNone) {
    EXPECT_EQ(PathOfLine(R"({"uri":"a.syn)"), std::nullopt);
    EXPECT_EQ(PathOfLine("a.syn"), std::nullopt);
    EXPECT_EQ(PathOfLine(R"({"uri":"a.syn"})"), "a.syn");
}

} // namespace

} // namespace recastor
