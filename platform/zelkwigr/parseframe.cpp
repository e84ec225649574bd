#include "platform/zelkwigr/parseframe.h"

#include "platform/zelkwigr/asciicase.h"
#include "platform/zelkwigr/chartoptions.h"

namespace recastor {

namespace {

constexpr Keyword<Coordinate> kCoordinates[] = {
    {"VERTICAL", Coordinate::kVertical},
    {"HORIZONTAL", Coordinate::kHorizontal},
    {"THREE", Coordinate::kThree},
};

/// Whether the chart only looks three-dimensional.
constexpr Keyword<bool> kEffects[] = {{"NONE", false}, {"THREE", true}};

/// Whether a look can be given to the new chart: files of the old format cannot be read there.
bool IsUsableLook(const std::string& look) {
    const std::string name = AsciiLower(look);
    return !name.empty() && name != "none" && !name.ends_with(".clo");
}

} // namespace

void ReadViewName(ChartTokenReader& reader, ChartModel& chart) {
    chart.viewName.clear();
    const char* separator = "";
    for (const std::string& line : reader.Text()) {
        chart.viewName.append(separator).append(line);
        separator = " ";
    }
}

double ReadLength(ChartTokenReader& reader) {
    const double inches = reader.Number();
    reader.Require(inches > 0);
    return inches;
}

void ReadCoordinate(ChartTokenReader& reader, ChartModel& chart) {
    chart.coordinate = reader.Choice(kCoordinates);
}

void IgnoreEffect(ChartTokenReader& reader, ChartModel&) {
    reader.Choice(kEffects);
}

void ReadChartLooks(ChartTokenReader& reader, ChartModel& chart) {
    const bool bracketed = reader.Take(TokenSequenceBase::kLeftSqBracket);
    chart.chartLooks = reader.Text();
    if (bracketed) {
        reader.Expect(TokenSequenceBase::kRightSqBracket);
    }
    std::erase_if(chart.chartLooks, [](const std::string& look) { return !IsUsableLook(look); });
}

void IgnoreSubcommand(ChartTokenReader& reader, ChartModel&) {
    while (!reader.AtSubcommandEnd()) {
        reader.Skip();
    }
}

} // namespace recastor
