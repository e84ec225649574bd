// MRSETS: the multiple-response groups of a command.

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

namespace {

/// A variable name, with its label behind it when that is asked for and there.
std::string PrintVarname(const TbTrParseNode& variable, bool withLabel) {
    ZELK_ASSERT(variable.GetNodeType() == SP_VARNAME && variable.GetChildCount() > 0);
    std::string text = TokenOf(variable).AsString(true);
    const TbTrParseNode* const label = variable.GetChild(0);
    if (withLabel && label != nullptr) {
        ZELK_ASSERT(label->GetNodeType() == SP_SLITERAL);
        text += ' ' + TokenOf(*label).AsString(true);
    }
    return text;
}

/// What both kinds of group have: name, label and members.
void TranslateCommonMGroups(const TbTrParseNode& group, OutputSequence& output) {
    const TbTrParseNode* const name = group.GetChild(0);
    ZELK_ASSERT(name != nullptr && name->GetNodeType() == SP_VARNAME);
    std::string groupName = TokenOf(*name).AsString(true);
    MapGroupVariableName(groupName);
    output.PushBack("NAME=" + groupName, true);
    ZELK_ASSERT(name->GetChildCount() > 0);
    if (const TbTrParseNode* label = name->GetChild(0)) {
        ZELK_ASSERT(label->GetNodeType() == SP_SLITERAL);
        output.PushBack("LABEL=" + TokenOf(*label).AsString(true), true);
    }
    output.PushBack("VARIABLES=", true);
    const TbTrParseNode* const varlist = group.GetChild(1);
    ZELK_ASSERT(varlist != nullptr);
    OutputSequence members;
    ParseTree::PrintVarlist(*varlist, members);
    output.PushBack(std::move(members));
}

} // namespace

bool ParseTree::TranslateAllMultiresponseGroups(const TbTrParseNode& root, OutputSequence& output) {
    output.Clear();
    const TbTrParseNode* const list = GlobalSubcommands(root);
    for (unsigned i = 0; list != nullptr && i < list->GetChildCount(); ++i) {
        const TbTrParseNode* const group = list->GetChild(i);
        if (group == nullptr || !IsGroupType(group->GetNodeType())) {
            continue;
        }
        if (output.IsEmpty()) {
            constexpr std::size_t kUsualLength = 500;
            output.Reserve(kUsualLength);
            output.PushBack("MRSETS", false);
        }
        output.PushBackNewline();
        if (group->GetNodeType() == TB_MRGROUP) {
            TranslateMRGroup(*group, output);
        } else {
            TranslateMDGroup(*group, output);
        }
    }
    return true;
}

void ParseTree::TranslateMRGroup(const TbTrParseNode& group, OutputSequence& output) {
    ZELK_ASSERT(group.GetChildCount() == 2);
    output.PushBack("/MCGROUP", false);
    TranslateCommonMGroups(group, output);
}

void ParseTree::TranslateMDGroup(const TbTrParseNode& group, OutputSequence& output) {
    ZELK_ASSERT(group.GetChildCount() == 3);
    output.PushBack("/MDGROUP", false);
    TranslateCommonMGroups(group, output);
    const TbTrParseNode* const value = group.GetChild(2);
    ZELK_ASSERT(value != nullptr &&
                (value->GetNodeType() == SP_SLITERAL || value->GetNodeType() == SP_NUMBER));
    output.PushBack("VALUE=" + TokenOf(*value).AsString(true), true);
}

void ParseTree::PrintVarlist(const TbTrParseNode& varlist, OutputSequence& output) {
    ZELK_ASSERT(varlist.GetNodeType() == TBI_VARLIST);
    output.Clear();
    for (unsigned i = 0; i < varlist.GetChildCount(); ++i) {
        const TbTrParseNode* const item = varlist.GetChild(i);
        std::string text;
        if (item->GetNodeType() == TBI_VARRANGE) {
            text = PrintVarname(*item->GetChild(0), false) + " TO " +
                   PrintVarname(*item->GetChild(1), false);
        } else {
            text = PrintVarname(*item, false);
        }
        output.PushBack(std::move(text), i > 0);
    }
}

} // namespace recastor
