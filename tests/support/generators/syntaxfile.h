/// Generators of whole files: TABLES commands among ordinary commands, comments and data.
#pragma once

#include "tests/support/generators/words.h"

#include <ostream>
#include <string>
#include <vector>

namespace recastor {

/// One command. Its first line stands at the margin, the others are indented by blanks.
struct SyntaxCommand {
    std::string text;             ///< less the period that ends it
    bool isData = false;          ///< its own last line ends it, without any period
    bool hasPeriodInBatch = true; ///< in batch mode the period may be left out
    std::string blankLines;       ///< in front of it
};

using SyntaxFile = std::vector<SyntaxCommand>;

/// As interactive rules want it: every command ends in a period.
std::string InteractiveText(const SyntaxFile& file);

/// As batch rules allow it: a command ends where the next line at the margin begins.
std::string BatchText(const SyntaxFile& file);

/// Files of up to six commands, among them TABLES commands that cannot be converted.
rc::Gen<SyntaxFile> SyntaxFiles();

/// How rapidcheck shows them.
std::ostream& operator<<(std::ostream& out, const SyntaxCommand& command);

} // namespace recastor
