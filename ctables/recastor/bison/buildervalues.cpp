#include "ctables/recastor/bison/buildervalues.h"

#include "ctables/recastor/tbtrnamelistnode.h"
#include "platform/zelkbase/zelkassert.h"

#include <memory>

namespace recastor {

namespace {

/// Makes a node of the value's token with one of the factories of the tree.
TbTrParseNode* NodeOfToken(OpaqueValue value, TbTrParseNode* (*make)(ZELKToken*)) {
    if (OpaqueValue_IsEmpty(value)) {
        return nullptr;
    }
    TbTrParseNode* const node = make(OpaqueValue_GiveUpZELKToken(value));
    ZELK_ASSERT(node != nullptr);
    return node;
}

/// An empty list; one of variables finds them by their names.
TbTrParseNode* NewList(int listType) {
    if (listType == TBI_VARLIST) {
        return new TbTrNameListNode(listType);
    }
    return new TbTrParseNode(listType, nullptr);
}

} // namespace

OpaqueValue NodeValue(TbTrParseNode* node) {
    OpaqueValue value;
    OpaqueValue_Init(value);
    OpaqueValue_SetParseNode(value, node);
    return value;
}

OpaqueValue AppendToList(OpaqueValue list, int listType, OpaqueValue element) {
    if (OpaqueValue_IsEmpty(list)) {
        list = NodeValue(NewList(listType));
    }
    ZELK_ASSERT(OpaqueValue_CheckParseNode(list, listType));
    TbTrParseNode* const node = OpaqueValue_GiveUpParseNode(list);
    node->AppendChild(OpaqueValue_GiveUpParseNode(element));
    return NodeValue(node);
}

void MoveChildren(TbTrParseNode* source, TbTrParseNode& target) {
    const std::unique_ptr<TbTrParseNode> emptied(source);
    for (unsigned i = 0; i < source->GetChildCount(); ++i) {
        target.AppendChild(source->SetChild(i, nullptr).release());
    }
}

TbTrParseNode* LiteralNode(OpaqueValue token) {
    return NodeOfToken(token, TbTrParseNode::MakeLiteralNode);
}

TbTrParseNode* NumberNode(OpaqueValue token) {
    return NodeOfToken(token, TbTrParseNode::MakeNumberNode);
}

TbTrParseNode* VarNameNode(OpaqueValue token) {
    return NodeOfToken(token, TbTrParseNode::MakeVarNameNode);
}

TbTrParseNode* LabelledVarNameNode(OpaqueValue name, OpaqueValue label) {
    TbTrParseNode* const node = VarNameNode(name);
    ZELK_ASSERT(node != nullptr);
    node->SetChild(0, LiteralNode(label));
    return node;
}

} // namespace recastor
