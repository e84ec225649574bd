#include "ctables/recastor/bison/opaquevalue.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

namespace {

bool IsOneOf(int type, int first, int second, int third) {
    return first == 0 || type == first || (second != 0 && type == second) ||
           (third != 0 && type == third);
}

} // namespace

void OpaqueValue_Assign(OpaqueValue& target, OpaqueValue& source) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(target), "OpaqueValue_IsValid( target )");
    ZELK_ASSERT_AS(OpaqueValue_IsValid(source), "OpaqueValue_IsValid( source )");
    if (&target != &source) {
        OpaqueValue_Clear(target);
        target = source;
        OpaqueValue_Init(source);
    }
}

const ZELKToken* OpaqueValue_GetZELKToken(const OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsZELKToken(opVal), "OpaqueValue_IsZELKToken( opVal )");
    return OpaqueValue_Token(opVal);
}

int OpaqueValue_GetTbTokenType(const OpaqueValue& opVal) {
    ZELK_ASSERT_AS(!OpaqueValue_IsParseNode(opVal),
                   "OpaqueValue_IsEmpty( opVal ) || OpaqueValue_IsZELKToken( opVal )");
    return opVal.tokenType;
}

int OpaqueValue_GetParseNodeType(const OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsParseNode(opVal), "OpaqueValue_IsParseNode( opVal )");
    return OpaqueValue_Node(opVal)->GetNodeType();
}

bool OpaqueValue_CheckZELKToken(const OpaqueValue& value, int first, int second, int third) {
    return OpaqueValue_IsZELKToken(value) && IsOneOf(value.tokenType, first, second, third);
}

bool OpaqueValue_CheckParseNode(const OpaqueValue& value, int first, int second, int third) {
    return OpaqueValue_IsParseNode(value) &&
           IsOneOf(OpaqueValue_Node(value)->GetNodeType(), first, second, third);
}

} // namespace recastor
