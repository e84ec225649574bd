#include "archive/outcome/shownpath.h"
#include "archive/outcome/timestamp.h"
#include "archive/tree/reports.h"
#include "archive/tree/version.h"

#include <array>
#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;

/// What is reported, as SARIF's rules.
struct Rule {
    const char* id;
    const char* level;
    const char* text;
};
enum RuleIndex : std::size_t {
    kNotConverted,
    kEnded,
    kFailed,
    kSkipped,
    kWarning,
    kMissed,
    kNote,
};
constexpr std::array<Rule, 7> kRules{{
    {"command-not-converted", "error", "A TABLES or IGRAPH command has no new form."},
    {"file-ended", "error", "A text that cannot be split into tokens ended the file."},
    {"file-failed", "error", "The file was not converted."},
    {"file-skipped", "warning", "The file was not tried."},
    {"left-out", "warning", "Something was left out of a converted command."},
    {"possibly-missed", "warning",
     "A line inside another command begins with TABLES or IGRAPH: perhaps a command that it "
     "swallowed."},
    {"file-note", "note", "Something should be known of the file."},
}};

Json Rules() {
    Json rules = Json::array();
    for (const Rule& rule : kRules) {
        rules.push_back({{"id", rule.id},
                         {"shortDescription", {{"text", rule.text}}},
                         {"defaultConfiguration", {{"level", rule.level}}}});
    }
    return rules;
}

std::string Dumped(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// Gathers the results of one file.
class Results {
public:
    explicit Results(const FileOutcome& outcome) :
        m_outcome(outcome), m_place{{"uri", UriOfPath(outcome.path)}, {"uriBaseId", "SRCROOT"}} {}

    void AddFile() {
        for (const std::string& note : m_outcome.notes) {
            Add(kNote, note);
        }
        if (m_outcome.status == FileStatus::kFailed) {
            Add(kFailed, m_outcome.message);
        } else if (m_outcome.status == FileStatus::kSkipped) {
            Add(kSkipped, m_outcome.message);
        }
    }

    void AddCommand(const CommandOutcome& command) {
        for (const std::string& warning : command.warnings) {
            Add(kWarning, warning, command.firstLine);
        }
        for (const std::int64_t line : command.missedLines) {
            Add(kMissed, kRules.at(kMissed).text, line);
        }
        if (command.error) {
            const bool last = &command == &m_outcome.commands.back();
            const bool ended = m_outcome.status == FileStatus::kEnded && last;
            const bool hasPlace = command.error->line > 0;
            Add(ended ? kEnded : kNotConverted, command.error->text,
                hasPlace ? command.error->line : command.firstLine, command.error->column);
        }
    }

    std::string Text() const { return m_text; }

private:
    /// `line` and `column` are 0 for none.
    void Add(RuleIndex rule, const std::string& text, std::int64_t line = 0, int column = 0) {
        Json place{{"artifactLocation", m_place}};
        if (line > 0) {
            place["region"]["startLine"] = line;
        }
        if (line > 0 && column > 0) {
            place["region"]["startColumn"] = column;
        }
        const Json result{{"ruleId", kRules.at(rule).id},
                          {"ruleIndex", static_cast<std::size_t>(rule)},
                          {"level", kRules.at(rule).level},
                          {"message", {{"text", text}}},
                          {"locations", Json::array({{{"physicalLocation", place}}})}};
        m_text += m_text.empty() ? "" : ",\n";
        m_text += Dumped(result);
    }

    const FileOutcome& m_outcome;
    Json m_place;
    std::string m_text;
};

} // namespace

std::string SarifStart() {
    const Json driver{{"name", "recastor-tree"}, {"version", kVersion}, {"rules", Rules()}};
    return "{\"$schema\":\"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
           "sarif-schema-2.1.0.json\",\n\"version\":\"2.1.0\",\n"
           "\"runs\":[{\"tool\":{\"driver\":" +
           Dumped(driver) + "},\n\"columnKind\":\"unicodeCodePoints\",\n\"results\":[";
}

std::string SarifResults(const OutcomeRecord& record) {
    Results results(record.outcome);
    results.AddFile();
    for (const CommandOutcome& command : record.outcome.commands) {
        results.AddCommand(command);
    }
    return results.Text();
}

std::string SarifEnd(const RunInfo& run) {
    const Json invocation{{"executionSuccessful", !run.interrupted},
                          {"startTimeUtc", Timestamp(run.started)},
                          {"endTimeUtc", Timestamp(run.finished)}};
    return "\n],\n\"invocations\":[" + Dumped(invocation) + "]}]}\n";
}

} // namespace recastor
