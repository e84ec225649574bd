/// How an error becomes two lines of the output file.
#pragma once

#include "ctables/recastor/conversionlistener.h"
#include "ctables/recastor/parseerror.h"

#include <optional>
#include <ostream>
#include <string>

namespace recastor {

/// The two lines for an error of the lexical layer, its place as stored; both empty for kNoError.
void GetParseErrorStrings(const ParseError& error, std::string& first, std::string& second);

/// The same in parts; `error` is not kNoError.
ConversionError ErrorOf(const ParseError& error);

/// Writes "***** " and `text` as one line that ends in a period.
void PrintErrorLine(const std::string& text, std::ostream& out);

/// The error that the global classifier has recorded; nothing when there is none. `lineOffset` is
/// the number of input lines before the command.
std::optional<ConversionError> RecordedError(long lineOffset);

/// Writes the two lines for the error that the global classifier has recorded; nothing when there
/// is none. `lineOffset` as above.
void PrintParseOrTranslateError(std::ostream& out, long lineOffset);

} // namespace recastor
