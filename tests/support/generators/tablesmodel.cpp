#include "tests/support/generators/tablesmodel.h"

#include <algorithm>

namespace recastor {

namespace {

std::string LabelText(const TablesTotal& total) {
    return total.label.empty() ? total.name : total.name + ' ' + total.label;
}

Strings Subcommands(const TablesModel& model) {
    Strings subcommands;
    if (!model.scales.empty()) {
        subcommands.push_back("OBSERVATION=" + Join(model.scales, " "));
    }
    for (const TablesGroup& group : model.groups) {
        subcommands.push_back((group.isDichotomy ? "MDGROUP=" : "MRGROUP=") + group.name + ' ' +
                              group.arguments);
    }
    for (const TablesTotal& total : model.totals) {
        subcommands.push_back((total.isFollowing ? "FTOTAL=" : "PTOTAL=") + LabelText(total));
    }
    subcommands.insert(subcommands.end(), model.globals.begin(), model.globals.end());
    for (const TablesTable& table : model.tables) {
        Strings dimensions;
        for (const Expression& dimension : table.dimensions) {
            dimensions.push_back(ExpressionText(dimension));
        }
        subcommands.push_back("TABLE=" + Join(dimensions, " BY "));
        if (!table.statistics.empty()) {
            subcommands.push_back("STATISTICS=" + table.statistics);
        }
        subcommands.insert(subcommands.end(), table.locals.begin(), table.locals.end());
    }
    return subcommands;
}

} // namespace

bool IsPseudoVariable(const std::string& name) {
    return name == kStatisticsName || name == kLabelsName;
}

std::string CommandText(const TablesModel& model) {
    return model.start + Join(Subcommands(model), model.between + '/');
}

std::ostream& operator<<(std::ostream& out, const TablesModel& model) {
    return out << '\n' << CommandText(model) << ".\n";
}

bool IsSameWord(const std::string& one, const std::string& other) {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c; };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [upper](char left, char right) { return upper(left) == upper(right); });
}

char KindOf(const std::string& name, const TablesModel& model) {
    const auto isIt = [&](const auto& declared) { return IsSameWord(declared.name, name); };
    const auto isScale = [&](const std::string& scale) { return IsSameWord(scale, name); };
    if (std::any_of(model.scales.begin(), model.scales.end(), isScale)) {
        return 'S';
    }
    if (std::any_of(model.groups.begin(), model.groups.end(), isIt)) {
        return 'G';
    }
    return std::any_of(model.totals.begin(), model.totals.end(), isIt) ? 'T' : 'C';
}

std::string NameInCtables(const std::string& name, const TablesModel& model) {
    return KindOf(name, model) == 'G' && name.front() != '$' ? ('$' + name).substr(0, 8) : name;
}

std::size_t StatisticsDimension(const std::vector<std::optional<Expression>>& dimensions,
                                const TablesModel& model) {
    const auto hasScale = [&model](const std::optional<Expression>& dimension) {
        const Strings names = dimension ? NamesIn(*dimension) : Strings();
        return std::any_of(names.begin(), names.end(),
                           [&model](auto& name) { return KindOf(name, model) == 'S'; });
    };
    auto found = std::find_if(dimensions.begin(), dimensions.end(), hasScale);
    if (found == dimensions.end()) {
        found = dimensions.size() > 1 && dimensions[1]
                    ? dimensions.begin() + 1
                    : std::find_if(dimensions.begin(), dimensions.end(),
                                   [](const auto& dimension) { return dimension.has_value(); });
    }
    return static_cast<std::size_t>(found - dimensions.begin());
}

} // namespace recastor
