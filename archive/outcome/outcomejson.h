/// A file's outcome as one line of JSON: what manifests are made of and reports print.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <optional>
#include <string>
#include <string_view>

namespace recastor {

/// What a file was converted by: when either differs, it is to be converted again.
struct ConvertedBy {
    std::string version;  ///< of the converter
    std::string settings; ///< the options that the target depends on
};

/// A line of a manifest.
struct OutcomeRecord {
    FileOutcome outcome; ///< without texts of commands and pictures
    ConvertedBy by;
};

/// One JSON object without line breaks, its members as docs/report.schema.json describes them.
/// It begins with the path as a URI.
std::string OutcomeLine(const OutcomeRecord& record);

/// The record that OutcomeLine() made `line` of; nothing when it was cut off or is another text.
std::optional<OutcomeRecord> ReadOutcomeLine(std::string_view line);

/// The path of a line, found without reading the rest; nothing when it is no line of a manifest.
std::optional<std::string> PathOfLine(std::string_view line);

} // namespace recastor
