#include "platform/zelkwigr/parsechart.h"

#include "platform/zelkwigr/charttokenreader.h"
#include "platform/zelkwigr/keeponeofeach.h"
#include "platform/zelkwigr/parsedata.h"
#include "platform/zelkwigr/parseelements.h"
#include "platform/zelkwigr/parseframe.h"

namespace recastor {

namespace {

using ReadSubcommand = void (*)(ChartTokenReader&, ChartModel&);

template <std::optional<ChartDimension> ChartModel::*kAxis>
void Axis(ChartTokenReader& reader, ChartModel& chart) {
    ReadAxis(reader, chart.*kAxis);
}

template <std::optional<ChartDimension> ChartModel::*kAesthetic>
void Aesthetic(ChartTokenReader& reader, ChartModel& chart) {
    ReadAesthetic(reader, chart.*kAesthetic);
}

template <std::vector<std::string> ChartModel::*kText>
void Text(ChartTokenReader& reader, ChartModel& chart) {
    chart.*kText = reader.Text();
}

template <std::optional<double> ChartModel::*kLength>
void Length(ChartTokenReader& reader, ChartModel& chart) {
    chart.*kLength = ReadLength(reader);
}

void IgnoreLength(ChartTokenReader& reader, ChartModel&) {
    ReadLength(reader);
}

constexpr Keyword<ReadSubcommand> kSubcommands[] = {
    // data and aesthetics
    {"X1", Axis<&ChartModel::x1>},
    {"X2", Axis<&ChartModel::x2>},
    {"Y", Axis<&ChartModel::y>},
    {"COLOR", Aesthetic<&ChartModel::color>},
    {"SIZE", Aesthetic<&ChartModel::size>},
    {"STYLE", Aesthetic<&ChartModel::style>},
    {"SUMMARYVAR", ReadSummaryVariable},
    {"PANEL", ReadPanels},
    {"POINTLABEL", ReadPointLabel},
    {"CASELABEL", ReadCaseLabel},
    {"CATORDER", ReadCategoryOrder},
    {"SCALERANGE", ReadScaleRange},
    {"REFLINE", ReadReferenceLine},
    {"NORMALIZE", ReadNormalize},
    // frame and text
    {"VIEWNAME", ReadViewName},
    {"TITLE", Text<&ChartModel::title>},
    {"SUBTITLE", Text<&ChartModel::subtitle>},
    {"CAPTION", Text<&ChartModel::caption>},
    {"X1LENGTH", Length<&ChartModel::x1Length>},
    {"X2LENGTH", IgnoreLength},
    {"YLENGTH", Length<&ChartModel::yLength>},
    {"COORDINATE", ReadCoordinate},
    {"EFFECT", IgnoreEffect},
    {"CHARTLOOK", ReadChartLooks},
    {"KEY", IgnoreSubcommand},
    {"SPIKE", IgnoreSubcommand},
    {"FORMAT", IgnoreSubcommand},
    {"CHARTSIZE", IgnoreSubcommand},
    // elements
    {"SCATTER", ReadScatter},
    {"SCATTERPLOT", ReadScatter},
    {"BAR", ReadBar},
    {"AREA", ReadArea},
    {"LINE", ReadLine},
    {"PIE", ReadPie},
    {"BOX", ReadBox},
    {"BOXPLOT", ReadBox},
    {"ERRORBAR", ReadErrorBar},
    {"HISTOGRAM", ReadHistogram},
    {"FITLINE", ReadFitLine},
};

void ParseSubcommand(ChartTokenReader& reader, ChartModel& chart) {
    const ReadSubcommand read = reader.Choice(kSubcommands);
    if (read) {
        reader.SkipEquals();
        read(reader, chart);
        reader.Require(reader.AtSubcommandEnd());
    }
}

} // namespace

bool ParseChart(TokenSequenceBase& tokens, ChartModel& chart) {
    ChartTokenReader reader(tokens);
    reader.Skip(); // the command's name, by which the caller knew it
    while (!reader.AtEnd()) {
        if (!reader.Take(TokenSequenceBase::kSlash)) {
            ParseSubcommand(reader, chart);
        }
    }
    KeepLastOfEach(chart.categoryOrders,
                   [](const CategoryOrder& order) { return order.variable.name; });
    KeepLastOfEach(chart.scaleRanges, [](const ScaleRange& scale) { return scale.variable.name; });
    return !reader.HasFailed();
}

} // namespace recastor
