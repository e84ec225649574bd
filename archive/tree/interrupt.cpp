#include "archive/tree/interrupt.h"

#include <array>
#include <csignal>

namespace recastor {

namespace {

volatile std::sig_atomic_t g_interrupts = 0;

void Count(int /*signal*/) {
    g_interrupts = g_interrupts + 1;
}

} // namespace

void CatchInterrupts() {
    struct sigaction counting {};
    counting.sa_handler = &Count;
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int signal : std::array{SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before {};
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            ::sigaction(signal, &counting, nullptr);
            ::sigaddset(&signals, signal);
        }
    }
    ::sigprocmask(SIG_UNBLOCK, &signals, nullptr);
}

int Interrupts() {
    return g_interrupts;
}

} // namespace recastor
