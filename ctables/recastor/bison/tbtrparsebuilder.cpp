// Actions for lists, simple subcommands and the command as a whole.

#include "ctables/recastor/bison/tbtrparsebuilder.h"

#include "ctables/recastor/bison/buildervalues.h"
#include "ctables/recastor/tbtrcommandnode.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "platform/zelkbase/zelkassert.h"

#include <memory>

namespace recastor {

namespace {

/// A subcommand whose one child, if it has a setting, is the setting's attribute node.
OpaqueValue AttributeSubcommand(int type, OpaqueValue keyword, OpaqueValue setting) {
    auto* node = new TbTrParseNode(type, nullptr);
    if (!OpaqueValue_IsEmpty(setting)) {
        const int code = OpaqueValue_GetTbTokenType(setting);
        TbTrParseNode* const attribute =
            TbTrParseNode::MakeAttrNode(code, OpaqueValue_GiveUpZELKToken(setting));
        ZELK_ASSERT(attribute != nullptr);
        node->AppendChild(attribute);
    }
    DropValues(keyword);
    return NodeValue(node);
}

/// A subcommand that takes over the elements of its list.
OpaqueValue ListSubcommand(int type, OpaqueValue keyword, OpaqueValue list) {
    auto* node = new TbTrParseNode(type, nullptr);
    MoveChildren(OpaqueValue_GiveUpParseNode(list), *node);
    DropValues(keyword);
    return NodeValue(node);
}

OpaqueValue literal_list_arg(int type, OpaqueValue keyword, OpaqueValue literals) {
    ZELK_ASSERT(OpaqueValue_CheckParseNode(literals, TBI_GENERICLIST));
    return ListSubcommand(type, keyword, literals);
}

OpaqueValue TotalSubcommand(int type, OpaqueValue keyword, OpaqueValue totals) {
    ZELK_ASSERT(OpaqueValue_CheckParseNode(totals, TBI_VARLIST));
    return ListSubcommand(type, keyword, totals);
}

/// The group's name with its label, and its members.
TbTrParseNode* GroupNode(int type, OpaqueValue name, OpaqueValue label, OpaqueValue members) {
    ZELK_ASSERT(OpaqueValue_CheckParseNode(members, TBI_VARLIST));
    auto* node = new TbTrParseNode(type, nullptr);
    node->AppendChild(LabelledVarNameNode(name, label));
    node->AppendChild(OpaqueValue_GiveUpParseNode(members));
    return node;
}

bool HoldsRange(const TbTrParseNode& variables) {
    for (unsigned i = 0; i < variables.GetChildCount(); ++i) {
        const int type = variables.GetChild(i)->GetNodeType();
        ZELK_ASSERT(type == SP_VARNAME || type == TBI_VARRANGE);
        if (type == TBI_VARRANGE) {
            return true;
        }
    }
    return false;
}

/// The child of FORMAT's list that has the type; kNoIndex when none has.
unsigned FindFormatChild(const TbTrParseNode& list, int type) {
    for (unsigned i = 0; i < list.GetChildCount(); ++i) {
        if (list.GetChild(i)->GetNodeType() == type) {
            return i;
        }
    }
    return TbTrParseNode::kNoIndex;
}

} // namespace

OpaqueValue common_nothing() {
    OpaqueValue value;
    OpaqueValue_Init(value);
    return value;
}

OpaqueValue common_subcommandsList() {
    return NodeValue(new TbTrParseNode(TBI_GENERICLIST, nullptr));
}

OpaqueValue common_subcommandsList(OpaqueValue list, OpaqueValue subcommand) {
    return AppendToList(list, TBI_GENERICLIST, subcommand);
}

OpaqueValue common_tableGroupList(OpaqueValue list, OpaqueValue tableGroup) {
    return AppendToList(list, TBI_GENERICLIST, tableGroup);
}

OpaqueValue common_tableGroup(OpaqueValue table, OpaqueValue localSubcommands) {
    auto* group = new TbTrParseNode(TBI_GENERICLIST, nullptr);
    group->AppendChild(OpaqueValue_GiveUpParseNode(table));
    MoveChildren(OpaqueValue_GiveUpParseNode(localSubcommands), *group);
    return NodeValue(group);
}

OpaqueValue common_strLiteralList() {
    return NodeValue(new TbTrParseNode(TBI_GENERICLIST, nullptr));
}

OpaqueValue common_strLiteralList(OpaqueValue list, OpaqueValue literal) {
    return AppendToList(list, TBI_GENERICLIST, NodeValue(LiteralNode(literal)));
}

OpaqueValue common_variableNameList(OpaqueValue list, OpaqueValue name) {
    return AppendToList(list, TBI_VARLIST, NodeValue(VarNameNode(name)));
}

OpaqueValue common_variableSpecList(OpaqueValue list, OpaqueValue spec) {
    return AppendToList(list, TBI_VARLIST, spec);
}

OpaqueValue common_variableSpec(OpaqueValue name) {
    return NodeValue(VarNameNode(name));
}

OpaqueValue common_variableSpec(OpaqueValue first, OpaqueValue to, OpaqueValue last) {
    DropValues(to);
    return NodeValue(TbTrParseNode::MakeVarRangeNode(OpaqueValue_GiveUpZELKToken(first),
                                                     OpaqueValue_GiveUpZELKToken(last)));
}

OpaqueValue common_totalVarSpecList(OpaqueValue list, OpaqueValue spec) {
    return AppendToList(list, TBI_VARLIST, spec);
}

OpaqueValue common_totalVarSpec(OpaqueValue name) {
    return NodeValue(VarNameNode(name));
}

OpaqueValue common_totalVarSpec(OpaqueValue name, OpaqueValue label) {
    return NodeValue(LabelledVarNameNode(name, label));
}

OpaqueValue autolabel_subcommand(OpaqueValue keyword, OpaqueValue setting) {
    return AttributeSubcommand(TB_AUTOLABEL, keyword, setting);
}

OpaqueValue base_subcommand(OpaqueValue keyword, OpaqueValue setting) {
    return AttributeSubcommand(TB_BASE, keyword, setting);
}

OpaqueValue gbase_subcommand(OpaqueValue keyword, OpaqueValue setting) {
    return AttributeSubcommand(TB_GBASE, keyword, setting);
}

OpaqueValue missing_subcommand(OpaqueValue keyword, OpaqueValue setting) {
    return AttributeSubcommand(TB_MISSINGSUBCOM, keyword, setting);
}

OpaqueValue caption_subcommand(OpaqueValue keyword, OpaqueValue literals) {
    return literal_list_arg(TB_CAPTION, keyword, literals);
}

OpaqueValue title_subcommand(OpaqueValue keyword, OpaqueValue literals) {
    return literal_list_arg(TB_TITLE, keyword, literals);
}

OpaqueValue corner_subcommand(OpaqueValue keyword, OpaqueValue literals) {
    return literal_list_arg(TB_CORNER, keyword, literals);
}

OpaqueValue format_subcommand(OpaqueValue keyword) {
    DropValues(keyword);
    return common_nothing();
}

OpaqueValue format_subcommand(OpaqueValue keyword, OpaqueValue settings) {
    DropValues(keyword);
    ZELK_ASSERT(OpaqueValue_CheckParseNode(settings, TB_FORMAT));
    TbTrParseNode* const node = OpaqueValue_GiveUpParseNode(settings);
    const unsigned numchildren = node->GetChildCount();
    ZELK_ASSERT_AS(numchildren <= 2, "numchildren >=0 && numchildren <= 2");
    int nblanks = 0;
    int nzeros = 0;
    for (unsigned i = 0; i < numchildren; ++i) {
        const int type = node->GetChild(i)->GetNodeType();
        ZELK_ASSERT(type == SP_SLITERAL || type == TB_ZERO || type == TB_BLANK);
        if (type == TB_ZERO) {
            ZELK_ASSERT(nblanks == 0);
            ++nzeros;
        } else if (type == TB_BLANK) {
            ZELK_ASSERT(nzeros == 0);
            ++nblanks;
        }
    }
    return NodeValue(node);
}

OpaqueValue format_formatSettingList(OpaqueValue list, OpaqueValue setting) {
    if (OpaqueValue_IsEmpty(list)) {
        return AppendToList(list, TB_FORMAT, setting);
    }
    TbTrParseNode* const node = OpaqueValue_GiveUpParseNode(list);
    const unsigned present = FindFormatChild(*node, OpaqueValue_GetParseNodeType(setting));
    if (present == TbTrParseNode::kNoIndex) {
        node->AppendChild(OpaqueValue_GiveUpParseNode(setting));
    } else {
        node->SetChild(present, OpaqueValue_GiveUpParseNode(setting));
    }
    return NodeValue(node);
}

OpaqueValue format_formatSetting(OpaqueValue keyword) {
    const int code = OpaqueValue_GetTbTokenType(keyword);
    return NodeValue(TbTrParseNode::MakeAttrNode(code, OpaqueValue_GiveUpZELKToken(keyword)));
}

OpaqueValue format_formatSetting(OpaqueValue keyword, OpaqueValue leftParen, OpaqueValue literal,
                                 OpaqueValue rightParen) {
    DropValues(keyword, leftParen, rightParen);
    return NodeValue(LiteralNode(literal));
}

OpaqueValue ftotal_subcommand(OpaqueValue keyword, OpaqueValue totals) {
    return TotalSubcommand(TB_FTOTAL, keyword, totals);
}

OpaqueValue ptotal_subcommand(OpaqueValue keyword, OpaqueValue totals) {
    return TotalSubcommand(TB_PTOTAL, keyword, totals);
}

OpaqueValue mrgroup_subcommand(OpaqueValue keyword, OpaqueValue name, OpaqueValue label,
                               OpaqueValue members) {
    DropValues(keyword);
    return NodeValue(GroupNode(TB_MRGROUP, name, label, members));
}

OpaqueValue mdgroup_subcommand(OpaqueValue keyword, OpaqueValue name, OpaqueValue label,
                               OpaqueValue members, OpaqueValue leftParen, OpaqueValue counted,
                               OpaqueValue rightParen) {
    DropValues(keyword, leftParen, rightParen);
    TbTrParseNode* const group = GroupNode(TB_MDGROUP, name, label, members);
    group->AppendChild(OpaqueValue_GetTbTokenType(counted) == SP_NUMBER ? NumberNode(counted)
                                                                        : LiteralNode(counted));
    return NodeValue(group);
}

bool observation_subcommand(OpaqueValue& result, OpaqueValue keyword, OpaqueValue variables) {
    result = common_nothing();
    DropValues(keyword);
    ZELK_ASSERT(OpaqueValue_CheckParseNode(variables, TBI_VARLIST));
    std::unique_ptr<TbTrParseNode> list(OpaqueValue_GiveUpParseNode(variables));
    if (HoldsRange(*list)) {
        return false;
    }
    auto* node = new TbTrParseNode(TB_OBSERVATION, nullptr);
    node->AppendChild(list.release());
    result = NodeValue(node);
    return true;
}

OpaqueValue endOfParse(OpaqueValue globalGroup, OpaqueValue tableGroupList) {
    ZELK_ASSERT(OpaqueValue_GetParseNodeType(globalGroup) == TBI_GENERICLIST);
    ZELK_ASSERT(OpaqueValue_GetParseNodeType(tableGroupList) == TBI_GENERICLIST);
    auto* root = new TbTrCommandNode();
    root->AppendChild(OpaqueValue_GiveUpParseNode(globalGroup));
    MoveChildren(OpaqueValue_GiveUpParseNode(tableGroupList), *root);
    TbTrTablesCommand::g_tablesCommand.SetParseTree(root);
    return common_nothing();
}

} // namespace recastor
