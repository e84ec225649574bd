#include "archive/outcome/jsonwriter.h"
#include "archive/picture/picturejson.h"
#include "archive/picture/tableskeleton.h"

#include <array>

namespace recastor {

namespace {

using TermsView = std::vector<SkeletonTerm>;

/// Writes skeletons as JSON.
class TablePainter {
public:
    explicit TablePainter(const TextDecoder& decode) : m_decode(decode) {}

    void Command(const CommandSkeleton& skeleton);
    const std::string& Json() const { return m_json.Text(); }

private:
    void Text(const char* name, const std::string& text) { m_json.Member(name, m_decode(text)); }
    void Text(const char* name, const std::optional<std::string>& text);
    void Lines(const char* name, const std::vector<std::string>& lines);
    void Side(const char* name, const std::optional<TableSide>& side);
    void Statistics(const char* name, const std::vector<SkeletonStatistic>& statistics);
    void Total(const std::optional<SkeletonTotal>& total);
    void Headers(TermsView::const_iterator begin, TermsView::const_iterator end, std::size_t depth);
    void Dimension(const char* name, const TableSkeleton& table, std::size_t index);
    void Sorts(const std::vector<SkeletonSort>& sorts);
    void Table(const TableSkeleton& table);

    const TextDecoder& m_decode;
    JsonWriter m_json;
};

void TablePainter::Text(const char* name, const std::optional<std::string>& text) {
    if (text) {
        Text(name, *text);
    } else {
        m_json.Key(name);
        m_json.Null();
    }
}

void TablePainter::Lines(const char* name, const std::vector<std::string>& lines) {
    m_json.Key(name);
    m_json.BeginArray();
    for (const std::string& line : lines) {
        m_json.String(m_decode(line));
    }
    m_json.EndArray();
}

void TablePainter::Side(const char* name, const std::optional<TableSide>& side) {
    static const std::array<const char*, 3> kNames{"rows", "columns", "layers"};
    m_json.Key(name);
    if (side) {
        m_json.String(kNames.at(static_cast<std::size_t>(*side)));
    } else {
        m_json.Null();
    }
}

void TablePainter::Statistics(const char* name, const std::vector<SkeletonStatistic>& statistics) {
    m_json.Key(name);
    m_json.BeginArray();
    for (const SkeletonStatistic& one : statistics) {
        m_json.BeginObject();
        Text("function", one.function);
        Text("label", one.label);
        Text("format", one.format);
        m_json.EndObject();
    }
    m_json.EndArray();
}

void TablePainter::Total(const std::optional<SkeletonTotal>& total) {
    m_json.Key("total");
    if (!total) {
        m_json.Null();
        return;
    }
    m_json.BeginObject();
    m_json.Member("after", total->isAfter);
    Text("label", total->label);
    m_json.EndObject();
}

/// The headers of terms from the variable at `depth` on, which every one of them has.
void TablePainter::Headers(TermsView::const_iterator begin, TermsView::const_iterator end,
                           std::size_t depth) {
    m_json.BeginArray();
    while (begin != end) {
        const SkeletonVariable& variable = (*begin)[depth];
        const auto goesOn = [depth](const SkeletonTerm& term) { return term.size() > depth + 1; };
        auto next = begin + 1;
        while (goesOn(*begin) && next != end && goesOn(*next) && (*next)[depth] == variable) {
            ++next;
        }
        m_json.BeginObject();
        Text("name", variable.name);
        m_json.Member("kind", variable.kind == 'S'   ? "scale"
                              : variable.kind == 'G' ? "group"
                                                     : "category");
        Text("label", variable.label);
        Total(variable.total);
        Statistics("statistics", variable.statistics);
        Statistics("totalStatistics", variable.totalStatistics);
        m_json.Key("inside");
        Headers(begin, goesOn(*begin) ? next : begin, depth + 1);
        m_json.EndObject();
        begin = next;
    }
    m_json.EndArray();
}

void TablePainter::Dimension(const char* name, const TableSkeleton& table, std::size_t index) {
    static const SkeletonDimension kNone;
    const SkeletonDimension& dimension =
        index < table.dimensions.size() ? table.dimensions[index] : kNone;
    m_json.Key(name);
    if (dimension.isTooLarge) {
        m_json.Null();
    } else {
        Headers(dimension.terms.begin(), dimension.terms.end(), 0);
    }
}

void TablePainter::Sorts(const std::vector<SkeletonSort>& sorts) {
    m_json.Key("sorts");
    m_json.BeginArray();
    for (const SkeletonSort& sort : sorts) {
        m_json.BeginObject();
        Text("variable", sort.variable);
        m_json.Member("ascending", sort.isAscending);
        Text("key", sort.key);
        m_json.EndObject();
    }
    m_json.EndArray();
}

void TablePainter::Table(const TableSkeleton& table) {
    m_json.BeginObject();
    Dimension("rows", table, 0);
    Dimension("columns", table, 1);
    Dimension("layers", table, 2);
    Side("statisticsSide", table.statisticsSide);
    m_json.Member("statisticsNamed", table.areStatisticsNamed);
    Side("movedLabels", table.movedLabels);
    m_json.Member("missingIncluded", table.isMissingIncluded);
    Sorts(table.sorts);
    Lines("title", table.title);
    Lines("caption", table.caption);
    Lines("corner", table.corner);
    m_json.EndObject();
}

void TablePainter::Command(const CommandSkeleton& skeleton) {
    m_json.BeginObject();
    m_json.Member("emptyCells", skeleton.areEmptyCellsZero ? "zero" : "blank");
    Text("missingText", skeleton.missingText);
    m_json.Key("tables");
    m_json.BeginArray();
    for (const TableSkeleton& table : skeleton.tables) {
        Table(table);
    }
    m_json.EndArray();
    m_json.EndObject();
}

} // namespace

std::string PictureOfTables(const CommandSkeleton& skeleton, const TextDecoder& decode) {
    TablePainter painter(decode);
    painter.Command(skeleton);
    return painter.Json();
}

} // namespace recastor
