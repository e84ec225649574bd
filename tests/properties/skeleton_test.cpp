// Laws of tables' skeletons: the one read from an old command's tree is the one read from the text
// of its new form.

#include "archive/picture/skeletonofctables.h"
#include "archive/picture/skeletonoftree.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"
#include "tests/support/skeletondifferences.h"
#include "tests/support/translatedtext.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

constexpr int kCases = 2000;

TEST(SkeletonLaws, OldAndNewCommandsMakeTheSameTables) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const std::string command = CommandText(*commands);
            const CommandSkeleton old = SkeletonOfTree(ParseCommand(command));
            const std::string text = TranslatedText(command);
            RC_LOG(text);
            const CommandSkeleton written = SkeletonOfCtables(text + ".\n");
            RC_ASSERT(DifferencesOf(old, written) == std::vector<std::string>());
            RC_ASSERT(old == written);
        },
        kCases));
}

TEST(SkeletonLaws, SoDoCommandsWithTotalsAnywhereWhereTheyCanBeConverted) {
    const rc::Gen<TablesModel> commands = TablesCommandsOfAnyTotals();
    int converted = 0;
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const std::string command = CommandText(*commands);
            const CommandSkeleton old = SkeletonOfTree(ParseCommand(command));
            const std::string text = TranslatedText(command);
            RC_LOG(text);
            if (!text.starts_with("error ")) {
                ++converted;
                const CommandSkeleton written = SkeletonOfCtables(text + ".\n");
                RC_ASSERT(DifferencesOf(old, written) == std::vector<std::string>());
                RC_ASSERT(old == written);
            }
        },
        kCases));
    EXPECT_GT(converted, kCases / 10);
}

} // namespace

} // namespace recastor
