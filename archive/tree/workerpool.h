/// Processes that convert files, so that a crash costs one file and nothing else.
#pragma once

#include "archive/tree/convertfile.h"
#include "ctables/recastor/filedescriptor.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace recastor {

/// A job and its place in the order of the walk.
struct NumberedJob {
    std::uint64_t number;
    FileJob job;
};

/// Hands jobs to worker processes and gathers their results, in any order. A worker that ends or
/// takes too long is replaced; the file that it was at fails, the ones behind it are handed on.
class WorkerPool {
public:
    using Clock = std::chrono::steady_clock;
    using Take = std::function<void(std::uint64_t number, FileResult result)>;
    using TellTime = std::function<Clock::time_point()>;

    /// Starts the options' number of workers. `take` gets each job's result. Throws FileError when
    /// the system has no room for a process.
    WorkerPool(const TreeOptions& options, Take take, TellTime now = &Clock::now);
    /// Ends the workers; one that is at work is not waited for.
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// Whether a worker would take a job now.
    bool HasRoom() const;
    void Give(NumberedJob job);
    bool IsIdle() const;
    /// Waits for something to happen, at most for `milliseconds`, and hands on what has come. A
    /// signal ends the wait.
    void Wait(int milliseconds);

private:
    struct Worker {
        pid_t process = -1;
        FileDescriptor socket;
        FileDescriptor errors; ///< in memory: what the worker said on standard error
        std::string toSend;
        std::string received;
        std::deque<NumberedJob> jobs; ///< the first is the one that it is at
        Clock::time_point start;      ///< of the work on the first
    };

    void Start(Worker& worker) const;
    void Serve(Worker& worker, bool readable, bool writable);
    static void Send(Worker& worker);
    static bool Receive(Worker& worker);
    /// Time in which this program did not run, as behind Ctrl-Z, is no time of its workers.
    void ForgetStandstill(int milliseconds);
    void CheckTime(Worker& worker);
    /// The worker's process is over, or is ended when it is not.
    void Replace(Worker& worker, const std::string& reason);

    const TreeOptions& m_options;
    Take m_take;
    TellTime m_now;
    Clock::time_point m_lastWait; ///< when it ended
    std::vector<std::unique_ptr<Worker>> m_workers;
};

} // namespace recastor
