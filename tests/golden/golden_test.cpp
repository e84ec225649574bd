// The whole program on whole files. Each folder beside this file is a case:
//
//   input.syn      what is converted
//   arguments      the command line, one argument a line (if left out: input.syn output.syn)
//   output.syn     what must be written (left out: no output file is made)
//   stdout stderr status     what the run must say and return
//
// Whatever a run does, it leaves its input alone.
//
// With RECASTOR_REGENERATE set the files are written in place of being compared.

#include "tests/support/run.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

const fs::path kCases = fs::path(RECASTOR_TESTS) / "golden";

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kCases)) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> Arguments(const fs::path& folder) {
    if (!fs::exists(folder / "arguments")) {
        return {"input.syn", "output.syn"};
    }
    std::istringstream lines(ReadFile(folder / "arguments"));
    std::vector<std::string> arguments;
    for (std::string line; std::getline(lines, line);) {
        arguments.push_back(line);
    }
    return arguments;
}

void CompareOrRegenerate(const fs::path& expected, const std::string& actual) {
    if (std::getenv("RECASTOR_REGENERATE") != nullptr) {
        WriteFile(expected, actual);
        return;
    }
    EXPECT_EQ(ReadFile(expected), actual) << expected;
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, ConvertsAsRecorded) {
    const fs::path folder = kCases / GetParam();
    const TemporaryFolder work;
    if (fs::exists(folder / "input.syn")) {
        fs::copy_file(folder / "input.syn", work.Path() / "input.syn");
    }
    const RunResult result = RunProgram(RECASTOR_PROGRAM, Arguments(folder), work.Path());
    CompareOrRegenerate(folder / "stdout", result.output);
    CompareOrRegenerate(folder / "stderr", result.errors);
    CompareOrRegenerate(folder / "status", std::to_string(result.status) + '\n');
    const fs::path output = work.Path() / "output.syn";
    if (fs::exists(output) || fs::exists(folder / "output.syn")) {
        ASSERT_TRUE(fs::exists(output)) << "no output was written";
        CompareOrRegenerate(folder / "output.syn", ReadFile(output));
    }
    if (fs::exists(folder / "input.syn")) {
        EXPECT_EQ(ReadFile(folder / "input.syn"), ReadFile(work.Path() / "input.syn"));
    }
}

INSTANTIATE_TEST_SUITE_P(Files, Golden, testing::ValuesIn(CaseNames()),
                         [](const auto& golden) { return golden.param; });

} // namespace

} // namespace recastor
