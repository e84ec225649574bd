#include "platform/zelkwigr/igraphspec.h"

#include "platform/zelkwigr/chartfacts.h"
#include "platform/zelkwigr/gplobstacles.h"

#include <utility>

namespace recastor {

iGraphSpec::iGraphSpec(ChartModel chart) : m_chart(std::move(chart)) {
    const ChartFacts facts(m_chart);
    m_errorMessage = WhyChartHasNoGpl(facts);
    if (m_errorMessage.empty()) {
        m_variables = GplVariables(facts);
    }
}

} // namespace recastor
