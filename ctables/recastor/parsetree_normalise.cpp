// Reshaping of table expressions: flattening, multiplying out, removal of nodes.

#include "ctables/recastor/parsetree.h"
#include "platform/zelkbase/zelkassert.h"

#include <memory>
#include <utility>
#include <vector>

namespace recastor {

namespace {

bool IsOperator(int type) {
    return type == SP_PLUS || type == SP_GREATERTHAN;
}

/// Puts the children of `operation` into the place of slot `index` of `parent`.
void SpliceChildren(TbTrParseNode& parent, unsigned index, TbTrParseNode& operation) {
    const unsigned count = operation.GetChildCount();
    parent.RemoveChild(index);
    parent.InsertNullChildren(index, count);
    for (unsigned j = 0; j < count; ++j) {
        parent.SetChild(index + j, operation.SetChild(j, nullptr).release());
    }
}

/// The nesting of one operand of a stacking with a copy of the partner, in the source's order.
TbTrParseNode* NestWithPartner(TbTrParseNode* operand, const TbTrParseNode& partner,
                               bool partnerFirst) {
    if (operand->GetNodeType() == SP_GREATERTHAN && !IsOperator(partner.GetNodeType())) {
        const unsigned place = partnerFirst ? 0 : operand->GetChildCount();
        operand->InsertNullChildren(place, 1);
        operand->SetChild(place, partner.Clone());
        return operand; // a long nesting is not moved operand by operand
    }
    auto* nesting = new TbTrParseNode(SP_GREATERTHAN, nullptr);
    if (partnerFirst) {
        nesting->AppendChild(partner.Clone());
        nesting->AppendChild(operand);
    } else {
        nesting->AppendChild(operand);
        nesting->AppendChild(partner.Clone());
    }
    ParseTree::Normalize(*nesting);
    return nesting;
}

/// Lets a nesting whose one operand is a stacking become that stacking.
void TakePlaceOfOnlyChild(TbTrParseNode& subtree, const TbTrParseNode* pFirstPlusNode) {
    ZELK_ASSERT_AS(subtree.GetChild(0) == pFirstPlusNode,
                   "subtree.GetChild( 0 ) == pFirstPlusNode");
    const auto pOnlyChild = subtree.RemoveChild(0);
    ZELK_ASSERT_AS(pOnlyChild.get() == pFirstPlusNode, "pOnlyChild == pFirstPlusNode");
    for (unsigned j = 0; j < pOnlyChild->GetChildCount(); ++j) {
        subtree.AppendChild(pOnlyChild->SetChild(j, nullptr).release());
    }
    subtree.SetNodeType(SP_PLUS);
    ParseTree::Normalize(subtree);
}

/// Takes over the operands of the operands that are operations of the same operator, in their
/// places. All are moved once, however many such operands there are.
void TakeOverOperandsOfItsLike(TbTrParseNode& operation) {
    std::vector<TbTrParseNode::NodePtr> operands;
    const unsigned count = operation.GetChildCount();
    for (unsigned i = 0; i < count; ++i) {
        TbTrParseNode::NodePtr operand = operation.SetChild(i, nullptr);
        if (operand == nullptr || operand->GetNodeType() != operation.GetNodeType()) {
            operands.push_back(std::move(operand));
            continue;
        }
        for (unsigned j = 0; j < operand->GetChildCount(); ++j) {
            operands.push_back(operand->SetChild(j, nullptr));
        }
    }
    operation.InsertNullChildren(count, static_cast<unsigned>(operands.size()) - count);
    for (unsigned i = 0; i < operation.GetChildCount(); ++i) {
        operation.SetChild(i, operands[i].release());
    }
}

/// The index of the first stacking among the operands of a nesting; kNoIndex when there is none.
unsigned StackingOperand(const TbTrParseNode& expression) {
    for (unsigned i = 0;
         expression.GetNodeType() == SP_GREATERTHAN && i < expression.GetChildCount(); ++i) {
        ZELK_ASSERT_AS(expression.GetChild(i) != nullptr, "root.GetChild(i) != 0");
        if (expression.GetChild(i)->GetNodeType() == SP_PLUS) {
            return i;
        }
    }
    return TbTrParseNode::kNoIndex;
}

/// How large an expression becomes.
struct ProductSize {
    double terms;
    double variables; ///< of all terms together
};

ProductSize SizeOfProduct(const TbTrParseNode& node) {
    if (!IsOperator(node.GetNodeType())) {
        return {1, 1};
    }
    const bool nesting = node.GetNodeType() == SP_GREATERTHAN;
    ProductSize size{nesting ? 1.0 : 0.0, 0};
    for (unsigned i = 0; i < node.GetChildCount(); ++i) {
        const TbTrParseNode* const child = node.GetChild(i);
        const ProductSize operand = child != nullptr ? SizeOfProduct(*child) : ProductSize{0, 0};
        if (nesting) {
            size.variables = size.variables * operand.terms + operand.variables * size.terms;
            size.terms *= operand.terms;
        } else {
            size.variables += operand.variables;
            size.terms += operand.terms;
        }
    }
    return size;
}

/// Lets an operation that is left with one operand give its place to it.
void Dissolve(TbTrParseNode& operation) {
    TbTrParseNode* const grandparent = operation.GetParent();
    ZELK_ASSERT(grandparent != nullptr);
    const unsigned place = grandparent->GetChildIndex(&operation);
    ZELK_ASSERT(place < grandparent->GetChildCount());
    auto sibling = operation.SetChild(0, nullptr);
    const auto dissolved = grandparent->SetChild(place, nullptr);
    if (IsOperator(sibling->GetNodeType()) &&
        sibling->GetNodeType() == grandparent->GetNodeType()) {
        SpliceChildren(*grandparent, place, *sibling);
    } else {
        grandparent->SetChild(place, sibling.release());
    }
}

/// The first leaf of an expression.
const TbTrParseNode* FirstLeaf(const TbTrParseNode* pChild) {
    ZELK_ASSERT(pChild);
    while (IsOperator(pChild->GetNodeType())) {
        ZELK_ASSERT(pChild->GetChildCount() > 0);
        pChild = pChild->GetChild(0);
        ZELK_ASSERT(pChild);
    }
    return pChild;
}

} // namespace

void ParseTree::Normalize(TbTrParseNode& expression) {
    const int type = expression.GetNodeType();
    bool holdsItsLike = false;
    for (unsigned i = 0; i < expression.GetChildCount(); ++i) {
        TbTrParseNode* const child = expression.GetChild(i);
        if (child != nullptr && IsOperator(child->GetNodeType())) {
            Normalize(*child);
            holdsItsLike = holdsItsLike || child->GetNodeType() == type;
        }
    }
    if (holdsItsLike) {
        TakeOverOperandsOfItsLike(expression);
    }
}

TbTrParseNode* ParseTree::FindMergeCandidate(TbTrParseNode& root, unsigned& index) {
    if (!IsOperator(root.GetNodeType())) {
        return nullptr;
    }
    if (const unsigned operand = StackingOperand(root); operand != TbTrParseNode::kNoIndex) {
        index = operand;
        return &root;
    }
    for (unsigned i = 0; i < root.GetChildCount(); ++i) {
        TbTrParseNode* const child = root.GetChild(i);
        if (TbTrParseNode* found = child != nullptr ? FindMergeCandidate(*child, index) : nullptr) {
            return found;
        }
    }
    return nullptr;
}

void ParseTree::MergePlusNode(TbTrParseNode& subtree, unsigned reduceIndex) {
    ZELK_ASSERT(subtree.GetChildCount() > reduceIndex);
    ZELK_ASSERT_AS(subtree.GetChild(reduceIndex) != nullptr, "subtree.GetChild(reduceIndex) != 0");
    TbTrParseNode* const pFirstPlusNode = subtree.GetChild(reduceIndex);
    ZELK_ASSERT(pFirstPlusNode->GetNodeType() == SP_PLUS);
    const bool partnerFirst = reduceIndex > 0;
    const unsigned partnerIndex = partnerFirst ? reduceIndex - 1 : 1;
    TbTrParseNode* const pFirstPlusNodeSibling = subtree.GetChild(partnerIndex);
    ZELK_ASSERT(pFirstPlusNodeSibling);
    for (unsigned j = 0; j < pFirstPlusNode->GetChildCount(); ++j) {
        TbTrParseNode* const operand = pFirstPlusNode->SetChild(j, nullptr).release();
        pFirstPlusNode->SetChild(j, NestWithPartner(operand, *pFirstPlusNodeSibling, partnerFirst));
    }
    const auto pOldSibling = subtree.RemoveChild(partnerIndex);
    ZELK_ASSERT_AS(pOldSibling.get() == pFirstPlusNodeSibling,
                   "pOldSibling == pFirstPlusNodeSibling");
    if (subtree.GetChildCount() == 1) {
        TakePlaceOfOnlyChild(subtree, pFirstPlusNode);
    }
}

double ParseTree::MultipliedOutSize(const TbTrParseNode& expression) {
    return SizeOfProduct(expression).variables;
}

TbTrParseNode::NodePtr ParseTree::MultiplyOut(const TbTrParseNode* expression) {
    if (expression == nullptr) {
        return nullptr;
    }
    TbTrParseNode::NodePtr product(expression->Clone());
    MultiplyOutInPlace(*product);
    return product;
}

/// Multiplies out from the outermost nesting inwards. The terms that a nesting becomes are
/// multiplied out one by one, so that no work is done again for each of them.
void ParseTree::MultiplyOutInPlace(TbTrParseNode& expression) {
    for (unsigned index = StackingOperand(expression); index != TbTrParseNode::kNoIndex;
         index = StackingOperand(expression)) {
        MergePlusNode(expression, index);
    }
    bool holdsItsLike = false;
    for (unsigned i = 0; i < expression.GetChildCount(); ++i) {
        TbTrParseNode* const child = expression.GetChild(i);
        if (child != nullptr && IsOperator(child->GetNodeType())) {
            MultiplyOutInPlace(*child);
            holdsItsLike = holdsItsLike || child->GetNodeType() == expression.GetNodeType();
        }
    }
    if (holdsItsLike) {
        TakeOverOperandsOfItsLike(expression);
    }
}

int ParseTree::RemovePseudoVariables(TbTrParseNode& table, bool statistics) {
    if (table.GetNodeType() != TB_TABLE) {
        return 0;
    }
    const int type = statistics ? TB_STATISTICS : TB_LABELS;
    const unsigned nDim = table.GetChildCount();
    ZELK_ASSERT(0 < nDim && nDim <= 3);
    int dimension = 0;
    for (unsigned d = 0; d < nDim; ++d) {
        while (TbTrParseNode* pseudoVariable = FindNodeByType(table.GetChild(d), type)) {
            if (pseudoVariable == table.GetChild(d)) {
                const auto pRemovedNode = table.SetChild(d, nullptr);
                ZELK_ASSERT(pRemovedNode);
            } else {
                const bool removed = RemoveTableExpressionNode(pseudoVariable);
                ZELK_ASSERT(removed);
            }
            const int found = static_cast<int>(d) + 1;
            dimension = dimension == 0 || dimension == found ? found : kSeveralDimensions;
        }
    }
    return dimension;
}

bool ParseTree::RemoveTableExpressionNode(TbTrParseNode* node) {
    TbTrParseNode* const pParent = node->GetParent();
    ZELK_ASSERT(pParent);
    const unsigned index = pParent->GetChildIndex(node);
    if (pParent->GetNodeType() == TB_TABLE) {
        const auto removed = pParent->SetChild(index, nullptr);
        return removed.get() == node;
    }
    ZELK_ASSERT(IsOperator(pParent->GetNodeType()));
    ZELK_ASSERT(pParent->GetChildCount() > 1);
    const auto removed = pParent->RemoveChild(index);
    ZELK_ASSERT(removed.get() == node);
    if (pParent->GetChildCount() == 1) {
        Dissolve(*pParent);
    }
    return true;
}

const TbTrParseNode* ParseTree::GetNextVariable(const TbTrParseNode& root,
                                                const TbTrParseNode* previous) {
    if (previous == nullptr) {
        return FirstLeaf(&root);
    }
    for (const TbTrParseNode* node = previous; node != &root;) {
        const TbTrParseNode* const parent = node->GetParent();
        ZELK_ASSERT(parent);
        const int parentType = parent->GetNodeType();
        ZELK_ASSERT(parentType == SP_PLUS || parentType == SP_GREATERTHAN);
        const unsigned next = parent->GetChildIndex(node) + 1;
        if (next < parent->GetChildCount()) {
            return FirstLeaf(parent->GetChild(next));
        }
        node = parent;
    }
    return nullptr;
}

} // namespace recastor
