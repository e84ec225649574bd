/// What is known of a run as a whole, kept in the report folder beside its manifest.
#pragma once

#include "archive/tree/treeoptions.h"

#include <cstdint>
#include <string>
#include <vector>

namespace recastor {

struct RunInfo {
    std::string source; ///< as it was given, for showing
    std::string target;
    std::string converter; ///< the program's version
    std::string settings;
    std::int64_t started = 0; ///< nanoseconds since 1970
    std::int64_t finished = 0;
    bool interrupted = false;           ///< not every file was come to
    std::uint64_t shards = 1;           ///< shares that the files were divided into
    std::vector<std::uint64_t> present; ///< those of them that are in the manifest
};

/// The run that `options` ask for, which starts now.
RunInfo StartedRun(const TreeOptions& options);

/// One JSON object, as docs/report.schema.json describes it under "run".
std::string JsonOf(const RunInfo& run);

/// Writes and reads the report folder's run.json. Both throw FileError.
void WriteRunInfo(const std::string& reportFolder, const RunInfo& run);
RunInfo ReadRunInfo(const std::string& reportFolder);

} // namespace recastor
