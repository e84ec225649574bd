#include "platform/zelkwigr/gplgenerator.h"

#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

namespace recastor {

namespace {

/// Few blocks have more bytes.
constexpr std::size_t kUsualSize = 1'024;

/// Whether the page's size is written: both sides are given.
bool HasPage(const ChartModel& chart) {
    return chart.x1Length && chart.yLength;
}

/// The page's size in inches.
void AppendPageBegin(const ChartModel& chart, std::string& text) {
    AppendGplLine(
        text, "PAGE",
        {"begin(scale(", GplNumber(*chart.x1Length), "in,", GplNumber(*chart.yLength), "in))"});
}

} // namespace

std::string WriteGpl(const ChartFacts& facts, const GplVariables& variables) {
    const ChartModel& chart = facts.chart;
    const GplChart named(facts, variables);
    std::string text;
    text.reserve(kUsualSize);
    text += '\n';
    if (HasPage(chart)) {
        AppendPageBegin(chart, text);
    }
    AppendDataLines(named, text);
    AppendCoordinateLine(named, text);
    AppendGuideLines(named, text);
    AppendScaleLines(named, text);
    AppendElementLines(named, text);
    if (HasPage(chart)) {
        AppendGplLine(text, "PAGE", {"end()"});
    }
    return text;
}

gplGenerator::gplGenerator(iGraphSpec& spec, const ZELK_DataSource* /*data*/,
                           FacSTDictionary* /*dictionary*/) :
    m_spec(spec) {}

std::string gplGenerator::getGPL() const {
    return m_spec.errorMessage().empty() ? WriteGpl(m_spec.Facts(), m_spec.Variables())
                                         : std::string();
}

} // namespace recastor
