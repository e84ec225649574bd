/// The command line: what a run is asked to do.
#pragma once

#include <optional>
#include <string>

namespace recastor {

/// What the arguments ask for.
struct RunRequest {
    bool batch = false; ///< batch-mode syntax rules
    std::string inputName;
    std::string outputName;
};

/// Reads the arguments (program name included). With three names behind the program's the first
/// is a switch: "-" or "/", then "b"; only these two characters count. Nothing when they are wrong.
std::optional<RunRequest> ReadArguments(int argc, const char* const* argv);

/// The usage text. It names recastor whatever the program was started as.
std::string Usage(const std::string& programName);

/// Converts the request's input file into its output file; what cannot be opened, read or written,
/// and a run that an error ended, is told on standard error. The exit status: 0, or 1 on failure.
int RunConversion(const RunRequest& request);

/// Tells standard error that an error ended the run.
void PrintFailedMessage();

} // namespace recastor
