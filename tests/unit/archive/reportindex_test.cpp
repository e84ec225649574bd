#include "archive/report/reportassets.h"
#include "archive/report/reportindex.h"

#include <nlohmann/json.hpp>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;
using testing::Not;

TEST(ReportIndex, CarriesHeadingFilesAndTotals) {
    std::ostringstream page;
    ReportIndex index(page);
    FileOutcome copied;
    copied.path = "<b>";
    copied.status = FileStatus::kCopied;
    copied.copied = 7;
    copied.sourceSize = 99;
    FileOutcome ended;
    ended.path = "c";
    ended.status = FileStatus::kEnded;
    ended.message = "m";
    CommandOutcome& command = ended.commands.emplace_back();
    command.kind = ReportedKind::kIgraph;
    command.warnings = {"w", "w"};
    command.missedLines = {1};
    index.Add(copied);
    index.Add(ended);
    OutcomeCounts totals = CountsOf(copied);
    totals += CountsOf(ended);
    index.End({{"Source", "<a>"}, {"Target", "b"}}, totals);

    const std::string text = page.str();
    EXPECT_THAT(text, Not(HasSubstr("<b>")));
    const std::string start = R"(id="report">)";
    const std::size_t begin = text.find(start) + start.size();
    const auto data =
        nlohmann::json::parse(text.substr(begin, text.find("</script>", begin) - begin));
    EXPECT_EQ(data, nlohmann::json::parse(R"({
        "heading": {"Source": "<a>", "Target": "b"},
        "files": [["<b>", "", "copied", 0, 0, 7, 0, 0, 99, ""],
                  ["c", "files/8c40219a46b9f81b.html", "ended", 1, 0, 0, 2, 1, 0, "m"]],
        "totals": {"files": 2, "filesConverted": 1, "filesIncomplete": 1, "filesFailed": 0,
                   "filesSkipped": 0, "commandsConverted": 1, "commandsNotConverted": 0,
                   "commandsCopied": 7, "warnings": 2, "missedLines": 1}})"));
}

TEST(ReportIndex, HoldsAllItNeeds) {
    std::ostringstream page;
    ReportIndex(page).End({}, {});
    EXPECT_THAT(page.str(), HasSubstr(ReportAsset("index.js")));
    EXPECT_THAT(page.str(), HasSubstr(ReportAsset("report.css")));
    EXPECT_THAT(page.str(), Not(HasSubstr(" src=")));
    EXPECT_THAT(page.str(), Not(HasSubstr("<link")));
}

TEST(ReportAssets, AreThereAndEndNoScriptElement) {
    for (const char* name : {"file.js", "index.js", "report.css"}) {
        EXPECT_FALSE(ReportAsset(name).empty()) << name;
        EXPECT_EQ(ReportAsset(name).find("</script"), std::string_view::npos) << name;
    }
}

} // namespace

} // namespace recastor
