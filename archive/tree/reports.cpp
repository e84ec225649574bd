#include "archive/tree/reports.h"

namespace recastor {

ReportRows RowsOf(const OutcomeRecord& record) {
    return {CsvRow(record), SarifResults(record)};
}

ReportFiles::ReportFiles(const std::string& reportFolder) :
    m_folder(reportFolder), m_csv(reportFolder + "/report.csv"),
    m_sarif(reportFolder + "/report.sarif") {
    m_csv.Stream() << CsvHeader();
    m_sarif.Stream() << SarifStart();
}

void ReportFiles::Add(const ReportRows& rows) {
    m_csv.Stream() << rows.csv;
    if (!rows.sarif.empty()) {
        m_sarif.Stream() << (m_anyResult ? ",\n" : "\n") << rows.sarif;
        m_anyResult = true;
    }
}

void ReportFiles::Finish(const RunInfo& run, const OutcomeCounts& totals) {
    WriteRunInfo(m_folder, run);
    WholeFile json(m_folder + "/report.json");
    WriteJsonReport(m_folder, run, totals, json.Stream());
    json.Finish();
    m_csv.Finish();
    m_sarif.Stream() << SarifEnd(run);
    m_sarif.Finish();
}

} // namespace recastor
