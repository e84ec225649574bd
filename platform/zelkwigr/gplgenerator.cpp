#include "platform/zelkwigr/gplgenerator.h"

#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

namespace recastor {

namespace {

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

std::string WriteGpl(const ChartModel& chart) {
    const GplChart named(chart);
    const std::string page = PageBegin(chart);
    std::string text = "\n";
    if (!page.empty()) {
        AppendGplLine(text, "PAGE", page);
    }
    AppendDataLines(named, text);
    AppendCoordinateLine(named, text);
    AppendGuideLines(named, text);
    AppendScaleLines(named, text);
    AppendElementLines(named, text);
    if (!page.empty()) {
        AppendGplLine(text, "PAGE", "end()");
    }
    return text;
}

gplGenerator::gplGenerator(iGraphSpec& spec, const ZELK_DataSource* /*data*/,
                           FacSTDictionary* /*dictionary*/) :
    m_spec(spec) {}

std::string gplGenerator::getGPL() const {
    return m_spec.errorMessage().empty() ? WriteGpl(m_spec.Chart()) : std::string();
}

} // namespace recastor
