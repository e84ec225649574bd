/// Generators of syntax files without commands to convert.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <rapidcheck.h>

namespace recastor {

/// Any text, sound or not, of the pieces that mean something to the lexical layer: quotes, comment
/// marks, periods, line ends of every kind, words that open commands, bytes that are no text. No
/// word begins like TABLES or IGRAPH.
rc::Gen<std::string> AnySyntax();

/// A sound command that is only copied.
struct CopiedCommand {
    enum class Kind { kOrdinary, kComment, kData };

    Kind kind = Kind::kOrdinary;
    /// Without line ends and final period. Lines behind the first begin with a blank, but for those
    /// of inline data, which may also hold white space only.
    std::vector<std::string> lines;
};

/// How rapidcheck shows it.
std::ostream& operator<<(std::ostream& out, const CopiedCommand& command);

/// Ordinary commands, comments, documents and inline data.
rc::Gen<CopiedCommand> CopiedCommands();

} // namespace recastor
