// Laws of the /TABLE line: what stands in it, and where the statistics stand.

#include "archive/picture/ctablesgrammar.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"
#include "tests/support/translatedtext.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

constexpr int kCases = 500;

using Dimensions = std::vector<std::optional<Expression>>;

CtablesText Translated(const TablesModel& model) {
    const std::string text = TranslatedText(CommandText(model));
    RC_LOG(text);
    return ReadCtables(text + ".\n");
}

/// The dimensions less their pseudo-variables, up to the last that has anything left.
Dimensions DimensionsOf(const TablesTable& table) {
    Dimensions dimensions;
    for (const Expression& dimension : table.dimensions) {
        dimensions.push_back(Without(dimension, IsPseudoVariable));
    }
    while (!dimensions.empty() && !dimensions.back()) {
        dimensions.pop_back();
    }
    return dimensions;
}

Expression Renamed(Expression expression, const TablesModel& model) {
    expression.name = NameInCtables(expression.name, model);
    for (Expression& operand : expression.operands) {
        operand = Renamed(operand, model);
    }
    return expression;
}

/// What was written, as an expression of names.
Expression NamesOnly(const CtablesExpression& written) {
    Expression expression{written.operation, written.variable.name, {}, false};
    for (const CtablesExpression& operand : written.operands) {
        expression.operands.push_back(NamesOnly(operand));
    }
    return expression;
}

/// One line for all dimensions; `-` for one that is not there.
std::string Shown(const Dimensions& dimensions) {
    std::string shown;
    for (const auto& dimension : dimensions) {
        shown += (dimension ? ExpressionDump(*dimension) : "-") + " | ";
    }
    return shown;
}

TEST(TableLaws, TheLineHasTheStatisticsMultipliedOutAndTheRestAsGiven) {
    const rc::Gen<TablesModel> commands = TablesCommands({false, false, true, false});
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const TablesModel model = *commands;
            const CtablesText written = Translated(model);
            RC_ASSERT(written.tables.size() == model.tables.size());
            for (std::size_t i = 0; i < model.tables.size(); ++i) {
                Dimensions expected = DimensionsOf(model.tables[i]);
                const std::size_t statistics = StatisticsDimension(expected, model);
                for (std::size_t d = 0; d < expected.size(); ++d) {
                    if (expected[d]) {
                        const Expression whole = Renamed(*expected[d], model);
                        expected[d] = d == statistics ? MultipliedOut(whole) : whole;
                    }
                }
                Dimensions actual;
                for (const auto& dimension : written.tables[i].dimensions) {
                    actual.push_back(dimension ? std::optional(NamesOnly(*dimension))
                                               : std::nullopt);
                }
                RC_ASSERT(Shown(actual) == Shown(expected));
            }
        },
        kCases));
}

/// The terms of what was written in a dimension that is multiplied out.
std::vector<CtablesExpression> TermsOf(const CtablesExpression& dimension) {
    return dimension.operation == '+' ? dimension.operands : std::vector{dimension};
}

/// The innermost variable of the kind, from 0; -1 for none.
int Innermost(const std::vector<CtablesVariable>& variables, char kind) {
    const auto found = std::find_if(variables.rbegin(), variables.rend(),
                                    [kind](auto& one) { return one.kind == kind; });
    return static_cast<int>(variables.rend() - found) - 1;
}

/// The variable of a nesting that may have statistics.
int Magnet(const std::vector<CtablesVariable>& variables) {
    for (const char kind : {'S', 'G'}) {
        if (const int found = Innermost(variables, kind); found >= 0) {
            return found;
        }
    }
    return static_cast<int>(variables.size()) - 1;
}

/// The indexes of the variables with statistics.
std::vector<int> WithStatistics(const std::vector<CtablesVariable>& variables) {
    std::vector<int> indexes;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        if (variables[i].hasStatistics) {
            indexes.push_back(static_cast<int>(i));
        }
    }
    return indexes;
}

TEST(TableLaws, EveryTermHasItsStatisticsBehindItsMagnet) {
    const rc::Gen<TablesModel> commands = TablesCommands({true, false, true, false});
    EXPECT_TRUE(HoldsAlways(
        [&] {
            TablesModel model = *commands;
            for (TablesTable& table : model.tables) {
                table.statistics = "COUNT"; // suits every variable
            }
            const CtablesText written = Translated(model);
            for (const CtablesTable& table : written.tables) {
                int dimensions = 0;
                for (const auto& dimension : table.dimensions) {
                    if (WithStatistics(VariablesOf(dimension)).empty()) {
                        continue;
                    }
                    ++dimensions;
                    for (const CtablesExpression& term : TermsOf(*dimension)) {
                        const auto variables = VariablesOf(term);
                        RC_ASSERT(WithStatistics(variables) == std::vector{Magnet(variables)});
                    }
                }
                RC_ASSERT(dimensions == (table.dimensions.empty() ? 0 : 1));
            }
        },
        kCases));
}

TEST(TableLaws, WhateverTheFunctionsOnlyMagnetsHaveStatistics) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const CtablesText written = Translated(*commands);
            for (const CtablesTable& table : written.tables) {
                for (const auto& dimension : table.dimensions) {
                    if (WithStatistics(VariablesOf(dimension)).empty()) {
                        continue;
                    }
                    for (const CtablesExpression& term : TermsOf(*dimension)) {
                        const auto variables = VariablesOf(term);
                        const std::vector<int> found = WithStatistics(variables);
                        const int magnet = Magnet(variables);
                        RC_ASSERT(found.empty() || found == std::vector{magnet});
                        const char kind = variables[static_cast<std::size_t>(magnet)].kind;
                        RC_ASSERT(kind != 'G' || !found.empty());
                    }
                }
            }
        },
        kCases));
}

} // namespace

} // namespace recastor
