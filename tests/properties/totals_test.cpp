// Laws of totals: a name beside a variable becomes a property of that variable's categories.

#include "archive/picture/ctablesgrammar.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"
#include "tests/support/translatedtext.h"

#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

constexpr int kCases = 500;

const TablesTotal* FindTotal(const std::string& name, const TablesModel& model) {
    const auto found = std::find_if(model.totals.begin(), model.totals.end(),
                                    [&name](auto& total) { return IsSameWord(total.name, name); });
    return found == model.totals.end() || KindOf(name, model) != 'T' ? nullptr : &*found;
}

/// The label that a total gets, in its quotes: without one of its own it is its name in capitals.
std::string LabelOf(const TablesTotal& total) {
    std::string name = total.name;
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return total.label.empty() ? '"' + name + '"' : total.label;
}

/// Which total each variable (by its name in the new command) has.
using Totalled = std::map<std::string, const TablesTotal*>;

/// Notes the totals of an expression where each stands right beside its variable. A following
/// total wins over a preceding one; of two of a kind the last wins.
void NoteTotals(const Expression& expression, const TablesModel& model, Totalled& totalled) {
    const std::vector<Expression>& operands = expression.operands;
    for (std::size_t i = 0; i < operands.size(); ++i) {
        const TablesTotal* const total = FindTotal(operands[i].name, model);
        if (total == nullptr) {
            NoteTotals(operands[i], model, totalled);
            continue;
        }
        const Expression& variable = operands.at(total->isFollowing ? i - 1 : i + 1);
        const TablesTotal*& noted = totalled[NameInCtables(variable.name, model)];
        if (noted == nullptr || total->isFollowing || !noted->isFollowing) {
            noted = total;
        }
    }
}

Totalled TotalsOf(const TablesTable& table, const TablesModel& model) {
    Totalled totalled;
    for (const Expression& dimension : table.dimensions) {
        if (const auto rest = Without(dimension, IsPseudoVariable)) {
            NoteTotals(*rest, model, totalled);
        }
    }
    return totalled;
}

/// The lines as one text each, in no particular order.
std::set<std::string> Lines(const Totalled& totalled) {
    std::map<const TablesTotal*, std::string> variables;
    for (const auto& [name, total] : totalled) {
        variables[total] += name + ' ';
    }
    std::set<std::string> lines;
    for (const auto& [total, names] : variables) {
        lines.insert(names + (total->isFollowing ? "AFTER " : "BEFORE ") + LabelOf(*total));
    }
    return lines;
}

std::set<std::string> Lines(const std::vector<CtablesTotal>& totals) {
    std::set<std::string> lines;
    for (const CtablesTotal& total : totals) {
        const std::string names = Join(total.variables, " ");
        lines.insert(names + (total.isAfter ? " AFTER " : " BEFORE ") + total.label);
    }
    RC_ASSERT(lines.size() == totals.size()); // none is written twice
    return lines;
}

/// Gives every total a label of its own, so that a line tells its total.
void LabelApart(TablesModel& model) {
    for (TablesTotal& total : model.totals) {
        total.label = total.label.empty() ? "" : "'All ''" + total.name + "'''";
    }
}

bool HasTotal(const CtablesTable& table, const TablesModel& model) {
    return std::any_of(
        table.dimensions.begin(), table.dimensions.end(), [&](const auto& dimension) {
            const auto variables = VariablesOf(dimension);
            return std::any_of(variables.begin(), variables.end(),
                               [&](auto& one) { return KindOf(one.name, model) == 'T'; });
        });
}

TEST(TotalLaws, EveryTotalThatIsNotOverruledHasOneLineWithItsVariables) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            TablesModel model = *commands;
            LabelApart(model);
            const std::string text = TranslatedText(CommandText(model));
            RC_LOG(text);
            const CtablesText written = ReadCtables(text + ".\n");
            for (std::size_t i = 0; i < model.tables.size(); ++i) {
                RC_ASSERT(Lines(written.tables.at(i).totals) ==
                          Lines(TotalsOf(model.tables[i], model)));
                RC_ASSERT(!HasTotal(written.tables[i], model));
            }
        },
        kCases));
}

/// The text is an error about totals; anything else is read.
bool IsTotalError(const std::string& text) {
    return text.starts_with("error 7 ") || text.starts_with("error 8 ") ||
           text.starts_with("error 9 ") || text.starts_with("error 10 ") ||
           text.starts_with("error 11 ");
}

TEST(TotalLaws, ATotalThatStandsAnywhereIsAnErrorOrALineAtMost) {
    const rc::Gen<TablesModel> commands = TablesCommandsOfAnyTotals();
    EXPECT_TRUE(HoldsAlways(
        [&] {
            TablesModel model = *commands;
            LabelApart(model);
            const std::string text = TranslatedText(CommandText(model));
            RC_LOG(text);
            if (IsTotalError(text)) {
                return;
            }
            for (const CtablesTable& table : ReadCtables(text + ".\n").tables) {
                std::set<std::string> labels;
                std::set<std::string> variables;
                for (const CtablesTotal& total : table.totals) {
                    RC_ASSERT(labels.insert(total.label).second);
                    for (const std::string& variable : total.variables) {
                        RC_ASSERT(variables.insert(variable).second);
                        RC_ASSERT(KindOf(variable, model) != 'S');
                    }
                }
                RC_ASSERT(!HasTotal(table, model));
            }
        },
        kCases));
}

} // namespace

} // namespace recastor
