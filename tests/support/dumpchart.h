/// The one-line form of a chart, so that a test of the chart services is one row: input, dump.
#pragma once

#include <string>

namespace recastor {

struct ChartModel;

/// A chart as items, separated by "; ", in the order of the model's members. What is as it is in an
/// empty chart is left out:
///
///     x1 height scale(1..9) "line" "line"    range and title; `cat`; either end may be missing
///     color $count{count} nolegend cluster   a built-in says which one it is
///     summaryvar sales "title"; panel a b; pointlabel name; caselabel id
///     catorder region label desc; scalerange y(0..); refline y 25.5 label; normalize
///     viewname "..."; title "..." "..."; x1length 5; three; looks "a" "b"
///     bar mean labels(val,n) baseline 5      and every other element likewise
std::string DumpChart(const ChartModel& chart);

/// The chart of an IGRAPH command (without its period) as it is written; "error" when it cannot be
/// parsed.
std::string DumpParsedChart(const std::string& command);

/// The chart of an IGRAPH command with the defaults filled in; "error" when it cannot be parsed,
/// "invalid" when it is not valid.
std::string DumpCompleteChart(const std::string& command);

} // namespace recastor
