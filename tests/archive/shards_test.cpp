// Shares of a tree, and reports that are joined.

#include "tests/archive/archivetree.h"

#include <algorithm>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class Shards : public ArchiveTree {
protected:
    Shards() {
        for (int i = 0; i < 60; ++i) {
            const std::string name = "d" + std::to_string(i % 7) + "/f" + std::to_string(i);
            Put(name + ".syn", i % 5 == 0 ? kWrongTable : kTable);
        }
        Put("crash.syn", kCrash);
    }

    std::string ReportOf(int shard) const {
        return m_folder.Path() / ("report" + std::to_string(shard));
    }

    RunResult RunShard(int shard) const {
        return Run({"--shard", std::to_string(shard) + "/4", "--report", ReportOf(shard)});
    }

    RunResult Merge(const std::vector<int>& shards) const {
        std::vector<std::string> arguments{"--merge", "--report", "merged"};
        for (const int shard : shards) {
            arguments.push_back(ReportOf(shard));
        }
        return RunWith(arguments);
    }
};

TEST_F(Shards, SharesTogetherAreTheWholeAndNoFileIsInTwo) {
    std::vector<std::string> paths;
    for (int shard = 1; shard <= 4; ++shard) {
        RunShard(shard);
        const nlohmann::json files = ReadJson(ReportOf(shard) + "/report.json").at("files");
        EXPECT_GT(files.size(), 0U);
        for (const auto& file : files) {
            paths.push_back(file.at("path"));
        }
    }
    std::sort(paths.begin(), paths.end());
    EXPECT_EQ(paths.size(), 61U);
    EXPECT_EQ(std::unique(paths.begin(), paths.end()), paths.end());
}

TEST_F(Shards, MergedReportIsThatOfASingleRun) {
    for (int shard = 1; shard <= 4; ++shard) {
        RunShard(shard);
    }
    const RunResult merged = Merge({3, 1, 4, 2});
    fs::rename(m_target, m_folder.Path() / "sharded");
    const RunResult single = Run();
    EXPECT_EQ(merged.status, 1);
    const fs::path report = m_folder.Path() / "merged";
    EXPECT_EQ(Comparable(ReadJson(report / "report.json")), Comparable(Report()));
    EXPECT_EQ(ReadJson(report / "report.sarif").at("runs").at(0).at("results"),
              ReadJson(m_report / "report.sarif").at("runs").at(0).at("results"));
    for (const auto& page : fs::directory_iterator(m_report / "files")) {
        EXPECT_EQ(ReadFile(report / "files" / page.path().filename()), ReadFile(page.path()));
    }
    EXPECT_EQ(ReadJson(report / "report.json").at("run").at("present"),
              nlohmann::json({1, 2, 3, 4}));
    EXPECT_EQ(merged.output.substr(0, merged.output.find("report:")),
              single.output.substr(0, single.output.find("report:")));
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.Path() / "sharded")) {
        const fs::path path = entry.path().lexically_relative(m_folder.Path() / "sharded");
        if (entry.is_regular_file()) {
            EXPECT_EQ(ReadFile(entry.path()), ReadFile(m_target / path));
        }
    }
}

TEST_F(Shards, MissingShardIsTold) {
    RunShard(1);
    RunShard(3);
    const RunResult result = Merge({1, 3});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("shard 2/4 is missing\n"));
    EXPECT_THAT(result.errors, HasSubstr("shard 4/4 is missing\n"));
    EXPECT_TRUE(result.output.starts_with("not all: a share is missing or was interrupted\n"));
}

TEST_F(Shards, ManifestThatIsMissingOrUnreadableIsNoEmptyOne) {
    RunShard(1);
    const fs::path manifest = fs::path(ReportOf(1)) / "manifest.jsonl";
    fs::remove(manifest);
    const RunResult missing = Merge({1});
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.errors, HasSubstr("report1/manifest.jsonl: No such file or directory\n"));
    fs::create_directory(manifest);
    const RunResult unreadable = Merge({1});
    EXPECT_EQ(unreadable.status, 2);
    EXPECT_THAT(unreadable.errors, HasSubstr("report1/manifest.jsonl: Is a directory\n"));
    EXPECT_FALSE(fs::exists(m_folder.Path() / "merged/report.json"));
}

TEST_F(Shards, ShareThatWasKilledBeforeItHadAManifestIsTold) {
    for (int shard = 1; shard <= 4; ++shard) {
        RunShard(shard);
    }
    const fs::path killed = ReportOf(2);
    nlohmann::json run = ReadJson(killed / "run.json");
    run["interrupted"] = true;
    WriteFile(killed / "run.json", run.dump());
    fs::remove(killed / "manifest.jsonl");
    const RunResult result = Merge({1, 2, 3, 4});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("interrupted"));
    EXPECT_TRUE(ReadJson(m_folder.Path() / "merged/report.json").at("run").at("interrupted"));
}

TEST_F(Shards, WhatCannotBeJoinedIsRefused) {
    RunShard(1);
    Run({"--report", ReportOf(2)});
    EXPECT_EQ(Merge({1, 2}).status, 2);
    EXPECT_EQ(RunWith({"--merge", "--report", "merged", "missing"}).status, 2);
    EXPECT_EQ(RunWith({"--merge", ReportOf(1)}).status, 2);
    EXPECT_EQ(RunWith({"--merge", "--report", ReportOf(1), ReportOf(1)}).status, 2);
}

} // namespace

} // namespace recastor
