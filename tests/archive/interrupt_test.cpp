// Runs that are interrupted, or whose time is over, while a worker is at a file. No time is
// measured: the worker waits at its first look at the file until the test lets it go on.

#include "ctables/recastor/filedescriptor.h"
#include "tests/archive/archivetree.h"

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class Interruption : public ArchiveTree {
protected:
    Interruption() : m_pipe(m_folder.Path() / "pipe") {
        for (char c = 'a'; c <= 'z'; ++c) {
            Put(std::string(1, c) + ".syn", kTable);
        }
        ::mkfifo(m_pipe.c_str(), 0600);
    }

    std::vector<std::string> Environment() const {
        return {"LD_PRELOAD=" RECASTOR_FAULT_LIBRARY, "RECASTOR_FAULT=fstat:1:wait",
                "RECASTOR_PIPE=" + m_pipe.string(), "ASAN_OPTIONS=verify_asan_link_order=0"};
    }

    /// Starts a run with one worker.
    pid_t Start() const {
        const pid_t child = ::fork();
        if (child == 0) {
            for (std::string setting : Environment()) {
                const auto equals = setting.find('=');
                ::setenv(setting.substr(0, equals).c_str(), setting.c_str() + equals + 1, 1);
            }
            ::execl(RECASTOR_TREE_PROGRAM, RECASTOR_TREE_PROGRAM, "--quiet", "--jobs=1",
                    "--time-limit=0", m_source.c_str(), m_target.c_str(), nullptr);
            ::_exit(127);
        }
        return child;
    }

    /// Returns when the worker is at the first file, which it keeps until what is returned is
    /// closed.
    FileDescriptor HoldWorker() const { return FileDescriptor::Open(m_pipe, O_WRONLY); }

    static int StatusOf(pid_t child) {
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }

    fs::path m_pipe;
};

TEST_F(Interruption, FirstSignalLetsWhatIsInHandBeFinished) {
    const pid_t child = Start();
    FileDescriptor held = HoldWorker();
    ::kill(child, SIGINT);
    held.Close();
    EXPECT_EQ(StatusOf(child), 1);
    EXPECT_TRUE(HasTarget("a.syn"));
    EXPECT_FALSE(HasTarget("z.syn"));
    EXPECT_EQ(Entry("a.syn").at("status"), "converted");
    EXPECT_EQ(Entry("z.syn"), nullptr);
    EXPECT_TRUE(Report().at("run").at("interrupted").get<bool>());
}

TEST_F(Interruption, SecondSignalEndsTheRunAtOnce) {
    for (const int second : {SIGTERM, SIGHUP}) {
        const pid_t child = Start();
        const FileDescriptor held = HoldWorker();
        ::kill(child, SIGINT);
        ::kill(child, second); // two of a kind could come as one
        EXPECT_EQ(StatusOf(child), 1) << "and the worker is still held";
        EXPECT_FALSE(HasTarget("a.syn"));
        EXPECT_EQ(Report().at("files").size(), 0U);
        EXPECT_TRUE(Report().at("run").at("interrupted").get<bool>());
    }
}

TEST_F(Interruption, FileThatTakesTooLongFailsAndTheOthersDoNot) {
    // Each worker waits at its first file, and nobody opens the pipe.
    for (char c = 'c'; c <= 'z'; ++c) {
        fs::remove(m_source / (std::string(1, c) + ".syn"));
    }
    const RunResult result = Run({"--time-limit=1", "--jobs=1"}, Environment());
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("recastor-tree: a.syn: it took longer than 1 s\n"));
    EXPECT_EQ(Entry("b.syn").at("message"), "it took longer than 1 s");
    EXPECT_FALSE(HasTarget("a.syn"));
    EXPECT_THAT(Run().output, HasSubstr("2 files: 2 converted")) << "the next run tries again";
}

} // namespace

} // namespace recastor
