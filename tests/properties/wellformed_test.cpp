// What is written for a command that can be converted is well-formed: to a grammar that knows
// nothing of the translator, and to the rules by which commands are read.

#include "archive/picture/ctablesgrammar.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/printcommand.h"
#include "tests/support/dump.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"
#include "tests/support/translatedtext.h"

#include <sstream>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

constexpr int kCases = 500;

/// The translated command as it stands in the output file, where no line is of blanks only.
std::string Written(const TablesModel& model) {
    std::stringstream printed;
    PrintCommand(TranslatedText(CommandText(model)), printed, 0);
    std::string written;
    for (std::string line; std::getline(printed, line);) {
        written += IsWSOnly(line) ? "" : line + '\n';
    }
    RC_LOG(written);
    return written;
}

TEST(WellFormedLaws, TenThousandCommandsBecomeWellFormedCommands) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways([&] { ReadCtables(Written(*commands)); }, 10000));
}

TEST(WellFormedLaws, WhatIsWrittenTokenizes) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const std::string tokens = DumpTokens(Written(*commands));
            RC_LOG(tokens);
            RC_ASSERT(!tokens.starts_with("error "));
            RC_ASSERT(tokens.ends_with(" kPeriod") || tokens.ends_with("."));
        },
        kCases));
}

TEST(WellFormedLaws, NoLineOfWhatIsWrittenEndsItsCommandTooEarly) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const std::string written = Written(*commands);
            const bool hasGroups = written.starts_with("MRSETS");
            for (const bool batch : {false, true}) {
                std::istringstream file(written);
                CommandStream stream(file, batch);
                int found = 0;
                while (!stream.NextCommand()) {
                    ++found;
                }
                RC_ASSERT(found == (hasGroups ? 2 : 1));
            }
        },
        kCases));
}

} // namespace

} // namespace recastor
