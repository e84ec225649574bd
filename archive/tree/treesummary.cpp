#include "archive/tree/treesummary.h"

#include "archive/outcome/shownpath.h"
#include "archive/tree/treerun.h"

namespace recastor {

void PrintSummary(const TreeTotals& totals, const TreeOptions& options, std::ostream& output) {
    const OutcomeCounts& counts = totals.counts;
    if (totals.interrupted) {
        output << (options.merge.empty()
                       ? "interrupted: the same command goes on where this run ended\n"
                       : "not all: a share is missing or was interrupted\n");
    }
    output << counts.files << " files: " << counts.filesConverted << " converted, "
           << counts.filesIncomplete << " incomplete, " << counts.filesFailed << " failed, "
           << counts.filesSkipped << " skipped";
    if (totals.unchanged > 0) {
        output << "; " << totals.unchanged << " unchanged since an earlier run";
    }
    output << '\n'
           << counts.commandsConverted + counts.commandsNotConverted
           << " TABLES and IGRAPH commands: " << counts.commandsConverted << " converted, "
           << counts.commandsNotConverted << " not converted; " << counts.warnings << " warnings, "
           << counts.missedLines << " possibly missed\n";
    if (options.merge.empty() && !options.WritesTargets()) {
        output << totals.wouldChange << " targets would change\n";
    }
    if (!options.report.empty()) {
        output << "report: " << ShownPath(options.report) << "/index.html\n";
    }
}

int StatusOf(const TreeTotals& totals, const TreeOptions& options) {
    const OutcomeCounts& counts = totals.counts;
    if (totals.cannotWrite) {
        return kCannotRun;
    }
    if (options.check) {
        return totals.wouldChange + counts.filesFailed > 0 || totals.interrupted ? kNeedsALook
                                                                                 : kAllWell;
    }
    const bool error = counts.filesFailed + counts.filesIncomplete > 0 || totals.interrupted;
    const bool warning = counts.warnings + counts.missedLines + counts.filesSkipped > 0;
    return error || (warning && options.failOn == FailOn::kWarning) ? kNeedsALook : kAllWell;
}

} // namespace recastor
