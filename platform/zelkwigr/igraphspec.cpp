#include "platform/zelkwigr/igraphspec.h"

#include "platform/zelkwigr/chartfacts.h"
#include "platform/zelkwigr/gplnames.h"
#include "platform/zelkwigr/gplobstacles.h"

#include <utility>

namespace recastor {

iGraphSpec::iGraphSpec(ChartModel chart) :
    m_chart(std::move(chart)), m_errorMessage(WhyChartHasNoGpl(m_chart)) {
    if (m_errorMessage.empty()) {
        m_usedVarName = GplVariables(ChartFacts(m_chart)).DataNames();
    }
}

} // namespace recastor
