/// What a run comes to.
#pragma once

#include "archive/outcome/fileoutcome.h"
#include "archive/tree/treeoptions.h"

#include <ostream>

namespace recastor {

/// What was counted over a run.
struct TreeTotals {
    OutcomeCounts counts;
    std::uint64_t unchanged = 0;   ///< files whose targets an earlier run made
    std::uint64_t wouldChange = 0; ///< targets that a run that writes would change
    bool cannotWrite = false;      ///< a target, the manifest or a report was not written
    bool interrupted = false;
};

void PrintSummary(const TreeTotals& totals, const TreeOptions& options, std::ostream& output);

/// The exit status that the totals call for.
int StatusOf(const TreeTotals& totals, const TreeOptions& options);

} // namespace recastor
