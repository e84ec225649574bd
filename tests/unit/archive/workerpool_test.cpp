// Files that end a worker or keep it forever cost themselves only.

#include "archive/tree/worker.h"
#include "archive/tree/workerpool.h"
#include "tests/support/run.h"

#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

class Pool : public testing::Test {
protected:
    Pool() {
        m_options.source = m_folder.Path() / "source";
        m_options.target = m_folder.Path() / "target";
        m_options.locale = "C.UTF-8";
        fs::create_directory(m_options.source);
        fs::create_directory(m_options.target);
    }

    void Put(const std::string& name, const std::string& text) const {
        WriteFile(fs::path(m_options.source) / name, text);
    }

    std::map<std::uint64_t, FileResult> Convert(const std::vector<std::string>& names) const {
        std::map<std::uint64_t, FileResult> results;
        WorkerPool pool(m_options, [&](std::uint64_t number, FileResult result) {
            results.emplace(number, std::move(result));
        });
        std::size_t next = 0;
        while (next < names.size() || !pool.IsIdle()) {
            while (next < names.size() && pool.HasRoom()) {
                pool.Give({next, {names[next], "", ""}});
                ++next;
            }
            pool.Wait(1000);
        }
        return results;
    }

    TemporaryFolder m_folder;
    TreeOptions m_options;
};

TEST_F(Pool, FileThatTakesForeverFailsWhenItsTimeIsOver) {
    // To open a pipe that nobody writes to never ends.
    ASSERT_EQ(::mkfifo((fs::path(m_options.source) / "pipe").c_str(), 0600), 0);
    Put("a", "FREQ x.\n");
    m_options.timeLimit = 60;
    WorkerPool::Clock::time_point now{};
    std::vector<FileResult> results;
    WorkerPool pool(
        m_options, [&](std::uint64_t, FileResult result) { results.push_back(std::move(result)); },
        [&] { return now; });
    const auto convert = [&](const std::string& name, std::chrono::seconds each) {
        pool.Give({0, {name, "", ""}});
        for (int milliseconds = each.count() == 0 ? 1000 : 0; !pool.IsIdle(); now += each) {
            pool.Wait(milliseconds);
        }
    };
    convert("a", std::chrono::seconds(0));
    convert("pipe", std::chrono::seconds(1));
    convert("a", std::chrono::seconds(0));
    ASSERT_EQ(results.size(), 3U);
    EXPECT_EQ(results[0].problem, "");
    EXPECT_EQ(results[1].problem, "it took longer than 60 s");
    EXPECT_EQ(results[1].counts.filesFailed, 1U);
    EXPECT_EQ(results[2].problem, "");
}

TEST_F(Pool, FileThatVanishedIsToldOf) {
    const auto results = Convert({"gone"});
    EXPECT_EQ(results.at(0).problem, "cannot be read: No such file or directory");
    EXPECT_FALSE(results.at(0).notWritable);
}

TEST_F(Pool, CrashesInARowAreSurvived) {
    m_options.jobs = 2;
    std::vector<std::string> names;
    for (int i = 0; i < 10; ++i) {
        names.push_back(std::to_string(i));
        Put(names.back(), i % 2 == 0 ? "TABLES /FORMAT=ZERO BLANK /TABLE sex.\n" : "FREQ x.\n");
    }
    const auto results = Convert(names);
    for (std::uint64_t i = 0; i < 10; ++i) {
        EXPECT_EQ(results.at(i).counts.filesFailed, i % 2 == 0 ? 1U : 0U) << i;
    }
}

TEST_F(Pool, TimeInWhichTheProgramWasStoppedIsNoTimeOfItsWorkers) {
    ASSERT_EQ(::mkfifo((fs::path(m_options.source) / "pipe").c_str(), 0600), 0);
    m_options.timeLimit = 60;
    WorkerPool::Clock::time_point now{};
    std::vector<std::string> problems;
    WorkerPool pool(
        m_options, [&](std::uint64_t, const FileResult& r) { problems.push_back(r.problem); },
        [&] { return now; });
    const auto work = [&](int seconds) {
        for (int i = 0; i < seconds; ++i) {
            now += std::chrono::seconds(1);
            pool.Wait(0);
        }
    };
    pool.Give({0, {"pipe", "", ""}});
    work(30);
    now += std::chrono::hours(1);
    pool.Wait(0);
    work(29);
    EXPECT_EQ(problems.size(), 0U);
    work(2);
    EXPECT_EQ(problems, std::vector<std::string>{"it took longer than 60 s"});

    // A job that was given behind the standstill does not start in the time to come.
    now += std::chrono::hours(1);
    pool.Give({1, {"pipe", "", ""}});
    pool.Wait(0);
    work(61);
    EXPECT_EQ(problems.size(), 2U);
}

TEST_F(Pool, WorkerDiesWithTheProgram) {
    const fs::path pipe = fs::path(m_options.source) / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::array<int, 2> alive{}; // its writing end is open as long as one of the processes lives
    ASSERT_EQ(::pipe(alive.data()), 0);
    const pid_t program = ::fork();
    if (program == 0) {
        WorkerPool pool(m_options, [](std::uint64_t, const FileResult&) {});
        pool.Give({0, {"pipe", "", ""}});
        ::pause();
        ::_exit(0);
    }
    ::close(alive[1]);
    // The worker is at the file when this is open, and does not come to its end before it is
    // closed.
    const FileDescriptor writer = FileDescriptor::Open(pipe, O_WRONLY);
    ASSERT_EQ(::kill(program, SIGKILL), 0);
    ::waitpid(program, nullptr, 0);
    char byte = 0;
    EXPECT_EQ(::read(alive[0], &byte, 1), 0) << "the end, when the worker is over as well";
    ::close(alive[0]);
}

// Below a worker's functions stand those of the program that it was forked from.
static_assert(std::is_nothrow_invocable_v<decltype(RunWorker), const TreeOptions&,
                                          const FileDescriptor&, const FileDescriptor&, pid_t>);

} // namespace

} // namespace recastor
