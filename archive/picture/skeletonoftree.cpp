#include "archive/picture/skeletonoftree.h"

#include "archive/picture/oldstatistics.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"

#include <algorithm>
#include <utility>

namespace recastor {

namespace {

std::vector<std::string> HeadingOf(const TbTrParseNode& table, int type) {
    std::vector<std::string> lines;
    const TbTrParseNode* const heading = ParseTree::FindSubcommand(table, type, true);
    for (unsigned i = 0; heading != nullptr && i < heading->GetChildCount(); ++i) {
        if (const TbTrParseNode* line = heading->GetChild(i)) {
            lines.push_back(TokenOf(*line).AsString(false));
        }
    }
    return lines;
}

/// The label of a group, which stands in the name's first slot. Names that are cut alike are one
/// group in the new command, with the label of the first.
std::optional<std::string> LabelOfGroup(const std::string& name, const TbTrParseNode& node) {
    const TbTrParseNode* const list = GlobalSubcommands(node);
    for (unsigned i = 0; list != nullptr && i < list->GetChildCount(); ++i) {
        const TbTrParseNode* const subcommand = list->GetChild(i);
        if (subcommand == nullptr || !IsGroupType(subcommand->GetNodeType())) {
            continue;
        }
        const TbTrParseNode& group = *subcommand->GetChild(0);
        if (WrittenName(TokenOf(group), subcommand->GetNodeType()) == name) {
            const TbTrParseNode* const label = group.GetChild(0);
            return label != nullptr ? std::optional(TokenOf(*label).AsString(false)) : std::nullopt;
        }
    }
    return std::nullopt;
}

SkeletonTotal SkeletonOfTotal(const OldTotal& total) {
    const TbTrParseNode* const label = total.declaration->GetChild(0);
    const TbTrParseNode& named = label != nullptr ? *label : *total.declaration;
    return {total.isFollowing, TokenOf(named).AsString(false)};
}

SkeletonVariable VariableOf(const OldVariable& old, const OldTable& table,
                            const TbTrParseNode& node) {
    SkeletonVariable variable{old.name, 'C', {}, {}, {}, {}};
    if (old.type == TB_OBSERVATION) {
        variable.kind = 'S';
    } else if (IsGroupType(old.type)) {
        variable.kind = 'G';
        variable.label = LabelOfGroup(old.name, node);
    }
    if (const auto total = table.totals.find(old.name); total != table.totals.end()) {
        variable.total = SkeletonOfTotal(total->second);
    }
    return variable;
}

/// Whether a variable of the (upper-cased) name is in the expression.
bool HoldsName(const OldExpression& expression, const std::string& name) {
    if (expression.operation == 0) {
        return IsSameName(*expression.variable.token, name);
    }
    return std::any_of(expression.operands.begin(), expression.operands.end(),
                       [&](const OldExpression& operand) { return HoldsName(operand, name); });
}

/// The first of the expression's terms.
OldTerm FirstTerm(const OldExpression& expression) {
    if (expression.operation == 0) {
        return {expression.variable};
    }
    OldTerm term = FirstTerm(expression.operands.front());
    for (std::size_t i = 1; expression.operation == '>' && i < expression.operands.size(); ++i) {
        const OldTerm inner = FirstTerm(expression.operands[i]);
        term.insert(term.end(), inner.begin(), inner.end());
    }
    return term;
}

/// Makes one table's skeleton.
class TableReader {
public:
    explicit TableReader(const TbTrParseNode& node) :
        m_node(node), m_table(ReadOldTable(node)), m_side(StatisticsSideOf(m_table, node)) {}

    TableSkeleton Read();

private:
    SkeletonDimension Dimension(std::size_t index);
    std::vector<SkeletonSort> Sorts();
    std::string SortKey(const TbTrParseNode& sortVariable);
    const OldExpression& StatisticsDimension() const;

    const TbTrParseNode& m_node;
    OldTable m_table;
    std::optional<TableSide> m_side;
};

const OldExpression& TableReader::StatisticsDimension() const {
    return *m_table.dimensions.at(static_cast<std::size_t>(*m_side));
}

SkeletonDimension TableReader::Dimension(std::size_t index) {
    SkeletonDimension dimension;
    const auto& expression = m_table.dimensions.at(index);
    dimension.isTooLarge = expression && IsTooLarge(SizeOfTerms(*expression));
    if (!expression || dimension.isTooLarge) {
        return dimension;
    }
    for (const OldTerm& old : TermsOf(*expression)) {
        SkeletonTerm& term = dimension.terms.emplace_back();
        for (const OldVariable& variable : old) {
            term.push_back(VariableOf(variable, m_table, m_node));
        }
        if (static_cast<TableSide>(index) == *m_side) {
            TermStatistics found = StatisticsOfTerm(old, m_table, *m_side, m_node);
            SkeletonVariable& summarised = term[SummarisedVariable(old)];
            summarised.statistics = std::move(found.cells);
            summarised.totalStatistics = std::move(found.totals);
        }
    }
    return dimension;
}

/// A variable that is not where the statistics are is sorted by the first count that is shown.
std::string TableReader::SortKey(const TbTrParseNode& sortVariable) {
    const TbTrParseNode* const function = sortVariable.GetChild(0);
    const auto withArgument = [](const std::string& key, const std::string& argument) {
        return key + '(' + argument + ')';
    };
    std::string key = "COUNT";
    if (function != nullptr) {
        char kind = 0;
        bool isPercentage = false;
        const std::string mapped = ParseTree::MapFunctionName(
            TokenOf(*function).AsString(false), true, false, m_node, kind, isPercentage);
        key = isPercentage ? key : mapped;
        if (const TbTrParseNode* argument = function->GetChild(0)) {
            return withArgument(key, WrittenNameInTable(TokenOf(*argument), m_node));
        }
    }
    if (key == "COUNT" &&
        !HoldsName(StatisticsDimension(), TokenOf(sortVariable).AsString(false))) {
        const OldTerm first = FirstTerm(StatisticsDimension());
        return withArgument(key, first[SummarisedVariable(first)].name);
    }
    return key;
}

std::vector<SkeletonSort> TableReader::Sorts() {
    std::vector<SkeletonSort> sorts;
    const TbTrParseNode* const sort = ParseTree::FindSubcommand(m_node, TB_SORT, false);
    if (sort == nullptr) {
        return sorts;
    }
    const TbTrParseNode* const direction = sort->GetChild(0);
    const bool isAscending = direction != nullptr && direction->GetNodeType() == TB_ASCENDING;
    for (unsigned i = 1; i < sort->GetChildCount(); ++i) {
        const TbTrParseNode& variable = *sort->GetChild(i);
        sorts.push_back(
            {WrittenNameInTable(TokenOf(variable), m_node), isAscending, SortKey(variable)});
    }
    return sorts;
}

TableSkeleton TableReader::Read() {
    TableSkeleton skeleton;
    if (!m_side) {
        return skeleton;
    }
    for (std::size_t i = 0; i < kTableSides; ++i) {
        skeleton.dimensions.push_back(Dimension(i));
    }
    while (skeleton.dimensions.back() == SkeletonDimension()) {
        skeleton.dimensions.pop_back();
    }
    skeleton.areStatisticsNamed =
        ParseTree::FindSubcommand(m_node, TB_STATISTICS, false) != nullptr;
    skeleton.statisticsSide = m_table.statisticsPlace;
    if (!skeleton.statisticsSide && skeleton.areStatisticsNamed) {
        skeleton.statisticsSide = m_side;
    }
    if (m_table.labelsPlace != TableSide::kLayers) { // layers have no opposite
        skeleton.movedLabels = m_table.labelsPlace;
    }
    skeleton.isMissingIncluded = GetGlobalAttribute(TB_MISSINGSUBCOM, m_node) == TB_INCLUDE;
    skeleton.sorts = Sorts();
    skeleton.title = HeadingOf(m_node, TB_TITLE);
    if (ParseTree::FindSubcommand(m_node, TB_TITLE, true) == nullptr &&
        GetGlobalAttribute(TB_AUTOLABEL, m_node) == TB_ON) {
        skeleton.title = {")TABLE"};
    }
    skeleton.caption = HeadingOf(m_node, TB_CAPTION);
    skeleton.corner = HeadingOf(m_node, TB_CORNER);
    return skeleton;
}

/// What the last FORMAT that is understood says.
void ReadFormat(const TbTrParseNode& root, CommandSkeleton& skeleton) {
    const TbTrParseNode* const list = GlobalSubcommands(root);
    const TbTrParseNode* format = nullptr;
    for (unsigned i = 0; list != nullptr && i < list->GetChildCount(); ++i) {
        const TbTrParseNode* const subcommand = list->GetChild(i);
        if (subcommand != nullptr && subcommand->GetNodeType() == TB_FORMAT) {
            format = subcommand;
        }
    }
    for (unsigned i = 0; format != nullptr && i < format->GetChildCount(); ++i) {
        const TbTrParseNode& setting = *format->GetChild(i);
        if (setting.GetNodeType() == SP_SLITERAL) {
            skeleton.missingText = TokenOf(setting).AsString(false);
        } else {
            skeleton.areEmptyCellsZero = setting.GetNodeType() == TB_ZERO;
        }
    }
}

} // namespace

CommandSkeleton SkeletonOfTree(const TbTrParseNode& root) {
    CommandSkeleton skeleton;
    ReadFormat(root, skeleton);
    for (unsigned i = 1; i < root.GetChildCount(); ++i) {
        skeleton.tables.push_back(TableReader(*root.GetChild(i)->GetChild(0)).Read());
    }
    return skeleton;
}

} // namespace recastor
