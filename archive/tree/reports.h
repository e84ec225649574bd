/// The forms in which a manifest is reported: index.html, report.json, report.csv and report.sarif.
#pragma once

#include "archive/outcome/outcomejson.h"
#include "archive/report/reportindex.h"
#include "archive/tree/runinfo.h"
#include "archive/tree/wholefile.h"

#include <ostream>
#include <string>

namespace recastor {

/// What the reports say of one file. Workers put it together, since that takes longer than to write
/// it down.
struct ReportRows {
    std::string csv;   ///< a row with its line end
    std::string sarif; ///< results, a comma and a line feed between; mostly empty
    std::string index; ///< a row of the HTML report's list
};
ReportRows RowsOf(const OutcomeRecord& record);

/// The reports of a folder while its manifest grows.
class ReportFiles {
public:
    /// Throws FileError when they cannot be written.
    explicit ReportFiles(const std::string& reportFolder);

    /// Adds a file, in the manifest's order.
    void Add(const ReportRows& rows);
    /// Puts the reports in their place, with run.json, once the manifest is whole. Throws FileError
    /// when any of it could not be written.
    void Finish(const RunInfo& run, const OutcomeCounts& totals);

private:
    std::string m_folder;
    WholeFile m_csv;
    WholeFile m_sarif;
    WholeFile m_html;
    ReportIndex m_index;
    bool m_anyResult = false;
};

/// report.csv (RFC 4180): the names of its columns, and a row.
std::string CsvHeader();
std::string CsvRow(const OutcomeRecord& record);

/// report.sarif (SARIF 2.1.0), what needs a look, for code-review tools: what stands in front of
/// the results, those of one file, and what stands behind all.
std::string SarifStart();
std::string SarifResults(const OutcomeRecord& record);
std::string SarifEnd(const RunInfo& run);

/// report.json: the run, the lines of the manifest and the totals, as docs/report.schema.json
/// describes it.
void WriteJsonReport(const std::string& reportFolder, const RunInfo& run,
                     const OutcomeCounts& totals, std::ostream& output);

} // namespace recastor
