#include "archive/tree/manifest.h"
#include "archive/tree/reports.h"

#include <nlohmann/json.hpp>

namespace recastor {

namespace {

std::string JsonOf(const OutcomeCounts& totals) {
    const nlohmann::ordered_json json{{"files", totals.files},
                                      {"filesConverted", totals.filesConverted},
                                      {"filesIncomplete", totals.filesIncomplete},
                                      {"filesFailed", totals.filesFailed},
                                      {"filesSkipped", totals.filesSkipped},
                                      {"commandsConverted", totals.commandsConverted},
                                      {"commandsNotConverted", totals.commandsNotConverted},
                                      {"commandsCopied", totals.commandsCopied},
                                      {"warnings", totals.warnings},
                                      {"missedLines", totals.missedLines}};
    return json.dump();
}

} // namespace

void WriteJsonReport(const std::string& reportFolder, const RunInfo& run,
                     const OutcomeCounts& totals, std::ostream& output) {
    output << "{\"format\":1,\n\"run\":" << JsonOf(run) << ",\n\"totals\":" << JsonOf(totals)
           << ",\n\"files\":[";
    ManifestReader manifest(RunManifest::FileName(reportFolder));
    for (const char* separator = "\n"; manifest.Next(); separator = ",\n") {
        output << separator << manifest.Line();
    }
    output << "\n]}\n";
}

} // namespace recastor
