#include "ctables/recastor/tbtrparsenode.h"
#include "tests/support/tokens.h"

#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using NodePtr = TbTrParseNode::NodePtr;

TbTrParseNode* NewNode(int type) {
    return new TbTrParseNode(type, nullptr);
}

/// A list whose slots hold nodes of the types, null for 0.
NodePtr MakeList(std::initializer_list<int> types) {
    NodePtr list(NewNode(TBI_GENERICLIST));
    for (const int type : types) {
        list->AppendChild(type != 0 ? NewNode(type) : nullptr);
    }
    return list;
}

/// The types in the slots, 0 for null: "296 0 297".
std::string Slots(const TbTrParseNode& node) {
    std::string slots;
    for (unsigned i = 0; i < node.GetChildCount(); ++i) {
        const TbTrParseNode* const child = node.GetChild(i);
        slots += (i > 0 ? " " : "") + std::to_string(child != nullptr ? child->GetNodeType() : 0);
    }
    return slots;
}

TEST(TbTrParseNode, StartsWithTypeAndTokenOnly) {
    ZELKToken* const token = Word("abc");
    const TbTrParseNode node(SP_VARNAME, token);
    EXPECT_EQ(node.GetNodeType(), SP_VARNAME);
    EXPECT_EQ(node.GetToken(), token);
    EXPECT_EQ(node.GetParent(), nullptr);
    EXPECT_EQ(node.GetChildCount(), 0U);
}

TEST(TbTrParseNode, NotedTypeGoesWithItsToken) {
    TbTrParseNode node(SP_VARNAME, Word("abc"));
    EXPECT_EQ(node.GetNotedType(), TbTrParseNode::kNotLookedUp);
    node.NoteType(TB_FTOTAL);
    EXPECT_EQ(node.GetNotedType(), TB_FTOTAL);
    EXPECT_EQ(NodePtr(node.Clone())->GetNotedType(), TB_FTOTAL);
    delete node.SetToken(Word("abc"));
    EXPECT_EQ(node.GetNotedType(), TbTrParseNode::kNotLookedUp);
}

TEST(TbTrParseNode, DeletesItsTokenAndItsChildren) {
    int deleted = 0;
    NodePtr root(new TbTrParseNode(TBI_GENERICLIST, new WatchedToken(deleted)));
    root->AppendChild(new TbTrParseNode(SP_NUMBER, new WatchedToken(deleted)));
    root->AppendChild(nullptr);
    root->GetChild(0)->AppendChild(new TbTrParseNode(SP_NUMBER, new WatchedToken(deleted)));
    root.reset();
    EXPECT_EQ(deleted, 3);
}

TEST(TbTrParseNode, SetNodeTypeKeepsTokenAndChildren) {
    ZELKToken* const token = Word("abc");
    TbTrParseNode node(SP_NONVARNAME, token);
    node.AppendChild(nullptr);
    node.SetNodeType(SP_VARNAME);
    EXPECT_EQ(node.GetNodeType(), SP_VARNAME);
    EXPECT_EQ(node.GetToken(), token);
    EXPECT_EQ(node.GetChildCount(), 1U);
}

TEST(TbTrParseNode, SetTokenLeavesThePreviousOneToTheCaller) {
    int deleted = 0;
    auto* first = new WatchedToken(deleted);
    TbTrParseNode node(SP_NUMBER, first);
    const std::unique_ptr<ZELKToken> previous(node.SetToken(nullptr));
    EXPECT_EQ(previous.get(), first);
    EXPECT_EQ(deleted, 0);
    EXPECT_EQ(node.GetToken(), nullptr);
}

TEST(TbTrParseNode, SetChildBehindTheLastSlotDoesNothing) {
    const NodePtr list = MakeList({TB_ON});
    TbTrParseNode child(TB_OFF, nullptr);
    EXPECT_EQ(list->SetChild(1, &child), nullptr);
    EXPECT_EQ(child.GetParent(), nullptr);
    EXPECT_EQ(Slots(*list), "279");
}

TEST(TbTrParseNode, SetChildReturnsWhatStoodInTheSlot) {
    const NodePtr list = MakeList({TB_ON, 0});
    const NodePtr taken = list->SetChild(0, NewNode(TB_OFF));
    EXPECT_EQ(taken->GetNodeType(), TB_ON);
    EXPECT_EQ(taken->GetParent(), nullptr);
    EXPECT_EQ(list->GetChild(0)->GetParent(), list.get());
    EXPECT_EQ(list->SetChild(1, NewNode(TB_ZERO)), nullptr);
    EXPECT_EQ(Slots(*list), "280 289");
    const NodePtr emptied = list->SetChild(0, nullptr);
    EXPECT_EQ(emptied->GetNodeType(), TB_OFF);
    EXPECT_EQ(Slots(*list), "0 289");
}

TEST(TbTrParseNode, RemoveChildErasesTheSlot) {
    const NodePtr list = MakeList({TB_ON, 0, TB_OFF});
    const NodePtr removed = list->RemoveChild(0);
    EXPECT_EQ(removed->GetNodeType(), TB_ON);
    EXPECT_EQ(removed->GetParent(), nullptr);
    EXPECT_EQ(list->RemoveChild(0), nullptr);
    EXPECT_EQ(Slots(*list), "280");
    EXPECT_EQ(list->RemoveChild(1), nullptr);
    EXPECT_EQ(Slots(*list), "280");
}

TEST(TbTrParseNode, AppendingNullGrowsTheChildCountByOne) {
    const NodePtr list = MakeList({TB_ON});
    list->AppendChild(nullptr);
    EXPECT_EQ(list->GetChildCount(), 2U);
    EXPECT_EQ(list->GetChild(1), nullptr);
    list->AppendChild(NewNode(TB_OFF));
    EXPECT_EQ(list->GetChild(2)->GetParent(), list.get());
}

TEST(TbTrParseNode, NullChildrenAreInsertedUpToTheEndAndNotBehindIt) {
    struct Row {
        unsigned index;
        unsigned count;
        unsigned inserted;
        const char* slots;
    };
    for (const auto& [index, count, inserted, slots] : {
             Row{2, 3, 3, "279 280 0 0 0"},
             Row{3, 1, 0, "279 280"},
             Row{0, 2, 2, "0 0 279 280"},
             Row{1, 1, 1, "279 0 280"},
             Row{1, 0, 0, "279 280"},
         }) {
        SCOPED_TRACE(index);
        const NodePtr list = MakeList({TB_ON, TB_OFF});
        EXPECT_EQ(list->InsertNullChildren(index, count), inserted);
        EXPECT_EQ(Slots(*list), slots);
    }
}

TEST(TbTrParseNode, GetChildIsNullOutOfRange) {
    const NodePtr list = MakeList({TB_ON});
    EXPECT_EQ(list->GetChild(0)->GetNodeType(), TB_ON);
    EXPECT_EQ(list->GetChild(1), nullptr);
    EXPECT_EQ(list->GetChild(TbTrParseNode::kNoIndex), nullptr);
}

TEST(TbTrParseNode, GetChildIndexOfAStrangerIsAllOnes) {
    const NodePtr list = MakeList({TB_ON, 0});
    const NodePtr other = MakeList({TB_ON});
    EXPECT_EQ(list->GetChildIndex(other->GetChild(0)), 0xFFFFFFFFU);
    EXPECT_EQ(list->GetChildIndex(list.get()), 0xFFFFFFFFU);
}

TEST(TbTrParseNode, GetChildIndexFollowsTheChildAsSlotsMove) {
    const NodePtr list = MakeList({TB_ON, 0, TB_OFF});
    const TbTrParseNode* const last = list->GetChild(2);
    EXPECT_EQ(list->GetChildIndex(last), 2U);
    list->InsertNullChildren(0, 2);
    EXPECT_EQ(list->GetChildIndex(last), 4U);
    list->RemoveChild(0);
    list->RemoveChild(0);
    list->RemoveChild(0);
    EXPECT_EQ(list->GetChildIndex(last), 1U);
    const NodePtr taken = list->RemoveChild(1);
    EXPECT_EQ(list->GetChildIndex(last), 0xFFFFFFFFU);
}

TEST(TbTrParseNode, CloneOfAVariableNameHasTwoNullChildren) {
    const NodePtr name(TbTrParseNode::MakeVarNameNode(Word("abc")));
    const NodePtr copy(name->Clone());
    EXPECT_EQ(copy->GetNodeType(), SP_VARNAME);
    EXPECT_NE(copy->GetToken(), name->GetToken());
    EXPECT_EQ(copy->GetToken()->AsString(true), "abc");
    EXPECT_EQ(Slots(*copy), "0 0");
}

TEST(TbTrParseNode, CloneIsDeepAndKeepsNullSlots) {
    const NodePtr list = MakeList({0, TB_ON});
    list->GetChild(1)->AppendChild(TbTrParseNode::MakeLiteralNode(Literal("x")));
    TbTrParseNode parent(TBI_GENERICLIST, nullptr);
    list->SetParent(&parent);
    const NodePtr copy(list->Clone());
    EXPECT_EQ(copy->GetParent(), nullptr);
    EXPECT_EQ(copy->GetToken(), nullptr);
    EXPECT_EQ(Slots(*copy), "0 279");
    const TbTrParseNode* const child = copy->GetChild(1);
    EXPECT_NE(child, list->GetChild(1));
    EXPECT_EQ(child->GetParent(), copy.get());
    EXPECT_EQ(child->GetChild(0)->GetToken()->AsString(false), "x");
    EXPECT_EQ(copy->GetChildIndex(child), 1U);
}

TEST(TbTrParseNode, PrintsTypeTokenAndChildrenOneTabDeeper) {
    const NodePtr list = MakeList({0, TB_SORT});
    list->GetChild(1)->AppendChild(TbTrParseNode::MakeVarNameNode(Word("abc")));
    std::ostringstream out;
    list->Print(out, 1);
    EXPECT_EQ(out.str(), "\t--Node type:\t505\n"
                         "\t\t--Node type:\t295\n"
                         "\t\t\t--Node type:\t260\n"
                         "\t\t\tkString\t1:4\tkNotOperator\tabc\n");
}

TEST(TbTrParseNode, PrintIndentsUpToTwentyTabsAndNotAtAllBeyond) {
    struct Row {
        int level;
        std::size_t tabs;
        std::size_t childTabs;
    };
    for (const auto& [level, tabs, childTabs] :
         {Row{0, 0, 1}, Row{20, 20, 0}, Row{21, 0, 1}, Row{-1, 0, 1}, Row{19, 19, 20}}) {
        SCOPED_TRACE(level);
        std::ostringstream out;
        MakeList({TB_ON})->Print(out, level);
        EXPECT_EQ(out.str(), std::string(tabs, '\t') + "--Node type:\t505\n" +
                                 std::string(childTabs, '\t') + "--Node type:\t279\n");
    }
}

TEST(TbTrParseNode, MakesAttributeNodesOfSeventeenCodes) {
    for (const int type :
         {278, 279, 280, 281, 282, 283, 284, 285, 287, 286, 288, 289, 296, 297, 272, 301, 270}) {
        SCOPED_TRACE(type);
        int deleted = 0;
        const NodePtr node(TbTrParseNode::MakeAttrNode(type, new WatchedToken(deleted)));
        EXPECT_EQ(node->GetNodeType(), type);
        EXPECT_EQ(node->GetToken(), nullptr);
        EXPECT_EQ(deleted, 1);
        EXPECT_NE(NodePtr(TbTrParseNode::MakeAttrNode(type, nullptr)), nullptr);
    }
}

TEST(TbTrParseNode, MakesNoAttributeNodeOfOtherCodesAndLeavesTheToken) {
    int deleted = 0;
    WatchedToken token(deleted);
    for (const int type : {0, 257, 260, 269, 271, 273, 274, 275, 276, 277,
                           static_cast<int>(TB_FORMAT), 291, 295, 298, 302, 303, 314, 505}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(TbTrParseNode::MakeAttrNode(type, &token), nullptr);
        EXPECT_EQ(deleted, 0);
    }
}

TEST(TbTrParseNode, FactoriesTakeTokensOfTheirTypeOnly) {
    struct Row {
        TbTrParseNode* (*make)(ZELKToken*);
        TokenSequenceBase::TokenType accepted;
        int nodeType;
        const char* slots;
    };
    for (const auto& [make, accepted, nodeType, slots] : {
             Row{TbTrParseNode::MakeLiteralNode, TokenSequenceBase::kLiteral, SP_SLITERAL, ""},
             Row{TbTrParseNode::MakeNumberNode, TokenSequenceBase::kNumber, SP_NUMBER, ""},
             Row{TbTrParseNode::MakeVarNameNode, TokenSequenceBase::kString, SP_VARNAME, "0 0"},
         }) {
        SCOPED_TRACE(nodeType);
        EXPECT_EQ(make(nullptr), nullptr);
        for (ZELKToken* const token : {Literal("x"), Number(5), Word("abc")}) {
            const auto type = token->Type();
            const NodePtr node(make(token));
            EXPECT_EQ(node != nullptr, type == accepted);
            if (node == nullptr) {
                delete token;
                continue;
            }
            EXPECT_EQ(node->GetNodeType(), nodeType);
            EXPECT_EQ(node->GetToken(), token);
            EXPECT_EQ(Slots(*node), slots);
        }
    }
}

TEST(TbTrParseNode, RangeHoldsItsFirstAndItsLastName) {
    const NodePtr range(TbTrParseNode::MakeVarRangeNode(Word("v1"), Word("v9")));
    EXPECT_EQ(range->GetNodeType(), TBI_VARRANGE);
    EXPECT_EQ(range->GetToken(), nullptr);
    EXPECT_EQ(Slots(*range), "260 260");
    EXPECT_EQ(range->GetChild(0)->GetToken()->AsString(true), "v1");
    EXPECT_EQ(range->GetChild(1)->GetToken()->AsString(true), "v9");
    EXPECT_EQ(Slots(*range->GetChild(1)), "0 0");
}

TEST(TbTrParseNode, RangeOfALiteralAndANameHasANullFirstChild) {
    const std::unique_ptr<ZELKToken> literal(Literal("x"));
    const NodePtr range(TbTrParseNode::MakeVarRangeNode(literal.get(), Word("v9")));
    EXPECT_EQ(Slots(*range), "0 260");
    EXPECT_EQ(range->GetChild(1)->GetToken()->AsString(true), "v9");
    const NodePtr reversed(TbTrParseNode::MakeVarRangeNode(Word("v1"), nullptr));
    EXPECT_EQ(Slots(*reversed), "260 0");
}

TEST(TbTrParseNode, RangeWithoutANameIsNone) {
    const std::unique_ptr<ZELKToken> first(Literal("x"));
    const std::unique_ptr<ZELKToken> last(Number(5));
    EXPECT_EQ(TbTrParseNode::MakeVarRangeNode(first.get(), last.get()), nullptr);
    EXPECT_EQ(TbTrParseNode::MakeVarRangeNode(nullptr, nullptr), nullptr);
}

} // namespace

} // namespace recastor
