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
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace recastor {

struct CommandSkeleton;

/// Makes UTF-8 of a text in the encoding of a command's file.
using TextDecoder = std::function<std::string(std::string_view)>;

/// The JSON is valid UTF-8 also where `decode` gives what is not.
std::string PictureOfTables(const CommandSkeleton& skeleton, const TextDecoder& decode);

} // namespace recastor
