#include "archive/report/reportindex.h"

#include "archive/outcome/jsonwriter.h"
#include "archive/outcome/outcomenames.h"
#include "archive/outcome/shownpath.h"
#include "archive/report/filepage.h"
#include "archive/report/pageshell.h"
#include "archive/report/reportassets.h"

namespace recastor {

namespace {

void WriteTotals(const OutcomeCounts& totals, JsonWriter& json) {
    json.BeginObject();
    for (const auto& [name, count] : kOutcomeCounts) {
        json.Member(name, totals.*count);
    }
    json.EndObject();
}

} // namespace

std::string IndexRow(const FileOutcome& outcome) {
    const OutcomeCounts counts = CountsOf(outcome);
    JsonWriter json;
    json.BeginArray();
    json.String(ShownPath(outcome.path));
    json.String(HasFilePage(outcome) ? FilePageName(outcome.path) : std::string());
    json.String(NameOf(outcome.status));
    for (const std::uint64_t number :
         {counts.commandsConverted, counts.commandsNotConverted, counts.commandsCopied,
          counts.warnings, counts.missedLines, outcome.sourceSize}) {
        json.Integer(static_cast<std::int64_t>(number));
    }
    json.String(outcome.message);
    json.EndArray();
    return json.Text();
}

ReportIndex::ReportIndex(std::ostream& output) : m_output(output) {
    m_output << PageStart("Converted files",
                          "<style>" + std::string(ReportAsset("report.css")) + "</style>\n")
             << "{\"files\":[";
}

void ReportIndex::AddRow(const std::string& row) {
    m_output << (m_isFirst ? "\n" : ",\n") << row;
    m_isFirst = false;
}

void ReportIndex::End(const ReportHeading& heading, const OutcomeCounts& totals) {
    JsonWriter json;
    json.BeginObject();
    for (const auto& [name, value] : heading) {
        json.Member(name, value);
    }
    json.EndObject();
    JsonWriter sums;
    WriteTotals(totals, sums);
    m_output << "\n],\"heading\":" << json.Text() << ",\"totals\":" << sums.Text() << '}'
             << PageEnd("<script>" + std::string(ReportAsset("index.js")) + "</script>");
}

} // namespace recastor
