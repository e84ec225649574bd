/// Pictures as JSON texts, for reports.
///
/// A picture of tables is an object:
///
///     {"emptyCells": "blank" or "zero", "missingText": text or null, "tables": [table]}
///
/// A table has `rows`, `columns`, `layers` (lists of headers; null for one that is too large to be
/// drawn), `statisticsSide` and `movedLabels` ("rows", "columns", "layers" or null),
/// `statisticsNamed`, `missingIncluded` (true or false), `sorts` ({"variable", "ascending",
/// "key"}), and `title`, `caption`, `corner` (lists of lines). A header is a variable:
///
///     {"name": "sex", "kind": "category", "scale" or "group", "label": text or null,
///      "total": {"after": true or false, "label": text} or null,
///      "statistics": [{"function", "label", "format"}], "totalStatistics": [...],
///      "inside": [header]}
///
/// `inside` are the headers that it nests. Terms that stand side by side and begin with the same
/// variable share its header.
///
/// A chart's sketch is an object:
///
///     {"form": "plain", "clustered", "three" or "pie", "horizontal": true or false,
///      "x", "z", "y", "color", "style", "size", "cluster", "slice": dimension or null,
///      "panels": [text], "elements": [element], "stacked", "normalized": true or false,
///      "references": [{"axis": "x" or "y", "value": number}],
///      "title", "subtitle", "caption": [line]}
///
/// A dimension is {"label", "category": true or false, "legend": true or false}; `cluster` and
/// `slice` say which of the others ("x", "color", "style") bars and boxes stand beside each other
/// by, and a pie is sliced by. An element is {"type": "point",
/// "bar", "area", "line", "dots", "pie", "box", "errorBar", "histogram" or "fitLine"} and, where
/// they say more than that, {"curve": "linear", "step", "stepBefore", "stepAfter" or "smooth"},
/// {"points": true}, {"cumulative": true}, {"density": true}, {"method": "linear", "mean" or
/// "loess", "groups": true or false}.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace recastor {

struct ChartModel;
struct CommandSkeleton;

/// Makes UTF-8 of a text in the encoding of a command's file.
using TextDecoder = std::function<std::string(std::string_view)>;

/// The JSON is valid UTF-8 also where `decode` gives what is not.
std::string PictureOfTables(const CommandSkeleton& skeleton, const TextDecoder& decode);

/// `chart` is valid and complete.
std::string SketchOfChart(const ChartModel& chart, const TextDecoder& decode);

} // namespace recastor
