/// Generators of whole TABLES commands.
#pragma once

#include "tests/support/generators/tablesmodel.h"

namespace recastor {

/// Which parts a generated command may have beside its tables.
struct TablesParts {
    bool totals = true;
    bool statistics = true;
    bool pseudoVariables = true;
    bool headings = true; ///< and sorting, BREAK, settings, obsolete and unknown subcommands
};

/// Commands that can be converted. A total stands beside the variable that it totals and in no
/// other place.
rc::Gen<TablesModel> TablesCommands(const TablesParts& parts = {});

/// Commands whose totals stand anywhere among the operands, so that many cannot be converted.
rc::Gen<TablesModel> TablesCommandsOfAnyTotals();

} // namespace recastor
