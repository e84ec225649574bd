// What is written for a command that can be converted is well-formed, read by a grammar that knows
// nothing of the translator.

#include "tests/support/ctablesgrammar.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"
#include "tests/support/translatedtext.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

TEST(WellFormedLaws, TenThousandCommandsBecomeWellFormedCommands) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const TablesModel model = *commands;
            const std::string text = TranslatedText(CommandText(model));
            RC_LOG(text);
            ReadCtables(text + ".\n");
        },
        10000));
}

} // namespace

} // namespace recastor
