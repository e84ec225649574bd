// What the recorded cases hold is read by a grammar of its own: every converted command must be a
// well-formed MRSETS and CTABLES command.

#include "tests/support/convertedtables.h"
#include "tests/support/ctablesgrammar.h"
#include "tests/support/run.h"

#include <filesystem>
#include <stdexcept>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

TEST(WellFormed, EveryConvertedCommandOfTheGoldenCases) {
    int commands = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(RECASTOR_TESTS) / "golden")) {
        const fs::path output = entry.path() / "output.syn";
        if (!fs::exists(output)) {
            continue;
        }
        for (const ConvertedTables& one : ConvertedTablesIn(ReadFile(output))) {
            if (!one.commands.empty()) {
                EXPECT_NO_THROW(ReadCtables(one.commands)) << output << '\n' << one.commands;
                ++commands;
            }
        }
    }
    EXPECT_GT(commands, 200);
}

} // namespace

} // namespace recastor
