#include "platform/zelkwigr/gplgenerator.h"

#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

namespace recastor {

namespace {

/// Few blocks have more bytes.
constexpr std::size_t kUsualSize = 1'024;

/// The page's size in inches, where both sides are given; empty otherwise.
std::string PageBegin(const ChartModel& chart) {
    if (!chart.x1Length || !chart.yLength) {
        return {};
    }
    const std::string width = GplNumber(*chart.x1Length) + "in";
    const std::string height = GplNumber(*chart.yLength) + "in";
    return GplCall("begin", {"scale(" + width + ',' + height + ')'});
}

} // namespace

std::string WriteGpl(const ChartModel& chart, const GplVariables& variables) {
    const GplChart named(chart, variables);
    const std::string page = PageBegin(chart);
    std::string text;
    text.reserve(kUsualSize);
    text += '\n';
    if (!page.empty()) {
        AppendGplLine(text, "PAGE", {page});
    }
    AppendDataLines(named, text);
    AppendCoordinateLine(named, text);
    AppendGuideLines(named, text);
    AppendScaleLines(named, text);
    AppendElementLines(named, text);
    if (!page.empty()) {
        AppendGplLine(text, "PAGE", {"end()"});
    }
    return text;
}

gplGenerator::gplGenerator(iGraphSpec& spec, const ZELK_DataSource* /*data*/,
                           FacSTDictionary* /*dictionary*/) :
    m_spec(spec) {}

std::string gplGenerator::getGPL() const {
    return m_spec.errorMessage().empty() ? WriteGpl(m_spec.Chart(), m_spec.Variables())
                                         : std::string();
}

} // namespace recastor
