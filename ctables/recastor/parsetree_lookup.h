/// Small look-ups that the whole translator shares.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "platform/zelkbase/zelkassert.h"

#include <string>

namespace recastor {

/// The node type of the setting that the command's last global subcommand of type `attribute` has
/// (TB_ON for AUTOLABEL=ON); 0 without such a subcommand or setting. `node` is any of the command.
int GetGlobalAttribute(int attribute, const TbTrParseNode& node);

/// Makes the name under which a multiple-response group is written: with "$" in front, cut to 8
/// bytes. A name that begins with "$" stays as it is.
void MapGroupVariableName(std::string& name);

bool IsGroupType(int type);

/// The term whose statistics stand behind the magnet: the nesting that holds it, or itself.
const TbTrParseNode& TermOfMagnet(const TbTrParseNode& magnet);

/// Whether `holds` is true for any leaf of the expression; none behind the first such is asked.
template <typename Holds>
bool HoldsForAnyVariable(const TbTrParseNode& expression, const Holds& holds) {
    const int type = expression.GetNodeType();
    if (type != SP_PLUS && type != SP_GREATERTHAN) {
        return holds(expression);
    }
    ZELK_ASSERT(expression.GetChildCount() > 0);
    for (unsigned i = 0; i < expression.GetChildCount(); ++i) {
        ZELK_ASSERT(expression.GetChild(i) != nullptr);
        if (HoldsForAnyVariable(*expression.GetChild(i), holds)) {
            return true;
        }
    }
    return false;
}

/// The type with which the command declares the variable; 0 for a categorical one. It is noted at
/// the variable.
int DeclaredType(const TbTrParseNode& variable, const TbTrParseNode& table);

/// The text of the variable name, in its own spelling, as it is written: group-mapped when `type`
/// is a group's.
std::string WrittenName(const ZELKToken& token, int type);

/// The same with the type that the command declares.
std::string WrittenNameInTable(const ZELKToken& token, const TbTrParseNode& table);

/// Whether two names are the same, without regard to case.
bool IsSameName(const ZELKToken& token, const std::string& upperCasedName);

/// The root of the command that the node belongs to.
const TbTrParseNode& CommandRoot(const TbTrParseNode& node);

/// The command's list of global subcommands; null when there is none. `node` is any node of it.
const TbTrParseNode* GlobalSubcommands(const TbTrParseNode& node);

/// The node's token, which it must have.
const ZELKToken& TokenOf(const TbTrParseNode& node);

/// Records an error of the translator at the token, and the token's text for the message.
void ReportTranslationError(const ZELKToken& token, int subcommand,
                            TbTrTablesCommand::ErrorType type);

} // namespace recastor
