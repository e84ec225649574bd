#include "platform/zelkwigr/chartfacts.h"

#include "platform/zelkwigr/asciicase.h"

#include <algorithm>
#include <array>

namespace recastor {

namespace {

template <ElementKind kind, typename Element>
constexpr bool kStandsAt =
    std::is_same_v<std::variant_alternative_t<static_cast<std::size_t>(kind), ChartElement>,
                   Element>;

static_assert(kStandsAt<ElementKind::kScatter, Scatter> && kStandsAt<ElementKind::kBar, Bar> &&
              kStandsAt<ElementKind::kArea, Area> && kStandsAt<ElementKind::kLine, Line> &&
              kStandsAt<ElementKind::kPie, Pie> && kStandsAt<ElementKind::kBox, Box> &&
              kStandsAt<ElementKind::kErrorBar, ErrorBar> &&
              kStandsAt<ElementKind::kHistogram, Histogram> &&
              kStandsAt<ElementKind::kFitLine, FitLine>);

/// By ChartForm: measure, X1, X2, cluster, first panel.
constexpr std::array<DimensionNumbers, 4> kDimensions{{
    {2, 1, 0, 0, 3}, // plain
    {2, 3, 0, 1, 4}, // clustered
    {3, 1, 2, 0, 0}, // three dimensions
    {1, 0, 0, 0, 2}, // pie
}};

/// What Y is when the command does not say.
const ChartDimension& Counts() {
    static const ChartDimension counts{.variable = {"$count", BuiltIn::kCount},
                                       .type = Measurement::kScale,
                                       .range = {},
                                       .title = {}};
    return counts;
}

bool IsDrawn(const ChartElement& element) {
    if (const auto* const line = std::get_if<Line>(&element)) {
        return line->style != Line::Style::kNone;
    }
    if (const auto* const fitLine = std::get_if<FitLine>(&element)) {
        return fitLine->method != FitLine::Method::kNone;
    }
    return true;
}

bool IsStack(const ChartDimension* dimension, const ElementKinds& kinds) {
    return IsCategorical(dimension) && dimension->grouping == Grouping::kStack &&
           kinds.HasAnyOf({ElementKind::kBar, ElementKind::kHistogram});
}

const ChartDimension* FindSlice(const ChartModel& chart) {
    for (const auto* dimension : {&chart.color, &chart.style, &chart.x1}) {
        if (*dimension) {
            return Find(*dimension);
        }
    }
    return nullptr;
}

const ChartDimension* FindCluster(const ChartFacts& facts) {
    const ChartModel& chart = facts.chart;
    if (chart.x1 && !IsCategorical(Find(chart.x1))) {
        return nullptr;
    }
    for (const auto* dimension : {Find(chart.color), Find(chart.style)}) {
        if (IsCategorical(dimension) && !IsStack(dimension, facts.kinds)) {
            return dimension;
        }
    }
    return nullptr;
}

bool SplitsLines(const ChartElement* element) {
    const auto* const fitLine = std::get_if<FitLine>(element);
    return fitLine != nullptr && fitLine->eachGroup;
}

const ChartDimension* FindSplit(const ChartFacts& facts) {
    if (std::none_of(facts.drawn.begin(), facts.drawn.end(), SplitsLines)) {
        return nullptr;
    }
    const ChartModel& chart = facts.chart;
    for (const auto* dimension : {Find(chart.color), Find(chart.style), Find(chart.size)}) {
        if (IsCategorical(dimension)) {
            return dimension;
        }
    }
    return nullptr;
}

ChartForm FormOf(const ChartFacts& facts) {
    const ElementKinds clustering{ElementKind::kBar, ElementKind::kBox, ElementKind::kErrorBar};
    if (facts.kinds.Has(ElementKind::kPie)) {
        return ChartForm::kPie;
    }
    if (facts.chart.coordinate == Coordinate::kThree) {
        return ChartForm::kThree;
    }
    return facts.cluster != nullptr && facts.kinds.HasOnly(clustering) ? ChartForm::kClustered
                                                                       : ChartForm::kPlain;
}

/// A pie's measure has a subcommand of its own.
const ChartVariable* MeasureOf(const ChartFacts& facts) {
    const auto& summaryVariable = facts.chart.summaryVariable;
    return facts.form == ChartForm::kPie && summaryVariable ? &summaryVariable->variable
                                                            : &facts.y->variable;
}

} // namespace

ElementKind KindOf(const ChartElement& element) {
    return static_cast<ElementKind>(element.index());
}

ElementKinds::ElementKinds(std::initializer_list<ElementKind> kinds) {
    for (const ElementKind kind : kinds) {
        Add(kind);
    }
}

ChartFacts::ChartFacts(const ChartModel& model) :
    chart(model), y(model.y ? &*model.y : &Counts()), color(Find(model.color)) {
    for (const ChartElement& element : chart.elements) {
        if (IsDrawn(element)) {
            drawn.push_back(&element);
            kinds.Add(KindOf(element));
        }
    }
    grouped = IsCategorical(Find(chart.color)) || IsCategorical(Find(chart.style));
    stacked = IsStack(Find(chart.color), kinds) || IsStack(Find(chart.style), kinds);
    cluster = FindCluster(*this);
    split = FindSplit(*this);
    form = FormOf(*this);
    dimensions = kDimensions.at(static_cast<std::size_t>(form));
    measure = MeasureOf(*this);
    if (form == ChartForm::kPie) {
        slice = FindSlice(chart);
        if (!chart.style && color == nullptr) {
            color = slice;
        }
    }
}

bool ChartFacts::IsNormalized(ElementKind kind) const {
    return chart.normalize &&
           ((kind == ElementKind::kBar && stacked) || (kind == ElementKind::kArea && grouped));
}

std::vector<int> ChartFacts::DimensionsBesideMeasure() const {
    std::vector<int> list;
    for (const int dimension : {dimensions.cluster, dimensions.x1, dimensions.x2}) {
        if (dimension != 0) {
            list.push_back(dimension);
        }
    }
    const std::vector<int> panels = PanelDimensions();
    list.insert(list.end(), panels.begin(), panels.end());
    return list;
}

std::vector<int> ChartFacts::PanelDimensions() const {
    std::vector<int> list;
    for (std::size_t i = 0; i < chart.panels.size() && dimensions.firstPanel != 0; ++i) {
        list.push_back(dimensions.firstPanel + static_cast<int>(i));
    }
    return list;
}

bool IsCategorical(const ChartDimension* dimension) {
    return dimension != nullptr && dimension->type == Measurement::kCategorical;
}

bool IsSameVariable(const ChartVariable& left, const ChartVariable& right) {
    return EqualWithoutCase(DataName(left), DataName(right));
}

const std::string& DataName(const ChartVariable& variable) {
    static const std::string caseNumber = "$CASENUM";
    return variable.builtIn == BuiltIn::kCase ? caseNumber : variable.name;
}

} // namespace recastor
