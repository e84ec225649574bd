/// A run over a whole tree.
#pragma once

#include "archive/tree/treeoptions.h"

namespace recastor {

/// The exit statuses of the program.
enum ExitStatus : int {
    kAllWell = 0,
    kNeedsALook = 1,
    kCannotRun = 2, ///< wrong arguments, or a file or folder that cannot be written
};

/// Converts the tree that the options name and reports on it. What is to be told while it runs goes
/// to standard error, the summary to standard output. The exit status.
int RunTree(const TreeOptions& options);

/// Joins the report folders that the options name into one. The exit status: that of a single run.
int RunMerge(const TreeOptions& options);

} // namespace recastor
