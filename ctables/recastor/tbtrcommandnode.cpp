#include "ctables/recastor/tbtrcommandnode.h"

namespace recastor {

TbTrCommandNode::Declaration TbTrCommandNode::FindMarked(std::string_view name) const {
    if (!m_declarationsRead) {
        m_marks = 0;
        ReadDeclarations();
        m_declarationsRead = true;
    }
    const auto found = m_declarations.find(name);
    return found != m_declarations.end() ? found->second : Declaration();
}

void TbTrCommandNode::ReadDeclarations() const {
    const TbTrParseNode* const globals = GetChild(0);
    for (unsigned i = 0; globals != nullptr && i < globals->GetChildCount(); ++i) {
        const TbTrParseNode* const subcommand = globals->GetChild(i);
        const int type = subcommand != nullptr ? subcommand->GetNodeType() : 0;
        switch (type) {
        case TB_OBSERVATION:
            AddNames(subcommand->GetChild(0), type);
            break;
        case TB_MRGROUP:
        case TB_MDGROUP:
            // Only the group's own name: its members may be tabulated on their own.
            AddName(*subcommand->GetChild(0), type);
            break;
        case TB_FTOTAL:
        case TB_PTOTAL:
            AddNames(subcommand, type);
            break;
        default:
            break;
        }
    }
}

/// A name that is declared already keeps its first declaration.
void TbTrCommandNode::AddName(const TbTrParseNode& name, int type) const {
    const std::string_view text = name.GetToken()->AsString(false);
    m_declarations.try_emplace(text, Declaration{&name, type});
    m_marks |= MarkOf(text);
}

void TbTrCommandNode::AddNames(const TbTrParseNode* list, int type) const {
    for (unsigned i = 0; list != nullptr && i < list->GetChildCount(); ++i) {
        AddName(*list->GetChild(i), type);
    }
}

} // namespace recastor
