#include "archive/report/filepage.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;
using testing::Not;

/// The data that a page carries.
nlohmann::json DataOf(const std::string& page) {
    const std::string start = R"(<script type="application/json" id="report">)";
    const std::size_t begin = page.find(start) + start.size();
    return nlohmann::json::parse(page.substr(begin, page.find("</script>", begin) - begin));
}

FileOutcome OutcomeOf(const std::string& path) {
    FileOutcome outcome;
    outcome.path = path;
    outcome.status = FileStatus::kIncomplete;
    return outcome;
}

TEST(FilePageName, IsMadeOfThePathAlone) {
    // XXH3 with 64 bits, of the empty text and of "a".
    EXPECT_EQ(FilePageName(""), "files/2d06800538d394c2.html");
    EXPECT_EQ(FilePageName("a"), "files/e6c632b61e964e1f.html");
}

TEST(HasFilePage, WhereThereIsSomethingToShow) {
    FileOutcome outcome = OutcomeOf("a");
    EXPECT_FALSE(HasFilePage(outcome));
    outcome.notes = {"n"};
    EXPECT_TRUE(HasFilePage(outcome));
    outcome = OutcomeOf("a");
    outcome.message = "m";
    EXPECT_TRUE(HasFilePage(outcome));
    outcome = OutcomeOf("a");
    outcome.commands.emplace_back();
    EXPECT_TRUE(HasFilePage(outcome));
}

TEST(FilePage, CarriesTheOutcome) {
    FileOutcome outcome = OutcomeOf("a/b.syn");
    outcome.message = "m";
    outcome.notes = {"n"};
    outcome.sourceSize = 12;
    outcome.encoding = "UTF-8";
    outcome.copied = 3;
    CommandOutcome& command = outcome.commands.emplace_back();
    command.kind = ReportedKind::kTables;
    command.firstLine = 4;
    command.lastLine = 5;
    command.oldText = "TABLES";
    command.newText = "CTABLES";
    command.warnings = {"w"};
    command.error = ConversionError{4, 2, "e"};
    command.missedLines = {5};
    command.oldPicture = R"({"tables":[]})";
    EXPECT_EQ(DataOf(FilePage(outcome)), nlohmann::json::parse(R"({
        "path": "a/b.syn", "status": "incomplete", "message": "m", "notes": ["n"],
        "sourceSize": 12, "encoding": "UTF-8", "copied": 3,
        "commands": [{
            "kind": "tables", "firstLine": 4, "lastLine": 5, "oldText": "TABLES",
            "newText": "CTABLES", "warnings": ["w"],
            "error": {"line": 4, "column": 2, "text": "e"}, "missedLines": [5],
            "oldPicture": {"tables": []}, "newPicture": null, "chartSketch": null}]})"));
}

TEST(FilePage, MarkupInPathsAndTextsIsText) {
    FileOutcome outcome = OutcomeOf("<script>alert(1)</script>&\"");
    outcome.message = "</script><!--<b>";
    outcome.commands.emplace_back().oldText = "<script>";
    const std::string page = FilePage(outcome);
    EXPECT_THAT(page, HasSubstr("<title>&lt;script&gt;alert(1)&lt;/script&gt;&amp;&quot;</title>"));
    EXPECT_THAT(page, Not(HasSubstr("<script>")));
    EXPECT_THAT(page, Not(HasSubstr("<!--")));
    EXPECT_EQ(DataOf(page).at("path"), outcome.path);
    EXPECT_EQ(DataOf(page).at("message"), outcome.message);
}

TEST(FilePage, BytesThatCannotBeShownAreTold) {
    const std::string page = FilePage(OutcomeOf("\xFF\n.syn"));
    EXPECT_THAT(page, HasSubstr(R"(<title>\xFF\x0A.syn</title>)"));
    EXPECT_EQ(DataOf(page).at("path"), R"(\xFF\x0A.syn)");
}

} // namespace

} // namespace recastor
