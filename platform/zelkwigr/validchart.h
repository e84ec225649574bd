/// Which charts the language allows.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

namespace recastor {

/// Whether the parts of a chart fit together. The chart is one that CompleteChart() has seen: what
/// no default could fill in is missing.
bool IsValidChart(const ChartModel& chart);

} // namespace recastor
