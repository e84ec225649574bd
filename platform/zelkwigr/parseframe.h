/// The subcommands of IGRAPH around the chart: texts, lengths, coordinates and looks.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

namespace recastor {

class ChartTokenReader;

// Each reads a subcommand from behind its name (and equals sign) into the chart. What cannot be
// read fails the reader; a subcommand given twice overwrites what it said before.

void ReadViewName(ChartTokenReader& reader, ChartModel& chart);
/// X1LENGTH, X2LENGTH and YLENGTH: inches, above 0.
double ReadLength(ChartTokenReader& reader);
void ReadCoordinate(ChartTokenReader& reader, ChartModel& chart);
/// EFFECT, a look of the old format.
void IgnoreEffect(ChartTokenReader& reader, ChartModel& chart);
void ReadChartLooks(ChartTokenReader& reader, ChartModel& chart);
/// Steps over all up to the next slash.
void IgnoreSubcommand(ChartTokenReader& reader, ChartModel& chart);

} // namespace recastor
