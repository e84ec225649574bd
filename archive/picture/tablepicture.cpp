#include "archive/picture/picturejson.h"
#include "archive/picture/tableskeleton.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;
using TermsView = std::vector<SkeletonTerm>;

/// Makes JSON of skeletons.
class TablePainter {
public:
    explicit TablePainter(const TextDecoder& decode) : m_decode(decode) {}

    Json Command(const CommandSkeleton& skeleton) const;

private:
    Json Text(const std::optional<std::string>& text) const;
    Json Lines(const std::vector<std::string>& lines) const;
    Json Statistics(const std::vector<SkeletonStatistic>& statistics) const;
    Json Header(const SkeletonVariable& variable) const;
    Json Headers(TermsView::const_iterator begin, TermsView::const_iterator end,
                 std::size_t depth) const;
    Json Dimension(const TableSkeleton& table, std::size_t index) const;
    Json Sorts(const std::vector<SkeletonSort>& sorts) const;
    Json Table(const TableSkeleton& table) const;

    const TextDecoder& m_decode;
};

Json TablePainter::Text(const std::optional<std::string>& text) const {
    return text ? Json(m_decode(*text)) : Json();
}

Json TablePainter::Lines(const std::vector<std::string>& lines) const {
    Json list = Json::array();
    for (const std::string& line : lines) {
        list.push_back(m_decode(line));
    }
    return list;
}

Json TablePainter::Statistics(const std::vector<SkeletonStatistic>& statistics) const {
    Json list = Json::array();
    for (const SkeletonStatistic& one : statistics) {
        list.push_back({{"function", m_decode(one.function)},
                        {"label", Text(one.label)},
                        {"format", Text(one.format)}});
    }
    return list;
}

Json TablePainter::Header(const SkeletonVariable& variable) const {
    const char* const kind = variable.kind == 'S'   ? "scale"
                             : variable.kind == 'G' ? "group"
                                                    : "category";
    Json total;
    if (variable.total) {
        total = {{"after", variable.total->isAfter}, {"label", m_decode(variable.total->label)}};
    }
    return {{"name", m_decode(variable.name)},
            {"kind", kind},
            {"label", Text(variable.label)},
            {"total", total},
            {"statistics", Statistics(variable.statistics)},
            {"totalStatistics", Statistics(variable.totalStatistics)}};
}

/// The headers of terms from the variable at `depth` on, which every one of them has.
Json TablePainter::Headers(TermsView::const_iterator begin, TermsView::const_iterator end,
                           std::size_t depth) const {
    Json headers = Json::array();
    while (begin != end) {
        const SkeletonVariable& variable = (*begin)[depth];
        const auto goesOn = [depth](const SkeletonTerm& term) { return term.size() > depth + 1; };
        auto next = begin + 1;
        while (goesOn(*begin) && next != end && goesOn(*next) && (*next)[depth] == variable) {
            ++next;
        }
        Json header = Header(variable);
        header["inside"] = goesOn(*begin) ? Headers(begin, next, depth + 1) : Json::array();
        headers.push_back(std::move(header));
        begin = next;
    }
    return headers;
}

Json TablePainter::Dimension(const TableSkeleton& table, std::size_t index) const {
    if (index >= table.dimensions.size()) {
        return Json::array();
    }
    const SkeletonDimension& dimension = table.dimensions[index];
    return dimension.isTooLarge ? Json()
                                : Headers(dimension.terms.begin(), dimension.terms.end(), 0);
}

Json TablePainter::Sorts(const std::vector<SkeletonSort>& sorts) const {
    Json list = Json::array();
    for (const SkeletonSort& sort : sorts) {
        list.push_back({{"variable", m_decode(sort.variable)},
                        {"ascending", sort.isAscending},
                        {"key", m_decode(sort.key)}});
    }
    return list;
}

Json SideName(const std::optional<TableSide>& side) {
    static const std::array<const char*, 3> kNames{"rows", "columns", "layers"};
    return side ? Json(kNames.at(static_cast<std::size_t>(*side))) : Json();
}

Json TablePainter::Table(const TableSkeleton& table) const {
    return {{"rows", Dimension(table, 0)},
            {"columns", Dimension(table, 1)},
            {"layers", Dimension(table, 2)},
            {"statisticsSide", SideName(table.statisticsSide)},
            {"statisticsNamed", table.areStatisticsNamed},
            {"movedLabels", SideName(table.movedLabels)},
            {"missingIncluded", table.isMissingIncluded},
            {"sorts", Sorts(table.sorts)},
            {"title", Lines(table.title)},
            {"caption", Lines(table.caption)},
            {"corner", Lines(table.corner)}};
}

Json TablePainter::Command(const CommandSkeleton& skeleton) const {
    Json tables = Json::array();
    for (const TableSkeleton& table : skeleton.tables) {
        tables.push_back(Table(table));
    }
    return {{"emptyCells", skeleton.areEmptyCellsZero ? "zero" : "blank"},
            {"missingText", Text(skeleton.missingText)},
            {"tables", tables}};
}

} // namespace

std::string PictureOfTables(const CommandSkeleton& skeleton, const TextDecoder& decode) {
    return TablePainter(decode).Command(skeleton).dump(-1, ' ', false,
                                                       Json::error_handler_t::replace);
}

} // namespace recastor
