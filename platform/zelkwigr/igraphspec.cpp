#include "platform/zelkwigr/igraphspec.h"

#include "platform/zelkwigr/gplobstacles.h"

#include <utility>

namespace recastor {

iGraphSpec::iGraphSpec(std::unique_ptr<const ChartModel> chart) : m_chart(std::move(chart)) {
    m_errorMessage = WhyChartHasNoGpl(m_facts);
    if (m_errorMessage.empty()) {
        m_variables = GplVariables(m_facts);
    }
}

} // namespace recastor
