#include "archive/picture/oldtable.h"

#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"

#include <utility>
#include <vector>

namespace recastor {

namespace {

using Operands = std::vector<OldExpression>;

bool IsTotal(const OldExpression& expression) {
    const int type = expression.variable.type;
    return expression.operation == 0 && (type == TB_FTOTAL || type == TB_PTOTAL);
}

/// An operation over what is left of its operands: one of its like among them gives its operands,
/// and one that is alone stands for itself.
std::optional<OldExpression> Combined(char operation, Operands operands) {
    Operands flat;
    for (OldExpression& operand : operands) {
        if (operand.operation == operation) {
            flat.insert(flat.end(), operand.operands.begin(), operand.operands.end());
        } else {
            flat.push_back(std::move(operand));
        }
    }
    if (flat.size() > 1) {
        return OldExpression{operation, {}, std::move(flat)};
    }
    return flat.empty() ? std::nullopt : std::optional(std::move(flat.front()));
}

/// Where a pseudo-variable stands; several places are none.
class Place {
public:
    void Add(TableSide side) {
        m_isSingle = m_isSingle && (!m_side || *m_side == side);
        m_side = side;
    }
    std::optional<TableSide> Single() const { return m_isSingle ? m_side : std::nullopt; }

private:
    std::optional<TableSide> m_side;
    bool m_isSingle = true;
};

/// Makes the expressions of a table, and notes the pseudo-variables that it leaves out.
class ExpressionReader {
public:
    explicit ExpressionReader(const TbTrParseNode& table) : m_table(table) {}

    std::optional<OldExpression> Read(const TbTrParseNode& node, TableSide side);

    Place statistics;
    Place labels;

private:
    const TbTrParseNode& m_table;
};

std::optional<OldExpression> ExpressionReader::Read(const TbTrParseNode& node, TableSide side) {
    const int type = node.GetNodeType();
    if (type == TB_STATISTICS || type == TB_LABELS) {
        (type == TB_STATISTICS ? statistics : labels).Add(side);
        return std::nullopt;
    }
    if (type == SP_VARNAME) {
        const ZELKToken& token = TokenOf(node);
        const int declared = DeclaredType(node, m_table);
        return OldExpression{0, {&token, declared, WrittenName(token, declared), {}}, {}};
    }
    Operands operands;
    for (unsigned i = 0; i < node.GetChildCount(); ++i) {
        if (auto operand = Read(*node.GetChild(i), side)) {
            operands.push_back(*std::move(operand));
        }
    }
    return Combined(type == SP_PLUS ? '+' : '>', std::move(operands));
}

/// Takes the totals out of expressions and gives them to the variables that they total. A total
/// that stands where it totals nothing is only taken out; such a command has no new form.
class TotalsTaker {
public:
    TotalsTaker(const TbTrParseNode& table, std::map<std::string, OldTotal>& totals) :
        m_table(table), m_totals(totals) {}

    std::optional<OldExpression> WithoutTotals(OldExpression expression);

private:
    OldTotal TotalOf(const OldVariable& variable) const;
    std::optional<OldExpression> StackWithoutTotals(OldExpression stack);
    void Attach(const OldTotal& total, OldExpression& partner);
    void Distribute(const OldTotal& total, OldExpression& expression);
    void Mark(const OldTotal& total, OldVariable& variable);

    const TbTrParseNode& m_table;
    std::map<std::string, OldTotal>& m_totals;
};

OldTotal TotalsTaker::TotalOf(const OldVariable& variable) const {
    int type = 0;
    const TbTrParseNode* const declaration =
        ParseTree::FindVariableType(m_table, variable.token->AsString(false), type);
    return {declaration, type == TB_FTOTAL};
}

std::optional<OldExpression> TotalsTaker::WithoutTotals(OldExpression expression) {
    if (expression.operation == '+') {
        return StackWithoutTotals(std::move(expression));
    }
    if (expression.operation == 0) {
        return IsTotal(expression) ? std::nullopt : std::optional(std::move(expression));
    }
    Operands kept;
    for (OldExpression& operand : expression.operands) {
        if (auto left = WithoutTotals(std::move(operand))) {
            kept.push_back(*std::move(left));
        }
    }
    return Combined('>', std::move(kept));
}

std::optional<OldExpression> TotalsTaker::StackWithoutTotals(OldExpression stack) {
    Operands kept;
    for (std::size_t i = 0; i < stack.operands.size(); ++i) {
        OldExpression& operand = stack.operands[i];
        if (!IsTotal(operand)) {
            if (auto left = WithoutTotals(std::move(operand))) {
                kept.push_back(*std::move(left));
            }
            continue;
        }
        const OldTotal total = TotalOf(operand.variable);
        if (total.isFollowing && !kept.empty()) {
            Attach(total, kept.back());
        } else if (!total.isFollowing && i + 1 < stack.operands.size()) {
            Attach(total, stack.operands[i + 1]);
        }
    }
    return Combined('+', std::move(kept));
}

/// A total belongs to the one variable beside it: the nearest of a stacking, the outermost of a
/// nesting. Beside a scale variable it belongs to what that variable nests.
void TotalsTaker::Attach(const OldTotal& total, OldExpression& partner) {
    OldExpression* neighbour = &partner;
    OldExpression* nesting = nullptr;
    while (neighbour->operation != 0) {
        const bool takesLast = neighbour->operation == '+' && total.isFollowing;
        nesting = neighbour->operation == '>' ? neighbour : nesting;
        neighbour = takesLast ? &neighbour->operands.back() : &neighbour->operands.front();
    }
    if (neighbour->variable.type != TB_OBSERVATION) {
        Distribute(total, *neighbour);
    } else if (nesting != nullptr) {
        Distribute(total, nesting->operands[1]);
    }
}

void TotalsTaker::Distribute(const OldTotal& total, OldExpression& expression) {
    if (expression.operation == 0) {
        Mark(total, expression.variable);
    } else if (expression.operation == '>') {
        Distribute(total, expression.operands.front());
    } else {
        for (OldExpression& operand : expression.operands) {
            Distribute(total, operand);
        }
    }
}

/// Only what has categories is totalled. A following total wins over a preceding one.
void TotalsTaker::Mark(const OldTotal& total, OldVariable& variable) {
    if (variable.type != 0 && !IsGroupType(variable.type)) {
        return;
    }
    for (OldTotal* present : {&variable.total, &m_totals[variable.name]}) {
        if (present->declaration == nullptr || !present->isFollowing || total.isFollowing) {
            *present = total;
        }
    }
}

} // namespace

OldTable ReadOldTable(const TbTrParseNode& table) {
    OldTable read;
    ExpressionReader reader(table);
    TotalsTaker totals(table, read.totals);
    for (unsigned i = 0; i < table.GetChildCount(); ++i) {
        const TbTrParseNode* const dimension = table.GetChild(i);
        auto expression = dimension != nullptr ? reader.Read(*dimension, static_cast<TableSide>(i))
                                               : std::nullopt;
        if (expression) {
            read.dimensions.at(i) = totals.WithoutTotals(*std::move(expression));
        }
    }
    read.statisticsPlace = reader.statistics.Single();
    read.labelsPlace = reader.labels.Single();
    return read;
}

} // namespace recastor
