#include "archive/outcome/outcomejson.h"

#include "archive/outcome/outcomenames.h"
#include "archive/outcome/shownpath.h"
#include "archive/outcome/timestamp.h"

#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kLineStart = R"({"uri":")";

Json JsonOf(const ConversionError& error) {
    Json json{{"text", error.text}};
    if (error.line > 0) {
        json["line"] = error.line;
        json["column"] = error.column;
    }
    return json;
}

ConversionError ErrorOfJson(const Json& json) {
    return {json.value("line", std::int64_t{0}), json.value("column", 0),
            json.at("text").get<std::string>()};
}

Json JsonOf(const CommandOutcome& command) {
    Json json{{"kind", NameOf(command.kind)},
              {"firstLine", command.firstLine},
              {"lastLine", command.lastLine},
              {"warnings", command.warnings},
              {"missedLines", command.missedLines}};
    if (command.error) {
        json["error"] = JsonOf(*command.error);
    }
    return json;
}

CommandOutcome CommandOfJson(const Json& json) {
    CommandOutcome command;
    command.kind = KindOfName(json.at("kind").get<std::string>());
    json.at("firstLine").get_to(command.firstLine);
    json.at("lastLine").get_to(command.lastLine);
    json.at("warnings").get_to(command.warnings);
    json.at("missedLines").get_to(command.missedLines);
    if (json.contains("error")) {
        command.error = ErrorOfJson(json.at("error"));
    }
    return command;
}

OutcomeRecord RecordOfJson(const Json& json) {
    OutcomeRecord record;
    FileOutcome& outcome = record.outcome;
    outcome.path = PathOfUri(json.at("uri").get<std::string>());
    outcome.status = StatusOfName(json.at("status").get<std::string>());
    json.at("message").get_to(outcome.message);
    json.at("notes").get_to(outcome.notes);
    json.at("sourceSize").get_to(outcome.sourceSize);
    json.at("targetSize").get_to(outcome.targetSize);
    outcome.modified = ReadTimestamp(json.at("modified").get<std::string>()).value_or(0);
    json.at("milliseconds").get_to(outcome.milliseconds);
    json.at("contentHash").get_to(outcome.contentHash);
    json.at("encoding").get_to(outcome.encoding);
    json.at("copied").get_to(outcome.copied);
    for (const Json& command : json.at("commands")) {
        outcome.commands.push_back(CommandOfJson(command));
    }
    json.at("converter").get_to(record.by.version);
    json.at("settings").get_to(record.by.settings);
    return record;
}

} // namespace

std::string OutcomeLine(const OutcomeRecord& record) {
    const FileOutcome& outcome = record.outcome;
    Json json{{"uri", UriOfPath(outcome.path)},
              {"path", ShownPath(outcome.path)},
              {"status", NameOf(outcome.status)},
              {"message", outcome.message},
              {"notes", outcome.notes},
              {"sourceSize", outcome.sourceSize},
              {"targetSize", outcome.targetSize},
              {"modified", Timestamp(outcome.modified)},
              {"milliseconds", outcome.milliseconds},
              {"contentHash", outcome.contentHash},
              {"encoding", outcome.encoding},
              {"copied", outcome.copied},
              {"commands", Json::array()},
              {"converter", record.by.version},
              {"settings", record.by.settings}};
    for (const CommandOutcome& command : outcome.commands) {
        json["commands"].push_back(JsonOf(command));
    }
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::optional<OutcomeRecord> ReadOutcomeLine(std::string_view line) {
    try {
        return RecordOfJson(Json::parse(line));
    } catch (const Json::exception&) {
        return std::nullopt;
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

std::optional<std::string> PathOfLine(std::string_view line) {
    if (!line.starts_with(kLineStart)) {
        return std::nullopt;
    }
    line.remove_prefix(kLineStart.size());
    const std::size_t end = line.find('"');
    return end == std::string_view::npos ? std::nullopt
                                         : std::optional(PathOfUri(line.substr(0, end)));
}

} // namespace recastor
