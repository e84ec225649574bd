/// The conversion of one file, command by command.
#pragma once

#include "ctables/recastor/conversionlistener.h"

#include <cstdint>
#include <iosfwd>

namespace recastor {

class CommandStream;
class ZELKTokenSequence;

/// Converts every TABLES and IGRAPH command of `commands` and copies all others to `output`.
/// False when a text that cannot be split into tokens ended the run: its two error lines are then
/// the last of the output, and the rest of the input is neither converted nor copied. `listener` is
/// told of every command.
bool ConvertCommands(CommandStream& commands, bool batch, std::ostream& output,
                     ConversionListener& listener = SilentListener());

/// Converts one TABLES command, whose tokens it takes over, and writes the CTABLES command, or the
/// reason why there is none, between two comment lines. `lineOffset` is the number of input lines
/// before the command. One line on standard output tells how it went. Nothing of the command stays
/// behind.
void ParseTables(ZELKTokenSequence* tokens, std::ostream& output, std::int64_t lineOffset,
                 ConversionListener& listener = SilentListener());

} // namespace recastor
