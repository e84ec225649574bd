/// Trees of the translator, made from a dump or by the parser.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"

#include <string>

namespace recastor {

/// Makes the tree that DumpTree() shows as `dump`: variable names, null slots (`_`) and inner nodes
/// of the types `+ > TABLE LIST VARLIST STATISTICS LABELS`.
TbTrParseNode::NodePtr TreeFromDump(const std::string& dump);

/// Parses a TABLES command. The tree is the global classifier's and lives until the next parse.
TbTrParseNode& ParseCommand(const std::string& command);

/// The same; gives the TABLE node of the `group`th table group, counted from 1.
TbTrParseNode& ParseTable(const std::string& command, unsigned group = 1);

} // namespace recastor
