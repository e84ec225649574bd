/// A TABLE subcommand as a value: its dimensions less what are no variables in them.
#pragma once

#include "archive/picture/tableexpression.h"
#include "archive/picture/tableskeleton.h"
#include "ctables/recastor/tbtrparsenode.h"

#include <array>
#include <map>
#include <optional>
#include <string>

namespace recastor {

/// A total as FTOTAL or PTOTAL declares it. The node is the tree's.
struct OldTotal {
    const TbTrParseNode* declaration = nullptr;
    bool isFollowing = false;
};

/// A variable in one place of a table. Its token is the tree's.
struct OldVariable {
    const ZELKToken* token = nullptr;
    int type = 0;        ///< as FindVariableType() gives it
    std::string name;    ///< as it is written in CTABLES
    OldTotal total = {}; ///< of this place; the declaration is null when it has none
};

using OldExpression = TableExpression<OldVariable>;

inline constexpr std::size_t kTableSides = 3;

/// The table as the command means it. It must not outlive the tree, which it leaves as it is.
struct OldTable {
    std::array<std::optional<OldExpression>, kTableSides> dimensions; ///< without pseudo-variables
    std::optional<TableSide> statisticsPlace; ///< of (STATISTICS), if it is one
    std::optional<TableSide> labelsPlace;     ///< of (LABELS), if it is one
    std::map<std::string, OldTotal> totals;   ///< by the names of what they total
};

/// `table` is a TB_TABLE node as the parser made it, inside its command.
OldTable ReadOldTable(const TbTrParseNode& table);

} // namespace recastor
