#include "archive/report/filepage.h"

#include "archive/outcome/outcomenames.h"
#include "archive/outcome/shownpath.h"
#include "archive/report/pageshell.h"

#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;

/// A picture is JSON already; one that is not there, or is broken, is null.
Json PictureOf(const std::string& picture) {
    Json json = Json::parse(picture, nullptr, false);
    return json.is_discarded() ? Json() : json;
}

Json JsonOf(const CommandOutcome& command) {
    Json error;
    if (command.error) {
        error = {{"line", command.error->line},
                 {"column", command.error->column},
                 {"text", command.error->text}};
    }
    return {{"kind", NameOf(command.kind)},
            {"firstLine", command.firstLine},
            {"lastLine", command.lastLine},
            {"oldText", command.oldText},
            {"newText", command.newText},
            {"warnings", command.warnings},
            {"error", error},
            {"missedLines", command.missedLines},
            {"oldPicture", PictureOf(command.oldPicture)},
            {"newPicture", PictureOf(command.newPicture)},
            {"chartSketch", PictureOf(command.chartSketch)}};
}

std::string Hexadecimal(std::uint64_t number) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text(2 * sizeof number, '0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, number >>= 4U) {
        *digit = kDigits[number & 0xFU];
    }
    return text;
}

} // namespace

bool HasFilePage(const FileOutcome& outcome) {
    return !outcome.commands.empty() || !outcome.notes.empty() || !outcome.message.empty();
}

std::string FilePageName(std::string_view path) {
    std::uint64_t hash = 0xcbf29ce484222325U; // FNV-1a
    for (const char c : path) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    }
    return "files/" + Hexadecimal(hash) + ".html";
}

std::string FilePage(const FileOutcome& outcome) {
    Json commands = Json::array();
    for (const CommandOutcome& command : outcome.commands) {
        commands.push_back(JsonOf(command));
    }
    const std::string path = ShownPath(outcome.path);
    const Json json = {{"path", path},
                       {"status", NameOf(outcome.status)},
                       {"message", outcome.message},
                       {"notes", outcome.notes},
                       {"sourceSize", outcome.sourceSize},
                       {"encoding", outcome.encoding},
                       {"copied", outcome.copied},
                       {"commands", commands}};
    return PageStart(path, "<link rel=\"stylesheet\" href=\"../assets/report.css\">\n") +
           EscapedForScript(json.dump(-1, ' ', false, Json::error_handler_t::replace)) +
           PageEnd("<script src=\"../assets/file.js\"></script>");
}

} // namespace recastor
