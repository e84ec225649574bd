/// The subcommands of IGRAPH that draw: each adds one layer to the chart.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

namespace recastor {

class ChartTokenReader;

// Each reads a subcommand from behind its name (and equals sign) and adds its element to the
// chart. What cannot be read fails the reader.

void ReadScatter(ChartTokenReader& reader, ChartModel& chart);
void ReadBar(ChartTokenReader& reader, ChartModel& chart);
void ReadArea(ChartTokenReader& reader, ChartModel& chart);
void ReadLine(ChartTokenReader& reader, ChartModel& chart);
void ReadPie(ChartTokenReader& reader, ChartModel& chart);
void ReadBox(ChartTokenReader& reader, ChartModel& chart);
void ReadErrorBar(ChartTokenReader& reader, ChartModel& chart);
void ReadHistogram(ChartTokenReader& reader, ChartModel& chart);
void ReadFitLine(ChartTokenReader& reader, ChartModel& chart);

} // namespace recastor
