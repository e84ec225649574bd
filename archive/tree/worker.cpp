#include "archive/tree/worker.h"

#include "archive/tree/convertfile.h"
#include "archive/tree/packet.h"
#include "platform/zelkbase/heapsettings.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace recastor {

namespace {

/// The next job; nothing when there will be none.
std::optional<FileJob> ReceiveJob(const FileDescriptor& socket, std::string& received) {
    std::array<char, 65536> block{};
    for (;;) {
        if (const auto packet = TakePacket(received)) {
            return JobOfPacket(*packet);
        }
        const long count = socket.Read(block.data(), block.size());
        if (count <= 0) {
            return std::nullopt;
        }
        received.append(block.data(), static_cast<std::size_t>(count));
    }
}

void UseLocale(const std::string& name) {
    ::setenv("LC_ALL", name.c_str(), 1);
}

/// A worker that is at a file does not see that nobody waits for it any more, and a file that the
/// converter does not come to the end of would keep it forever.
void DieWith(pid_t parent) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) { // it died before that
        std::_Exit(0);
    }
}

} // namespace

void RunWorker(const TreeOptions& options, const FileDescriptor& socket,
               const FileDescriptor& errors, pid_t parent) noexcept {
    DieWith(parent);
    // Ctrl-C is sent to every process of the terminal; only the first one decides what it means.
    static_cast<void>(std::signal(SIGINT, SIG_IGN));
    static_cast<void>(std::signal(SIGTERM, SIG_IGN));
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    const struct rlimit noCoreFile {};
    ::setrlimit(RLIMIT_CORE, &noCoreFile);
    ::dup2(errors.Number(), STDERR_FILENO);
    std::cout.rdbuf(nullptr);
    KeepFreedMemory();
    UseLocale(options.locale);

    FileConverter converter(options);
    std::string received;
    while (const auto job = ReceiveJob(socket, received)) {
        if (!socket.Write(PacketOf(converter.Convert(*job)))) {
            break;
        }
    }
    std::_Exit(0);
}

} // namespace recastor
