/// The life of a worker process.
#pragma once

#include "archive/tree/treeoptions.h"
#include "ctables/recastor/filedescriptor.h"

namespace recastor {

/// Converts what jobs come over `socket` until it is closed at the other end; then the process
/// ends. What the converter says on its standard streams does not reach the user: the progress of
/// commands is dropped, and `errors` gets the reason of a crash.
[[noreturn]] void RunWorker(const TreeOptions& options, const FileDescriptor& socket,
                            const FileDescriptor& errors);

} // namespace recastor
