#include "archive/tree/runinfo.h"

#include "archive/outcome/shownpath.h"
#include "archive/outcome/timestamp.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/version.h"
#include "archive/tree/wholefile.h"

#include <fstream>
#include <nlohmann/json.hpp>

namespace recastor {

namespace {

using Json = nlohmann::ordered_json;

std::string FileName(const std::string& reportFolder) {
    return reportFolder + "/run.json";
}

} // namespace

RunInfo StartedRun(const TreeOptions& options) {
    RunInfo run;
    run.source = ShownPath(options.source);
    run.target = ShownPath(options.target);
    run.converter = kVersion;
    run.settings = options.Settings();
    run.started = Now();
    run.finished = run.started;
    run.interrupted = true; // until it is over
    run.shards = options.shard.count;
    run.present = {options.shard.number};
    return run;
}

std::string JsonOf(const RunInfo& run) {
    const Json json{{"source", run.source},
                    {"target", run.target},
                    {"converter", run.converter},
                    {"settings", run.settings},
                    {"started", Timestamp(run.started)},
                    {"finished", Timestamp(run.finished)},
                    {"interrupted", run.interrupted},
                    {"shards", run.shards},
                    {"present", run.present}};
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void WriteRunInfo(const std::string& reportFolder, const RunInfo& run) {
    WholeFile file(FileName(reportFolder));
    file.Stream() << JsonOf(run) << '\n';
    file.Finish();
}

RunInfo ReadRunInfo(const std::string& reportFolder) {
    std::ifstream file(FileName(reportFolder), std::ios::binary);
    if (!file) {
        throw SystemError("cannot read " + FileName(reportFolder));
    }
    try {
        const Json json = Json::parse(file);
        RunInfo run;
        json.at("source").get_to(run.source);
        json.at("target").get_to(run.target);
        json.at("converter").get_to(run.converter);
        json.at("settings").get_to(run.settings);
        run.started = ReadTimestamp(json.at("started").get<std::string>()).value_or(0);
        run.finished = ReadTimestamp(json.at("finished").get<std::string>()).value_or(0);
        json.at("interrupted").get_to(run.interrupted);
        json.at("shards").get_to(run.shards);
        json.at("present").get_to(run.present);
        return run;
    } catch (const Json::exception&) {
        throw FileError(FileName(reportFolder) + " is not that of a report");
    }
}

} // namespace recastor
