/// The translator: from the tree of a TABLES command to the text of MRSETS and CTABLES.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "platform/zelkbase/smallobjects.h"

#include <string>

namespace recastor {

class OutputSequence;

/// Which total belongs to which variable of a table: from the variable's name as it is written to
/// the SP_VARNAME node that declares its total.
using TotalsMap = SmallMap<std::string, const TbTrParseNode*>;

/// A namespace of operations on the tree; it has no state. Dimensions are numbered 1 rows, 2
/// columns, 3 layers, 0 none. A dimension expression is an SP_VARNAME leaf or an SP_PLUS (stacking)
/// or SP_GREATERTHAN (nesting) node over two or more operands; until they are removed,
/// pseudo-variables (TB_STATISTICS, TB_LABELS) stand among the leaves. What the user got wrong is
/// recorded in the global classifier and answered with false; a tree of another shape is an
/// internal error.
class ParseTree {
public:
    // The command.

    /// Sets `result` to the text that replaces the command, without a final period. On failure it
    /// is empty. The tree is changed on the way.
    static bool TranslateTablesCommand(TbTrParseNode* root, std::string& result);
    static bool TranslateFormat(const TbTrParseNode& root, OutputSequence& output);
    static bool TranslateHeadings(const TbTrParseNode& table, OutputSequence& output);
    /// `expression` is the dimension that carries the statistics; `firstMagnet` the variable that
    /// got the table's first statistics.
    static bool TranslateSort(const TbTrParseNode& table, const TbTrParseNode& expression,
                              const TbTrParseNode* firstMagnet, OutputSequence& output);
    static bool TranslateAllMultiresponseGroups(const TbTrParseNode& root, OutputSequence& output);
    static void TranslateMRGroup(const TbTrParseNode& group, OutputSequence& output);
    static void TranslateMDGroup(const TbTrParseNode& group, OutputSequence& output);
    static void PrintVarlist(const TbTrParseNode& varlist, OutputSequence& output);

    // One table.

    static bool TranslateTableSubcommand(TbTrParseNode& table, OutputSequence& output);
    /// The dimension whose variables carry the statistics; 0 when there is no dimension.
    static int DetermineStatsDimension(const TbTrParseNode& table, const TotalsMap& totals);
    /// Writes one dimension. `expandedDimensions` holds, or answers for, the multiplied-out form of
    /// every dimension but the statistics dimension in three slots. The first magnet that is met is
    /// noted.
    static bool ExpressDimension(const TbTrParseNode& expression, int dimension, int statsDimension,
                                 const TbTrParseNode& expandedDimensions,
                                 const TbTrParseNode*& firstMagnet, OutputSequence& output);
    /// Writes an expression, in parentheses when `depth` is above 0; the statistics stand behind
    /// `magnet`, which may be null.
    static bool ExpressSubExpression(const TbTrParseNode& expression, const TbTrParseNode& table,
                                     const TbTrParseNode* magnet, int depth, int dimension,
                                     const TbTrParseNode& expandedDimensions,
                                     OutputSequence& output);
    static bool ExpressVariableInTable(const TbTrParseNode& variable, const TbTrParseNode& table,
                                       bool withStatistics, int dimension,
                                       const TbTrParseNode& expandedDimensions,
                                       OutputSequence& output);
    /// The variable of a term (a variable or a nesting of variables) that gets its statistics: the
    /// innermost of the most preferred kind, scale before group before categorical.
    static const TbTrParseNode* DetermineMagnetVariable(const TbTrParseNode& term,
                                                        const TbTrParseNode& table);

    // Statistics.

    /// The new name of a summary function, empty when it is unknown, with its kind ('C' counts,
    /// 'R' responses, 'S' of scale variables) and whether it is a percentage. `abbreviated`: only
    /// the first three characters count. `group`: it is meant for a multiple-response group.
    /// `node` is any node of the command.
    static std::string MapFunctionName(const std::string& name, bool abbreviated, bool group,
                                       const TbTrParseNode& node, char& kind, bool& isPercentage);
    /// Writes the statistics list of one magnet. `statistics` is null when the table has none.
    static bool ExpressFunctions(const TbTrParseNode* statistics, const TbTrParseNode& table,
                                 int dimension, const TbTrParseNode& magnet,
                                 const TbTrParseNode& expandedDimensions, OutputSequence& output);
    /// The function of the table's STATISTICS subcommand that has the variable among its
    /// arguments; null when none has.
    static const TbTrParseNode* GetStatFunction(const TbTrParseNode& table,
                                                const std::string& name);
    static const TbTrParseNode* FindStatFunction(const TbTrParseNode& statistics,
                                                 const std::string& name);

    // Percentages.

    /// The bases of a percentage as a set of bits: 1 row, 2 column, 4 layer, 8 table, 16 the table
    /// in another way. `baseList` may be null; `otherDimensions` are the expanded dimensions.
    static int DeterminePercentageBases(const TbTrParseNode& term, int statsCompDim,
                                        const TbTrParseNode* baseList,
                                        const TbTrParseNode& otherDimensions);
    /// 1 when a base variable stands in the expression, 0 when none does, -1 when some operands of
    /// a stacking hold one and others do not.
    static int CheckBaseListInDimension(const TbTrParseNode& expression,
                                        const TbTrParseNode& baseList);
    static int CheckBaseListInVariable(const TbTrParseNode& variable,
                                       const TbTrParseNode& baseList);
    static int CheckBaseListInSubtree(const TbTrParseNode& subtree, const TbTrParseNode& baseList);

    // Look-ups.

    /// The node that declares the variable and its type: TB_OBSERVATION, TB_MRGROUP, TB_MDGROUP,
    /// TB_FTOTAL or TB_PTOTAL; null and 0 for a categorical variable. `name` is upper-cased. A
    /// parsed command is asked; a tree of another root is searched.
    static const TbTrParseNode* FindVariableType(const TbTrParseNode& table,
                                                 const std::string& name, int& type);
    static const TbTrParseNode* FindVariableTypeImpl(const TbTrParseNode& subtree,
                                                     const std::string& name, int& type);
    static const TbTrParseNode* FindVariableTypeInVarlist(const TbTrParseNode* varlist,
                                                          const std::string& name, int declaredType,
                                                          int& type);
    static const TbTrParseNode* FindVariableTypeInVarname(const TbTrParseNode* variable,
                                                          const std::string& name, int declaredType,
                                                          int& type);
    /// The first, or from the end the last, local subcommand of the table's group that has the
    /// type; null when there is none.
    static const TbTrParseNode* FindSubcommand(const TbTrParseNode& table, int type, bool fromEnd);
    /// The first node of the type in pre-order; variables are leaves. Null for null.
    static TbTrParseNode* FindNodeByType(TbTrParseNode* node, int type);
    static const TbTrParseNode* FindNodeByType(const TbTrParseNode* node, int type);
    /// The leaf behind `previous` (null: the first) in the order of the expression; null at the
    /// end.
    static const TbTrParseNode* GetNextVariable(const TbTrParseNode& root,
                                                const TbTrParseNode* previous);

    // Normalisation.

    /// Makes one n-ary node of each run of the same operator.
    static void Normalize(TbTrParseNode& expression);
    /// The first nesting in pre-order that has a stacking operand, and that operand's index; null
    /// when there is none.
    static TbTrParseNode* FindMergeCandidate(TbTrParseNode& root, unsigned& index);
    /// Distributes the nesting over its stacking operand at `reduceIndex`: that operand and the
    /// one beside it become one stacking of nestings.
    static void MergePlusNode(TbTrParseNode& subtree, unsigned reduceIndex);
    /// The number of variables in the multiplied-out expression, each counted as often as it
    /// stands there. A number that is beyond counting is infinite.
    static double MultipliedOutSize(const TbTrParseNode& expression);
    /// A copy, the caller's, without any stacking inside a nesting; null for null.
    static TbTrParseNode::NodePtr MultiplyOut(const TbTrParseNode* expression);
    /// The same without a copy; the expression keeps its place in its tree.
    static void MultiplyOutInPlace(TbTrParseNode& expression);
    /// What RemovePseudoVariables answers when they stood in several dimensions.
    static constexpr int kSeveralDimensions = 4;
    /// Takes the pseudo-variables STATISTICS (or LABELS) out of the table. The dimension (from 1)
    /// where one stood; 0 when there was none.
    static int RemovePseudoVariables(TbTrParseNode& table, bool statistics);
    /// Takes a node out of its dimension and deletes it; an operation that is left with one
    /// operand dissolves.
    static bool RemoveTableExpressionNode(TbTrParseNode* node);
};

} // namespace recastor
