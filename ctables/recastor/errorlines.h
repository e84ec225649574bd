/// How an error becomes two lines of the output file.
#pragma once

#include "ctables/recastor/parseerror.h"

#include <ostream>
#include <string>

namespace recastor {

/// The two lines for an error of the lexical layer, its place as stored; both empty for kNoError.
void GetParseErrorStrings(const ParseError& error, std::string& first, std::string& second);

/// Writes "***** " and `text` as one line that ends in a period.
void PrintErrorLine(const std::string& text, std::ostream& out);

/// Writes the two lines for the error that the global classifier has recorded; nothing when there
/// is none. `lineOffset` is the number of input lines before the command.
void PrintParseOrTranslateError(std::ostream& out, long lineOffset);

} // namespace recastor
