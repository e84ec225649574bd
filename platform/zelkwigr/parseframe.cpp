#include "platform/zelkwigr/parseframe.h"

#include "platform/zelkwigr/chartoptions.h"

#include <algorithm>
#include <string_view>

namespace recastor {

namespace {

constexpr Keyword<Coordinate> kCoordinates[] = {
    {"VERTICAL", Coordinate::kVertical},
    {"HORIZONTAL", Coordinate::kHorizontal},
    {"THREE", Coordinate::kThree},
};

/// Whether the chart only looks three-dimensional.
constexpr Keyword<bool> kEffects[] = {{"NONE", false}, {"THREE", true}};

/// Compares with an upper-cased text, without regard to ASCII case.
bool EqualsUpper(std::string_view text, std::string_view upper) {
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(), [](char a, char b) {
        return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b;
    });
}

/// Whether a look can be given to the new chart: files of the old format cannot be read there.
bool IsUsableLook(std::string_view look) {
    constexpr std::string_view kOldExtension = ".CLO";
    if (look.empty() || EqualsUpper(look, "NONE")) {
        return false;
    }
    return look.size() < kOldExtension.size() ||
           !EqualsUpper(look.substr(look.size() - kOldExtension.size()), kOldExtension);
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
