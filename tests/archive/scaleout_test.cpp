// The recipes for several machines, run on this one.

#include "tests/archive/archivetree.h"

#include <set>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

const std::string kRecipes = RECASTOR_ROOT "/docs/scale-out/";

class ScaleOut : public ArchiveTree {
protected:
    ScaleOut() {
        for (int i = 0; i < 200; ++i) {
            const std::string name = "d " + std::to_string(i % 9) + "/f'" + std::to_string(i);
            Put(name + ".syn", i % 7 == 0 ? kWrongTable : kTable + "FREQ x.\n");
        }
        fs::create_directory(m_folder.Path() / "bin");
    }

    /// What the recipes find as recastor-tree: a script around the program.
    void InstallProgram(const std::string& script) const {
        const fs::path place = m_folder.Path() / "bin/recastor-tree";
        WriteFile(place, "#!/bin/sh\n" + script + "\nexec " RECASTOR_TREE_PROGRAM " \"$@\"\n");
        fs::permissions(place, fs::perms(0755));
    }

    RunResult RunRecipe(const std::string& name, const std::vector<std::string>& arguments,
                        const std::vector<std::string>& settings = {}) const {
        const std::string bin = m_folder.Path() / "bin";
        std::vector<std::string> words{"PATH=" + bin + ":/usr/local/bin:/usr/bin:/bin",
                                       "HOME=" + m_folder.Path().string()};
        words.insert(words.end(), settings.begin(), settings.end());
        words.push_back(kRecipes + name);
        words.insert(words.end(), arguments.begin(), arguments.end());
        return RunProgram("/usr/bin/env", words, m_folder.Path());
    }

    static std::set<std::string> FilesBelow(const fs::path& folder) {
        std::set<std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                files.insert(entry.path().lexically_relative(folder));
            }
        }
        return files;
    }

    /// Whether the shares made what a single run makes of the same source.
    void ExpectLikeASingleRun(const fs::path& target, const fs::path& report) const {
        Run({"--quiet", "--report", m_folder.Path() / "single-report"});
        EXPECT_EQ(Comparable(ReadJson(report / "report.json")),
                  Comparable(ReadJson(m_folder.Path() / "single-report/report.json")));
        EXPECT_FALSE(ReadJson(report / "report.json").at("run").at("interrupted").get<bool>());
        EXPECT_EQ(FilesBelow(target), FilesBelow(m_target));
        for (const std::string& path : FilesBelow(m_target)) {
            EXPECT_EQ(ReadFile(target / path), ReadFile(m_target / path)) << path;
        }
    }
};

TEST_F(ScaleOut, FourSharesOneOfThemKilledMakeWhatASingleRunMakes) {
    // The third share's first try is killed when it begins its second write of a report's file.
    InstallProgram("case \"$*\" in *' --shard 3/4 '*)\n"
                   "  if [ ! -e killed ]; then\n"
                   "    : > killed\n"
                   "    export LD_PRELOAD=" RECASTOR_FAULT_LIBRARY " RECASTOR_FAULT=write:2:kill\n"
                   "    export ASAN_OPTIONS=verify_asan_link_order=0\n"
                   "  fi;;\n"
                   "esac");
    const RunResult result = RunRecipe(
        "with-parallel", {"4", "source", "sharded", "report", "--joblog", "log", "--jobs", "2"});
    EXPECT_EQ(result.status, 1) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("200 files: 171 converted, 29 incomplete, 0 failed"));
    EXPECT_TRUE(fs::exists(m_folder.Path() / "killed"));
    ExpectLikeASingleRun(m_folder.Path() / "sharded", m_folder.Path() / "report");
}

TEST_F(ScaleOut, ShareThatFailsForGoodIsTriedThreeTimesAndTheOthersAreJoined) {
    InstallProgram("case \"$*\" in *' --shard 2/3 '*) echo >> tries; exit 2;; esac");
    // A share of an earlier run with more of them.
    Run({"--shard", "4/4", "--report", m_folder.Path() / "report/shares/4"});
    const RunResult result = RunRecipe("with-parallel", {"3", "source", "sharded", "report"});
    EXPECT_EQ(result.status, 1) << result.errors;
    EXPECT_EQ(ReadFile(m_folder.Path() / "tries"), "\n\n\n");
    EXPECT_THAT(result.errors, HasSubstr("recastor-tree: shard 2/3 is missing\n"));
    const auto run = ReadJson(m_folder.Path() / "report/report.json").at("run");
    EXPECT_EQ(run.at("present"), nlohmann::json({1, 3}));
    EXPECT_TRUE(run.at("interrupted").get<bool>());
}

TEST_F(ScaleOut, ShareThatFailsIsMissedThoughItOnceWentWell) {
    InstallProgram("");
    RunRecipe("with-parallel", {"3", "source", "sharded", "report"});
    Put("later.syn", kTable);
    InstallProgram("case \"$*\" in *' --shard 2/3 '*) exit 2;; esac");
    const RunResult result = RunRecipe("with-parallel", {"3", "source", "sharded", "report"});
    EXPECT_EQ(result.status, 1) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("recastor-tree: shard 2/3 is missing\n"));
    EXPECT_EQ(ReadJson(m_folder.Path() / "report/report.json").at("run").at("present"),
              nlohmann::json({1, 3}));
}

TEST_F(ScaleOut, InterruptedShareIsTriedAgain) {
    // The second share's first try says that it was interrupted, as one that is told to end does.
    InstallProgram("case \"$*\" in *' --shard 2/3 '*)\n"
                   "  if [ ! -e interrupted ]; then\n"
                   "    : > interrupted\n"
                   "    mkdir -p report/shares/2\n"
                   "    echo '{\"interrupted\":true}' > report/shares/2/run.json\n"
                   "    exit 1\n"
                   "  fi;;\n"
                   "esac");
    const RunResult result = RunRecipe("with-parallel", {"3", "source", "sharded", "report"});
    EXPECT_EQ(result.status, 1) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("200 files: 171 converted, 29 incomplete, 0 failed"));
    ExpectLikeASingleRun(m_folder.Path() / "sharded", m_folder.Path() / "report");
}

TEST_F(ScaleOut, TasksOfAJobArrayMakeWhatASingleRunMakes) {
    InstallProgram("");
    for (const std::string task : {"2", "1", "3"}) {
        const RunResult result =
            RunRecipe("slurm-array", {"source", "sharded", "report"},
                      {"SLURM_ARRAY_TASK_ID=" + task, "SLURM_ARRAY_TASK_COUNT=3"});
        EXPECT_EQ(result.status, 0) << result.errors;
    }
    // A task that is submitted again alone is told how many there are.
    const RunResult again = RunRecipe("slurm-array", {"source", "sharded", "report", "3"},
                                      {"SLURM_ARRAY_TASK_ID=2", "SLURM_ARRAY_TASK_COUNT=1"});
    EXPECT_EQ(again.status, 0) << again.errors;
    const std::string shares = m_folder.Path() / "report/shares/";
    RunWith({"--merge", "--report", "report", shares + "1", shares + "2", shares + "3"});
    ExpectLikeASingleRun(m_folder.Path() / "sharded", m_folder.Path() / "report");
}

} // namespace

} // namespace recastor
