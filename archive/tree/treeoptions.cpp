#include "archive/tree/treeoptions.h"

#include "archive/tree/findlocale.h"
#include "archive/tree/version.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <iostream>
#include <thread>

namespace recastor {

namespace {

constexpr int kUsageError = 2;
constexpr unsigned kMostJobs = 1024;
constexpr unsigned kUsualTimeLimit = 60;
constexpr unsigned kLongestTime = 1'000'000; // seconds
constexpr const char* kUsualFiles = "*.[sS][yY][nN]";
constexpr const char* kReportFolder = "recastor-report";

/// What the arguments say, before it is completed and checked.
struct Arguments {
    TreeOptions options;
    std::string shard;
    std::string failOn = "error";
    bool merge = false;
    std::string source;
    std::string target;
    std::vector<std::string> more;
};

void Mistake(const std::string& text) {
    throw CLI::ValidationError(text);
}

void AddPositionals(CLI::App& app, Arguments& arguments) {
    app.add_option("SOURCE_DIR", arguments.source, "The folder to read")->required()->type_name("");
    app.add_option("TARGET_DIR", arguments.target, "The folder to write; made when it is missing")
        ->type_name("");
    app.add_option("REPORT_DIR", arguments.more, "With --merge: more folders to join")
        ->type_name("");
}

void AddOptions(CLI::App& app, Arguments& arguments) {
    TreeOptions& options = arguments.options;
    app.add_flag("-b,--batch", options.batch, "Read batch-mode syntax");
    app.add_option("-j,--jobs", options.jobs, "Number of files at a time (default: all cores)")
        ->type_name("N")
        ->check(CLI::Range(1U, kMostJobs).description(""));
    app.add_option("--include", options.include,
                   "Convert files that match GLOB; may be repeated (default: *.syn, in any case)")
        ->type_name("GLOB")
        ->allow_extra_args(false);
    app.add_option("--exclude", options.exclude,
                   "Leave out files and folders that match GLOB; may be repeated")
        ->type_name("GLOB")
        ->allow_extra_args(false);
    app.add_option("--encoding", options.encoding,
                   "Encoding of the files, of an installed locale (default: auto, UTF-8 where "
                   "valid, else any 8-bit one)")
        ->type_name("NAME");
    app.add_option("--report", options.report,
                   "Folder for the report (default: TARGET_DIR/recastor-report)")
        ->type_name("DIR");
    app.add_flag("--dry-run", options.dryRun, "Write no targets; a report only with --report");
    app.add_flag("--check", options.check,
                 "The same, and the exit status tells whether any target would change");
    app.add_option("--fail-on", arguments.failOn, "What makes the exit status 1 (default: error)")
        ->type_name("warning|error")
        ->check(CLI::IsMember({"warning", "error"}).description(""));
    app.add_option("--time-limit", options.timeLimit, "Seconds for one file; 0: no limit")
        ->type_name("SECONDS")
        ->check(CLI::Range(0U, kLongestTime).description(""));
    app.add_flag("-q,--quiet", options.quiet, "Tell neither progress nor summary");
    app.add_option("--shard", arguments.shard, "Convert the I-th of N shares of the files")
        ->type_name("I/N");
    app.add_flag("--merge", arguments.merge,
                 "Join the report folders given into one, that of --report");
    app.set_version_flag("--version", std::string("recastor-tree ") + kVersion);
}

Shard ReadShard(const std::string& text) {
    Shard shard;
    const char* const end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, shard.number);
    const bool slash = first.ec == std::errc() && first.ptr != end && *first.ptr == '/';
    const auto second = slash ? std::from_chars(first.ptr + 1, end, shard.count) : first;
    if (!slash || second.ec != std::errc() || second.ptr != end || shard.number < 1 ||
        shard.number > shard.count) {
        Mistake("--shard: give I/N, I from 1 to N");
    }
    return shard;
}

void CompleteMerge(Arguments& arguments) {
    std::vector<std::string>& merge = arguments.options.merge;
    merge = std::move(arguments.more);
    if (!arguments.target.empty()) {
        merge.insert(merge.begin(), arguments.target);
    }
    merge.insert(merge.begin(), arguments.source);
    if (arguments.options.report.empty()) {
        Mistake("--merge: name the folder for the joined report with --report");
    }
}

void CompleteConversion(Arguments& arguments) {
    TreeOptions& options = arguments.options;
    if (arguments.target.empty()) {
        Mistake("TARGET_DIR is required");
    }
    if (!arguments.more.empty()) {
        Mistake("give one SOURCE_DIR and one TARGET_DIR");
    }
    options.source = arguments.source;
    options.target = arguments.target;
    if (options.report.empty() && options.WritesTargets()) {
        options.report = options.target + '/' + kReportFolder;
        options.isUsualReport = true;
    }
    if (options.include.empty()) {
        options.include = {kUsualFiles};
    }
    if (!arguments.shard.empty()) {
        options.shard = ReadShard(arguments.shard);
    }
    options.locale = FindLocale(options.encoding == "auto" ? "UTF-8" : options.encoding);
    if (options.locale.empty()) {
        Mistake("--encoding: no locale is installed that has the encoding " + options.encoding);
    }
}

} // namespace

std::string TreeOptions::Settings() const {
    return (batch ? "batch, " : "interactive, ") + encoding;
}

OptionsOrStatus ReadTreeOptions(int argc, const char* const* argv) {
    CLI::App app("Converts the TABLES and IGRAPH commands of every syntax file of a folder.",
                 "recastor-tree");
    Arguments arguments;
    arguments.options.jobs = std::max(1U, std::thread::hardware_concurrency());
    arguments.options.timeLimit = kUsualTimeLimit;
    AddPositionals(app, arguments);
    AddOptions(app, arguments);
    try {
        app.parse(argc, argv);
        arguments.options.failOn =
            arguments.failOn == "warning" ? FailOn::kWarning : FailOn::kError;
        if (arguments.merge) {
            CompleteMerge(arguments);
        } else {
            CompleteConversion(arguments);
        }
    } catch (const CLI::Error& error) {
        return {std::nullopt, app.exit(error) == 0 ? 0 : kUsageError};
    }
    return {std::move(arguments.options), 0};
}

} // namespace recastor
