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
    m_notedType = kNotLookedUp;
    return previous;
}

TbTrParseNode::NodePtr TbTrParseNode::SetChild(unsigned index, TbTrParseNode* child) {
    if (index >= m_children.Size()) {
        return nullptr;
    }
    NodePtr previous = m_children.Exchange(index, child);
    if (previous != nullptr) {
        previous->SetParent(nullptr);
    }
    if (child != nullptr) {
        child->SetParent(this);
    }
    return previous;
}

TbTrParseNode::NodePtr TbTrParseNode::RemoveChild(unsigned index) {
    NodePtr child = SetChild(index, nullptr);
    if (index < m_children.Size()) {
        m_children.Remove(index);
    }
    return child;
}

void TbTrParseNode::AppendChild(TbTrParseNode* child) {
    m_children.Append(child);
    if (child != nullptr) {
        child->SetParent(this);
    }
}

unsigned TbTrParseNode::InsertNullChildren(unsigned index, unsigned count) {
    if (index > m_children.Size()) {
        return 0;
    }
    m_children.InsertNull(index, count);
    return count;
}

unsigned TbTrParseNode::GetChildIndex(const TbTrParseNode* child) const {
    if (child == nullptr) {
        return kNoIndex;
    }
    const auto index = static_cast<unsigned>(m_children.IndexOf(child->m_place));
    return GetChild(index) == child ? index : kNoIndex;
}

TbTrParseNode* TbTrParseNode::GetChild(unsigned index) const {
    return index < m_children.Size() ? m_children[index] : nullptr;
}

void TbTrParseNode::Print(std::ostream& out, int level) const {
    constexpr int kDeepest = 20;
    const int indent = level < 0 || level > kDeepest ? 0 : level;
    out << std::string(static_cast<std::size_t>(indent), '\t') << "--Node type:\t" << m_nodeType
        << std::endl;
    if (m_token != nullptr) {
        m_token->Print(out, indent);
    }
    for (unsigned i = 0; i < GetChildCount(); ++i) {
        if (const TbTrParseNode* child = GetChild(i)) {
            child->Print(out, indent + 1);
        }
    }
}

TbTrParseNode* TbTrParseNode::Clone() const {
    auto copy =
        std::make_unique<TbTrParseNode>(m_nodeType, m_token != nullptr ? m_token->Dup() : nullptr);
    copy->m_notedType = m_notedType;
    copy->m_children.Reserve(m_children.Size());
    for (unsigned i = 0; i < GetChildCount(); ++i) {
        const TbTrParseNode* const child = GetChild(i);
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
