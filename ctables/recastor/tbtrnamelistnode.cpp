#include "ctables/recastor/tbtrnamelistnode.h"

namespace recastor {

namespace {

/// A list of so many children is searched one by one.
constexpr unsigned kShortList = 8;

/// The name that the child is listed under; empty for an argument without a variable.
std::string_view NameOfChild(const TbTrParseNode& child) {
    const ZELKToken* token = child.GetToken();
    if (token == nullptr) {
        const TbTrParseNode* const variable = child.GetChild(0);
        token = variable != nullptr ? variable->GetToken() : nullptr;
    }
    return token != nullptr ? std::string_view(token->AsString(false)) : std::string_view();
}

const TbTrParseNode* FindOneByOne(const TbTrParseNode& list, std::string_view name) {
    for (unsigned i = 0; i < list.GetChildCount(); ++i) {
        if (NameOfChild(*list.GetChild(i)) == name) {
            return list.GetChild(i);
        }
    }
    return nullptr;
}

} // namespace

const TbTrParseNode* TbTrNameListNode::FindChild(std::string_view name) const {
    if (m_children == nullptr) {
        m_children = std::make_unique<Children>();
        for (unsigned i = 0; i < GetChildCount(); ++i) {
            m_children->try_emplace(NameOfChild(*GetChild(i)), GetChild(i));
        }
    }
    const auto found = m_children->find(name);
    return found != m_children->end() ? found->second : nullptr;
}

const TbTrParseNode* FindInNameList(const TbTrParseNode& list, std::string_view name) {
    const TbTrNameListNode* const nameList =
        list.GetChildCount() > kShortList ? list.AsNameList() : nullptr;
    return nameList != nullptr ? nameList->FindChild(name) : FindOneByOne(list, name);
}

} // namespace recastor
