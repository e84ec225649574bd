#include "ctables/recastor/parsetree_lookup.h"

#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/tbtrcommandnode.h"
#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkmb/zelkmb.h"

namespace recastor {

namespace {

/// A variable's slots hold labels and marks, not parts of the command.
bool IsLeaf(const TbTrParseNode& node) {
    return node.GetNodeType() == SP_VARNAME;
}

} // namespace

const ZELKToken& TokenOf(const TbTrParseNode& node) {
    ZELK_ASSERT(node.GetToken() != nullptr);
    return *node.GetToken();
}

const TbTrParseNode& TermOfMagnet(const TbTrParseNode& magnet) {
    const TbTrParseNode* const parent = magnet.GetParent();
    return parent != nullptr && parent->GetNodeType() == SP_GREATERTHAN ? *parent : magnet;
}

bool IsGroupType(int type) {
    return type == TB_MRGROUP || type == TB_MDGROUP;
}

bool IsSameName(const ZELKToken& token, const std::string& upperCasedName) {
    return token.AsString(false) == upperCasedName;
}

void MapGroupVariableName(std::string& name) {
    constexpr std::size_t kLongestGroupName = 8;
    if (!name.empty() && name.front() != '$') {
        name.insert(name.begin(), '$');
        ZELKMBStringTruncate_A(name, kLongestGroupName);
    }
}

std::string WrittenName(const ZELKToken& token, int type) {
    std::string name = token.AsString(true);
    if (IsGroupType(type)) {
        MapGroupVariableName(name);
    }
    return name;
}

int DeclaredType(const TbTrParseNode& variable, const TbTrParseNode& table) {
    int type = variable.GetNotedType();
    if (type == TbTrParseNode::kNotLookedUp) {
        ParseTree::FindVariableType(table, TokenOf(variable).AsString(false), type);
        variable.NoteType(type);
    }
    return type;
}

std::string WrittenNameInTable(const ZELKToken& token, const TbTrParseNode& table) {
    int type = 0;
    ParseTree::FindVariableType(table, token.AsString(false), type);
    return WrittenName(token, type);
}

const TbTrParseNode& CommandRoot(const TbTrParseNode& node) {
    const TbTrParseNode* root = &node;
    while (root->GetParent() != nullptr) {
        root = root->GetParent();
    }
    return *root;
}

const TbTrParseNode* GlobalSubcommands(const TbTrParseNode& node) {
    const TbTrParseNode& root = CommandRoot(node);
    ZELK_ASSERT(root.GetNodeType() == TBI_GENERICLIST && root.GetChildCount() > 0);
    const TbTrParseNode* const list = root.GetChild(0);
    ZELK_ASSERT(list == nullptr || list->GetNodeType() == TBI_GENERICLIST);
    return list;
}

int GetGlobalAttribute(int attribute, const TbTrParseNode& node) {
    const TbTrParseNode* const list = GlobalSubcommands(node);
    for (unsigned i = list != nullptr ? list->GetChildCount() : 0; i-- > 0;) {
        const TbTrParseNode* const subcommand = list->GetChild(i);
        if (subcommand != nullptr && subcommand->GetNodeType() == attribute) {
            const TbTrParseNode* const setting = subcommand->GetChild(0);
            return setting != nullptr ? setting->GetNodeType() : 0;
        }
    }
    return 0;
}

void ReportTranslationError(const ZELKToken& token, int subcommand,
                            TbTrTablesCommand::ErrorType type) {
    int line = 0;
    int column = 0;
    token.StartLocation(line, column);
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    command.SetParseError({line, column, line, column}, subcommand, type);
    command.SetParseErrorString(token.AsString(true));
}

const TbTrParseNode* ParseTree::FindSubcommand(const TbTrParseNode& table, int type, bool fromEnd) {
    ZELK_ASSERT(table.GetNodeType() == TB_TABLE);
    const TbTrParseNode* const group = table.GetParent();
    ZELK_ASSERT(group != nullptr && group->GetNodeType() == TBI_GENERICLIST);
    const unsigned count = group->GetChildCount();
    for (unsigned i = 1; i < count; ++i) {
        const TbTrParseNode* const subcommand = group->GetChild(fromEnd ? count - i : i);
        if (subcommand != nullptr && subcommand->GetNodeType() == type) {
            return subcommand;
        }
    }
    return nullptr;
}

const TbTrParseNode* ParseTree::FindNodeByType(const TbTrParseNode* node, int type) {
    if (node == nullptr || node->GetNodeType() == type) {
        return node;
    }
    const unsigned count = IsLeaf(*node) ? 0 : node->GetChildCount();
    for (unsigned i = 0; i < count; ++i) {
        const TbTrParseNode* const child = node->GetChild(i);
        const bool passes = child != nullptr && (child->GetNodeType() == type || !IsLeaf(*child));
        if (const TbTrParseNode* found = passes ? FindNodeByType(child, type) : nullptr) {
            return found;
        }
    }
    return nullptr;
}

TbTrParseNode* ParseTree::FindNodeByType(TbTrParseNode* node, int type) {
    return const_cast<TbTrParseNode*>(
        FindNodeByType(static_cast<const TbTrParseNode*>(node), type));
}

const TbTrParseNode* ParseTree::FindVariableType(const TbTrParseNode& table,
                                                 const std::string& name, int& type) {
    ZELK_ASSERT(!name.empty());
    if (const TbTrCommandNode* command = CommandRoot(table).AsCommandNode()) {
        const auto declaration = command->FindDeclaration(name);
        type = declaration.type;
        return declaration.node;
    }
    type = 0;
    const TbTrParseNode* const list = GlobalSubcommands(table);
    return list != nullptr ? FindVariableTypeImpl(*list, name, type) : nullptr;
}

const TbTrParseNode* ParseTree::FindVariableTypeImpl(const TbTrParseNode& subtree,
                                                     const std::string& name, int& type) {
    const int subtreeType = subtree.GetNodeType();
    switch (subtreeType) {
    case TB_OBSERVATION:
        return FindVariableTypeInVarlist(subtree.GetChild(0), name, subtreeType, type);
    case TB_MRGROUP:
    case TB_MDGROUP:
        return FindVariableTypeInVarname(subtree.GetChild(0), name, subtreeType, type);
    case TB_FTOTAL:
    case TB_PTOTAL:
        return FindVariableTypeInVarlist(&subtree, name, subtreeType, type);
    default:
        break;
    }
    for (unsigned i = 0; i < subtree.GetChildCount(); ++i) {
        const TbTrParseNode* const child = subtree.GetChild(i);
        const TbTrParseNode* const found =
            child != nullptr ? FindVariableTypeImpl(*child, name, type) : nullptr;
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

/// Also searches the children of FTOTAL and PTOTAL, which are names like those of a list.
const TbTrParseNode* ParseTree::FindVariableTypeInVarlist(const TbTrParseNode* varlist,
                                                          const std::string& name, int declaredType,
                                                          int& type) {
    for (unsigned i = 0; varlist != nullptr && i < varlist->GetChildCount(); ++i) {
        if (const TbTrParseNode* found =
                FindVariableTypeInVarname(varlist->GetChild(i), name, declaredType, type)) {
            return found;
        }
    }
    return nullptr;
}

const TbTrParseNode* ParseTree::FindVariableTypeInVarname(const TbTrParseNode* variable,
                                                          const std::string& name, int declaredType,
                                                          int& type) {
    if (variable == nullptr || variable->GetNodeType() != SP_VARNAME ||
        !IsSameName(TokenOf(*variable), name)) {
        return nullptr;
    }
    type = declaredType;
    return variable;
}

} // namespace recastor
