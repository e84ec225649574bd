/// A TABLES command as data, for laws that must know what it says.
#pragma once

#include "tests/support/generators/expression.h"

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

struct TablesGroup {
    std::string name;
    std::string arguments; ///< label, variables and, of a group of dichotomies, value
    bool isDichotomy = false;
};

struct TablesTotal {
    std::string name;
    bool isFollowing = false;
    std::string label; ///< with its quotes; empty for none
};

struct TablesTable {
    std::vector<Expression> dimensions; ///< rows, columns, layers; one to three
    std::string statistics;             ///< what STATISTICS says; empty without that subcommand
    Strings locals;                     ///< further subcommands, each less its slash
};

/// The names of the pseudo-variables as they stand in an expression.
constexpr std::string_view kStatisticsName = "(STATISTICS)";
constexpr std::string_view kLabelsName = "(labels)";
bool IsPseudoVariable(const std::string& name);

struct TablesModel {
    std::string start = "TABLES\n  /"; ///< what stands in front of the first subcommand
    Strings scales;                    ///< the names that OBSERVATION declares
    std::vector<TablesGroup> groups;
    std::vector<TablesTotal> totals;
    Strings globals; ///< further subcommands, each less its slash
    std::vector<TablesTable> tables;
    std::string between = "\n  "; ///< what stands between two subcommands
};

/// The command less its period.
std::string CommandText(const TablesModel& model);

/// How rapidcheck shows it.
std::ostream& operator<<(std::ostream& out, const TablesModel& model);

bool IsSameWord(const std::string& one, const std::string& other);

/// 'S' scale, 'G' group, 'T' total, 'C' none of these, by what the model declares.
char KindOf(const std::string& name, const TablesModel& model);

/// The name as it stands in a CTABLES command: a group's with `$` in front and cut to eight bytes.
std::string NameInCtables(const std::string& name, const TablesModel& model);

/// The dimension (0 rows, 1 columns, 2 layers) that carries the statistics of a table that asks for
/// none: the first with a scale variable, else the columns, else the rows. Nothing is in a
/// dimension that is null.
std::size_t StatisticsDimension(const std::vector<std::optional<Expression>>& dimensions,
                                const TablesModel& model);

} // namespace recastor
