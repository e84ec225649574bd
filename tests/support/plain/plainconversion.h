/// The reference for a whole run: every command is tokenized whole, and the output is put together
/// in memory.
#pragma once

#include <string>

namespace recastor {

/// What a run leaves behind.
struct RunTraces {
    std::string output;
    std::string progress; ///< what it says on standard output
    int status = 0;

    bool operator==(const RunTraces& other) const = default;
};

/// What the program does, in the user's locale.
RunTraces ProductRun(const std::string& input, bool batch);

/// What it should do: the same but for everything that happens between reading the input and the
/// conversion of a TABLES or IGRAPH command.
RunTraces PlainRun(const std::string& input, bool batch);

} // namespace recastor
