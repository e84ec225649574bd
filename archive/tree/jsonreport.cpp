#include "archive/outcome/outcomenames.h"
#include "archive/tree/manifest.h"
#include "archive/tree/reports.h"

#include <nlohmann/json.hpp>

namespace recastor {

namespace {

std::string JsonOfTotals(const OutcomeCounts& totals) {
    nlohmann::ordered_json json;
    for (const auto& [name, count] : kOutcomeCounts) {
        json[std::string(name)] = totals.*count;
    }
    return json.dump();
}

} // namespace

void WriteJsonReport(const std::string& reportFolder, const RunInfo& run,
                     const OutcomeCounts& totals, std::ostream& output) {
    output << "{\"format\":1,\n\"run\":" << JsonOf(run) << ",\n\"totals\":" << JsonOfTotals(totals)
           << ",\n\"files\":[";
    ManifestReader manifest(RunManifest::FileName(reportFolder));
    for (const char* separator = "\n"; manifest.Next(); separator = ",\n") {
        output << separator << manifest.Line();
    }
    output << "\n]}\n";
}

} // namespace recastor
