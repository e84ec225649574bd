#include "ctables/recastor/bison/opaquevalue.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

namespace {

constexpr int kToken = -1;
constexpr int kNode = 1;

ZELKToken* TokenOf(const OpaqueValue& value) {
    return static_cast<ZELKToken*>(value.pointer);
}

TbTrParseNode* NodeOf(const OpaqueValue& value) {
    return static_cast<TbTrParseNode*>(value.pointer);
}

bool IsOneOf(int type, int first, int second, int third) {
    return first == 0 || type == first || (second != 0 && type == second) ||
           (third != 0 && type == third);
}

} // namespace

bool OpaqueValue_IsValid(const OpaqueValue& value) {
    if (OpaqueValue_IsEmpty(value)) {
        return value.pointer == nullptr && value.tokenType == 0;
    }
    return value.pointer != nullptr && (OpaqueValue_IsZELKToken(value) || value.tokenType == 0);
}

void OpaqueValue_Clear(OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(opVal), "OpaqueValue_IsValid( opVal )");
    if (OpaqueValue_IsZELKToken(opVal)) {
        delete TokenOf(opVal);
    } else {
        delete NodeOf(opVal);
    }
    OpaqueValue_Init(opVal);
}

void OpaqueValue_Assign(OpaqueValue& target, OpaqueValue& source) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(target), "OpaqueValue_IsValid( target )");
    ZELK_ASSERT_AS(OpaqueValue_IsValid(source), "OpaqueValue_IsValid( source )");
    if (&target != &source) {
        OpaqueValue_Clear(target);
        target = source;
        OpaqueValue_Init(source);
    }
}

void OpaqueValue_SetZELKToken(OpaqueValue& value, ZELKToken* pZELKToken, int code) {
    ZELK_ASSERT(pZELKToken);
    OpaqueValue_Clear(value);
    value = {pZELKToken, code, kToken};
}

void OpaqueValue_SetParseNode(OpaqueValue& value, TbTrParseNode* pParseNode) {
    ZELK_ASSERT(pParseNode);
    OpaqueValue_Clear(value);
    value = {pParseNode, 0, kNode};
}

ZELKToken* OpaqueValue_GiveUpZELKToken(OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(opVal), "OpaqueValue_IsValid( opVal )");
    ZELK_ASSERT_AS(OpaqueValue_IsZELKToken(opVal), "OpaqueValue_IsZELKToken( opVal )");
    ZELKToken* const token = TokenOf(opVal);
    OpaqueValue_Init(opVal);
    return token;
}

TbTrParseNode* OpaqueValue_GiveUpParseNode(OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(opVal), "OpaqueValue_IsValid( opVal )");
    ZELK_ASSERT_AS(!OpaqueValue_IsZELKToken(opVal),
                   "OpaqueValue_IsEmpty( opVal ) || OpaqueValue_IsParseNode( opVal )");
    TbTrParseNode* const node = NodeOf(opVal);
    OpaqueValue_Init(opVal);
    return node;
}

const ZELKToken* OpaqueValue_GetZELKToken(const OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsZELKToken(opVal), "OpaqueValue_IsZELKToken( opVal )");
    return TokenOf(opVal);
}

int OpaqueValue_GetTbTokenType(const OpaqueValue& opVal) {
    ZELK_ASSERT_AS(!OpaqueValue_IsParseNode(opVal),
                   "OpaqueValue_IsEmpty( opVal ) || OpaqueValue_IsZELKToken( opVal )");
    return opVal.tokenType;
}

int OpaqueValue_GetParseNodeType(const OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsParseNode(opVal), "OpaqueValue_IsParseNode( opVal )");
    return NodeOf(opVal)->GetNodeType();
}

bool OpaqueValue_CheckZELKToken(const OpaqueValue& value, int first, int second, int third) {
    return OpaqueValue_IsZELKToken(value) && IsOneOf(value.tokenType, first, second, third);
}

bool OpaqueValue_CheckParseNode(const OpaqueValue& value, int first, int second, int third) {
    return OpaqueValue_IsParseNode(value) &&
           IsOneOf(NodeOf(value)->GetNodeType(), first, second, third);
}

} // namespace recastor
