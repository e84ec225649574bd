#include "platform/zelkwigr/gpltext.h"

#include "platform/zelkbase/neighbours.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace recastor {

namespace {

/// Appends the text with a backslash before every character that a string cannot hold as it is.
void AppendEscaped(std::string& text, std::string_view plain) {
    const bool mayHoldOne = !plain.empty() && IsAnywhere(plain, [](Neighbours c, Neighbours next) {
        return (next == '"') | (next == '\\') | (c == '"') | (c == '\\');
    });
    if (!mayHoldOne) { // as nearly all
        text += plain;
        return;
    }
    for (const char c : plain) {
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
}

} // namespace

std::string GplNumber(double value) {
    constexpr double kManyUnits = 1e15; // below it every whole number is a double
    if (std::abs(value) < kManyUnits && value == std::trunc(value)) {
        return std::to_string(static_cast<std::int64_t>(value)); // zero has no sign
    }
    // The largest number has 309 digits, the smallest 324 behind its period.
    std::array<char, 400> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::fixed);
    return {digits.data(), written.ptr};
}

std::string GplString(std::string_view text) {
    std::string quoted;
    quoted.reserve(text.size() + std::string_view("\"\"").size());
    AppendGplString(text, quoted);
    return quoted;
}

void AppendGplString(std::string_view plain, std::string& text) {
    text += '"';
    AppendEscaped(text, plain);
    text += '"';
}

void AppendGplString(const std::vector<std::string>& lines, std::string& text) {
    text += '"';
    std::string_view separator;
    for (const std::string& line : lines) {
        text += separator;
        AppendEscaped(text, line);
        separator = "\\n";
    }
    text += '"';
}

std::string GplCall(std::string_view name, std::initializer_list<std::string_view> arguments) {
    std::size_t size = name.size() + std::string_view("()").size();
    for (const std::string_view argument : arguments) {
        size += argument.size() + std::string_view(", ").size();
    }
    std::string call;
    call.reserve(size);
    call += name;
    call += '(';
    const char* separator = "";
    for (const std::string_view argument : arguments) {
        if (!argument.empty()) {
            call += separator;
            call += argument;
            separator = ", ";
        }
    }
    return call += ')';
}

std::string GplDimensions(const std::vector<int>& dimensions) {
    std::string call = "dim(";
    const char* separator = "";
    for (const int dimension : dimensions) {
        call += separator;
        call += std::to_string(dimension);
        separator = ",";
    }
    return call += ')';
}

void BeginGplLine(std::string& text, std::string_view keyword,
                  std::initializer_list<std::string_view> statement) {
    text += ' ';
    text += keyword;
    text += ": ";
    for (const std::string_view piece : statement) {
        text += piece;
    }
}

void AppendGplLine(std::string& text, std::string_view keyword,
                   std::initializer_list<std::string_view> statement) {
    BeginGplLine(text, keyword, statement);
    text += '\n';
}

void AppendGplCallLine(std::string& text, std::string_view keyword,
                       std::initializer_list<std::string_view> call,
                       std::initializer_list<std::string_view> arguments) {
    BeginGplLine(text, keyword, call);
    for (const std::string_view argument : arguments) {
        if (!argument.empty()) {
            text += ", ";
            text += argument;
        }
    }
    text += ")\n";
}

} // namespace recastor
