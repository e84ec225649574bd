/// The subcommands of IGRAPH that say what is drawn: data, aesthetics and what orders them.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

namespace recastor {

class ChartTokenReader;

// Each reads a subcommand from behind its name (and equals sign) into the chart. What cannot be
// read fails the reader; a subcommand given twice overwrites what it said before, but for those
// that add to a list.

/// X1, X2 and Y.
void ReadAxis(ChartTokenReader& reader, std::optional<ChartDimension>& axis);
/// COLOR, SIZE and STYLE.
void ReadAesthetic(ChartTokenReader& reader, std::optional<ChartDimension>& aesthetic);
void ReadSummaryVariable(ChartTokenReader& reader, ChartModel& chart);
void ReadPanels(ChartTokenReader& reader, ChartModel& chart);
void ReadPointLabel(ChartTokenReader& reader, ChartModel& chart);
void ReadCaseLabel(ChartTokenReader& reader, ChartModel& chart);
/// Adds to the list, which may then hold several for one variable.
void ReadCategoryOrder(ChartTokenReader& reader, ChartModel& chart);
/// Adds to the list, which may then hold several for one variable.
void ReadScaleRange(ChartTokenReader& reader, ChartModel& chart);
/// Adds to the list.
void ReadReferenceLine(ChartTokenReader& reader, ChartModel& chart);
void ReadNormalize(ChartTokenReader& reader, ChartModel& chart);

} // namespace recastor
