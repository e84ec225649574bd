#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/tokens.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TbTrParseNode* Stacking(const char* first, const char* second) {
    auto* stacking = new TbTrParseNode(SP_PLUS, nullptr);
    stacking->AppendChild(TbTrParseNode::MakeVarNameNode(Word(first)));
    stacking->AppendChild(TbTrParseNode::MakeVarNameNode(Word(second)));
    return stacking;
}

TEST(ExpandedDimensions, AnswerAsTheDimensionDoesEachTimeAnew) {
    ExpandedDimensions dimensions;
    dimensions.AppendChild(Stacking("a", "b"));
    dimensions.AppendChild(nullptr);
    dimensions.AppendChild(TbTrParseNode::MakeVarNameNode(Word("c")));
    TbTrParseNode list(TBI_VARLIST, nullptr);
    list.AppendChild(TbTrParseNode::MakeVarNameNode(Word("b")));
    TbTrParseNode other(TBI_VARLIST, nullptr);
    other.AppendChild(TbTrParseNode::MakeVarNameNode(Word("c")));
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(dimensions.FlagOf(0, list), -1); // in one of two
        EXPECT_EQ(dimensions.FlagOf(2, list), 0);
        EXPECT_EQ(dimensions.FlagOf(0, other), 0);
        EXPECT_EQ(dimensions.FlagOf(2, other), 1);
    }
}

TEST(ExpandedDimensions, AreKnownAmongNodes) {
    const ExpandedDimensions dimensions;
    const TbTrParseNode& node = dimensions;
    EXPECT_EQ(node.AsExpandedDimensions(), &dimensions);
    EXPECT_EQ(node.AsCommandNode(), nullptr);
    EXPECT_EQ(TbTrParseNode(TBI_GENERICLIST, nullptr).AsExpandedDimensions(), nullptr);
}

} // namespace

} // namespace recastor
