/// The parser's actions: each builds the tree for one rule of the TABLES grammar and is named after
/// the symbol that it makes.
///
/// An action takes the values of the rule's right side over, whatever it does with them, and
/// returns the value of its left side. A list action without a list makes one; an empty element
/// (a subcommand that was dropped) takes a null slot. Shapes that the grammar rules out are
/// internal errors.
#pragma once

#include "ctables/recastor/bison/opaquevalue.h"
#include "ctables/recastor/yyltype.h"

#include <string>

namespace recastor {

/// An empty value.
OpaqueValue common_nothing();

// Lists and what they are made of.
OpaqueValue common_subcommandsList();
OpaqueValue common_subcommandsList(OpaqueValue list, OpaqueValue subcommand);
OpaqueValue common_tableGroupList(OpaqueValue list, OpaqueValue tableGroup);
OpaqueValue common_tableGroup(OpaqueValue table, OpaqueValue localSubcommands);
OpaqueValue common_strLiteralList();
OpaqueValue common_strLiteralList(OpaqueValue list, OpaqueValue literal);
OpaqueValue common_variableNameList(OpaqueValue list, OpaqueValue name);
OpaqueValue common_variableSpecList(OpaqueValue list, OpaqueValue spec);
OpaqueValue common_variableSpec(OpaqueValue name);
OpaqueValue common_variableSpec(OpaqueValue first, OpaqueValue to, OpaqueValue last);
OpaqueValue common_totalVarSpecList(OpaqueValue list, OpaqueValue spec);
OpaqueValue common_totalVarSpec(OpaqueValue name);
OpaqueValue common_totalVarSpec(OpaqueValue name, OpaqueValue label);

// Subcommands with one optional keyword.
OpaqueValue autolabel_subcommand(OpaqueValue keyword, OpaqueValue setting);
OpaqueValue base_subcommand(OpaqueValue keyword, OpaqueValue setting);
OpaqueValue gbase_subcommand(OpaqueValue keyword, OpaqueValue setting);
OpaqueValue missing_subcommand(OpaqueValue keyword, OpaqueValue setting);

// Subcommands that hold literals.
OpaqueValue caption_subcommand(OpaqueValue keyword, OpaqueValue literals);
OpaqueValue title_subcommand(OpaqueValue keyword, OpaqueValue literals);
OpaqueValue corner_subcommand(OpaqueValue keyword, OpaqueValue literals);

// FORMAT. Without settings it makes nothing. BLANK and ZERO together are an internal error.
OpaqueValue format_subcommand(OpaqueValue keyword);
OpaqueValue format_subcommand(OpaqueValue keyword, OpaqueValue settings);
OpaqueValue format_formatSettingList(OpaqueValue list, OpaqueValue setting);
OpaqueValue format_formatSetting(OpaqueValue keyword);
OpaqueValue format_formatSetting(OpaqueValue keyword, OpaqueValue leftParen, OpaqueValue literal,
                                 OpaqueValue rightParen);

// Totals, groups and scale variables.
OpaqueValue ftotal_subcommand(OpaqueValue keyword, OpaqueValue totals);
OpaqueValue ptotal_subcommand(OpaqueValue keyword, OpaqueValue totals);
OpaqueValue mrgroup_subcommand(OpaqueValue keyword, OpaqueValue name, OpaqueValue label,
                               OpaqueValue members);
OpaqueValue mdgroup_subcommand(OpaqueValue keyword, OpaqueValue name, OpaqueValue label,
                               OpaqueValue members, OpaqueValue leftParen, OpaqueValue counted,
                               OpaqueValue rightParen);
/// False, with `result` empty, when the list holds a range.
bool observation_subcommand(OpaqueValue& result, OpaqueValue keyword, OpaqueValue variables);

// SORT.
OpaqueValue sort_subcommand(OpaqueValue keyword, OpaqueValue direction, OpaqueValue variables);
OpaqueValue sort_sortVariableList(OpaqueValue list, OpaqueValue variable);
OpaqueValue sort_sortVariable(OpaqueValue name);
OpaqueValue sort_sortVariable(OpaqueValue name, OpaqueValue leftParen, OpaqueValue function,
                              OpaqueValue rightParen);
OpaqueValue sort_sortFunction(OpaqueValue name);
OpaqueValue sort_sortFunction(OpaqueValue name, OpaqueValue leftParen, OpaqueValue argument,
                              OpaqueValue rightParen);

// STATISTICS.
OpaqueValue statistics_subcommand(OpaqueValue keyword, OpaqueValue functions);
OpaqueValue statistics_statFuncSpecWithWeightList(OpaqueValue list, OpaqueValue function);
OpaqueValue statistics_statFuncSpecWithWeight(OpaqueValue unweighted, OpaqueValue function);
OpaqueValue statistics_statFuncSpec(OpaqueValue function, OpaqueValue leftParen = common_nothing(),
                                    OpaqueValue arguments = common_nothing(),
                                    OpaqueValue colon = common_nothing(),
                                    OpaqueValue baseVariables = common_nothing(),
                                    OpaqueValue rightParen = common_nothing());
OpaqueValue statistics_statFunc(OpaqueValue name, OpaqueValue number);
OpaqueValue statistics_statFuncArgs(OpaqueValue arguments);
/// Either of format and label may be empty.
OpaqueValue statistics_statDisplaySpec(OpaqueValue leftParen, OpaqueValue format,
                                       OpaqueValue rightParen, OpaqueValue label);
OpaqueValue statistics_statFormat(OpaqueValue word);
OpaqueValue statistics_statArgVarSpecList(OpaqueValue list, OpaqueValue spec);
OpaqueValue statistics_statArgVarSpec(OpaqueValue name, OpaqueValue displaySpec);

// TABLE and its expressions.
OpaqueValue table_subcommand(OpaqueValue keyword, OpaqueValue rows,
                             OpaqueValue firstBy = common_nothing(),
                             OpaqueValue columns = common_nothing(),
                             OpaqueValue secondBy = common_nothing(),
                             OpaqueValue layers = common_nothing());
OpaqueValue table_tableItem(OpaqueValue word);
/// The word inside parentheses, a token or the node that table_tableItem made of it. False, with
/// `result` empty, when it is neither STATISTICS, LABELS nor a variable name.
bool table_specialTableItem(OpaqueValue& result, OpaqueValue leftParen, OpaqueValue word,
                            OpaqueValue rightParen);
/// An expression in parentheses; a lone name is read as table_specialTableItem reads it.
bool table_parenthesisedExpression(OpaqueValue& result, OpaqueValue leftParen,
                                   OpaqueValue expression, OpaqueValue rightParen);
OpaqueValue table_tableExpressionStack(OpaqueValue left, OpaqueValue plus, OpaqueValue right);
OpaqueValue table_tableExpressionStack(OpaqueValue leftParen, OpaqueValue left, OpaqueValue plus,
                                       OpaqueValue right, OpaqueValue rightParen);
OpaqueValue table_tableExpressionNest(OpaqueValue left, OpaqueValue nest, OpaqueValue right);
OpaqueValue table_tableExpressionNest(OpaqueValue leftParen, OpaqueValue left, OpaqueValue nest,
                                      OpaqueValue right, OpaqueValue rightParen);

/// Hands the finished tree to the classifier: the list of global subcommands, then the groups.
OpaqueValue endOfParse(OpaqueValue globalGroup, OpaqueValue tableGroupList);

// What is left out: subcommands, with a warning, and values that nobody needs.
OpaqueValue dropped_obsolete(int code, const yyltype& location, OpaqueValue keyword,
                             OpaqueValue arguments);
OpaqueValue dropped_unknown(const yyltype& location, OpaqueValue keyword, OpaqueValue arguments);
OpaqueValue dropped_format(const yyltype& location, OpaqueValue keyword);
OpaqueValue dropped_values(OpaqueValue first, OpaqueValue second = common_nothing(),
                           OpaqueValue third = common_nothing(),
                           OpaqueValue fourth = common_nothing());

// What ends the parse, with an error.
OpaqueValue rejected_arguments(int code, const yyltype& location, OpaqueValue keyword);
OpaqueValue rejected_command(const yyltype& location);

// Reports to the classifier: the error that ends the parse, or a warning.
void reportGenericError(const yyltype& location);
void reportSubcommandArgumentError(int code, const yyltype& location);
void reportSubcommandArgumentCustomError(int code, const yyltype& location);
void reportObsoleteSubcommand(const std::string& name, int code, const yyltype& location);
void reportUnknownSubcommand(const std::string& name, const yyltype& location);
void reportFormatError(const yyltype& location);

} // namespace recastor
