/// How far a run is, told on standard error while it lasts.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <chrono>
#include <cstdint>
#include <ostream>
#include <string>

namespace recastor {

/// What is told.
struct ProgressState {
    std::uint64_t done = 0;  ///< files
    std::uint64_t total = 0; ///< files; 0 while it is not known
    OutcomeCounts counts;
    double seconds = 0; ///< since the start
};

/// One line: on a terminal a bar of `width` columns in all, else words.
std::string ProgressBar(const ProgressState& state, std::size_t width);
std::string ProgressLine(const ProgressState& state);

/// Tells the state from time to time: on a terminal ten times a second in one place, otherwise a
/// line each five seconds.
class Progress {
public:
    enum class Form { kNone, kLines, kBar };

    /// `output` is not owned.
    Progress(std::ostream& output, Form form, std::uint64_t total);
    /// Tells the state if it is time.
    void Tell(std::uint64_t done, const OutcomeCounts& counts);
    /// Takes the bar away, so that other lines can be written; the next Tell() brings it back.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& m_output;
    Form m_form;
    std::uint64_t m_total;
    Clock::time_point m_start;
    Clock::time_point m_last;
    bool m_shown = false;
};

/// The form that suits this process's standard error.
Progress::Form FormForStandardError(bool quiet);

} // namespace recastor
