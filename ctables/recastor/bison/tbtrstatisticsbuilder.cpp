// Actions for the STATISTICS and SORT subcommands.

#include "ctables/recastor/bison/buildervalues.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/tbtrnamelistnode.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

namespace {

/// Puts `child` into a reserved slot, which must still be empty.
void FillReservedSlot(TbTrParseNode& node, TbTrParseNode* child) {
    const auto pOldChild = node.SetChild(0, child);
    ZELK_ASSERT_AS(pOldChild == nullptr, "pOldChild == 0");
}

/// A node that holds the value's word.
TbTrParseNode* WordNode(int type, OpaqueValue word) {
    ZELK_ASSERT(OpaqueValue_CheckZELKToken(word, SP_VARNAME, SP_NONVARNAME));
    return new TbTrParseNode(type, OpaqueValue_GiveUpZELKToken(word));
}

} // namespace

OpaqueValue sort_subcommand(OpaqueValue keyword, OpaqueValue direction, OpaqueValue variables) {
    DropValues(keyword);
    ZELK_ASSERT(OpaqueValue_CheckParseNode(variables, TB_SORT));
    TbTrParseNode* const node = OpaqueValue_GiveUpParseNode(variables);
    if (!OpaqueValue_IsEmpty(direction)) {
        const int code = OpaqueValue_GetTbTokenType(direction);
        const auto pExistingChild = node->SetChild(
            0, TbTrParseNode::MakeAttrNode(code, OpaqueValue_GiveUpZELKToken(direction)));
        ZELK_ASSERT_AS(pExistingChild == nullptr, "pExistingChild == 0");
    }
    return NodeValue(node);
}

OpaqueValue sort_sortVariableList(OpaqueValue list, OpaqueValue variable) {
    if (OpaqueValue_IsEmpty(list)) {
        list = AppendToList(list, TB_SORT, common_nothing()); // the slot for the direction
    }
    return AppendToList(list, TB_SORT, variable);
}

OpaqueValue sort_sortVariable(OpaqueValue name) {
    return NodeValue(WordNode(TBI_SORTVAR, name));
}

OpaqueValue sort_sortVariable(OpaqueValue name, OpaqueValue leftParen, OpaqueValue function,
                              OpaqueValue rightParen) {
    DropValues(leftParen, rightParen);
    TbTrParseNode* const node = WordNode(TBI_SORTVAR, name);
    node->AppendChild(OpaqueValue_GiveUpParseNode(function));
    return NodeValue(node);
}

OpaqueValue sort_sortFunction(OpaqueValue name) {
    return NodeValue(WordNode(TBI_SORTFUNCTION, name));
}

OpaqueValue sort_sortFunction(OpaqueValue name, OpaqueValue leftParen, OpaqueValue argument,
                              OpaqueValue rightParen) {
    DropValues(leftParen, rightParen);
    TbTrParseNode* const node = WordNode(TBI_SORTFUNCTION, name);
    node->AppendChild(VarNameNode(argument));
    return NodeValue(node);
}

OpaqueValue statistics_subcommand(OpaqueValue keyword, OpaqueValue functions) {
    DropValues(keyword);
    ZELK_ASSERT(OpaqueValue_CheckParseNode(functions, TB_STATISTICS));
    return functions;
}

OpaqueValue statistics_statFuncSpecWithWeightList(OpaqueValue list, OpaqueValue function) {
    return AppendToList(list, TB_STATISTICS, function);
}

OpaqueValue statistics_statFuncSpecWithWeight(OpaqueValue unweighted, OpaqueValue function) {
    ZELK_ASSERT(OpaqueValue_CheckParseNode(function, TBI_FULLSTATFUNCTION));
    if (OpaqueValue_IsEmpty(unweighted)) {
        return function;
    }
    TbTrParseNode* const node = OpaqueValue_GiveUpParseNode(function);
    FillReservedSlot(
        *node, TbTrParseNode::MakeAttrNode(TB_UNWEIGHTED, OpaqueValue_GiveUpZELKToken(unweighted)));
    return NodeValue(node);
}

OpaqueValue statistics_statFuncSpec(OpaqueValue function, OpaqueValue leftParen,
                                    OpaqueValue arguments, OpaqueValue colon,
                                    OpaqueValue baseVariables, OpaqueValue rightParen) {
    DropValues(leftParen, colon, rightParen);
    auto* node = new TbTrParseNode(TBI_FULLSTATFUNCTION, nullptr);
    node->AppendChild(nullptr); // the slot for the weight attribute
    node->AppendChild(OpaqueValue_GiveUpParseNode(function));
    if (!OpaqueValue_IsEmpty(arguments)) {
        node->AppendChild(OpaqueValue_GiveUpParseNode(arguments));
    }
    if (!OpaqueValue_IsEmpty(baseVariables)) {
        node->AppendChild(OpaqueValue_GiveUpParseNode(baseVariables));
    }
    return NodeValue(node);
}

OpaqueValue statistics_statFunc(OpaqueValue name, OpaqueValue number) {
    TbTrParseNode* const node = WordNode(TBI_STATFUNCTION, name);
    if (!OpaqueValue_IsEmpty(number)) {
        node->AppendChild(NumberNode(number));
    }
    return NodeValue(node);
}

OpaqueValue statistics_statFuncArgs(OpaqueValue arguments) {
    if (OpaqueValue_CheckParseNode(arguments, TBI_STATFUNCARG)) {
        return AppendToList(common_nothing(), TBI_GENERICLIST, arguments);
    }
    ZELK_ASSERT(OpaqueValue_CheckParseNode(arguments, TBI_GENERICLIST));
    return arguments;
}

OpaqueValue statistics_statDisplaySpec(OpaqueValue leftParen, OpaqueValue format,
                                       OpaqueValue rightParen, OpaqueValue label) {
    DropValues(leftParen, rightParen);
    auto* node = new TbTrParseNode(TBI_STATFUNCARG, nullptr);
    node->AppendChild(nullptr); // the slot for an argument variable
    node->AppendChild(OpaqueValue_GiveUpParseNode(format));
    node->AppendChild(LiteralNode(label));
    return NodeValue(node);
}

OpaqueValue statistics_statFormat(OpaqueValue word) {
    return NodeValue(WordNode(TBI_FMT, word));
}

OpaqueValue statistics_statArgVarSpecList(OpaqueValue list, OpaqueValue spec) {
    if (OpaqueValue_IsEmpty(list)) {
        list = NodeValue(new TbTrNameListNode(TBI_GENERICLIST));
    }
    return AppendToList(list, TBI_GENERICLIST, spec);
}

OpaqueValue statistics_statArgVarSpec(OpaqueValue name, OpaqueValue displaySpec) {
    if (OpaqueValue_IsEmpty(displaySpec)) {
        displaySpec = statistics_statDisplaySpec(common_nothing(), common_nothing(),
                                                 common_nothing(), common_nothing());
    }
    ZELK_ASSERT(OpaqueValue_CheckParseNode(displaySpec, TBI_STATFUNCARG));
    TbTrParseNode* const node = OpaqueValue_GiveUpParseNode(displaySpec);
    FillReservedSlot(*node, VarNameNode(name));
    return NodeValue(node);
}

} // namespace recastor
