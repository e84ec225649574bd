/// The recorded cases of `tests/golden`, and how each runs the program.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace recastor {

/// The folders of all cases, in the order of their names. The folder that holds them is given,
/// since only the tests themselves know where they were built from.
std::vector<std::filesystem::path> GoldenCases(const std::filesystem::path& folder);

/// The arguments that the case gives the program: the lines of its file `arguments`, or without
/// one its input and its output.
std::vector<std::string> GoldenArguments(const std::filesystem::path& goldenCase);

/// Whether the case's run reads batch-mode syntax; no when its arguments are wrong.
bool IsBatchCase(const std::filesystem::path& goldenCase);

} // namespace recastor
