#include "tests/support/generators/expression.h"

namespace recastor {

namespace {

Expression Name(const std::string& name) {
    return {0, name, {}, false};
}

/// The operands of the operation that an expression is to others: of a nesting in a nesting its
/// own, else the expression itself.
void AppendOperands(char operation, const Expression& expression,
                    std::vector<Expression>& operands) {
    if (expression.operation == operation) {
        operands.insert(operands.end(), expression.operands.begin(), expression.operands.end());
    } else {
        operands.push_back(expression);
    }
}

std::vector<Strings> Product(const std::vector<Strings>& outer, const std::vector<Strings>& inner) {
    std::vector<Strings> product;
    for (const Strings& left : outer) {
        for (const Strings& right : inner) {
            product.push_back(left);
            product.back().insert(product.back().end(), right.begin(), right.end());
        }
    }
    return product;
}

rc::Gen<Expression> Operations(char operation, const rc::Gen<Expression>& operand) {
    return rc::gen::apply(
        [operation](std::vector<Expression> operands, bool hasOwnParentheses) {
            Expression expression = Combined(operation, std::move(operands));
            expression.hasOwnParentheses = hasOwnParentheses;
            return expression;
        },
        OneTo(3, operand), OnceIn(8));
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Expression& expression) {
    return out << ExpressionText(expression);
}

Expression Combined(char operation, std::vector<Expression> operands) {
    if (operands.size() == 1) {
        return Expression(operands.front());
    }
    return {operation, "", std::move(operands), false};
}

std::string ExpressionText(const Expression& expression) {
    std::string text = expression.name;
    for (const Expression& operand : expression.operands) {
        const bool isStackInNest = expression.operation == '>' && operand.operation == '+';
        const bool isSame = expression.operation == operand.operation;
        const bool needsParentheses = (isStackInNest || isSame) && !operand.hasOwnParentheses;
        const std::string inner = ExpressionText(operand);
        text += text.empty() ? "" : std::string(" ") + expression.operation + ' ';
        text += needsParentheses ? '(' + inner + ')' : inner;
    }
    return expression.hasOwnParentheses ? '(' + text + ')' : text;
}

std::string ExpressionDump(const Expression& expression) {
    if (expression.operation == 0) {
        return expression.name;
    }
    std::string dump = std::string("(") + expression.operation;
    for (const Expression& operand : expression.operands) {
        dump += ' ' + ExpressionDump(operand);
    }
    return dump + ')';
}

Strings NamesIn(const Expression& expression) {
    if (expression.operation == 0) {
        return {expression.name};
    }
    Strings names;
    for (const Expression& operand : expression.operands) {
        const Strings inner = NamesIn(operand);
        names.insert(names.end(), inner.begin(), inner.end());
    }
    return names;
}

Expression Flattened(const Expression& expression) {
    return Without(expression, [](const std::string&) { return false; }).value();
}

std::vector<Strings> TermsOf(const Expression& expression) {
    if (expression.operation == 0) {
        return {{expression.name}};
    }
    std::vector<Strings> terms = TermsOf(expression.operands.front());
    for (std::size_t i = 1; i < expression.operands.size(); ++i) {
        const std::vector<Strings> operand = TermsOf(expression.operands[i]);
        if (expression.operation == '>') {
            terms = Product(terms, operand);
        } else {
            terms.insert(terms.end(), operand.begin(), operand.end());
        }
    }
    return terms;
}

Expression MultipliedOut(const Expression& expression) {
    std::vector<Expression> nestings;
    for (const Strings& term : TermsOf(expression)) {
        std::vector<Expression> names;
        for (const std::string& name : term) {
            names.push_back(Name(name));
        }
        nestings.push_back(Combined('>', names));
    }
    return Combined('+', nestings);
}

std::optional<Expression> Without(const Expression& expression,
                                  const std::function<bool(const std::string&)>& isDropped) {
    if (expression.operation == 0) {
        return isDropped(expression.name) ? std::nullopt : std::optional(Name(expression.name));
    }
    std::vector<Expression> operands;
    for (const Expression& operand : expression.operands) {
        if (const auto rest = Without(operand, isDropped)) {
            AppendOperands(expression.operation, *rest, operands);
        }
    }
    return operands.empty() ? std::nullopt
                            : std::optional(Combined(expression.operation, operands));
}

rc::Gen<Expression> Expressions(const rc::Gen<Expression>& leaf, int depth) {
    if (depth == 0) {
        return leaf;
    }
    const rc::Gen<Expression> operand = Expressions(leaf, depth - 1);
    return rc::gen::mapcat(Below(4), [=](int kind) {
        return kind < 2 ? leaf : Operations(kind == 2 ? '+' : '>', operand);
    });
}

rc::Gen<Expression> ExpressionsOver(const Strings& names, int depth) {
    const rc::Gen<Expression> leaf = rc::gen::map(NameOf(names), Name);
    return Expressions(leaf, depth);
}

} // namespace recastor
