#include "archive/outcome/outcomenames.h"
#include "archive/outcome/shownpath.h"
#include "archive/outcome/timestamp.h"
#include "archive/tree/reports.h"

#include <sstream>
#include <string_view>

namespace recastor {

namespace {

/// Always in quotes. A spreadsheet would take a text that begins like a formula for one: an
/// apostrophe in front makes it a text.
std::string Cell(const std::string& text) {
    const bool formula =
        !text.empty() && std::string_view("=+-@\t\r").find(text[0]) != std::string_view::npos;
    std::string cell = formula ? "\"'" : "\"";
    for (const char c : text) {
        cell += c;
        if (c == '"') {
            cell += c;
        }
    }
    return cell + '"';
}

/// Why the file has no target or not all of one, and what else should be known of it.
std::string MessageAndNotes(const FileOutcome& outcome) {
    std::string text = outcome.message;
    for (const std::string& note : outcome.notes) {
        text += text.empty() ? note : ' ' + note;
    }
    return text;
}

} // namespace

std::string CsvHeader() {
    return "path,status,message,converted,not_converted,copied,warnings,missed_lines,"
           "source_bytes,target_bytes,modified,encoding,milliseconds,uri\r\n";
}

std::string CsvRow(const OutcomeRecord& record) {
    const FileOutcome& outcome = record.outcome;
    const OutcomeCounts counts = CountsOf(outcome);
    std::ostringstream row;
    row << Cell(ShownPath(outcome.path)) << ',' << Cell(NameOf(outcome.status)) << ','
        << Cell(MessageAndNotes(outcome)) << ',' << counts.commandsConverted << ','
        << counts.commandsNotConverted << ',' << counts.commandsCopied << ',' << counts.warnings
        << ',' << counts.missedLines << ',' << outcome.sourceSize << ',' << outcome.targetSize
        << ',' << Cell(Timestamp(outcome.modified)) << ',' << Cell(outcome.encoding) << ','
        << outcome.milliseconds << ',' << Cell(UriOfPath(outcome.path)) << "\r\n";
    return row.str();
}

} // namespace recastor
