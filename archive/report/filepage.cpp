#include "archive/report/filepage.h"

#include "archive/outcome/jsonwriter.h"
#include "archive/outcome/outcomenames.h"
#include "archive/outcome/pathhash.h"
#include "archive/outcome/shownpath.h"
#include "archive/report/pageshell.h"

#include <array>
#include <cstdio>

namespace recastor {

namespace {

void WriteError(const std::optional<ConversionError>& error, JsonWriter& json) {
    json.Key("error");
    if (!error) {
        json.Null();
        return;
    }
    json.BeginObject();
    json.Member("line", error->line);
    json.Member("column", std::int64_t{error->column});
    json.Member("text", error->text);
    json.EndObject();
}

/// A picture is JSON already; one that is not there is null.
void WritePicture(const char* name, const std::string& picture, JsonWriter& json) {
    json.Key(name);
    json.Json(picture.empty() ? "null" : picture);
}

void WriteCommand(const CommandOutcome& command, JsonWriter& json) {
    json.BeginObject();
    json.Member("kind", NameOf(command.kind));
    json.Member("firstLine", command.firstLine);
    json.Member("lastLine", command.lastLine);
    json.Member("oldText", command.oldText);
    json.Member("newText", command.newText);
    json.Member("warnings", command.warnings);
    WriteError(command.error, json);
    json.Key("missedLines");
    json.BeginArray();
    for (const std::int64_t line : command.missedLines) {
        json.Integer(line);
    }
    json.EndArray();
    WritePicture("oldPicture", command.oldPicture, json);
    WritePicture("newPicture", command.newPicture, json);
    WritePicture("chartSketch", command.chartSketch, json);
    json.EndObject();
}

} // namespace

bool HasFilePage(const FileOutcome& outcome) {
    return !outcome.commands.empty() || !outcome.notes.empty() || !outcome.message.empty();
}

std::string FilePageName(std::string_view path) {
    std::array<char, 2 * sizeof(std::uint64_t) + 1> hash{};
    static_cast<void>(std::snprintf(hash.data(), hash.size(), "%016llx",
                                    static_cast<unsigned long long>(HashOfPath(path))));
    return "files/" + std::string(hash.data()) + ".html";
}

std::string FilePage(const FileOutcome& outcome) {
    const std::string path = ShownPath(outcome.path);
    JsonWriter json;
    json.BeginObject();
    json.Member("path", path);
    json.Member("status", NameOf(outcome.status));
    json.Member("message", outcome.message);
    json.Member("notes", outcome.notes);
    json.Member("sourceSize", outcome.sourceSize);
    json.Member("encoding", outcome.encoding);
    json.Member("copied", outcome.copied);
    json.Key("commands");
    json.BeginArray();
    for (const CommandOutcome& command : outcome.commands) {
        WriteCommand(command, json);
    }
    json.EndArray();
    json.EndObject();
    return PageStart(path, "<link rel=\"stylesheet\" href=\"../assets/report.css\">\n") +
           json.Text() + PageEnd("<script src=\"../assets/file.js\"></script>");
}

} // namespace recastor
