/// Totals: pseudo-variables in TABLES, properties of a variable's categories in CTABLES.
#pragma once

#include "ctables/recastor/parsetree.h"

namespace recastor {

class OutputSequence;

/// Finds every total pseudo-variable in a dimension expression, marks the variables that it totals,
/// notes them in the map and takes it out of the expression. The expression may be replaced in its
/// table on the way. False when a total stands where it totals nothing.
bool AssociateTotals(const TbTrParseNode& expression, TotalsMap& totals);

/// The first total pseudo-variable of the expression and the node that declares it; null when there
/// is none. With `searched` the search goes on behind the variable that it points to (null: from
/// the start), and it is set to the last variable that is no total, for the next search.
TbTrParseNode* FindTotalNode(TbTrParseNode& expression, const TbTrParseNode& table,
                             const TbTrParseNode*& declaration,
                             const TbTrParseNode** searched = nullptr);

/// Attaches the total to the variable, to the outermost operand of a nesting, to every operand of a
/// stacking. False when one of them cannot have a total.
bool DistributeTotal(TbTrParseNode& expression, TotalsMap& totals, const TbTrParseNode& total,
                     const TbTrParseNode& declaration, const TbTrParseNode& table);

/// Marks the variable and notes it in the map; a following total wins over a preceding one. False
/// when the variable is neither categorical nor a group.
bool AttachTotal(TbTrParseNode& variable, TotalsMap& totals, const TbTrParseNode& total,
                 const TbTrParseNode& declaration, const TbTrParseNode& table);

/// TBI_FTOTALVAR or TBI_PTOTALVAR, by the subcommand that declares the total.
int TotalVarTypeFromDecl(const TbTrParseNode& declaration);

/// Writes one line for each total, with the variables that share it; the map's entries are used up.
bool ExpressCatsForTotals(TotalsMap& totals, OutputSequence& output);

} // namespace recastor
