#include "archive/outcome/fileoutcome.h"

#include "archive/outcome/outcomenames.h"

#include <array>

namespace recastor {

namespace {

using Count = std::uint64_t OutcomeCounts::*;

static_assert(sizeof(OutcomeCounts) == kOutcomeCounts.size() * sizeof(std::uint64_t),
              "every count has its row");

/// The count that a file of the status adds to, in the order of FileStatus.
constexpr std::array<Count, 6> kCountOfStatus{
    &OutcomeCounts::filesConverted,  &OutcomeCounts::filesConverted,
    &OutcomeCounts::filesIncomplete, &OutcomeCounts::filesIncomplete,
    &OutcomeCounts::filesFailed,     &OutcomeCounts::filesSkipped,
};

} // namespace

bool IsConvertible(ReportedKind kind) {
    return kind == ReportedKind::kTables || kind == ReportedKind::kIgraph;
}

OutcomeCounts& OutcomeCounts::operator+=(const OutcomeCounts& other) {
    for (const auto& [name, count] : kOutcomeCounts) {
        this->*count += other.*count;
    }
    return *this;
}

OutcomeCounts CountsOf(const FileOutcome& outcome) {
    OutcomeCounts counts;
    counts.files = 1;
    counts.*kCountOfStatus.at(static_cast<std::size_t>(outcome.status)) = 1;
    counts.commandsCopied = outcome.copied;
    counts.warnings = outcome.notes.size();
    for (const CommandOutcome& command : outcome.commands) {
        if (IsConvertible(command.kind)) {
            ++(command.error ? counts.commandsNotConverted : counts.commandsConverted);
        }
        counts.warnings += command.warnings.size();
        counts.missedLines += command.missedLines.size();
    }
    return counts;
}

} // namespace recastor
