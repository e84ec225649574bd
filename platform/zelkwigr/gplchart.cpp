#include "platform/zelkwigr/gplchart.h"

#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkwigr/gplsummary.h"

namespace recastor {

namespace {

/// Finds the summary function of an element; null when it has none.
struct FunctionFinder {
    const std::optional<SummaryFunction>* operator()(const Bar& bar) const { return &bar.function; }
    const std::optional<SummaryFunction>* operator()(const Area& area) const {
        return &area.function;
    }
    const std::optional<SummaryFunction>* operator()(const Line& line) const {
        return &line.function;
    }
    const std::optional<SummaryFunction>* operator()(const Pie& pie) const { return &pie.function; }
    template <typename Other>
    const std::optional<SummaryFunction>* operator()(const Other& /*element*/) const {
        return nullptr;
    }
};

} // namespace

GplChart::GplChart(const ChartFacts& facts, const GplVariables& variables) :
    m_facts(facts), m_variables(variables) {
    NameMeasure();
    LayOutAlgebra();
    Compute();
}

std::string GplChart::Algebra(std::string_view measure) const {
    std::string algebra = m_beforeMeasure;
    algebra += measure;
    return algebra += m_behindMeasure;
}

const std::string& GplChart::Operand(const SummaryFunction& function) const {
    const std::string expression = SummaryExpression(function, m_measure);
    if (expression.empty()) {
        return m_measure;
    }
    const auto place = m_computedPlaces.find(expression);
    ZELK_ASSERT(place != m_computedPlaces.end());
    return m_computed[place->second].first;
}

void GplChart::NameMeasure() {
    const ChartVariable& measure = *m_facts.measure;
    if (!IsCounted(measure)) {
        const bool isY = &measure == &m_facts.y->variable;
        m_measure = isY ? m_variables.NameOf(*m_facts.y) : m_variables.ScaleName(measure);
    }
}

void GplChart::LayOutAlgebra() {
    const ChartModel& chart = m_facts.chart;
    const auto nameOf = [this](const ChartDimension* dimension) {
        return dimension != nullptr ? m_variables.NameOf(*dimension) : std::string("1");
    };
    const std::string x = m_facts.form == ChartForm::kPie ? "" : nameOf(Find(chart.x1));
    std::string panels;
    for (const ChartVariable& panel : chart.panels) {
        panels += '*' + m_variables.CategoryName(panel);
    }
    switch (m_facts.form) {
    case ChartForm::kPlain:
        m_beforeMeasure = x + '*';
        m_behindMeasure = panels;
        m_countAlgebra = panels.empty() ? x : Algebra("1");
        return;
    case ChartForm::kClustered:
        m_beforeMeasure = nameOf(m_facts.cluster) + '*';
        m_behindMeasure = '*' + x + panels;
        m_countAlgebra = Algebra("1");
        return;
    case ChartForm::kThree:
        m_countAlgebra = x + '*' + nameOf(Find(chart.x2));
        m_beforeMeasure = m_countAlgebra + '*';
        return;
    case ChartForm::kPie:
        m_behindMeasure = panels;
        m_countAlgebra = Algebra("1");
        return;
    }
}

void GplChart::Compute() {
    for (const ChartElement* element : m_facts.drawn) {
        const auto* const function = std::visit(FunctionFinder(), *element);
        if (function == nullptr || m_measure.empty()) {
            continue;
        }
        std::string expression = SummaryExpression(FunctionOf(*function), m_measure);
        if (!expression.empty() && m_computedPlaces.emplace(expression, m_computed.size()).second) {
            const std::string base = 't' + std::to_string(m_computed.size() + 1);
            m_computed.emplace_back(m_variables.Names().Free(base), std::move(expression));
        }
    }
}

SummaryFunction FunctionOf(const std::optional<SummaryFunction>& function) {
    return function.value_or(SummaryFunction());
}

} // namespace recastor
