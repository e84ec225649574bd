/// How a command's text reaches the output file.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace recastor {

/// True for a blank, a tab, a line feed and a carriage return.
inline bool IsWhiteSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// True when every character is white space; true for "".
bool IsWSOnly(std::string_view text);

/// Writes `text` as one command or message line: `indent` blanks first (above 20: one), the text
/// without its last line feed, a period unless it ends in one, a newline; then flushes. Commands
/// are held with a line feed in place of their terminating period, so this restores it. A
/// carriage return at the end is looked past: the period goes before it. An empty text writes
/// nothing.
void PrintCommand(const std::string& text, std::ostream& out, unsigned indent);

/// The text of a comment command that shows `text`: an asterisk in front, and every line feed,
/// the last one included, followed by a blank and an asterisk.
std::string CommentCommand(const std::string& text);

} // namespace recastor
