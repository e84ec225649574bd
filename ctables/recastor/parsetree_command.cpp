// The translation of a whole TABLES command.

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

namespace {

constexpr unsigned kLineWidth = 80;
constexpr unsigned kIndentation = 2;

} // namespace

bool ParseTree::TranslateTablesCommand(TbTrParseNode* root, std::string& result) {
    result.clear();
    ZELK_ASSERT(root != nullptr && root->GetNodeType() == TBI_GENERICLIST);
    constexpr std::size_t kUsualLength = 2000;
    OutputSequence command;
    command.Reserve(kUsualLength);
    command.PushBack("CTABLES", false);
    command.PushBackNewline();
    command.PushBack("/MRSETS COUNTDUPLICATES=YES", false);
    OutputSequence format;
    if (TranslateFormat(*root, format) && !format.IsEmpty()) {
        command.PushBackNewline();
        command.PushBack(std::move(format));
    }
    for (unsigned i = 1; i < root->GetChildCount(); ++i) {
        const TbTrParseNode* const group = root->GetChild(i);
        ZELK_ASSERT(group != nullptr && group->GetNodeType() == TBI_GENERICLIST);
        ZELK_ASSERT(group->GetChild(0) != nullptr);
        command.PushBackNewline();
        if (!TranslateTableSubcommand(*group->GetChild(0), command)) {
            return false;
        }
    }
    OutputSequence groups;
    TranslateAllMultiresponseGroups(*root, groups);
    if (!groups.IsEmpty()) {
        result = groups.Print(kLineWidth, kIndentation) + ".\n";
    }
    result += command.Print(kLineWidth, kIndentation);
    return true;
}

} // namespace recastor
