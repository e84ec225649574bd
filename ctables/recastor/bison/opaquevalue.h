/// The semantic value of the TABLES grammar.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "ctables/recastor/zelktoken.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

/// Empty, or a token, or a parse node, which it owns. A plain record, since the parser's stack
/// copies it byte by byte; ownership moves through the functions below and never is shared.
/// An empty value has a null pointer, and only a token has a token type.
struct OpaqueValue {
    void* pointer;
    int tokenType; ///< the grammar code of a held token
    int kind;      ///< 0 empty, negative a token, positive a node

    static constexpr int kToken = -1;
    static constexpr int kNode = 1;
};

/// Makes the value empty, whatever it held.
inline void OpaqueValue_Init(OpaqueValue& value) {
    value = {nullptr, 0, 0};
}

inline bool OpaqueValue_IsEmpty(const OpaqueValue& value) {
    return value.kind == 0;
}
inline bool OpaqueValue_IsZELKToken(const OpaqueValue& value) {
    return value.kind < 0;
}
inline bool OpaqueValue_IsParseNode(const OpaqueValue& value) {
    return value.kind > 0;
}
inline bool OpaqueValue_IsValid(const OpaqueValue& value) {
    if (OpaqueValue_IsEmpty(value)) {
        return value.pointer == nullptr && value.tokenType == 0;
    }
    return value.pointer != nullptr && (OpaqueValue_IsZELKToken(value) || value.tokenType == 0);
}

/// The token of a value that must hold one, which stays with it; unchecked.
inline ZELKToken* OpaqueValue_Token(const OpaqueValue& value) {
    return static_cast<ZELKToken*>(value.pointer);
}
/// The same for the node of a value that holds no token; null when it is empty.
inline TbTrParseNode* OpaqueValue_Node(const OpaqueValue& value) {
    return static_cast<TbTrParseNode*>(value.pointer);
}

// The parser's actions do little else than the following, which is why the compiler is to see it.

/// Deletes what the value holds and makes it empty.
inline void OpaqueValue_Clear(OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(opVal), "OpaqueValue_IsValid( opVal )");
    if (OpaqueValue_IsZELKToken(opVal)) {
        delete OpaqueValue_Token(opVal);
    } else {
        delete OpaqueValue_Node(opVal);
    }
    OpaqueValue_Init(opVal);
}
/// Clears the value, which then takes over the token or node.
inline void OpaqueValue_SetZELKToken(OpaqueValue& value, ZELKToken* pZELKToken, int code) {
    ZELK_ASSERT(pZELKToken);
    OpaqueValue_Clear(value);
    value = {pZELKToken, code, OpaqueValue::kToken};
}
inline void OpaqueValue_SetParseNode(OpaqueValue& value, TbTrParseNode* pParseNode) {
    ZELK_ASSERT(pParseNode);
    OpaqueValue_Clear(value);
    value = {pParseNode, 0, OpaqueValue::kNode};
}
/// Gives the token up to the caller; the value is empty then.
inline ZELKToken* OpaqueValue_GiveUpZELKToken(OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(opVal), "OpaqueValue_IsValid( opVal )");
    ZELK_ASSERT_AS(OpaqueValue_IsZELKToken(opVal), "OpaqueValue_IsZELKToken( opVal )");
    ZELKToken* const token = OpaqueValue_Token(opVal);
    OpaqueValue_Init(opVal);
    return token;
}
/// Gives the node up to the caller, null when the value is empty; it is empty then.
inline TbTrParseNode* OpaqueValue_GiveUpParseNode(OpaqueValue& opVal) {
    ZELK_ASSERT_AS(OpaqueValue_IsValid(opVal), "OpaqueValue_IsValid( opVal )");
    ZELK_ASSERT_AS(!OpaqueValue_IsZELKToken(opVal),
                   "OpaqueValue_IsEmpty( opVal ) || OpaqueValue_IsParseNode( opVal )");
    TbTrParseNode* const node = OpaqueValue_Node(opVal);
    OpaqueValue_Init(opVal);
    return node;
}

/// Clears the target, moves what the source holds into it and makes the source empty.
void OpaqueValue_Assign(OpaqueValue& target, OpaqueValue& source);
/// The token, which stays with the value.
const ZELKToken* OpaqueValue_GetZELKToken(const OpaqueValue& opVal);
/// The grammar code of a token; 0 for an empty value.
int OpaqueValue_GetTbTokenType(const OpaqueValue& opVal);
int OpaqueValue_GetParseNodeType(const OpaqueValue& opVal);

/// Whether the value is a token (a node) of one of the given types; 0 as the first is any type, 0
/// as another is none.
bool OpaqueValue_CheckZELKToken(const OpaqueValue& value, int first, int second = 0, int third = 0);
bool OpaqueValue_CheckParseNode(const OpaqueValue& value, int first, int second = 0, int third = 0);

} // namespace recastor
