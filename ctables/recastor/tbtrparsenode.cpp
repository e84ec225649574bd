#include "ctables/recastor/tbtrparsenode.h"

#include "platform/zelkbase/zelkassert.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace recastor {

namespace {

/// The codes that may become attribute nodes.
constexpr std::array<int, 17> gAttrTypes = {
    TB_DEFAULT,   TB_ON,         TB_OFF,        TB_ANSWERING,  TB_QUALIFIED, SP_ALL,
    TB_CASES,     TB_RESPONSES,  TB_EXCLUDE,    TB_INCLUDE,    TB_BLANK,     TB_ZERO,
    TB_ASCENDING, TB_DESCENDING, TB_UNWEIGHTED, TB_STATISTICS, TB_LABELS,
};

/// A node of type `nodeType` that owns `token`, if that is of type `tokenType`.
TbTrParseNode* MakeNode(int nodeType, ZELKToken* token, TokenSequenceBase::TokenType tokenType) {
    return token != nullptr && token->Type() == tokenType ? new TbTrParseNode(nodeType, token)
                                                          : nullptr;
}

} // namespace

TbTrParseNode::TbTrParseNode(int nodeType, ZELKToken* token) :
    m_nodeType(nodeType), m_token(token) {}

TbTrParseNode::~TbTrParseNode() = default;

ZELKToken* TbTrParseNode::SetToken(ZELKToken* token) {
    ZELKToken* const previous = m_token.release();
    m_token.reset(token);
    return previous;
}

TbTrParseNode::NodePtr TbTrParseNode::SetChild(unsigned index, TbTrParseNode* child) {
    if (index >= m_children.size()) {
        return nullptr;
    }
    NodePtr previous = std::exchange(m_children[index], NodePtr(child));
    if (previous != nullptr) {
        previous->SetParent(nullptr);
    }
    Adopt(child, index);
    return previous;
}

/// Tells the child that now stands in the slot (null: none) where it is.
void TbTrParseNode::Adopt(TbTrParseNode* child, unsigned index) {
    if (child != nullptr) {
        child->SetParent(this);
        child->m_placeHint = index;
    }
}

TbTrParseNode::NodePtr TbTrParseNode::RemoveChild(unsigned index) {
    NodePtr child = SetChild(index, nullptr);
    if (index < m_children.size()) {
        m_children.erase(m_children.begin() + static_cast<std::ptrdiff_t>(index));
    }
    return child;
}

void TbTrParseNode::AppendChild(TbTrParseNode* child) {
    m_children.emplace_back(child);
    Adopt(child, GetChildCount() - 1);
}

unsigned TbTrParseNode::InsertNullChildren(unsigned index, unsigned count) {
    if (index > m_children.size()) {
        return 0;
    }
    const auto tail = static_cast<std::ptrdiff_t>(m_children.size() - index);
    m_children.resize(m_children.size() + count);
    std::move_backward(m_children.begin() + static_cast<std::ptrdiff_t>(index),
                       m_children.begin() + static_cast<std::ptrdiff_t>(index) + tail,
                       m_children.end());
    return count;
}

unsigned TbTrParseNode::GetChildIndex(const TbTrParseNode* child) const {
    if (child == nullptr) {
        return kNoIndex;
    }
    const unsigned hint = child->m_placeHint;
    if (GetChild(hint) == child) {
        return hint;
    }
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [&](const NodePtr& slot) { return slot.get() == child; });
    if (found == m_children.end()) {
        return kNoIndex;
    }
    child->m_placeHint = static_cast<unsigned>(found - m_children.begin());
    return child->m_placeHint;
}

TbTrParseNode* TbTrParseNode::GetChild(unsigned index) const {
    return index < m_children.size() ? m_children[index].get() : nullptr;
}

void TbTrParseNode::Print(std::ostream& out, int level) const {
    constexpr int kDeepest = 20;
    const int indent = level < 0 || level > kDeepest ? 0 : level;
    out << std::string(static_cast<std::size_t>(indent), '\t') << "--Node type:\t" << m_nodeType
        << std::endl;
    if (m_token != nullptr) {
        m_token->Print(out, indent);
    }
    for (const NodePtr& child : m_children) {
        if (child != nullptr) {
            child->Print(out, indent + 1);
        }
    }
}

TbTrParseNode* TbTrParseNode::Clone() const {
    auto copy =
        std::make_unique<TbTrParseNode>(m_nodeType, m_token != nullptr ? m_token->Dup() : nullptr);
    copy->m_children.reserve(m_children.size());
    for (const NodePtr& child : m_children) {
        copy->AppendChild(child != nullptr ? child->Clone() : nullptr);
    }
    return copy.release();
}

TbTrParseNode* TbTrParseNode::MakeAttrNode(int type, ZELKToken* token) {
    if (std::find(gAttrTypes.begin(), gAttrTypes.end(), type) == gAttrTypes.end()) {
        return nullptr;
    }
    delete token;
    return new TbTrParseNode(type, nullptr);
}

TbTrParseNode* TbTrParseNode::MakeLiteralNode(ZELKToken* token) {
    return MakeNode(SP_SLITERAL, token, TokenSequenceBase::kLiteral);
}

TbTrParseNode* TbTrParseNode::MakeNumberNode(ZELKToken* token) {
    return MakeNode(SP_NUMBER, token, TokenSequenceBase::kNumber);
}

TbTrParseNode* TbTrParseNode::MakeVarNameNode(ZELKToken* token) {
    TbTrParseNode* node = MakeNode(SP_VARNAME, token, TokenSequenceBase::kString);
    if (node != nullptr) {
        const unsigned nullChildren = node->InsertNullChildren(0, 2);
        ZELK_ASSERT(nullChildren == 2);
    }
    return node;
}

TbTrParseNode* TbTrParseNode::MakeVarRangeNode(ZELKToken* first, ZELKToken* last) {
    TbTrParseNode* const firstName = MakeVarNameNode(first);
    TbTrParseNode* const lastName = MakeVarNameNode(last);
    if (firstName == nullptr && lastName == nullptr) {
        return nullptr;
    }
    auto* range = new TbTrParseNode(TBI_VARRANGE, nullptr);
    range->AppendChild(firstName);
    range->AppendChild(lastName);
    return range;
}

} // namespace recastor
