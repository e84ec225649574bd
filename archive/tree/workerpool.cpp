#include "archive/tree/workerpool.h"

#include "archive/outcome/showntext.h"
#include "archive/tree/packet.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/worker.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace recastor {

namespace {

/// So many jobs wait at a worker, so that it need not wait for the next.
constexpr std::size_t kJobsAhead = 4;

/// More than this between two waits is not spent on work: the program was stopped.
constexpr std::chrono::seconds kLongestWork{5};

/// What a process left behind on standard error, on one line.
std::string LastWords(const FileDescriptor& errors) {
    std::array<char, 1024> text{};
    const ssize_t count = ::pread(errors.Number(), text.data(), text.size(), 0);
    std::string words(text.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    words.erase(std::min(words.find('\n'), words.size()));
    return TextShower("UTF-8").Shown(words);
}

std::string ReasonOfEnd(int status, const FileDescriptor& errors) {
    const std::string words = LastWords(errors);
    const std::string how =
        WIFSIGNALED(status)
            ? std::string("the converter crashed: ") + strsignal(WTERMSIG(status))
            : "the converter ended with status " + std::to_string(WEXITSTATUS(status));
    return words.empty() ? how : how + ": " + words;
}

} // namespace

WorkerPool::WorkerPool(const TreeOptions& options, Take take, TellTime now) :
    m_options(options), m_take(std::move(take)), m_now(std::move(now)), m_lastWait(m_now()) {
    for (unsigned i = 0; i < options.jobs; ++i) {
        m_workers.push_back(std::make_unique<Worker>());
        Start(*m_workers.back());
    }
}

WorkerPool::~WorkerPool() {
    for (const auto& worker : m_workers) {
        if (worker->process > 0) {
            if (!worker->jobs.empty()) {
                ::kill(worker->process, SIGKILL);
            }
            worker->socket.Close();
            ::waitpid(worker->process, nullptr, 0);
        }
    }
}

void WorkerPool::Start(Worker& worker) const {
    std::array<int, 2> ends{};
    worker.errors = FileDescriptor(::memfd_create("errors", MFD_CLOEXEC));
    if (!worker.errors.IsOpen() ||
        ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw SystemError("cannot start a worker");
    }
    worker.socket = FileDescriptor(ends[0]);
    const FileDescriptor other(ends[1]);
    const pid_t parent = ::getpid();
    worker.process = ::fork();
    if (worker.process < 0) {
        throw SystemError("cannot start a worker");
    }
    if (worker.process == 0) {
        // The other workers must see their sockets' end when this program dies.
        for (const auto& each : m_workers) {
            each->socket.Close();
        }
        RunWorker(m_options, other, worker.errors, parent);
    }
    ::fcntl(worker.socket.Number(), F_SETFL, O_NONBLOCK);
}

bool WorkerPool::HasRoom() const {
    return std::any_of(m_workers.begin(), m_workers.end(),
                       [](const auto& worker) { return worker->jobs.size() < kJobsAhead; });
}

bool WorkerPool::IsIdle() const {
    return std::all_of(m_workers.begin(), m_workers.end(),
                       [](const auto& worker) { return worker->jobs.empty(); });
}

void WorkerPool::Give(NumberedJob job) {
    Worker& worker =
        **std::min_element(m_workers.begin(), m_workers.end(), [](const auto& a, const auto& b) {
            return a->jobs.size() < b->jobs.size();
        });
    if (worker.jobs.empty()) {
        worker.start = m_now();
    }
    worker.toSend += PacketOf(job.job);
    worker.jobs.push_back(std::move(job));
    Send(worker);
}

void WorkerPool::Wait(int milliseconds) {
    std::vector<struct pollfd> events;
    for (const auto& worker : m_workers) {
        const short wanted = worker->toSend.empty() ? POLLIN : POLLIN | POLLOUT;
        events.push_back({worker->socket.Number(), wanted, 0});
    }
    const int ready = ::poll(events.data(), events.size(), milliseconds);
    ForgetStandstill(milliseconds);
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (ready > 0 && events[i].revents != 0) {
            Serve(*m_workers[i], (events[i].revents & ~POLLOUT) != 0,
                  (events[i].revents & POLLOUT) != 0);
        }
        CheckTime(*m_workers[i]);
    }
}

void WorkerPool::Serve(Worker& worker, bool readable, bool writable) {
    if (writable) {
        Send(worker);
    }
    if (!readable) {
        return;
    }
    const bool open = Receive(worker);
    while (const auto packet = TakePacket(worker.received)) {
        const std::uint64_t number = worker.jobs.front().number;
        worker.jobs.pop_front();
        worker.start = m_now();
        m_take(number, ResultOfPacket(*packet));
    }
    if (!open) {
        int status = 0;
        ::waitpid(worker.process, &status, 0);
        Replace(worker, ReasonOfEnd(status, worker.errors));
    }
}

void WorkerPool::Send(Worker& worker) {
    while (!worker.toSend.empty()) {
        const ssize_t count = ::send(worker.socket.Number(), worker.toSend.data(),
                                     worker.toSend.size(), MSG_NOSIGNAL);
        if (count <= 0) {
            return; // full, or the worker is gone, which the next read tells
        }
        worker.toSend.erase(0, static_cast<std::size_t>(count));
    }
}

/// False when the worker has closed its end.
bool WorkerPool::Receive(Worker& worker) {
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = ::recv(worker.socket.Number(), block.data(), block.size(), 0);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return count < 0 && errno == EAGAIN;
        }
        worker.received.append(block.data(), static_cast<std::size_t>(count));
    }
}

void WorkerPool::ForgetStandstill(int milliseconds) {
    const Clock::time_point now = m_now();
    const auto standstill = now - m_lastWait - std::chrono::milliseconds(milliseconds);
    m_lastWait = now;
    if (standstill > kLongestWork) {
        for (const auto& worker : m_workers) {
            worker->start = std::min(worker->start + standstill, now);
        }
    }
}

void WorkerPool::CheckTime(Worker& worker) {
    const auto limit = std::chrono::seconds(m_options.timeLimit);
    if (m_options.timeLimit > 0 && !worker.jobs.empty() && m_now() - worker.start > limit) {
        ::kill(worker.process, SIGKILL);
        ::waitpid(worker.process, nullptr, 0);
        Replace(worker, "it took longer than " + std::to_string(m_options.timeLimit) + " s");
    }
}

void WorkerPool::Replace(Worker& worker, const std::string& reason) {
    const pid_t process = worker.process;
    std::deque<NumberedJob> jobs = std::move(worker.jobs);
    worker = Worker();
    Start(worker);
    if (!jobs.empty()) {
        if (m_options.WritesTargets()) {
            RemoveUnfinished(m_options.target, jobs.front().job.path, process);
        }
        FileOutcome outcome;
        outcome.path = jobs.front().job.path;
        outcome.message = reason;
        FileResult result = ResultWithoutTarget(outcome, m_options);
        const std::uint64_t number = jobs.front().number;
        jobs.pop_front();
        m_take(number, std::move(result));
    }
    for (NumberedJob& job : jobs) {
        Give(std::move(job));
    }
}

} // namespace recastor
