/// The first page of the HTML report: totals, and the list of files.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace recastor {

/// What is known of a run, for people: names and values.
using ReportHeading = std::vector<std::pair<std::string, std::string>>;

/// What the page's list says of a file. Texts and pictures of its commands are not needed.
std::string IndexRow(const FileOutcome& outcome);

/// Writes the page to a stream as the files come, so that no file stays in memory. It holds all it
/// needs and opens without network; files with a page are links.
class ReportIndex {
public:
    /// The stream is not owned and must outlive the index.
    explicit ReportIndex(std::ostream& output);

    /// Adds a file.
    void Add(const FileOutcome& outcome) { AddRow(IndexRow(outcome)); }
    /// The same; `row` was made by IndexRow().
    void AddRow(const std::string& row);
    /// Ends the page. Nothing is written after it.
    void End(const ReportHeading& heading, const OutcomeCounts& totals);

private:
    std::ostream& m_output;
    bool m_isFirst = true;
};

} // namespace recastor
