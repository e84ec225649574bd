// Every graph that a golden case records is held to the grammar.

#include "tests/support/goldencases.h"
#include "tests/support/gplgrammar.h"
#include "tests/support/run.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

TEST(GoldenGraphs, AreWellFormed) {
    int count = 0;
    for (const fs::path& folder : GoldenCases(fs::path(RECASTOR_TESTS) / "golden")) {
        const fs::path file = folder / "output.syn";
        if (!fs::exists(file)) {
            continue;
        }
        SCOPED_TRACE(folder.filename());
        std::string output = ReadFile(file);
        std::erase(output, '\r');
        for (const std::string& form : GGraphFormsIn(output)) {
            if (form.starts_with('*')) {
                EXPECT_EQ(form.find('\n'), form.size() - 1);
                EXPECT_TRUE(form.ends_with(".\n"));
            } else {
                EXPECT_EQ(GGraphFault(form), "") << form;
                ++count;
            }
        }
    }
    EXPECT_GE(count, 150);
}

} // namespace recastor
