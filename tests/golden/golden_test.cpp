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

#include "tests/support/goldencases.h"
#include "tests/support/run.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

const fs::path kCases = fs::path(RECASTOR_TESTS) / "golden";

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const fs::path& folder : GoldenCases(kCases)) {
        names.push_back(folder.filename().string());
    }
    return names;
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
    const RunResult result = RunProgram(RECASTOR_PROGRAM, GoldenArguments(folder), work.Path());
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
