/// What a chart means where its command is silent.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

namespace recastor {

/// Fills in the defaults that depend on the rest of the chart: an element when there is none but
/// an axis, the type of every dimension, `$count` for a missing Y that an element counts on, and
/// the summary function of every measure that is a variable. A chart that is complete stays as
/// it is.
void CompleteChart(ChartModel& chart);

} // namespace recastor
