// The HTML report of a run: what its pages hold. scripts/check-report tries them in a browser.

#include "tests/archive/archivetree.h"

#include <set>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

namespace {

nlohmann::json DataOf(const fs::path& page) {
    const std::string text = ReadFile(page);
    const std::string start = R"(<script type="application/json" id="report">)";
    const std::size_t begin = text.find(start) + start.size();
    return nlohmann::json::parse(text.substr(begin, text.find("</script>", begin) - begin));
}

class Pages : public ArchiveTree {
protected:
    Pages() {
        Put("copied.syn", "FREQ x.\n");
        Put("d/chart.syn", "IGRAPH /X1=a /Y=b /SCATTER.\n");
        Put("d/crash.syn", kCrash);
        Put("d/table.syn", kTable);
        Put("d/wrong.syn", kWrongTable);
        Put("<script>alert(1)</script>.syn", kTable);
    }

    nlohmann::json Index(const fs::path& report) const { return DataOf(report / "index.html"); }

    /// The row of a file in the list.
    nlohmann::json Row(const std::string& path) const {
        const nlohmann::json index = Index(m_report);
        for (const auto& row : index.at("files")) {
            if (row.at(0) == path) {
                return row;
            }
        }
        return {};
    }

    fs::path PageOf(const std::string& path) const {
        return m_report / Row(path).at(1).get<std::string>();
    }
};

TEST_F(Pages, ListHasEveryFileAndTheTotals) {
    Run();
    const nlohmann::json index = Index(m_report);
    EXPECT_EQ(index.at("files").size(), 6U);
    EXPECT_EQ(index.at("totals").at("commandsConverted"), 3);
    EXPECT_EQ(index.at("heading").at("Source"), m_source.string());
    EXPECT_TRUE(index.at("heading").contains("Finished"));
    EXPECT_EQ(Row("d/crash.syn").at(2), "failed");
    EXPECT_EQ(Row("d/wrong.syn").at(4), 1);
}

TEST_F(Pages, FilesWithSomethingToShowHaveOneAndNoOthers) {
    Run();
    std::set<fs::path> linked;
    const nlohmann::json index = Index(m_report);
    for (const auto& row : index.at("files")) {
        if (!row.at(1).get<std::string>().empty()) {
            linked.insert(m_report / row.at(1).get<std::string>());
        }
    }
    std::set<fs::path> found;
    for (const auto& entry : fs::directory_iterator(m_report / "files")) {
        found.insert(entry.path());
    }
    EXPECT_EQ(found, linked);
    EXPECT_EQ(found.size(), 5U);
    EXPECT_TRUE(fs::exists(m_report / "assets/file.js"));
    EXPECT_TRUE(fs::exists(m_report / "assets/report.css"));
}

TEST_F(Pages, PageHoldsOldAndNewWithTheirPictures) {
    Run();
    const nlohmann::json command = DataOf(PageOf("d/table.syn")).at("commands").at(0);
    EXPECT_EQ(command.at("oldText"), "TABLES /TABLE sex BY region.");
    EXPECT_THAT(command.at("newText"), HasSubstr("CTABLES\n"));
    EXPECT_EQ(command.at("oldPicture").at("tables").at(0).at("rows").at(0).at("name"), "sex");
    EXPECT_EQ(command.at("oldPicture"), command.at("newPicture"));
    EXPECT_TRUE(command.at("chartSketch").is_null());

    const nlohmann::json chart = DataOf(PageOf("d/chart.syn")).at("commands").at(0);
    EXPECT_EQ(chart.at("chartSketch").at("elements").at(0).at("type"), "point");
    EXPECT_TRUE(chart.at("oldPicture").is_null());
}

TEST_F(Pages, CommandThatIsNotConvertedSaysWhy) {
    Run();
    const nlohmann::json command = DataOf(PageOf("d/wrong.syn")).at("commands").at(0);
    EXPECT_EQ(command.at("newText"), "");
    EXPECT_EQ(command.at("error").at("line"), 1);
}

TEST_F(Pages, NamesThatAreMarkupAreTexts) {
    Run();
    const std::string name = "<script>alert(1)</script>.syn";
    EXPECT_EQ(DataOf(PageOf(name)).at("path"), name);
    EXPECT_THAT(ReadFile(PageOf(name)), Not(HasSubstr("<script>alert")));
    EXPECT_THAT(ReadFile(m_report / "index.html"), Not(HasSubstr("<script>alert")));
}

TEST_F(Pages, TextsOfOtherEncodingsAreShownAsUtf8) {
    Put("latin.syn", "TABLES /TABLE sex /TITLE '\xE4'.\n");
    Run();
    const nlohmann::json command = DataOf(PageOf("latin.syn")).at("commands").at(0);
    EXPECT_EQ(command.at("newPicture").at("tables").at(0).at("title").at(0), "\xC3\xA4");
    EXPECT_EQ(command.at("oldPicture"), command.at("newPicture"));
}

TEST_F(Pages, SecondRunKeepsThemAndMakesWhatIsMissing) {
    Run();
    const std::string before = ReadFile(PageOf("d/table.syn"));
    fs::remove(PageOf("d/table.syn"));
    const auto kept = fs::last_write_time(PageOf("d/wrong.syn"));
    Run();
    EXPECT_EQ(ReadFile(PageOf("d/table.syn")), before);
    EXPECT_EQ(fs::last_write_time(PageOf("d/wrong.syn")), kept);
    EXPECT_EQ(Index(m_report).at("files").size(), 6U);
}

TEST_F(Pages, JoinedReportsHaveThoseOfTheirShards) {
    for (const char* shard : {"1", "2"}) {
        Run({"--shard", std::string(shard) + "/2", "--report", m_folder.Path() / shard});
    }
    RunWith({"--merge", "--report", m_report, m_folder.Path() / "1", m_folder.Path() / "2"});
    EXPECT_EQ(Index(m_report).at("files").size(), 6U);
    EXPECT_EQ(Index(m_report).at("heading").at("Shards"), "2 of 2");
    EXPECT_EQ(DataOf(PageOf("d/table.syn")).at("path"), "d/table.syn");
    EXPECT_EQ(DataOf(PageOf("d/chart.syn")).at("path"), "d/chart.syn");
}

TEST_F(Pages, PageThatCannotBeWrittenIsTold) {
    Run();
    const fs::path page = PageOf("d/table.syn");
    fs::remove(page);
    fs::create_directories(page.string() + ".part");
    const RunResult result = Run();
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("d/table.syn: cannot write"));
    EXPECT_EQ(Index(m_report).at("files").size(), 6U);
}

} // namespace

} // namespace recastor
