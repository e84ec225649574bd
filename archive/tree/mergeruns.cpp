#include "archive/outcome/outcomejson.h"
#include "archive/outcome/shownpath.h"
#include "archive/tree/folders.h"
#include "archive/tree/manifest.h"
#include "archive/tree/pages.h"
#include "archive/tree/reports.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/treerun.h"
#include "archive/tree/treesummary.h"
#include "archive/tree/wholefile.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace recastor {

namespace {

/// The runs as one: it began with the first and ended with the last.
RunInfo JoinedRuns(const std::vector<RunInfo>& runs) {
    RunInfo all = runs.front();
    for (const RunInfo& run : runs) {
        if (run.shards != all.shards || run.settings != all.settings) {
            throw FileError("the reports are not of shards of one run");
        }
        all.started = std::min(all.started, run.started);
        all.finished = std::max(all.finished, run.finished);
        all.interrupted = all.interrupted || run.interrupted;
        all.present.insert(all.present.end(), run.present.begin(), run.present.end());
    }
    std::sort(all.present.begin(), all.present.end());
    all.present.erase(std::unique(all.present.begin(), all.present.end()), all.present.end());
    return all;
}

/// What is known of a run, whose report is then to be joined. A run that came to its end has left a
/// manifest: without it, its files would be missing and nothing would tell.
RunInfo ReadRun(const std::string& reportFolder) {
    RunInfo run = ReadRunInfo(reportFolder);
    const std::string manifest = RunManifest::FileName(reportFolder);
    if (!run.interrupted && ::access(manifest.c_str(), F_OK) != 0) {
        throw SystemError("cannot read " + ShownPath(manifest));
    }
    return run;
}

/// Tells which shards no report is of.
bool TellMissingShards(const RunInfo& run) {
    bool missing = false;
    for (std::uint64_t number = 1; number <= run.shards; ++number) {
        if (!std::binary_search(run.present.begin(), run.present.end(), number)) {
            std::cerr << "recastor-tree: shard " << number << '/' << run.shards << " is missing\n";
            missing = true;
        }
    }
    return missing;
}

std::vector<std::string> ManifestsOf(const TreeOptions& options) {
    std::vector<std::string> names;
    for (const std::string& folder : options.merge) {
        std::error_code error;
        if (std::filesystem::equivalent(folder, options.report, error)) {
            throw FileError("the joined report needs a folder of its own: " +
                            ShownPath(options.report));
        }
        names.push_back(RunManifest::FileName(folder));
    }
    return names;
}

/// The totals of all manifests, joined.
OutcomeCounts Join(const TreeOptions& options, const RunInfo& run) {
    OutcomeCounts totals;
    WholeFile joined(RunManifest::FileName(options.report));
    ReportFiles reports(options.report);
    PreparePages(options.report);
    MergedManifests manifests(ManifestsOf(options));
    while (manifests.Next()) {
        if (const auto record = ReadOutcomeLine(manifests.Line())) {
            joined.Stream() << manifests.Line() << '\n';
            reports.Add(RowsOf(*record));
            CopyPage(options.merge[manifests.Current()], options.report, record->outcome);
            totals += CountsOf(record->outcome);
        }
    }
    joined.Finish();
    reports.Finish(run, totals);
    return totals;
}

} // namespace

int RunMerge(const TreeOptions& options) {
    try {
        std::vector<RunInfo> runs;
        for (const std::string& folder : options.merge) {
            runs.push_back(ReadRun(folder));
        }
        RunInfo run = JoinedRuns(runs);
        MakeFolders(options.report);
        TreeTotals totals;
        const bool missing = TellMissingShards(run);
        totals.interrupted = run.interrupted || missing;
        run.interrupted = totals.interrupted;
        totals.counts = Join(options, run);
        if (!options.quiet) {
            PrintSummary(totals, options, std::cout);
        }
        return StatusOf(totals, options);
    } catch (const FileError& error) {
        std::cerr << "recastor-tree: " << error.what() << '\n';
        return kCannotRun;
    }
}

} // namespace recastor
