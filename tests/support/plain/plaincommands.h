/// The reference for the boundaries of commands and the command stream.
#pragma once

#include "ctables/recastor/parseerror.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace recastor {

/// Offset of the period that ends a command within its line; -1 when it goes on. `freeText`: it is
/// a comment or DOCUMENT command. Throws ParseError.
int PlainEndOfCommand(const std::string& line, bool freeText);

struct PlainCommand {
    std::string text; ///< whole lines; the period that ends it has become a line feed
    std::int64_t firstLine = 0;
    int kind = 0;
};

/// A file's commands, up to the error that ends the search for them.
struct PlainCommands {
    std::vector<PlainCommand> commands;
    std::optional<ParseError> error;
};

PlainCommands CutIntoCommands(const std::string& file, bool batch);

} // namespace recastor
