#include "ctables/recastor/bison/opaquevalue.h"
#include "tests/support/tokens.h"
#include "tests/support/values.h"

#include <memory>

#include <gtest/gtest.h>

namespace recastor {

namespace {

OpaqueValue Empty() {
    OpaqueValue value;
    OpaqueValue_Init(value);
    return value;
}

/// A node that owns a token which counts its deletions.
OpaqueValue WatchedNode(int& deleted, int type = TB_SORT) {
    OpaqueValue value = Empty();
    OpaqueValue_SetParseNode(value, new TbTrParseNode(type, new WatchedToken(deleted)));
    return value;
}

TEST(OpaqueValue, InitMakesItEmptyWhateverItHeld) {
    OpaqueValue value{&value, 5, 7};
    OpaqueValue_Init(value);
    EXPECT_EQ(value.pointer, nullptr);
    EXPECT_EQ(value.tokenType, 0);
    EXPECT_EQ(value.kind, 0);
}

TEST(OpaqueValue, KindTellsWhatItHolds) {
    int object = 0;
    struct Row {
        OpaqueValue value;
        bool empty, token, node, valid;
    };
    for (const auto& [value, empty, token, node, valid] : {
             Row{{nullptr, 0, 0}, true, false, false, true},
             Row{{&object, 260, -1}, false, true, false, true},
             Row{{&object, 260, -5}, false, true, false, true},
             Row{{&object, 0, -1}, false, true, false, true},
             Row{{&object, 0, 1}, false, false, true, true},
             Row{{&object, 0, 2}, false, false, true, true},
             Row{{&object, 0, 0}, true, false, false, false},
             Row{{nullptr, 260, 0}, true, false, false, false},
             Row{{nullptr, 260, -1}, false, true, false, false},
             Row{{nullptr, 0, 1}, false, false, true, false},
             Row{{&object, 260, 1}, false, false, true, false},
         }) {
        SCOPED_TRACE(value.kind);
        EXPECT_EQ(OpaqueValue_IsEmpty(value), empty);
        EXPECT_EQ(OpaqueValue_IsZELKToken(value), token);
        EXPECT_EQ(OpaqueValue_IsParseNode(value), node);
        EXPECT_EQ(OpaqueValue_IsValid(value), valid);
    }
}

TEST(OpaqueValue, ClearDeletesWhatItHolds) {
    int deleted = 0;
    OpaqueValue token = TokenValue(new WatchedToken(deleted), SP_VARNAME);
    OpaqueValue_Clear(token);
    EXPECT_EQ(deleted, 1);
    EXPECT_TRUE(OpaqueValue_IsEmpty(token));
    OpaqueValue_Clear(token);
    EXPECT_EQ(deleted, 1);
    OpaqueValue node = WatchedNode(deleted);
    OpaqueValue_Clear(node);
    EXPECT_EQ(deleted, 2);
    EXPECT_TRUE(OpaqueValue_IsEmpty(node) && OpaqueValue_IsValid(node));
}

TEST(OpaqueValue, AssignMovesAndClearsTheTarget) {
    int targetDeleted = 0;
    int sourceDeleted = 0;
    OpaqueValue target = WatchedNode(targetDeleted);
    auto* const moved = new WatchedToken(sourceDeleted);
    OpaqueValue source = TokenValue(moved, SP_NUMBER);
    OpaqueValue_Assign(target, source);
    EXPECT_EQ(targetDeleted, 1);
    EXPECT_EQ(sourceDeleted, 0);
    EXPECT_TRUE(OpaqueValue_IsEmpty(source) && OpaqueValue_IsValid(source));
    EXPECT_EQ(OpaqueValue_GetZELKToken(target), moved);
    EXPECT_EQ(OpaqueValue_GetTbTokenType(target), SP_NUMBER);
    OpaqueValue_Assign(target, target);
    EXPECT_EQ(OpaqueValue_GetZELKToken(target), moved);
    OpaqueValue_Assign(target, source);
    EXPECT_EQ(sourceDeleted, 1);
    EXPECT_TRUE(OpaqueValue_IsEmpty(target));
}

TEST(OpaqueValue, SettingClearsWhatItHeld) {
    int deleted = 0;
    OpaqueValue value = TokenValue(new WatchedToken(deleted), SP_VARNAME);
    auto* const node = new TbTrParseNode(TB_SORT, nullptr);
    OpaqueValue_SetParseNode(value, node);
    EXPECT_EQ(deleted, 1);
    EXPECT_EQ(value.pointer, node);
    EXPECT_EQ(value.tokenType, 0);
    EXPECT_EQ(value.kind, 1);
    auto* const token = new WatchedToken(deleted);
    OpaqueValue_SetZELKToken(value, token, SP_BY);
    EXPECT_EQ(value.pointer, token);
    EXPECT_EQ(value.tokenType, SP_BY);
    EXPECT_EQ(value.kind, -1);
    OpaqueValue_Clear(value);
    EXPECT_EQ(deleted, 2);
}

TEST(OpaqueValue, GivingUpLeavesTheObjectToTheCaller) {
    int deleted = 0;
    OpaqueValue token = TokenValue(new WatchedToken(deleted), SP_VARNAME);
    const std::unique_ptr<ZELKToken> givenToken(OpaqueValue_GiveUpZELKToken(token));
    EXPECT_TRUE(OpaqueValue_IsEmpty(token) && OpaqueValue_IsValid(token));
    OpaqueValue node = WatchedNode(deleted);
    const std::unique_ptr<TbTrParseNode> givenNode(OpaqueValue_GiveUpParseNode(node));
    EXPECT_EQ(givenNode->GetNodeType(), TB_SORT);
    EXPECT_TRUE(OpaqueValue_IsEmpty(node) && OpaqueValue_IsValid(node));
    EXPECT_EQ(OpaqueValue_GiveUpParseNode(node), nullptr);
    EXPECT_EQ(deleted, 0);
}

TEST(OpaqueValue, TokenTypeOfAnEmptyValueIsNone) {
    EXPECT_EQ(OpaqueValue_GetTbTokenType(Empty()), 0);
}

TEST(OpaqueValue, ChecksCompareTheTypeWithUpToThree) {
    int deleted = 0;
    OpaqueValue token = TokenValue(new WatchedToken(deleted), SP_NUMBER);
    OpaqueValue node = WatchedNode(deleted, SP_NUMBER);
    struct Row {
        int first, second, third;
        bool holds;
    };
    for (const auto& [first, second, third, holds] : {
             Row{0, 0, 0, true},
             Row{0, SP_BY, SP_TO, true},
             Row{SP_NUMBER, 0, 0, true},
             Row{SP_BY, SP_NUMBER, 0, true},
             Row{SP_BY, 0, SP_NUMBER, true},
             Row{SP_BY, SP_TO, SP_NUMBER, true},
             Row{SP_BY, 0, 0, false},
             Row{SP_BY, SP_TO, SP_ALL, false},
         }) {
        EXPECT_EQ(OpaqueValue_CheckZELKToken(token, first, second, third), holds);
        EXPECT_EQ(OpaqueValue_CheckParseNode(node, first, second, third), holds);
        EXPECT_FALSE(OpaqueValue_CheckZELKToken(node, first, second, third));
        EXPECT_FALSE(OpaqueValue_CheckParseNode(token, first, second, third));
        EXPECT_FALSE(OpaqueValue_CheckZELKToken(Empty(), first, second, third));
        EXPECT_FALSE(OpaqueValue_CheckParseNode(Empty(), first, second, third));
    }
    // A token without a code is of no type, but of any.
    token.tokenType = 0;
    EXPECT_TRUE(OpaqueValue_CheckZELKToken(token, 0));
    EXPECT_FALSE(OpaqueValue_CheckZELKToken(token, SP_BY, 0, 0));
    OpaqueValue_Clear(token);
    OpaqueValue_Clear(node);
}

/// What each function says when it is given a value that it may not be given.
class OpaqueValueDeathTest : public testing::Test {
protected:
    OpaqueValue m_empty = Empty();
    OpaqueValue m_invalid{nullptr, 5, 0};
    std::unique_ptr<ZELKToken> m_ownToken{Word("abc")};
    OpaqueValue m_token{m_ownToken.get(), SP_VARNAME, -1};
    TbTrParseNode m_ownNode{TB_SORT, nullptr};
    OpaqueValue m_node{&m_ownNode, 0, 1};
};

TEST_F(OpaqueValueDeathTest, InvalidValues) {
    const char* const message = R"(OpaqueValue_IsValid\( opVal \))";
    EXPECT_DEATH(OpaqueValue_Clear(m_invalid), message);
    EXPECT_DEATH(OpaqueValue_GiveUpZELKToken(m_invalid), message);
    EXPECT_DEATH(OpaqueValue_GiveUpParseNode(m_invalid), message);
    EXPECT_DEATH(OpaqueValue_SetZELKToken(m_invalid, m_ownToken.get(), 1), message);
    EXPECT_DEATH(OpaqueValue_SetParseNode(m_invalid, &m_ownNode), message);
    EXPECT_DEATH(OpaqueValue_Assign(m_invalid, m_empty), R"(OpaqueValue_IsValid\( target \))");
    EXPECT_DEATH(OpaqueValue_Assign(m_empty, m_invalid), R"(OpaqueValue_IsValid\( source \))");
}

TEST_F(OpaqueValueDeathTest, NoObject) {
    EXPECT_DEATH(OpaqueValue_SetZELKToken(m_empty, nullptr, 1), "Assertion failed: pZELKToken,");
    EXPECT_DEATH(OpaqueValue_SetParseNode(m_empty, nullptr), "Assertion failed: pParseNode,");
}

TEST_F(OpaqueValueDeathTest, OtherKinds) {
    EXPECT_DEATH(OpaqueValue_GiveUpZELKToken(m_empty), "OpaqueValue_IsZELKToken");
    EXPECT_DEATH(OpaqueValue_GiveUpZELKToken(m_node), "OpaqueValue_IsZELKToken");
    EXPECT_DEATH(OpaqueValue_GiveUpParseNode(m_token), "OpaqueValue_IsParseNode");
    EXPECT_DEATH(OpaqueValue_GetZELKToken(m_node), "OpaqueValue_IsZELKToken");
    EXPECT_DEATH(OpaqueValue_GetTbTokenType(m_node), "OpaqueValue_IsZELKToken");
    EXPECT_DEATH(OpaqueValue_GetParseNodeType(m_token),
                 R"(Assertion failed: OpaqueValue_IsParseNode\( opVal \), )"
                 "function OpaqueValue_GetParseNodeType, "
                 "source unit ctables/recastor/bison/opaquevaluemethods");
    EXPECT_DEATH(OpaqueValue_GetParseNodeType(m_empty), "OpaqueValue_IsParseNode");
    EXPECT_EQ(OpaqueValue_GetParseNodeType(m_node), TB_SORT);
}

} // namespace

} // namespace recastor
