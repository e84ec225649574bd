#include "tests/support/generators/tablescommand.h"

#include "tests/support/generators/statistics.h"
#include "tests/support/generators/subcommands.h"

#include <utility>

namespace recastor {

namespace {

// What a name is depends on whether the command declares it; one that is not declared is a
// categorical variable, so that every name may stand everywhere.
const Strings kCategories{"sex", "region", "educ", "a", "b_1", "x.y", "newspapers2"};
const Strings kScales{"income", "hours"};
const Strings kGroups{"papers", "newspapers", "$media"};
const Strings kFollowing{"after1", "after2"};
const Strings kPreceding{"before1", "before2"};

Strings Concatenated(const std::vector<Strings>& lists) {
    Strings all;
    for (const Strings& list : lists) {
        all.insert(all.end(), list.begin(), list.end());
    }
    return all;
}

const Strings& AllNames() {
    static const Strings names =
        Concatenated({kCategories, kScales, kGroups, kFollowing, kPreceding});
    return names;
}

Expression Leaf(const std::string& name) {
    return {0, name, {}, false};
}

/// A variable with a following total behind it, a preceding one in front of it, or both.
rc::Gen<Expression> TotalledVariables() {
    return rc::gen::apply(
        [](auto before, auto name, auto after, int form) {
            std::vector<Expression> operands{Leaf(name)};
            if (form != 0) {
                operands.insert(operands.begin(), Leaf(before));
            }
            if (form != 1) {
                operands.push_back(Leaf(after));
            }
            return Combined('+', operands);
        },
        NameOf(kPreceding), NameOf(Concatenated({kCategories, kGroups})), NameOf(kFollowing),
        Below(3));
}

rc::Gen<Expression> Leaves(const TablesParts& parts) {
    const auto variable = rc::gen::map(NameOf(Concatenated({kCategories, kScales, kGroups})), Leaf);
    const auto pseudo =
        rc::gen::map(OneOf({std::string(kStatisticsName), std::string(kLabelsName)}), Leaf);
    std::vector<rc::Gen<Expression>> leaves(6, variable);
    if (parts.totals) {
        leaves.insert(leaves.end(), 2, TotalledVariables());
    }
    if (parts.pseudoVariables) {
        leaves.push_back(pseudo);
    }
    return Either(leaves);
}

/// Each of the names or not, with what `declare` makes of it.
template <typename Declare>
auto SomeOf(const Strings& names, Declare declare) {
    using Declared = typename decltype(declare(names.front()))::ValueType;
    rc::Gen<std::vector<Declared>> all = rc::gen::just(std::vector<Declared>());
    for (const std::string& name : names) {
        all = rc::gen::apply(
            [](std::vector<Declared> others, const Declared& declared, bool isWanted) {
                if (isWanted) {
                    others.push_back(declared);
                }
                return others;
            },
            all, declare(name), OnceIn(2));
    }
    return all;
}

rc::Gen<TablesTotal> DeclaredTotal(const std::string& name) {
    return rc::gen::map(Totals(name), [](TablesTotal total) {
        total.isFollowing = total.name.starts_with("after");
        return total;
    });
}

rc::Gen<TablesTable> Tables(const TablesParts& parts, const rc::Gen<Expression>& leaf) {
    const auto none = rc::gen::just(std::string());
    const auto wanted = StatisticsArguments(AllNames());
    const auto heading = HeadingSubcommands(AllNames());
    const auto local =
        Either<std::string>({heading, heading, heading, heading, ObsoleteSubcommands()});
    return rc::gen::apply(
        [](auto dimensions, auto statistics, Strings locals) {
            return TablesTable{std::move(dimensions), std::move(statistics), std::move(locals)};
        },
        OneTo(3, Expressions(leaf, 3)),
        parts.statistics ? Either<std::string>({wanted, wanted, wanted, none}) : none,
        parts.headings ? UpTo(3, local) : rc::gen::just(Strings()));
}

/// A table that a BREAK adds a dimension to must have room for it.
void AddBreak(TablesModel& model, const std::string& added) {
    for (TablesTable& table : model.tables) {
        table.dimensions.resize(std::min<std::size_t>(table.dimensions.size(), 2));
    }
    model.globals.push_back("BREAK " + added);
}

rc::Gen<TablesModel> Commands(const TablesParts& parts, const rc::Gen<Expression>& leaf) {
    const auto setting = SettingSubcommands();
    const auto global =
        Either<std::string>({setting, setting, setting, setting, ObsoleteSubcommands()});
    const auto noTotals = rc::gen::just(std::vector<TablesTotal>());
    const auto scale = [](const std::string& name) { return rc::gen::just(name); };
    return rc::gen::apply(
        [](Strings scales, auto groups, auto totals, Strings others, auto tables,
           const std::string& start, const std::string& between, const std::string& added) {
            TablesModel model{start,
                              std::move(scales),
                              std::move(groups),
                              std::move(totals),
                              others,
                              std::move(tables),
                              between};
            if (!added.empty()) {
                AddBreak(model, added);
            }
            return model;
        },
        SomeOf(kScales, scale), SomeOf(kGroups, Groups),
        parts.totals ? SomeOf(Concatenated({kFollowing, kPreceding}), DeclaredTotal) : noTotals,
        parts.headings ? UpTo(3, global) : rc::gen::just(Strings()), OneTo(2, Tables(parts, leaf)),
        OneOf({"TABLES\n  /", "tables /", "Tab ", "TABULATE\n "}),
        OneOf({"\n  ", " ", "\n ", "\n  /* a note.\n  "}),
        OneOf(!parts.headings ? Strings{""}
                              : Strings{"", "", "", "", "BY year", "+ year", "= BY year"}));
}

} // namespace

rc::Gen<TablesModel> TablesCommands(const TablesParts& parts) {
    return Commands(parts, Leaves(parts));
}

rc::Gen<TablesModel> TablesCommandsOfAnyTotals() {
    const TablesParts parts{true, true, false, false};
    return Commands(parts, rc::gen::map(NameOf(AllNames()), Leaf));
}

} // namespace recastor
