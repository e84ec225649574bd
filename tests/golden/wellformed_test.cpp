// What the recorded cases hold is read by a grammar of its own: every converted command must be a
// well-formed MRSETS and CTABLES command.

#include "archive/picture/ctablesgrammar.h"
#include "tests/support/convertedtables.h"
#include "tests/support/goldencases.h"
#include "tests/support/run.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

/// The converted commands of all cases.
std::vector<std::string> RecordedCommands() {
    std::vector<std::string> commands;
    for (const fs::path& folder : GoldenCases(fs::path(RECASTOR_TESTS) / "golden")) {
        const fs::path output = folder / "output.syn";
        if (!fs::exists(output)) {
            continue;
        }
        for (const ConvertedTables& one : ConvertedTablesIn(ReadFile(output))) {
            if (!one.commands.empty()) {
                commands.push_back(one.commands);
            }
        }
    }
    return commands;
}

TEST(WellFormed, EveryConvertedCommandOfTheGoldenCases) {
    const std::vector<std::string> commands = RecordedCommands();
    EXPECT_GT(commands.size(), 200U);
    for (const std::string& command : commands) {
        EXPECT_NO_THROW(ReadCtables(command)) << command;
    }
}

} // namespace

} // namespace recastor
