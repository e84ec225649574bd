/// Values of the grammar made by hand, for tests of the parser's actions.
#pragma once

#include "ctables/recastor/bison/opaquevalue.h"
#include "tests/support/dump.h"

#include <memory>
#include <string>

namespace recastor {

/// A value that owns the token.
inline OpaqueValue TokenValue(ZELKToken* token, int code) {
    OpaqueValue value;
    OpaqueValue_Init(value);
    OpaqueValue_SetZELKToken(value, token, code);
    return value;
}

/// The dump of the tree that the value owns, which is deleted.
inline std::string DumpValue(OpaqueValue value) {
    const std::unique_ptr<TbTrParseNode> node(OpaqueValue_GiveUpParseNode(value));
    return DumpTree(node.get());
}

} // namespace recastor
