/// Files that are in memory only, for runs of the converter by the thousand.
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <string>
#include <string_view>

namespace recastor {

/// A file without a place in the file system.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view content);

    /// The name by which this process can open it.
    std::string Name() const { return "/proc/self/fd/" + std::to_string(m_number); }
    std::string Content() const;

private:
    int m_number;
    FileDescriptor m_file;
};

} // namespace recastor
