#include "platform/zelkwigr/parser.h"

#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkwigr/completechart.h"
#include "platform/zelkwigr/parsechart.h"
#include "platform/zelkwigr/validchart.h"

#include <utility>

namespace recastor {

parser::parser(ProcedureDataSource* /*data*/, FacSTDictionary* /*dictionary*/) {}

bool parser::Parse(TokenSequenceBase& tokens) {
    m_chart = std::make_unique<ChartModel>();
    return ParseChart(tokens, *m_chart);
}

bool parser::CompleteAndValidateSyntax() {
    ZELK_ASSERT_AS(m_chart != nullptr, "m_chart");
    CompleteChart(*m_chart);
    if (!IsValidChart(*m_chart)) {
        return false;
    }
    m_settings.emplace(std::move(m_chart));
    return true;
}

} // namespace recastor
