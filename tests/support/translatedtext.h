/// Texts of the translator, without files and driver around it.
#pragma once

#include <string>

namespace recastor {

class OutputSequence;

/// What the translator makes of a TABLES command: its text, or the error as RecordedError() has it.
std::string TranslatedText(const std::string& command);

/// The subcommands of the translated command that begin with `start`, separated by " | "; the error
/// when it has one. What takes several lines keeps its line breaks and indentation.
std::string TranslatedSubcommands(const std::string& command, const std::string& start);

/// The `/TABLE` subcommand less that word and its blank, of a command with one table.
std::string TranslatedTable(const std::string& command);

/// The `/CATEGORIES` subcommands, each less "/CATEGORIES VAR=", of a command with one table, but
/// not the one for all variables that begins them; separated by " | ".
std::string TranslatedCategories(const std::string& command);

/// The error of the last command: `error type code@line:column "name"`.
std::string RecordedError();

/// The pieces of a sequence less their leading blanks, each on its line; a lone comma stands behind
/// the piece before it.
std::string Pieces(const OutputSequence& sequence);

} // namespace recastor
