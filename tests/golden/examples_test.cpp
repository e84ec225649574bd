// The examples that ship with us are golden cases too.

#include "tests/support/run.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

TEST(GoldenExamples, AreTheInputsOfTheirCases) {
    const fs::path cases = fs::path(RECASTOR_TESTS) / "golden";
    int count = 0;
    for (const auto& example : fs::directory_iterator(fs::path(RECASTOR_ROOT) / "examples")) {
        SCOPED_TRACE(example.path());
        const fs::path input = cases / ("example_" + example.path().stem().string()) / "input.syn";
        ASSERT_TRUE(fs::exists(input));
        EXPECT_EQ(ReadFile(input), ReadFile(example.path()));
        ++count;
    }
    EXPECT_GE(count, 2);
}

} // namespace recastor
