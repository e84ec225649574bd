// COORD.

#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

#include <cmath>
#include <string_view>

namespace recastor {

namespace {

/// Degrees from 0 to below 360.
double WithinOneTurn(double degrees) {
    constexpr double kTurn = 360;
    double rest = std::fmod(degrees, kTurn);
    if (rest < 0) {
        rest += kTurn;
    }
    return rest < kTurn ? rest : 0; // a hair below nothing rounds to a whole turn
}

std::string PieCoordinates(const ChartFacts& facts) {
    const Pie& pie = std::get<Pie>(*facts.drawn.front());
    const std::string angle = GplCall("startAngle", {GplNumber(WithinOneTurn(pie.start))});
    const std::vector<int> panels = facts.PanelDimensions();
    if (panels.empty()) {
        return GplCall("polar.theta", {angle});
    }
    return GplCall("rect", {GplDimensions(panels), GplCall("polar.theta", {"dim(1)", angle})});
}

/// The axes on the page, changed by what applies; empty when nothing does.
std::string PlaneCoordinates(const ChartFacts& facts) {
    const bool clustered = facts.form == ChartForm::kClustered;
    const bool transposed = facts.chart.coordinate == Coordinate::kHorizontal;
    const bool wrapped = WrapsPanels(facts);
    if (!clustered && !transposed && !wrapped) {
        return {};
    }
    return GplCall("rect", {"dim(1,2)", clustered ? "cluster(3,0)" : "",
                            transposed ? "transpose()" : "", wrapped ? "wrap()" : ""});
}

std::string Coordinates(const ChartFacts& facts) {
    switch (facts.form) {
    case ChartForm::kPie:
        return PieCoordinates(facts);
    case ChartForm::kThree:
        return "rect(dim(1,2,3))";
    default:
        return PlaneCoordinates(facts);
    }
}

} // namespace

bool WrapsPanels(const ChartFacts& facts) {
    const bool plane = facts.form == ChartForm::kPlain || facts.form == ChartForm::kClustered;
    return plane && facts.chart.panels.size() == 1;
}

void AppendCoordinateLine(const GplChart& chart, std::string& text) {
    const std::string coordinates = Coordinates(chart.Facts());
    if (!coordinates.empty()) {
        AppendGplLine(text, "COORD", {coordinates});
    }
}

} // namespace recastor
