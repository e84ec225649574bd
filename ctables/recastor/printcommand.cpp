#include "ctables/recastor/printcommand.h"

#include <algorithm>
#include <string_view>

namespace recastor {

namespace {

/// A larger indent is taken for a mistake of the caller and becomes one blank.
constexpr unsigned kWidestIndent = 20;

} // namespace

bool IsWSOnly(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
}

void PrintCommand(const std::string& text, std::ostream& out, unsigned indent) {
    if (text.empty()) {
        return;
    }
    for (unsigned i = indent > kWidestIndent ? 1 : indent; i > 0; --i) {
        out.put(' ');
    }
    std::string_view body(text);
    if (body.back() == '\n') {
        body.remove_suffix(1);
    }
    std::string_view lineEnd;
    if (body.ends_with('\r')) {
        lineEnd = body.substr(body.size() - 1);
        body.remove_suffix(1);
    }
    out.write(body.data(), static_cast<std::streamsize>(body.size()));
    std::string end = body.ends_with('.') ? "" : ".";
    end.append(lineEnd).append(1, '\n');
    out.write(end.data(), static_cast<std::streamsize>(end.size())).flush();
}

std::string CommentCommand(std::string text) {
    std::string comment = "*";
    const auto breaks = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    comment.reserve(text.size() + 2 * breaks + 1);
    std::string_view rest(text);
    for (auto end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        comment.append(rest.substr(0, end + 1)).append(" *");
        rest.remove_prefix(end + 1);
    }
    return comment.append(rest);
}

} // namespace recastor
