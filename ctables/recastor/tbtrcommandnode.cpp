#include "ctables/recastor/tbtrcommandnode.h"

namespace recastor {

TbTrCommandNode::Declaration TbTrCommandNode::FindDeclaration(std::string_view name) const {
    if (!m_declarationsRead) {
        m_declarations = ReadDeclarations();
        m_declarationsRead = true;
    }
    const auto found = m_declarations.find(name);
    return found != m_declarations.end() ? found->second : Declaration();
}

TbTrCommandNode::Declarations TbTrCommandNode::ReadDeclarations() const {
    Declarations declarations;
    const TbTrParseNode* const globals = GetChild(0);
    for (unsigned i = 0; globals != nullptr && i < globals->GetChildCount(); ++i) {
        const TbTrParseNode* const subcommand = globals->GetChild(i);
        const int type = subcommand != nullptr ? subcommand->GetNodeType() : 0;
        switch (type) {
        case TB_OBSERVATION:
            AddNames(subcommand->GetChild(0), type, declarations);
            break;
        case TB_MRGROUP:
        case TB_MDGROUP:
            // Only the group's own name: its members may be tabulated on their own.
            declarations.try_emplace(subcommand->GetChild(0)->GetToken()->AsString(false),
                                     Declaration{subcommand->GetChild(0), type});
            break;
        case TB_FTOTAL:
        case TB_PTOTAL:
            AddNames(subcommand, type, declarations);
            break;
        default:
            break;
        }
    }
    return declarations;
}

/// Adds the names of a list; a name that is declared already keeps its first declaration.
void TbTrCommandNode::AddNames(const TbTrParseNode* list, int type, Declarations& declarations) {
    for (unsigned i = 0; list != nullptr && i < list->GetChildCount(); ++i) {
        const TbTrParseNode* const name = list->GetChild(i);
        declarations.try_emplace(name->GetToken()->AsString(false), Declaration{name, type});
    }
}

} // namespace recastor
