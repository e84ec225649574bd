#include "archive/report/reportindex.h"

#include "archive/outcome/outcomenames.h"
#include "archive/outcome/shownpath.h"
#include "archive/report/filepage.h"
#include "archive/report/pageshell.h"
#include "archive/report/reportassets.h"

#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;

std::string InScript(const Json& json) {
    return EscapedForScript(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

Json RowOf(const FileOutcome& outcome) {
    const OutcomeCounts counts = CountsOf(outcome);
    return Json::array({ShownPath(outcome.path),
                        HasFilePage(outcome) ? FilePageName(outcome.path) : std::string(),
                        NameOf(outcome.status), counts.commandsConverted,
                        counts.commandsNotConverted, counts.commandsCopied, counts.warnings,
                        counts.missedLines, outcome.sourceSize, outcome.message});
}

Json JsonOf(const OutcomeCounts& totals) {
    return {{"files", totals.files},
            {"filesConverted", totals.filesConverted},
            {"filesIncomplete", totals.filesIncomplete},
            {"filesFailed", totals.filesFailed},
            {"filesSkipped", totals.filesSkipped},
            {"commandsConverted", totals.commandsConverted},
            {"commandsNotConverted", totals.commandsNotConverted},
            {"commandsCopied", totals.commandsCopied},
            {"warnings", totals.warnings},
            {"missedLines", totals.missedLines}};
}

} // namespace

ReportIndex::ReportIndex(std::ostream& output) : m_output(output) {
    m_output << PageStart("Converted files",
                          "<style>" + std::string(ReportAsset("report.css")) + "</style>\n")
             << "{\"files\":[";
}

std::string IndexRow(const FileOutcome& outcome) {
    return InScript(RowOf(outcome));
}

void ReportIndex::AddRow(const std::string& row) {
    m_output << (m_isFirst ? "\n" : ",\n") << row;
    m_isFirst = false;
}

void ReportIndex::End(const ReportHeading& heading, const OutcomeCounts& totals) {
    Json json = Json::object();
    for (const auto& [name, value] : heading) {
        json[name] = value;
    }
    m_output << "\n],\"heading\":" << InScript(json) << ",\"totals\":" << InScript(JsonOf(totals))
             << '}' << PageEnd("<script>" + std::string(ReportAsset("index.js")) + "</script>");
}

} // namespace recastor
