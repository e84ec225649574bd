#include "archive/tree/reports.h"

#include "archive/outcome/shownpath.h"
#include "archive/outcome/timestamp.h"

namespace recastor {

namespace {

/// What the page says of a run that is over.
ReportHeading HeadingOf(const RunInfo& run) {
    ReportHeading heading{
        {"Source", ShownPath(run.source)},          {"Target", ShownPath(run.target)},
        {"Converter", "recastor " + run.converter}, {"Settings", run.settings},
        {"Started", Timestamp(run.started)},        {"Finished", Timestamp(run.finished)}};
    if (run.shards > 1) {
        heading.emplace_back("Shards", std::to_string(run.present.size()) + " of " +
                                           std::to_string(run.shards));
    }
    if (run.interrupted) {
        heading.emplace_back("Not complete", "not every file was come to");
    }
    return heading;
}

} // namespace

ReportRows RowsOf(const OutcomeRecord& record) {
    return {CsvRow(record), SarifResults(record), IndexRow(record.outcome)};
}

ReportFiles::ReportFiles(const std::string& reportFolder) :
    m_folder(reportFolder), m_csv(reportFolder + "/report.csv"),
    m_sarif(reportFolder + "/report.sarif"), m_html(reportFolder + "/index.html"),
    m_index(m_html.Stream()) {
    m_csv.Stream() << CsvHeader();
    m_sarif.Stream() << SarifStart();
}

void ReportFiles::Add(const ReportRows& rows) {
    m_csv.Stream() << rows.csv;
    if (!rows.sarif.empty()) {
        m_sarif.Stream() << (m_anyResult ? ",\n" : "\n") << rows.sarif;
        m_anyResult = true;
    }
    m_index.AddRow(rows.index);
}

void ReportFiles::Finish(const RunInfo& run, const OutcomeCounts& totals) {
    WriteRunInfo(m_folder, run);
    WholeFile json(m_folder + "/report.json");
    WriteJsonReport(m_folder, run, totals, json.Stream());
    json.Finish();
    m_csv.Finish();
    m_sarif.Stream() << SarifEnd(run);
    m_sarif.Finish();
    m_index.End(HeadingOf(run), totals);
    m_html.Finish();
}

} // namespace recastor
