#include "ctables/recastor/printcommand.h"

#include <algorithm>
#include <string_view>

namespace recastor {

namespace {

/// A larger indent is taken for a mistake of the caller and becomes one blank.
constexpr unsigned kWidestIndent = 20;

} // namespace

bool IsWSOnly(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsWhiteSpace);
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
    const bool crLf = body.ends_with('\r');
    if (crLf) {
        body.remove_suffix(1);
    }
    out.write(body.data(), static_cast<std::streamsize>(body.size()));
    std::string_view end = crLf ? ".\r\n" : ".\n";
    if (body.ends_with('.')) {
        end.remove_prefix(1);
    }
    out.write(end.data(), static_cast<std::streamsize>(end.size())).flush();
}

std::string CommentCommand(const std::string& text) {
    constexpr std::size_t kShortLine = 16; // few commands have shorter ones on average
    std::string comment;
    comment.reserve(text.size() + 2 * (text.size() / kShortLine) + 1);
    comment += '*';
    std::string_view rest(text);
    for (auto end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        comment.append(rest.substr(0, end + 1)).append(" *");
        rest.remove_prefix(end + 1);
    }
    return comment.append(rest);
}

} // namespace recastor
