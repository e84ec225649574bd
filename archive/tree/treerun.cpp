#include "archive/tree/treerun.h"

#include "archive/outcome/shownpath.h"
#include "archive/outcome/timestamp.h"
#include "archive/tree/folders.h"
#include "archive/tree/interrupt.h"
#include "archive/tree/manifest.h"
#include "archive/tree/pages.h"
#include "archive/tree/progress.h"
#include "archive/tree/reports.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/treesummary.h"
#include "archive/tree/treewalk.h"
#include "archive/tree/workerpool.h"

#include <iostream>
#include <map>
#include <optional>

namespace recastor {

namespace {

/// Results wait for those of earlier files, so that the manifest is in order; so many at most.
constexpr std::uint64_t kMostWaiting = 1024;
constexpr int kWaitMilliseconds = 100;

void Complain(const std::string& text) {
    std::cerr << "recastor-tree: " << text << '\n';
}

std::uint64_t CountFiles(const TreeOptions& options) {
    TreeWalk walk(options);
    std::uint64_t files = 0;
    while (Interrupts() == 0 && walk.Next()) {
        ++files;
    }
    return files;
}

/// The result for what the walk found in the place of a file.
FileResult ResultOfEntry(const WalkEntry& entry, const TreeOptions& options) {
    FileOutcome outcome;
    outcome.path = entry.path;
    outcome.status = entry.failed ? FileStatus::kFailed : FileStatus::kSkipped;
    outcome.message = entry.problem;
    return ResultWithoutTarget(outcome, options);
}

/// What a run writes into its report folder while it lasts.
struct Records {
    explicit Records(const std::string& folder) : manifest(folder), reports(folder) {}

    void Add(const FileResult& result) {
        manifest.Add(result.line);
        reports.Add(result.rows);
        totals += result.counts;
    }

    /// Keeps what an earlier run knew of the files that this one did not come to.
    void AddRest() {
        while (const auto line = manifest.TakeRest()) {
            if (const auto record = ReadOutcomeLine(*line)) {
                Add(ResultOf(*record));
            }
        }
    }

    /// Throws FileError when something could not be written.
    void Finish(RunInfo info) {
        manifest.Finish();
        info.finished = Now();
        reports.Finish(info, totals);
    }

    RunManifest manifest;
    ReportFiles reports;
    OutcomeCounts totals;
};

/// From the walk through the workers into the records.
class Run {
public:
    explicit Run(const TreeOptions& options) :
        m_options(options), m_info(StartedRun(options)),
        m_progress(std::cerr, FormForStandardError(options.quiet),
                   options.quiet ? 0 : CountFiles(options)),
        m_walk(options) {
        if (!options.report.empty()) {
            WriteRunInfo(options.report, m_info);
            PreparePages(options.report);
            m_records.emplace(options.report);
        }
    }

    TreeTotals ConvertAll() {
        WorkerPool pool(m_options, [this](std::uint64_t number, FileResult result) {
            m_waiting.emplace(number, std::move(result));
        });
        bool more = true;
        while ((more || !pool.IsIdle()) && Interrupts() < 2) {
            more = more && Interrupts() == 0;
            while (more && pool.HasRoom() && m_next - m_recorded < kMostWaiting) {
                more = GiveNext(pool);
            }
            pool.Wait(kWaitMilliseconds);
            RecordWhatIsNext();
            m_progress.Tell(m_recorded, m_totals.counts);
        }
        RecordWhatIsNext();
        m_progress.Clear();
        m_totals.interrupted = Interrupts() > 0;
        FinishRecords();
        return m_totals;
    }

private:
    /// False when the walk is over.
    bool GiveNext(WorkerPool& pool) {
        auto entry = m_walk.Next();
        if (!entry) {
            return false;
        }
        const std::uint64_t number = m_next++;
        const std::string previous = m_records ? m_records->manifest.PreviousLine(entry->path) : "";
        m_paths.emplace(number, entry->path);
        if (entry->problem.empty()) {
            pool.Give(
                {number, {entry->path, entry->twin, m_options.WritesTargets() ? previous : ""}});
        } else {
            m_waiting.emplace(number, ResultOfEntry(*entry, m_options));
        }
        return true;
    }

    void RecordWhatIsNext() {
        for (auto first = m_waiting.begin(); first != m_waiting.end() && first->first == m_recorded;
             first = m_waiting.begin()) {
            Record(m_paths.at(m_recorded), first->second);
            m_paths.erase(m_recorded);
            m_waiting.erase(first);
            ++m_recorded;
        }
    }

    void Record(const std::string& path, const FileResult& result) {
        m_totals.counts += result.counts;
        m_totals.unchanged += result.unchanged ? 1 : 0;
        m_totals.wouldChange += result.wouldChange ? 1 : 0;
        m_totals.cannotWrite = m_totals.cannotWrite || result.notWritable;
        if (!result.problem.empty()) {
            m_progress.Clear();
            Complain(ShownPath(path) + ": " + result.problem);
        }
        if (m_records) {
            m_records->Add(result);
        }
    }

    /// A run whose records cannot be written has converted all the same.
    void FinishRecords() {
        if (!m_records) {
            return;
        }
        try {
            if (m_totals.interrupted) {
                m_records->AddRest();
            }
            m_info.interrupted = m_totals.interrupted;
            m_records->Finish(m_info);
        } catch (const FileError& error) {
            Complain(error.what());
            m_totals.cannotWrite = true;
        }
    }

    const TreeOptions& m_options;
    RunInfo m_info;
    Progress m_progress;
    TreeWalk m_walk;
    std::optional<Records> m_records;
    std::map<std::uint64_t, FileResult> m_waiting; ///< by their numbers in the walk
    std::map<std::uint64_t, std::string> m_paths;  ///< of the files given and not yet recorded
    std::uint64_t m_next = 0;                      ///< number of the walk's next file
    std::uint64_t m_recorded = 0;                  ///< files recorded
    TreeTotals m_totals;
};

} // namespace

int RunTree(const TreeOptions& options) {
    CatchInterrupts();
    try {
        PrepareFolders(options);
        const TreeTotals totals = Run(options).ConvertAll();
        if (!options.quiet) {
            PrintSummary(totals, options, std::cout);
        }
        return StatusOf(totals, options);
    } catch (const FileError& error) {
        Complain(error.what());
        return kCannotRun;
    }
}

} // namespace recastor
