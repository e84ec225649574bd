#include "platform/zelkwigr/chartlabels.h"

#include "platform/zelkwigr/gplchart.h"
#include "platform/zelkwigr/gplsummary.h"

#include <variant>

namespace recastor {

namespace {

/// The function of the first element that summarises Y; null when there is none.
struct FirstSummary {
    const std::optional<SummaryFunction>* function = nullptr;
    bool isNormalized = false;
};

FirstSummary FindFirstSummary(const ChartFacts& facts) {
    for (const ChartElement* element : facts.drawn) {
        const bool isNormalized = facts.IsNormalized(KindOf(*element));
        if (const auto* const bar = std::get_if<Bar>(element)) {
            return {&bar->function, isNormalized};
        }
        if (const auto* const line = std::get_if<Line>(element)) {
            return {&line->function, isNormalized};
        }
        if (const auto* const area = std::get_if<Area>(element)) {
            return {&area->function, isNormalized};
        }
    }
    return {};
}

} // namespace

std::string_view VariableLabel(const ChartVariable& variable) {
    switch (variable.builtIn) {
    case BuiltIn::kCount:
        return "Count";
    case BuiltIn::kPercent:
        return "Percent";
    default:
        return DataName(variable);
    }
}

std::string MeasureLabel(const ChartFacts& facts) {
    const FirstSummary first = FindFirstSummary(facts);
    if (first.isNormalized) {
        return "Percent";
    }
    std::string label;
    if (first.function != nullptr && !IsCounted(facts.y->variable)) {
        label = SummaryAxisText(FunctionOf(*first.function)) + ' ';
    }
    return label += VariableLabel(facts.y->variable);
}

} // namespace recastor
