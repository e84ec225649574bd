// Runs after runs: what is unchanged is left alone, what was interrupted is finished.

#include "archive/tree/manifest.h"
#include "tests/archive/archivetree.h"

#include <algorithm>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

namespace {

class Rerun : public ArchiveTree {
protected:
    Rerun() {
        Put("a.syn", kTable);
        Put("b/b.syn", kWrongTable);
        Put("c.syn", "FREQ x.\n");
        Run();
    }

    static std::string Unchanged(int count) {
        return "; " + std::to_string(count) + " unchanged since an earlier run";
    }

    /// A run that was sent the signal before it began.
    int InterruptedRun(int signal) const {
        const pid_t child = ::fork();
        if (child == 0) {
            sigset_t signals;
            ::sigemptyset(&signals);
            ::sigaddset(&signals, signal);
            ::sigprocmask(SIG_BLOCK, &signals, nullptr);
            ::raise(signal);
            ::execl(RECASTOR_TREE_PROGRAM, RECASTOR_TREE_PROGRAM, "--quiet", m_source.c_str(),
                    m_target.c_str(), nullptr);
            ::_exit(127);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
};

TEST_F(Rerun, UnchangedFilesAreLeftAlone) {
    const auto before = Comparable(Report());
    // A link would still be on the old file if a new one had taken its place.
    fs::create_hard_link(m_target / "a.syn", m_folder.Path() / "link");
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(3)));
    EXPECT_EQ(Comparable(Report()), before);
    EXPECT_EQ(fs::hard_link_count(m_target / "a.syn"), 2U);
}

TEST_F(Rerun, ChangedFileIsConvertedAgain) {
    Put("a.syn", kTable + "FREQ y.\n");
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(2)));
    EXPECT_THAT(Target("a.syn"), HasSubstr("FREQ y."));
}

TEST_F(Rerun, ChangeThatKeepsTheSizeIsSeenByTheTime) {
    Put("c.syn", "FREQ y.\n");
    fs::last_write_time(m_source / "c.syn", fs::file_time_type::clock::now());
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(2)));
    EXPECT_EQ(Target("c.syn"), "FREQ y.\n");
}

TEST_F(Rerun, FileWhoseTimeAloneChangedGivesItToItsTarget) {
    const auto later = fs::last_write_time(m_source / "a.syn") + std::chrono::hours(1);
    fs::last_write_time(m_source / "a.syn", later);
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(3)));
    EXPECT_EQ(fs::last_write_time(m_target / "a.syn"), later);
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(3)));
}

TEST_F(Rerun, MissingOrChangedTargetIsMadeAgain) {
    fs::remove(m_target / "a.syn");
    WriteFile(m_target / "c.syn", "no longer what was written");
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(1)));
    EXPECT_TRUE(HasTarget("a.syn"));
    EXPECT_EQ(Target("c.syn"), "FREQ x.\n");
}

TEST_F(Rerun, OtherSettingsConvertEverythingAgain) {
    EXPECT_THAT(Run({"--batch"}).output, Not(HasSubstr("unchanged")));
    EXPECT_THAT(Run({"--batch"}).output, HasSubstr(Unchanged(3)));
}

TEST_F(Rerun, FailedFileIsTriedAgain) {
    Put("d.syn", kCrash);
    EXPECT_THAT(Run().errors, HasSubstr("d.syn"));
    EXPECT_THAT(Run().errors, HasSubstr("d.syn"));
    Put("d.syn", kTable);
    EXPECT_EQ(Run().errors, "");
    EXPECT_EQ(Entry("d.syn").at("status"), "converted");
}

TEST_F(Rerun, RemovedFileLeavesTheReportAndKeepsItsTarget) {
    fs::remove(m_source / "a.syn");
    Run();
    EXPECT_EQ(Entry("a.syn"), nullptr);
    EXPECT_TRUE(HasTarget("a.syn"));
}

TEST_F(Rerun, InterruptedRunKeepsWhatIsKnownAndTheNextFinishesIt) {
    const auto before = Comparable(Report());
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EQ(InterruptedRun(signal), 1) << signal;
        EXPECT_TRUE(Report().at("run").at("interrupted").get<bool>());
        EXPECT_EQ(Comparable(Report()), before);
        EXPECT_THAT(Run().output, HasSubstr(Unchanged(3)));
        EXPECT_FALSE(Report().at("run").at("interrupted").get<bool>());
    }
}

TEST_F(Rerun, KilledRunIsFinishedByTheNext) {
    // What a run leaves that was killed while it wrote the line of its second file.
    const fs::path manifest = m_report / "manifest.jsonl";
    const std::string lines = ReadFile(manifest);
    const std::size_t first = lines.find('\n') + 1;
    WriteFile(m_report / "manifest.jsonl.part", lines.substr(0, first + 40));
    fs::remove(manifest);
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(1)));
    const std::string after = ReadFile(manifest);
    EXPECT_EQ(std::count(after.begin(), after.end(), '\n'), 3);
    EXPECT_FALSE(fs::exists(m_report / "manifest.jsonl.part"));
}

TEST_F(Rerun, KilledRunAfterAWholeOneLosesNothing) {
    WriteFile(m_report / "manifest.jsonl.part", "");
    EXPECT_THAT(Run().output, HasSubstr(Unchanged(3)));
}

} // namespace

} // namespace recastor
