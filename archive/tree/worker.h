/// The life of a worker process.
#pragma once

#include "archive/tree/treeoptions.h"
#include "ctables/recastor/filedescriptor.h"

#include <sys/types.h>

namespace recastor {

/// Converts what jobs come over `socket` until it is closed at the other end; then the process
/// ends. What the converter says on its standard streams does not reach the user: the progress of
/// commands is dropped, and `errors` gets the reason of a crash. The process ends at once when
/// `parent`, which started it, dies.
///
/// It runs on a copy of the parent's stack: what it does not catch ends the process, and nothing
/// unwinds into the parent's functions, whose destructors would act on the parent's files.
[[noreturn]] void RunWorker(const TreeOptions& options, const FileDescriptor& socket,
                            const FileDescriptor& errors, pid_t parent) noexcept;

} // namespace recastor
