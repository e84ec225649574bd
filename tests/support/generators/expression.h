/// Table expressions as data, with the algebra that is expected of them.
#pragma once

#include "tests/support/generators/words.h"

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace recastor {

/// A name (`operation` 0), or a stacking (`+`) or nesting (`>`) of two or more operands.
struct Expression {
    char operation = 0;
    std::string name;
    std::vector<Expression> operands;
    bool hasOwnParentheses = false; ///< written in parentheses where none are needed
};

/// How rapidcheck shows it.
std::ostream& operator<<(std::ostream& out, const Expression& expression);

/// The expression of the operands: one operand is itself.
Expression Combined(char operation, std::vector<Expression> operands);

/// As it is written in a command: `a + b > (c + d)`.
std::string ExpressionText(const Expression& expression);

/// As TreeFromDump() reads it: `(+ a (> b (+ c d)))`.
std::string ExpressionDump(const Expression& expression);

/// Its names in their order.
Strings NamesIn(const Expression& expression);

/// The same with one operand list for each run of an operation.
Expression Flattened(const Expression& expression);

/// The textbook product: the terms of the stack that it multiplies out to, each the names of a
/// nesting from the outermost to the innermost. The names of an outer operand change slowest.
std::vector<Strings> TermsOf(const Expression& expression);

/// The same as an expression.
Expression MultipliedOut(const Expression& expression);

/// What remains, flattened, when the names that are dropped are taken out.
std::optional<Expression> Without(const Expression& expression,
                                  const std::function<bool(const std::string&)>& isDropped);

/// Expressions over leaves, at most `depth` operations deep.
rc::Gen<Expression> Expressions(const rc::Gen<Expression>& leaf, int depth);

/// The same over names.
rc::Gen<Expression> ExpressionsOver(const Strings& names, int depth);

} // namespace recastor
