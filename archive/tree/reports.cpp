#include "archive/tree/reports.h"

#include "archive/outcome/timestamp.h"

namespace recastor {

namespace {

ReportHeading HeadingOf(const RunInfo& run) {
    return {{"Source", run.source},
            {"Target", run.target},
            {"Converter", run.converter},
            {"Settings", run.settings},
            {"Started", Timestamp(run.started)}};
}

} // namespace

ReportRows RowsOf(const OutcomeRecord& record) {
    return {CsvRow(record), SarifResults(record), IndexRow(record.outcome)};
}

ReportFiles::ReportFiles(const std::string& reportFolder, const RunInfo& run) :
    m_folder(reportFolder), m_csv(reportFolder + "/report.csv"),
    m_sarif(reportFolder + "/report.sarif"), m_html(reportFolder + "/index.html"),
    m_index(m_html.Stream(), HeadingOf(run)) {
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
    m_index.End(totals);
    m_html.Finish();
}

} // namespace recastor
