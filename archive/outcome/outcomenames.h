/// The names by which reports call what the outcomes tell apart.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <array>
#include <string>
#include <string_view>

namespace recastor {

/// A count, and the name by which reports call it.
struct NamedCount {
    std::string_view name;
    std::uint64_t OutcomeCounts::*count;
};

/// Every count, in the order of the reports.
inline constexpr std::array<NamedCount, 10> kOutcomeCounts{{
    {"files", &OutcomeCounts::files},
    {"filesConverted", &OutcomeCounts::filesConverted},
    {"filesIncomplete", &OutcomeCounts::filesIncomplete},
    {"filesFailed", &OutcomeCounts::filesFailed},
    {"filesSkipped", &OutcomeCounts::filesSkipped},
    {"commandsConverted", &OutcomeCounts::commandsConverted},
    {"commandsNotConverted", &OutcomeCounts::commandsNotConverted},
    {"commandsCopied", &OutcomeCounts::commandsCopied},
    {"warnings", &OutcomeCounts::warnings},
    {"missedLines", &OutcomeCounts::missedLines},
}};

std::string NameOf(FileStatus status);
std::string NameOf(ReportedKind kind);

/// The status or kind that has the name; std::out_of_range when none has.
FileStatus StatusOfName(std::string_view name);
ReportedKind KindOfName(std::string_view name);

} // namespace recastor
