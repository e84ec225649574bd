#include "platform/zelkwigr/gplobstacles.h"

#include "platform/zelkwigr/chartfacts.h"
#include "platform/zelkwigr/gplnames.h"

#include <algorithm>
#include <string_view>

namespace recastor {

namespace {

/// An element as the language calls it and as a reason speaks of it.
struct ElementWords {
    ElementKind kind;
    const char* keyword;
    const char* plural;
};

constexpr ElementWords kElements[] = {
    {ElementKind::kScatter, "SCATTER", "points"},
    {ElementKind::kBar, "BAR", "bars"},
    {ElementKind::kArea, "AREA", "areas"},
    {ElementKind::kLine, "LINE", "lines"},
    {ElementKind::kPie, "PIE", "pies"},
    {ElementKind::kBox, "BOX", "boxes"},
    {ElementKind::kErrorBar, "ERRORBAR", "error bars"},
    {ElementKind::kHistogram, "HISTOGRAM", "histograms"},
    {ElementKind::kFitLine, "FITLINE", "fit lines"},
};

/// The answer of a search for an obstacle: null when there is none, else the words of the element
/// that stands in the way (of any element when no special one does).
using Finding = const ElementWords*;

Finding FoundIf(bool condition) {
    return condition ? std::begin(kElements) : nullptr;
}

/// The first element that is of none of the kinds.
template <typename Elements>
Finding FirstBeside(const ElementKinds& kinds, const Elements& elements) {
    for (const auto& element : elements) {
        if (!kinds.Has(KindOf(element))) {
            return std::find_if(std::begin(kElements), std::end(kElements),
                                [&](const auto& row) { return row.kind == KindOf(element); });
        }
    }
    return nullptr;
}

bool IsThree(const ChartFacts& facts) {
    return facts.chart.coordinate == Coordinate::kThree;
}

template <typename Predicate>
Finding AnyFitLine(const ChartModel& chart, Predicate predicate) {
    return FoundIf(
        std::any_of(chart.elements.begin(), chart.elements.end(), [&](const auto& element) {
            const auto* const fitLine = std::get_if<FitLine>(&element);
            return fitLine != nullptr && predicate(*fitLine);
        }));
}

Finding PieBesideElement(const ChartFacts& facts) {
    return FoundIf(HasElement<Pie>(facts.chart) && facts.chart.elements.size() > 1);
}

Finding PieAlongAxis(const ChartFacts& facts) {
    const ChartModel& chart = facts.chart;
    return FoundIf(HasElement<Pie>(chart) && chart.x1 && (chart.color || chart.style));
}

Finding FlatElementInThree(const ChartFacts& facts) {
    const ElementKinds solid{ElementKind::kScatter, ElementKind::kBar};
    return IsThree(facts) ? FirstBeside(solid, facts.chart.elements) : nullptr;
}

Finding PanelInThree(const ChartFacts& facts) {
    return FoundIf(IsThree(facts) && !facts.chart.panels.empty());
}

Finding ClusterInThree(const ChartFacts& facts) {
    return FoundIf(IsThree(facts) && facts.cluster != nullptr &&
                   facts.kinds.Has(ElementKind::kBar));
}

Finding ClusterBesideElement(const ChartFacts& facts) {
    const ElementKinds clustering{ElementKind::kBar, ElementKind::kBox, ElementKind::kErrorBar};
    const bool hasCluster =
        facts.cluster != nullptr && facts.kinds.HasAnyOf({ElementKind::kBar, ElementKind::kBox});
    return hasCluster ? FirstBeside(clustering, facts.drawn) : nullptr;
}

Finding ManyPanels(const ChartFacts& facts) {
    return FoundIf(facts.chart.panels.size() > 2);
}

Finding LineThroughOrigin(const ChartFacts& facts) {
    return AnyFitLine(facts.chart, [](const FitLine& fitLine) {
        return fitLine.method == FitLine::Method::kOrigin;
    });
}

Finding IntervalOfCases(const ChartFacts& facts) {
    return AnyFitLine(facts.chart, [](const FitLine& fitLine) {
        return fitLine.individualInterval && (fitLine.method == FitLine::Method::kRegression ||
                                              fitLine.method == FitLine::Method::kMean);
    });
}

Finding NothingDrawn(const ChartFacts& facts) {
    return FoundIf(facts.drawn.empty());
}

Finding NoVariable(const ChartFacts& facts) {
    return FoundIf(!NamesVariables(facts));
}

/// @ stands for the keyword of the element that was found, # for its plural.
struct ObstacleRow {
    Finding (*find)(const ChartFacts& facts);
    std::string_view what;
    std::string_view reason;
};

/// The first row that finds something tells.
constexpr ObstacleRow kObstacles[] = {
    {PieBesideElement, "with PIE and another element", "a pie has no axes to share"},
    {PieAlongAxis, "with PIE and X1 beside COLOR or STYLE", "pies along an axis have no GPL form"},
    {FlatElementInThree, "with @ and COORDINATE=THREE", "# have no three-dimensional form"},
    {PanelInThree, "with PANEL and COORDINATE=THREE", "panels have no three-dimensional form"},
    {ClusterInThree, "with clusters and COORDINATE=THREE",
     "clusters have no three-dimensional form"},
    {ClusterBesideElement, "with clusters and @",
     "only bars, boxes and error bars can be clustered"},
    {ManyPanels, "with more than two PANEL variables", "panels have two directions"},
    {LineThroughOrigin, "with FITLINE METHOD=ORIGIN",
     "fit lines through the origin have no GPL form"},
    {IntervalOfCases, "with FITLINE INTERVAL=INDIVIDUAL",
     "intervals of individual cases have no GPL form"},
    {NothingDrawn, "with nothing to draw", "the chart would be empty"},
    {NoVariable, "without a variable", "the chart has no data"},
};

/// `text` with the element's words in the place of @ and #.
std::string Filled(std::string_view text, const ElementWords& element) {
    std::string filled;
    for (const char c : text) {
        if (c == '@') {
            filled += element.keyword;
        } else if (c == '#') {
            filled += element.plural;
        } else {
            filled += c;
        }
    }
    return filled;
}

} // namespace

std::string WhyChartHasNoGpl(const ChartFacts& facts) {
    for (const ObstacleRow& row : kObstacles) {
        if (const Finding element = row.find(facts)) {
            return "*IGRAPH command " + Filled(row.what, *element) +
                   " cannot be converted: " + Filled(row.reason, *element) + '.';
        }
    }
    return {};
}

} // namespace recastor
