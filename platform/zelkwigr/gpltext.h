/// The smallest pieces of GPL: numbers, strings, function calls, lines.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// A number in fixed notation: the fewest digits that read back to the same value, without exponent
/// and without a final period; zero is "0". `value` is finite.
std::string GplNumber(double value);

/// A string in double quotes; double quotes and backslashes in it are escaped.
std::string GplString(std::string_view text);

/// The same, appended to `text`.
void AppendGplString(std::string_view plain, std::string& text);

/// Several lines as one string.
void AppendGplString(const std::vector<std::string>& lines, std::string& text);

/// `name(a, b, c)`; an argument that is empty is left out.
std::string GplCall(std::string_view name, std::initializer_list<std::string_view> arguments);

/// `dim(1,3)`.
std::string GplDimensions(const std::vector<int>& dimensions);

/// Appends the beginning of a line, ` KEYWORD: statement`; the statement comes in pieces.
void BeginGplLine(std::string& text, std::string_view keyword,
                  std::initializer_list<std::string_view> statement);

/// The same of a whole line, with its line feed.
void AppendGplLine(std::string& text, std::string_view keyword,
                   std::initializer_list<std::string_view> statement);

/// The same of a function call: `call` is its name and first argument in pieces, `arguments` are
/// the further ones; one that is empty is left out.
void AppendGplCallLine(std::string& text, std::string_view keyword,
                       std::initializer_list<std::string_view> call,
                       std::initializer_list<std::string_view> arguments);

} // namespace recastor
