#include "tests/fuzz/keptlines.h"

#include <utility>

namespace recastor {

namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos
               ? std::string_view{}
               : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes the first line off `rest`, without its end and the blanks around it.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find_first_of(kLineEnds);
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return Trimmed(line);
}

/// Whether a line of the output holds the input's line, whole or up to one of its periods.
bool Holds(std::string_view outputLine, std::string_view line) {
    for (;;) {
        if (outputLine.find(line) != std::string_view::npos) {
            return true;
        }
        const std::size_t period = line.rfind('.');
        if (period == std::string_view::npos) {
            return false;
        }
        line = Trimmed(line.substr(0, period));
    }
}

} // namespace

std::optional<std::string> FirstLostLine(std::string_view input, std::string_view output) {
    bool isFirst = true;
    while (!input.empty()) {
        std::string_view line = TakeLine(input);
        bool found = line.empty();
        if (!found && std::exchange(isFirst, false) && line.starts_with(kByteOrderMark)) {
            line.remove_prefix(kByteOrderMark.size()); // goes to the front of the output
        }
        while (!found && !output.empty()) {
            found = Holds(TakeLine(output), line);
        }
        if (!found) {
            return std::string(line);
        }
    }
    return std::nullopt;
}

} // namespace recastor
