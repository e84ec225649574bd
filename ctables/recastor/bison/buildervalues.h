/// What the parser's actions have in common.
#pragma once

#include "ctables/recastor/bison/opaquevalue.h"

namespace recastor {

/// Deletes what the values hold: keyword and punctuation tokens, for the most part.
template <typename... Values>
void DropValues(Values&... values) {
    (OpaqueValue_Clear(values), ...);
}

/// A value that owns `node`.
OpaqueValue NodeValue(TbTrParseNode* node);

/// Appends the node of `element`, null when it is empty, to `list`; an empty list becomes a new
/// node of type `listType` first.
OpaqueValue AppendToList(OpaqueValue list, int listType, OpaqueValue element);

/// Moves the children of `source`, which is deleted, behind those of `target`.
void MoveChildren(TbTrParseNode* source, TbTrParseNode& target);

/// A node of a literal (number, variable name) token; null when the value is empty.
TbTrParseNode* LiteralNode(OpaqueValue token);
TbTrParseNode* NumberNode(OpaqueValue token);
TbTrParseNode* VarNameNode(OpaqueValue token);

/// A variable name with `label`, which may be empty, in slot 0.
TbTrParseNode* LabelledVarNameNode(OpaqueValue name, OpaqueValue label);

} // namespace recastor
