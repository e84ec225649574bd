/// Runs of the whole converter on files that are in memory only.
#pragma once

#include <string>
#include <string_view>

namespace recastor {

/// What a run left behind.
struct InMemoryResult {
    int status = 0;
    std::string output;
};

/// Converts `input` as the program would; what it says on the standard streams is dropped.
InMemoryResult ConvertInMemory(std::string_view input, bool batch);

/// Whether the text may hold FORMAT=BLANK ZERO, on which the program stops itself by an internal
/// check: whether it holds the first three letters of both words, wherever they stand.
bool MayStopTheProgram(std::string_view input);

} // namespace recastor
