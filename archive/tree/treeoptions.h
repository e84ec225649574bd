/// What a run is asked to do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace recastor {

/// What makes a run end with the status that says that something needs a look.
enum class FailOn { kError, kWarning };

/// Which part of the files is to be converted: the `number`th (1-based) of `count`.
struct Shard {
    std::uint64_t number = 1;
    std::uint64_t count = 1;
};

struct TreeOptions {
    std::string source;
    std::string target;
    std::string report;         ///< the report folder; empty when none is to be written
    bool isUsualReport = false; ///< it is the one inside of the target, which nobody named
    bool batch = false;         ///< batch-mode syntax rules
    unsigned jobs = 1;
    std::vector<std::string> include; ///< patterns of the files that are converted
    std::vector<std::string> exclude; ///< patterns of those that are not, and of folders
    std::string encoding = "auto";
    std::string locale; ///< the installed locale that has the encoding
    bool dryRun = false;
    bool check = false;
    bool quiet = false;
    FailOn failOn = FailOn::kError;
    unsigned timeLimit = 0; ///< seconds for one file
    Shard shard;
    std::vector<std::string> merge; ///< report folders to join; then nothing is converted

    bool WritesTargets() const { return !dryRun && !check; }
    /// What of it a target depends on.
    std::string Settings() const;
};

/// The options that the arguments (program name included) ask for, with what they leave open filled
/// in. Otherwise the exit status of a run that is already over, with what there is to say said: 0
/// for --help and --version, 2 for a mistake.
struct OptionsOrStatus {
    std::optional<TreeOptions> options;
    int status = 0;
};
OptionsOrStatus ReadTreeOptions(int argc, const char* const* argv);

} // namespace recastor
