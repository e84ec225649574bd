#include "archive/tree/progress.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>

namespace recastor {

namespace {

constexpr std::size_t kUsualWidth = 80;

double FilesPerSecond(const ProgressState& state) {
    return state.seconds > 0 ? static_cast<double>(state.done) / state.seconds : 0;
}

std::uint64_t Failures(const OutcomeCounts& counts) {
    return counts.filesFailed + counts.filesIncomplete;
}

std::string Number(double value) {
    return std::to_string(std::llround(value));
}

/// "1:02:03 left", "2:03 left"; empty when it cannot be told.
std::string TimeLeft(const ProgressState& state) {
    const double rate = FilesPerSecond(state);
    if (state.total < state.done || rate <= 0) {
        return "";
    }
    const auto seconds = static_cast<long>(static_cast<double>(state.total - state.done) / rate);
    std::array<char, 48> text{};
    if (seconds >= 3600) {
        static_cast<void>(std::snprintf(text.data(), text.size(), ", %ld:%02ld:%02ld left",
                                        seconds / 3600, seconds / 60 % 60, seconds % 60));
    } else {
        static_cast<void>(std::snprintf(text.data(), text.size(), ", %ld:%02ld left", seconds / 60,
                                        seconds % 60));
    }
    return text.data();
}

/// What a line of 80 columns has room for beside a bar.
std::string ShortLine(const ProgressState& state) {
    return std::to_string(state.done) + '/' + std::to_string(state.total) + " files, " +
           std::to_string(state.counts.commandsConverted) + " converted, " +
           std::to_string(Failures(state.counts)) + " failures, " + Number(FilesPerSecond(state)) +
           "/s" + TimeLeft(state);
}

std::size_t TerminalWidth() {
    struct winsize size {};
    const bool known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsualWidth;
}

} // namespace

std::string ProgressLine(const ProgressState& state) {
    std::string line = std::to_string(state.done);
    if (state.total > 0) {
        line += " of " + std::to_string(state.total);
    }
    return line + " files, " + std::to_string(state.counts.commandsConverted) +
           " commands converted, " + std::to_string(Failures(state.counts)) + " failures, " +
           Number(FilesPerSecond(state)) + " files/s" + TimeLeft(state);
}

std::string ProgressBar(const ProgressState& state, std::size_t width) {
    constexpr std::size_t kFrame = 3; // brackets and a blank
    constexpr std::size_t kLeast = 10;
    const std::string words = ShortLine(state);
    // The last column stays free: some terminals go to the next line when it is written to.
    if (state.total == 0 || words.size() + kFrame + kLeast + 1 > width) {
        return words.substr(0, width > 0 ? width - 1 : 0);
    }
    const std::size_t length = width - 1 - kFrame - words.size();
    const std::size_t full = std::min(length, length * state.done / state.total);
    return '[' + std::string(full, '#') + std::string(length - full, ' ') + "] " + words;
}

Progress::Progress(std::ostream& output, Form form, std::uint64_t total) :
    m_output(output), m_form(form), m_total(total), m_start(Clock::now()), m_last(m_start) {}

void Progress::Tell(std::uint64_t done, const OutcomeCounts& counts) {
    using std::chrono::milliseconds;
    const auto interval = m_form == Form::kBar ? milliseconds(100) : milliseconds(5000);
    const auto now = Clock::now();
    if (m_form == Form::kNone || now - m_last < interval) {
        return;
    }
    m_last = now;
    const ProgressState state{done, m_total, counts,
                              std::chrono::duration<double>(now - m_start).count()};
    if (m_form == Form::kBar) {
        m_output << "\r\x1B[K" << ProgressBar(state, TerminalWidth()) << std::flush;
        m_shown = true;
    } else {
        m_output << ProgressLine(state) << std::endl;
    }
}

void Progress::Clear() {
    if (m_shown) {
        m_output << "\r\x1B[K" << std::flush;
        m_shown = false;
    }
}

Progress::Form FormForStandardError(bool quiet) {
    if (quiet) {
        return Progress::Form::kNone;
    }
    return ::isatty(STDERR_FILENO) == 1 ? Progress::Form::kBar : Progress::Form::kLines;
}

} // namespace recastor
