#include "ctables/recastor/bison/buildervalues.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "tests/support/tokens.h"
#include "tests/support/values.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string DumpNode(TbTrParseNode* node) {
    const std::unique_ptr<TbTrParseNode> owner(node);
    return DumpTree(node);
}

TEST(BuilderValues, DropValuesClearsEachOfThem) {
    int deleted = 0;
    OpaqueValue first = TokenValue(new WatchedToken(deleted), SP_BY);
    OpaqueValue second = common_nothing();
    OpaqueValue third = NodeValue(new TbTrParseNode(TB_SORT, new WatchedToken(deleted)));
    DropValues(first, second, third);
    EXPECT_EQ(deleted, 2);
    EXPECT_TRUE(OpaqueValue_IsEmpty(first) && OpaqueValue_IsEmpty(third));
}

TEST(BuilderValues, ListIsMadeForItsFirstElementAndGrowsAtTheEnd) {
    OpaqueValue list =
        AppendToList(common_nothing(), TBI_VARLIST, NodeValue(new TbTrParseNode(TB_ON, nullptr)));
    list = AppendToList(list, TBI_VARLIST, NodeValue(new TbTrParseNode(TB_OFF, nullptr)));
    list = AppendToList(list, TBI_VARLIST, common_nothing());
    EXPECT_EQ(DumpValue(list), "(VARLIST (ON) (OFF) _)");
}

TEST(BuilderValues, MovedChildrenFollowThoseOfTheTarget) {
    TbTrParseNode target(TB_TITLE, nullptr);
    target.AppendChild(new TbTrParseNode(TB_ON, nullptr));
    auto* const source = new TbTrParseNode(TBI_GENERICLIST, nullptr);
    source->AppendChild(new TbTrParseNode(TB_OFF, nullptr));
    source->AppendChild(nullptr);
    source->AppendChild(new TbTrParseNode(TB_ZERO, nullptr));
    MoveChildren(source, target);
    EXPECT_EQ(DumpTree(&target), "(TITLE (ON) (OFF) _ (ZERO))");
    EXPECT_EQ(target.GetChild(3)->GetParent(), &target);
    EXPECT_EQ(target.GetChildIndex(target.GetChild(3)), 3U);
}

TEST(BuilderValues, NodesOfTokensAndOfNothing) {
    EXPECT_EQ(DumpNode(LiteralNode(TokenValue(Literal("x"), SP_SLITERAL))), "'x'");
    EXPECT_EQ(DumpNode(NumberNode(TokenValue(Number(5), SP_NUMBER))), "5.000000");
    EXPECT_EQ(DumpNode(VarNameNode(TokenValue(Word("abc"), SP_VARNAME))), "abc");
    EXPECT_EQ(LiteralNode(common_nothing()), nullptr);
    EXPECT_EQ(NumberNode(common_nothing()), nullptr);
    EXPECT_EQ(VarNameNode(common_nothing()), nullptr);
}

TEST(BuilderValues, LabelStandsInTheFirstSlotOfTheName) {
    const std::unique_ptr<TbTrParseNode> labelled(LabelledVarNameNode(
        TokenValue(Word("t"), SP_VARNAME), TokenValue(Literal("Total"), SP_SLITERAL)));
    EXPECT_EQ(labelled->GetChildCount(), 2U);
    EXPECT_EQ(labelled->GetChild(0)->GetNodeType(), SP_SLITERAL);
    EXPECT_EQ(labelled->GetChild(1), nullptr);
    const std::unique_ptr<TbTrParseNode> bare(
        LabelledVarNameNode(TokenValue(Word("t"), SP_VARNAME), common_nothing()));
    EXPECT_EQ(bare->GetChildCount(), 2U);
    EXPECT_EQ(bare->GetChild(0), nullptr);
}

TEST(BuilderValuesDeathTest, ListsAndNodesOfAnotherTypeAreInternalErrors) {
    const OpaqueValue list = NodeValue(new TbTrParseNode(TBI_VARLIST, nullptr));
    EXPECT_DEATH(AppendToList(list, TB_SORT, common_nothing()), "CheckParseNode");
    const OpaqueValue word = TokenValue(Word("abc"), SP_VARNAME);
    EXPECT_DEATH(LiteralNode(word), "node != nullptr");
    EXPECT_DEATH(LabelledVarNameNode(common_nothing(), word), "node != nullptr");
    OpaqueValue owned[] = {list, word};
    DropValues(owned[0], owned[1]);
}

} // namespace

} // namespace recastor
