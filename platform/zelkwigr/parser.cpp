#include "platform/zelkwigr/parser.h"

#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkwigr/completechart.h"
#include "platform/zelkwigr/parsechart.h"
#include "platform/zelkwigr/validchart.h"

#include <utility>

namespace recastor {

parser::parser(ProcedureDataSource* /*data*/, FacSTDictionary* /*dictionary*/) {}

bool parser::Parse(TokenSequenceBase& tokens) {
    return ParseChart(tokens, m_chart.emplace());
}

bool parser::CompleteAndValidateSyntax() {
    ZELK_ASSERT(m_chart);
    CompleteChart(*m_chart);
    if (!IsValidChart(*m_chart)) {
        return false;
    }
    m_settings.emplace(std::move(*m_chart));
    return true;
}

} // namespace recastor
