// A statistics list that is taken from another term is the one that would have been written.

#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_totals.h"
#include "tests/support/commandtree.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"
#include "tests/support/translatedtext.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

constexpr int kCases = 1000;

/// Makes the table what it is when its dimensions are written; the statistics dimension, counted
/// from 1, or 0 when there is none.
int Prepare(TbTrParseNode& table) {
    ParseTree::RemovePseudoVariables(table, true);
    ParseTree::RemovePseudoVariables(table, false);
    TotalsMap totals;
    for (unsigned slot = 0; slot < table.GetChildCount(); ++slot) {
        if (const TbTrParseNode* dimension = table.GetChild(slot)) {
            RC_ASSERT(AssociateTotals(*dimension, totals));
        }
    }
    const int dimension = ParseTree::DetermineStatsDimension(table, totals);
    if (dimension != 0) {
        ParseTree::MultiplyOutInPlace(*table.GetChild(static_cast<unsigned>(dimension - 1)));
    }
    return dimension;
}

/// The statistics dimension as it is written, piece by piece.
std::string Written(const TbTrParseNode& table, int dimension, bool keepLists) {
    ExpandedDimensions others;
    const auto statisticsSlot = static_cast<unsigned>(dimension - 1);
    for (unsigned slot = 0; slot < table.GetChildCount(); ++slot) {
        if (slot != statisticsSlot && table.GetChild(slot) != nullptr) {
            others.SetDimension(slot, *table.GetChild(slot));
        }
    }
    if (keepLists) {
        others.KeepStatistics(ParseTree::FindSubcommand(table, TB_STATISTICS, false));
    }
    const TbTrParseNode* firstMagnet = nullptr;
    OutputSequence output;
    RC_ASSERT(ParseTree::ExpressDimension(*table.GetChild(statisticsSlot), dimension, dimension,
                                          others, firstMagnet, output));
    return Pieces(output);
}

/// Functions that are not given for named variables, so that terms may share their lists. The bases
/// are names that commands have often.
rc::Gen<std::string> SharedStatistics() {
    return rc::gen::apply(Join,
                          OneTo(4, OneOf({"count", "U mean((f5) 'Mean')", "cases", "sum", "cpct",
                                          "cpct('%': sex educ)", "unw rpct('%': a papers income)",
                                          "cpct('%': region hours $media b_1)"})),
                          OneOf({" ", ", "}));
}

TEST(StatisticsMemoLaws, KeptListsAreThoseThatWouldBeWrittenAnew) {
    const rc::Gen<TablesModel> commands = TablesCommands({true, true, true, false});
    const rc::Gen<std::string> shared = SharedStatistics();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            TablesModel model = *commands;
            if (*OnceIn(2)) {
                model.tables.front().statistics = *shared;
            }
            const std::string text = CommandText(model);
            RC_LOG(text);
            TbTrParseNode& table = ParseTable(text);
            const int dimension = Prepare(table);
            RC_PRE(dimension != 0);
            RC_ASSERT(Written(table, dimension, true) == Written(table, dimension, false));
        },
        kCases));
}

} // namespace

} // namespace recastor
