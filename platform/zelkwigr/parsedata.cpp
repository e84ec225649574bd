#include "platform/zelkwigr/parsedata.h"

#include "platform/zelkwigr/chartoptions.h"
#include "platform/zelkwigr/keeponeofeach.h"

#include <utility>

namespace recastor {

namespace {

constexpr Keyword<Measurement> kTypes[] = {
    {"SCALE", Measurement::kScale},
    {"CATEGORICAL", Measurement::kCategorical},
};

constexpr Keyword<Grouping> kGroupings[] = {
    {"CLUSTER", Grouping::kCluster},
    {"STACK", Grouping::kStack},
};

constexpr Option<ValueRange> kRangeEnds[] = {
    {"MIN", [](ChartTokenReader& reader, ValueRange& range) { range.min = reader.Number(); }},
    {"MAX", [](ChartTokenReader& reader, ValueRange& range) { range.max = reader.Number(); }},
};

/// MIN = n MAX = n) from behind the opening parenthesis.
void ReadRangeInParentheses(ChartTokenReader& reader, ValueRange& range) {
    do {
        ReadOption(reader, kRangeEnds, range);
    } while (!reader.HasFailed() && !reader.Take(TokenSequenceBase::kRightParen));
}

void ReadType(ChartTokenReader& reader, ChartDimension& dimension) {
    dimension.type = reader.Choice(kTypes);
    dimension.range = ValueRange();
}

/// Steps over the parenthesis that may open a range behind SCALE.
bool TakeRangeParenthesis(ChartTokenReader& reader, const ChartDimension& dimension) {
    return dimension.type == Measurement::kScale && reader.Take(TokenSequenceBase::kLeftParen);
}

void ReadAxisType(ChartTokenReader& reader, ChartDimension& dimension) {
    ReadType(reader, dimension);
    if (TakeRangeParenthesis(reader, dimension)) {
        ReadRangeInParentheses(reader, dimension.range);
    }
}

/// CLUSTER) or STACK) from behind the opening parenthesis, if it comes next.
bool ReadGroupingInParentheses(ChartTokenReader& reader, ChartDimension& dimension) {
    const Grouping* grouping = reader.TakeKeyword(kGroupings);
    if (!grouping) {
        return false;
    }
    dimension.grouping = *grouping;
    reader.Expect(TokenSequenceBase::kRightParen);
    return true;
}

/// Behind SCALE a parenthesis opens a range or a grouping.
void ReadAestheticType(ChartTokenReader& reader, ChartDimension& dimension) {
    ReadType(reader, dimension);
    if (TakeRangeParenthesis(reader, dimension) && !ReadGroupingInParentheses(reader, dimension)) {
        ReadRangeInParentheses(reader, dimension.range);
    }
}

template <class Target>
void ReadTitle(ChartTokenReader& reader, Target& target) {
    target.title = reader.Text();
}

template <Grouping kGrouping>
void SetGrouping(ChartTokenReader&, ChartDimension& dimension) {
    dimension.grouping = kGrouping;
}

constexpr Option<ChartDimension> kAxisOptions[] = {
    {"TYPE", ReadAxisType},
    {"TITLE", ReadTitle<ChartDimension>},
};

constexpr Option<ChartDimension> kAestheticOptions[] = {
    {"TYPE", ReadAestheticType},
    {"TITLE", ReadTitle<ChartDimension>},
    {"LEGEND", [](ChartTokenReader& reader,
                  ChartDimension& dimension) { dimension.legend = reader.Choice(kSwitch); }},
    {"CLUSTER", SetGrouping<Grouping::kCluster>},
    {"STACK", SetGrouping<Grouping::kStack>},
};

constexpr Option<SummaryVariable> kSummaryVariableOptions[] = {
    {"TITLE", ReadTitle<SummaryVariable>},
};

/// Whether the points get the labels.
constexpr Keyword<bool> kPointLabelWords[] = {{"ALL", true}, {"NONE", false}};

template <CategoryOrder::Key kKey>
void OrderBy(CategoryOrder& order) {
    order.key = kKey;
}

template <bool kDescending>
void OrderFrom(CategoryOrder& order) {
    order.descending = kDescending;
}

void IgnoreEmpty(CategoryOrder&) {}

constexpr Keyword<void (*)(CategoryOrder&)> kOrderWords[] = {
    {"ASCENDING", OrderFrom<false>},
    {"DESCENDING", OrderFrom<true>},
    {"VALUE", OrderBy<CategoryOrder::Key::kValue>},
    {"VALUES", OrderBy<CategoryOrder::Key::kValue>},
    {"LABEL", OrderBy<CategoryOrder::Key::kLabel>},
    {"LABELS", OrderBy<CategoryOrder::Key::kLabel>},
    {"COUNT", OrderBy<CategoryOrder::Key::kCount>},
    {"OCCURRENCE", OrderBy<CategoryOrder::Key::kOccurrence>},
    {"OMITEMPTY", IgnoreEmpty},
    {"SHOWEMPTY", IgnoreEmpty},
};

/// A look by its name or by its number.
void IgnoreLook(ChartTokenReader& reader, ReferenceLine&) {
    if (reader.AtWord() || reader.AtLiteral()) {
        reader.Skip();
    } else {
        reader.Number();
    }
}

constexpr Option<ReferenceLine> kReferenceLineOptions[] = {
    {"LABEL",
     [](ChartTokenReader& reader, ReferenceLine& line) { line.label = reader.Choice(kSwitch); }},
    {"SPIKE", IgnoreSwitch<ReferenceLine>},
    {"COLOR", IgnoreLook},
    {"STYLE", IgnoreLook},
};

} // namespace

void ReadAxis(ChartTokenReader& reader, std::optional<ChartDimension>& axis) {
    axis.emplace();
    axis->variable = reader.Variable();
    ReadOptions(reader, kAxisOptions, *axis);
}

void ReadAesthetic(ChartTokenReader& reader, std::optional<ChartDimension>& aesthetic) {
    aesthetic.emplace();
    aesthetic->variable = reader.Variable();
    while (!reader.AtSubcommandEnd()) {
        if (reader.Take(TokenSequenceBase::kLeftParen)) {
            reader.Require(ReadGroupingInParentheses(reader, *aesthetic));
        } else {
            ReadOption(reader, kAestheticOptions, *aesthetic);
        }
    }
}

void ReadSummaryVariable(ChartTokenReader& reader, ChartModel& chart) {
    chart.summaryVariable.emplace();
    chart.summaryVariable->variable = reader.Variable();
    ReadOptions(reader, kSummaryVariableOptions, *chart.summaryVariable);
}

void ReadPanels(ChartTokenReader& reader, ChartModel& chart) {
    chart.panels = reader.VariableOrList();
    if (chart.panels.size() == 1) {
        while (!reader.AtSubcommandEnd()) {
            chart.panels.push_back(reader.Variable());
        }
    }
    KeepFirstOfEach(chart.panels, [](const ChartVariable& panel) { return panel.name; });
}

void ReadPointLabel(ChartTokenReader& reader, ChartModel& chart) {
    const std::vector<ChartVariable> variables = reader.VariableOrList();
    const bool* shown = reader.TakeKeyword(kPointLabelWords);
    while (!shown && variables.size() == 1 && !reader.AtSubcommandEnd()) {
        reader.Variable();
        shown = reader.TakeKeyword(kPointLabelWords);
    }
    chart.pointLabel.reset();
    if (!shown || *shown) {
        chart.pointLabel = variables.front();
    }
}

void ReadCaseLabel(ChartTokenReader& reader, ChartModel& chart) {
    chart.caseLabel = reader.Variable();
}

void ReadCategoryOrder(ChartTokenReader& reader, ChartModel& chart) {
    CategoryOrder order;
    order.variable = reader.Variable();
    reader.Expect(TokenSequenceBase::kLeftParen);
    do {
        const auto apply = reader.Choice(kOrderWords);
        if (apply) {
            apply(order);
        }
    } while (!reader.HasFailed() && !reader.Take(TokenSequenceBase::kRightParen));
    chart.categoryOrders.push_back(std::move(order));
}

void ReadScaleRange(ChartTokenReader& reader, ChartModel& chart) {
    ScaleRange scale;
    scale.variable = reader.Variable();
    reader.Require(!reader.AtSubcommandEnd());
    ReadOptions(reader, kRangeEnds, scale.range);
    chart.scaleRanges.push_back(std::move(scale));
}

void ReadReferenceLine(ChartTokenReader& reader, ChartModel& chart) {
    ReferenceLine line;
    line.variable = reader.Variable();
    line.value = reader.Number();
    ReadOptions(reader, kReferenceLineOptions, line);
    chart.referenceLines.push_back(std::move(line));
}

void ReadNormalize(ChartTokenReader&, ChartModel& chart) {
    chart.normalize = true;
}

} // namespace recastor
