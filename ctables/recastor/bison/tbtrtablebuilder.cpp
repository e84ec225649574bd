// Actions for the TABLE subcommand and its expressions.

#include "ctables/recastor/bison/buildervalues.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "platform/zelkbase/zelkassert.h"

#include <memory>

namespace recastor {

namespace {

bool IsExpressionType(int type) {
    return type == SP_PLUS || type == SP_GREATERTHAN || type == SP_VARNAME ||
           type == TB_STATISTICS || type == TB_LABELS;
}

void AppendDimension(TbTrParseNode& table, OpaqueValue expression) {
    if (!OpaqueValue_IsEmpty(expression)) {
        ZELK_ASSERT(IsExpressionType(OpaqueValue_GetParseNodeType(expression)));
        table.AppendChild(OpaqueValue_GiveUpParseNode(expression));
    }
}

/// An operand of TABLE's operators.
TbTrParseNode* GiveUpOperand(OpaqueValue value) {
    ZELK_ASSERT_AS(IsExpressionType(OpaqueValue_GetParseNodeType(value)),
                   "illegal left node type for TABLE operation");
    return OpaqueValue_GiveUpParseNode(value);
}

/// Appends an operand to the operator's node: the children of one that is an operation of the same
/// operator, so that no operation holds its like; any other as a whole.
void processTableExpression(OpaqueValue value, TbTrParseNode& node, int op) {
    TbTrParseNode* const operand = GiveUpOperand(value);
    if (operand->GetNodeType() == op) {
        MoveChildren(operand, node);
    } else {
        node.AppendChild(operand);
    }
}

/// An operand of the same operator is gone on with, so that a chain is built without moving what it
/// already holds, whichever way its parentheses nest.
OpaqueValue BinaryOperation(int op, OpaqueValue left, OpaqueValue operatorToken,
                            OpaqueValue right) {
    DropValues(operatorToken);
    if (OpaqueValue_CheckParseNode(left, op)) {
        TbTrParseNode* const operation = OpaqueValue_GiveUpParseNode(left);
        processTableExpression(right, *operation, op);
        return NodeValue(operation);
    }
    if (OpaqueValue_CheckParseNode(right, op)) {
        TbTrParseNode* const operation = OpaqueValue_GiveUpParseNode(right);
        operation->InsertNullChildren(0, 1);
        operation->SetChild(0, GiveUpOperand(left));
        return NodeValue(operation);
    }
    auto* operation = new TbTrParseNode(op, nullptr);
    operation->AppendChild(GiveUpOperand(left));
    operation->AppendChild(GiveUpOperand(right));
    return NodeValue(operation);
}

/// The pseudo-variable that the word names by its first three characters; 0 when it names none.
int PseudoVariable(const ZELKToken& word) {
    constexpr unsigned kAbbreviation = 3;
    if (word.CompareAsString("STATISTICS", kAbbreviation, false) == 0) {
        return TB_STATISTICS;
    }
    return word.CompareAsString("LABELS", kAbbreviation, false) == 0 ? TB_LABELS : 0;
}

/// The node of a word that may have become one already.
TbTrParseNode* NodeOfItem(OpaqueValue word) {
    if (OpaqueValue_IsZELKToken(word)) {
        word = table_tableItem(word);
    }
    return OpaqueValue_GiveUpParseNode(word);
}

} // namespace

OpaqueValue table_subcommand(OpaqueValue keyword, OpaqueValue rows, OpaqueValue firstBy,
                             OpaqueValue columns, OpaqueValue secondBy, OpaqueValue layers) {
    DropValues(keyword, firstBy, secondBy);
    auto* table = new TbTrParseNode(TB_TABLE, nullptr);
    AppendDimension(*table, rows);
    AppendDimension(*table, columns);
    AppendDimension(*table, layers);
    return NodeValue(table);
}

OpaqueValue table_tableItem(OpaqueValue word) {
    if (OpaqueValue_CheckZELKToken(word, SP_VARNAME)) {
        return NodeValue(VarNameNode(word));
    }
    return NodeValue(new TbTrParseNode(SP_NONVARNAME, OpaqueValue_GiveUpZELKToken(word)));
}

bool table_specialTableItem(OpaqueValue& result, OpaqueValue leftParen, OpaqueValue word,
                            OpaqueValue rightParen) {
    DropValues(leftParen, rightParen);
    result = common_nothing();
    std::unique_ptr<TbTrParseNode> node(NodeOfItem(word));
    const int pseudoVariable = PseudoVariable(*node->GetToken());
    if (pseudoVariable != 0) {
        result = NodeValue(TbTrParseNode::MakeAttrNode(pseudoVariable, nullptr));
        return true;
    }
    if (node->GetNodeType() != SP_VARNAME) {
        return false;
    }
    result = NodeValue(node.release());
    return true;
}

bool table_parenthesisedExpression(OpaqueValue& result, OpaqueValue leftParen,
                                   OpaqueValue expression, OpaqueValue rightParen) {
    if (OpaqueValue_CheckParseNode(expression, SP_VARNAME, SP_NONVARNAME)) {
        return table_specialTableItem(result, leftParen, expression, rightParen);
    }
    DropValues(leftParen, rightParen);
    result = expression;
    return true;
}

OpaqueValue table_tableExpressionStack(OpaqueValue left, OpaqueValue plus, OpaqueValue right) {
    return BinaryOperation(SP_PLUS, left, plus, right);
}

OpaqueValue table_tableExpressionStack(OpaqueValue leftParen, OpaqueValue left, OpaqueValue plus,
                                       OpaqueValue right, OpaqueValue rightParen) {
    DropValues(leftParen, rightParen);
    return BinaryOperation(SP_PLUS, left, plus, right);
}

OpaqueValue table_tableExpressionNest(OpaqueValue left, OpaqueValue nest, OpaqueValue right) {
    return BinaryOperation(SP_GREATERTHAN, left, nest, right);
}

OpaqueValue table_tableExpressionNest(OpaqueValue leftParen, OpaqueValue left, OpaqueValue nest,
                                      OpaqueValue right, OpaqueValue rightParen) {
    DropValues(leftParen, rightParen);
    return BinaryOperation(SP_GREATERTHAN, left, nest, right);
}

} // namespace recastor
