/// The semantic value of the TABLES grammar.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "ctables/recastor/zelktoken.h"

namespace recastor {

/// Empty, or a token, or a parse node, which it owns. A plain record, since the parser's stack
/// copies it byte by byte; ownership moves through the functions below and never is shared.
/// An empty value has a null pointer, and only a token has a token type.
struct OpaqueValue {
    void* pointer;
    int tokenType; ///< the grammar code of a held token
    int kind;      ///< 0 empty, negative a token, positive a node
};

/// Makes the value empty, whatever it held.
inline void OpaqueValue_Init(OpaqueValue& value) {
    value = {nullptr, 0, 0};
}

bool OpaqueValue_IsValid(const OpaqueValue& value);
inline bool OpaqueValue_IsEmpty(const OpaqueValue& value) {
    return value.kind == 0;
}
inline bool OpaqueValue_IsZELKToken(const OpaqueValue& value) {
    return value.kind < 0;
}
inline bool OpaqueValue_IsParseNode(const OpaqueValue& value) {
    return value.kind > 0;
}

/// Deletes what the value holds and makes it empty.
void OpaqueValue_Clear(OpaqueValue& opVal);
/// Clears the target, moves what the source holds into it and makes the source empty.
void OpaqueValue_Assign(OpaqueValue& target, OpaqueValue& source);
/// Clears the value, which then takes over the token or node.
void OpaqueValue_SetZELKToken(OpaqueValue& value, ZELKToken* pZELKToken, int code);
void OpaqueValue_SetParseNode(OpaqueValue& value, TbTrParseNode* pParseNode);

/// Gives the token up to the caller; the value is empty then.
ZELKToken* OpaqueValue_GiveUpZELKToken(OpaqueValue& opVal);
/// Gives the node up to the caller, null when the value is empty; it is empty then.
TbTrParseNode* OpaqueValue_GiveUpParseNode(OpaqueValue& opVal);
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
