/// Table expressions: variables that are stacked and nested, and the terms that they make.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

namespace recastor {

/// A variable (`operation` 0), or a stacking (`+`) or nesting (`>`) of two and more operands.
template <typename Variable>
struct TableExpression {
    char operation = 0;
    Variable variable;
    std::vector<TableExpression> operands;
};

/// How large the terms of an expression are. Numbers beyond counting are infinite.
struct TermsSize {
    double terms = 1;
    double variables = 1; ///< of all terms together
    double longest = 1;   ///< variables of one term
};

template <typename Variable>
TermsSize SizeOfTerms(const TableExpression<Variable>& expression) {
    if (expression.operation == 0) {
        return {};
    }
    const bool isNesting = expression.operation == '>';
    TermsSize size{isNesting ? 1.0 : 0.0, 0, 0};
    for (const auto& operand : expression.operands) {
        const TermsSize inner = SizeOfTerms(operand);
        if (isNesting) {
            size.variables = size.variables * inner.terms + inner.variables * size.terms;
            size.terms *= inner.terms;
            size.longest += inner.longest;
        } else {
            size.variables += inner.variables;
            size.terms += inner.terms;
            size.longest = std::max(size.longest, inner.longest);
        }
    }
    return size;
}

/// The plain nestings that an expression stacks, each from its outermost variable to its innermost,
/// in their order on paper. Ask for their size first.
template <typename Variable>
std::vector<std::vector<Variable>> TermsOf(const TableExpression<Variable>& expression) {
    using Terms = std::vector<std::vector<Variable>>;
    if (expression.operation == 0) {
        return Terms{{expression.variable}};
    }
    Terms terms;
    if (expression.operation == '+') {
        for (const auto& operand : expression.operands) {
            const Terms more = TermsOf(operand);
            terms.insert(terms.end(), more.begin(), more.end());
        }
        return terms;
    }
    terms.emplace_back();
    for (const auto& operand : expression.operands) {
        const Terms inner = TermsOf(operand);
        Terms product;
        for (const auto& outer : terms) {
            for (const auto& nested : inner) {
                product.push_back(outer);
                product.back().insert(product.back().end(), nested.begin(), nested.end());
            }
        }
        terms = std::move(product);
    }
    return terms;
}

} // namespace recastor
