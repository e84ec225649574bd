#include "archive/picture/skeletonofctables.h"

#include "archive/picture/ctablesgrammar.h"

#include <algorithm>
#include <array>

namespace recastor {

namespace {

std::optional<std::string> TextOf(const std::optional<std::string>& literal) {
    return literal ? std::optional(TextOfLiteral(*literal)) : std::nullopt;
}

std::vector<SkeletonStatistic> StatisticsOf(const std::vector<CtablesStatistic>& written) {
    std::vector<SkeletonStatistic> statistics;
    statistics.reserve(written.size());
    for (const CtablesStatistic& one : written) {
        statistics.push_back({one.function, TextOf(one.label), one.format});
    }
    return statistics;
}

/// The total that the table's CATEGORIES subcommands give to a variable.
std::optional<SkeletonTotal> WrittenTotal(const std::string& variable, const CtablesTable& table) {
    for (const CtablesTotal& total : table.totals) {
        if (std::find(total.variables.begin(), total.variables.end(), variable) !=
            total.variables.end()) {
            return SkeletonTotal{total.isAfter, TextOfLiteral(total.label)};
        }
    }
    return std::nullopt;
}

std::optional<std::string> LabelOf(const std::string& group,
                                   const std::vector<CtablesGroup>& groups) {
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&](const CtablesGroup& one) { return one.name == group; });
    return found != groups.end() ? TextOf(found->label) : std::nullopt;
}

SkeletonVariable WrittenVariable(const CtablesVariable& written, const CtablesTable& table,
                                 const CtablesText& text) {
    SkeletonVariable variable{written.name, written.kind, {}, {}, {}, {}};
    if (written.kind == 'G') {
        variable.label = LabelOf(written.name, text.groups);
    }
    variable.total = WrittenTotal(written.name, table);
    variable.statistics = StatisticsOf(written.statistics);
    variable.totalStatistics = StatisticsOf(written.totals);
    return variable;
}

SkeletonDimension DimensionOf(const CtablesExpression& expression, const CtablesTable& table,
                              const CtablesText& text) {
    SkeletonDimension dimension;
    dimension.isTooLarge = IsTooLarge(SizeOfTerms(expression));
    if (dimension.isTooLarge) {
        return dimension;
    }
    for (const auto& written : TermsOf(expression)) {
        SkeletonTerm& term = dimension.terms.emplace_back();
        for (const CtablesVariable& variable : written) {
            term.push_back(WrittenVariable(variable, table, text));
        }
    }
    return dimension;
}

std::vector<std::string> WrittenHeading(const char* keyword, const CtablesTable& table) {
    std::vector<std::string> lines;
    if (const auto found = table.headings.find(keyword); found != table.headings.end()) {
        for (const std::string& literal : found->second) {
            lines.push_back(TextOfLiteral(literal));
        }
    }
    return lines;
}

std::optional<TableSide> SideOf(const std::optional<std::string>& position) {
    constexpr std::array<const char*, 3> kPositions{"ROW", "COLUMN", "LAYER"};
    for (std::size_t side = 0; position && side < kPositions.size(); ++side) {
        if (*position == kPositions[side]) {
            return static_cast<TableSide>(side);
        }
    }
    return std::nullopt;
}

/// COL=OPPOSITE takes the labels of the rows to the columns.
std::optional<TableSide> MovedLabelsOf(const CtablesTable& table) {
    if (!table.oppositeLabels) {
        return std::nullopt;
    }
    return *table.oppositeLabels == "COL" ? TableSide::kRows : TableSide::kColumns;
}

TableSkeleton TableOf(const CtablesTable& written, const CtablesText& text) {
    TableSkeleton table;
    for (const auto& dimension : written.dimensions) {
        table.dimensions.push_back(dimension ? DimensionOf(*dimension, written, text)
                                             : SkeletonDimension());
    }
    table.statisticsSide = SideOf(written.labelPosition);
    table.areStatisticsNamed = !written.dimensions.empty() && !written.areLabelsHidden;
    table.movedLabels = MovedLabelsOf(written);
    table.isMissingIncluded = written.isMissingIncluded;
    for (const CtablesSort& sort : written.sorts) {
        table.sorts.push_back({sort.variable, sort.order == 'A', sort.key});
    }
    table.title = WrittenHeading("TITLE", written);
    table.caption = WrittenHeading("CAPTION", written);
    table.corner = WrittenHeading("CORNER", written);
    return table;
}

} // namespace

CommandSkeleton SkeletonOfCtables(std::string_view text) {
    const CtablesText written = ReadCtables(text);
    CommandSkeleton skeleton;
    skeleton.areEmptyCellsZero = written.emptyCells == "ZERO";
    skeleton.missingText = TextOf(written.missingText);
    for (const CtablesTable& table : written.tables) {
        skeleton.tables.push_back(TableOf(table, written));
    }
    return skeleton;
}

} // namespace recastor
