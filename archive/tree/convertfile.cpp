#include "archive/tree/convertfile.h"

#include "archive/outcome/shownpath.h"
#include "archive/outcome/showntext.h"
#include "archive/outcome/timestamp.h"
#include "archive/tree/outcomerecorder.h"
#include "archive/tree/pages.h"
#include "archive/tree/samecontent.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/version.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/inputfile.h"
#include "ctables/recastor/outputfile.h"
#include "ctables/recastor/recastor.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "platform/zelkmb/zelkmb.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <langinfo.h>
#include <new>
#include <ostream>
#include <sys/mman.h>

namespace recastor {

namespace {

std::int64_t Nanoseconds(const struct timespec& time) {
    return NanosecondsOf(time.tv_sec, time.tv_nsec);
}

std::uint64_t Size(const struct stat& status) {
    return static_cast<std::uint64_t>(status.st_size);
}

bool HasHash(const std::string& fullPath, const std::string& hash) {
    try {
        return HashOfFile(fullPath) == hash;
    } catch (const FileError&) {
        return false;
    }
}

/// A page that cannot be written leaves the target as good as it is.
void AddPage(const FileOutcome& outcome, const TreeOptions& options, FileResult& result) {
    if (options.report.empty()) {
        return;
    }
    try {
        WritePage(options.report, outcome);
    } catch (const FileError& error) {
        result.problem += (result.problem.empty() ? "" : "; ") + std::string(error.what());
        result.notWritable = true;
    }
}

/// Where the text of a run goes that writes no targets.
FileDescriptor FileInMemory() {
    FileDescriptor file(::memfd_create("target", MFD_CLOEXEC));
    if (!file.IsOpen()) {
        throw SystemError("cannot make a file in memory");
    }
    return file;
}

/// Whether every command of a file that was read to its end has a new form.
FileStatus StatusAtEnd(const FileOutcome& outcome) {
    const OutcomeCounts counts = CountsOf(outcome);
    if (counts.commandsNotConverted > 0) {
        return FileStatus::kIncomplete;
    }
    return counts.commandsConverted > 0 ? FileStatus::kConverted : FileStatus::kCopied;
}

} // namespace

FileResult ResultOf(const OutcomeRecord& record) {
    FileResult result;
    result.line = OutcomeLine(record);
    result.rows = RowsOf(record);
    result.counts = CountsOf(record.outcome);
    return result;
}

FileResult ResultWithoutTarget(const FileOutcome& outcome, const TreeOptions& options) {
    FileResult result = ResultOf({outcome, {kVersion, options.Settings()}});
    result.problem = outcome.message;
    AddPage(outcome, options, result);
    return result;
}

FileConverter::FileConverter(const TreeOptions& options) :
    m_options(options), m_by{kVersion, options.Settings()},
    m_folder(options.target, options.source) {}

FileResult FileConverter::Convert(const FileJob& job) {
    const auto start = std::chrono::steady_clock::now();
    auto previous = ReadOutcomeLine(job.previousLine);
    if (previous && BringUpToDate(*previous, job.path)) {
        FileResult result = ResultOf(*previous);
        result.unchanged = true;
        return result;
    }
    FileResult circumstances;
    FileOutcome outcome = ConvertAnew(job, circumstances);
    outcome.milliseconds =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    FileResult result = ResultOf({outcome, m_by});
    result.problem = circumstances.problem;
    result.wouldChange = circumstances.wouldChange;
    result.notWritable = circumstances.notWritable;
    AddPage(outcome, m_options, result);
    return result;
}

/// Whether the target of an earlier run is what this one would make. When only the source's time
/// has changed, the target and the record get it.
bool FileConverter::BringUpToDate(OutcomeRecord& record, const std::string& path) const {
    FileOutcome& outcome = record.outcome;
    struct stat source {};
    const auto target = m_folder.Find(path);
    const bool sameWork = record.by.version == m_by.version &&
                          record.by.settings == m_by.settings && outcome.path == path &&
                          outcome.status != FileStatus::kFailed &&
                          outcome.status != FileStatus::kSkipped;
    if (!sameWork || !HasItsPage(m_options.report, outcome) || !target ||
        !S_ISREG(target->st_mode) || ::stat(SourcePath(path).c_str(), &source) != 0 ||
        Size(source) != outcome.sourceSize || Size(*target) != outcome.targetSize ||
        Nanoseconds(target->st_mtim) != outcome.modified) {
        return false;
    }
    if (Nanoseconds(source.st_mtim) == outcome.modified) {
        return true;
    }
    outcome.modified = Nanoseconds(source.st_mtim);
    return HasHash(SourcePath(path), outcome.contentHash) && m_folder.SetTimes(path, source);
}

FileOutcome FileConverter::ConvertAnew(const FileJob& job, FileResult& result) {
    FileOutcome outcome;
    outcome.path = job.path;
    try {
        struct stat source {};
        InputFile input;
        if (::stat(SourcePath(job.path).c_str(), &source) != 0 ||
            !input.Open(SourcePath(job.path))) {
            throw SystemError("cannot be read");
        }
        outcome.sourceSize = Size(source);
        outcome.modified = Nanoseconds(source.st_mtim);
        outcome.contentHash = HashOfFile(SourcePath(job.path));
        EnableLocale();
        if (!input.Inspect()) {
            throw SystemError("cannot be read");
        }
        if (input.IsUtf16()) {
            throw UnreadableFile("is in UTF-16, which cannot be read: save it as UTF-8 first");
        }
        if (!job.twin.empty()) {
            outcome.notes.push_back("Its name differs from " + ShownPath(job.twin) +
                                    " in case only.");
        }
        WriteTarget(input, source, job, outcome, result);
    } catch (const FileError& error) {
        outcome.status = FileStatus::kFailed;
        outcome.message = error.what();
        outcome.commands.clear();
        outcome.copied = 0;
        result.problem = outcome.message;
    }
    return outcome;
}

void FileConverter::WriteTarget(InputFile& input, const struct stat& source, const FileJob& job,
                                FileOutcome& outcome, FileResult& result) {
    if (!m_options.WritesTargets()) {
        const FileDescriptor memory = FileInMemory();
        ConvertText(input, memory, outcome);
        result.wouldChange = !HasContentOf(memory, m_folder.FullPath(job.path));
        return;
    }
    try {
        TargetFile target(m_folder, job.path);
        if (!job.twin.empty() && target.IsFolderBlindToCase()) {
            throw FileError("its target would be that of " + ShownPath(job.twin));
        }
        ConvertText(input, target.File(), outcome);
        target.PutInPlace(source);
    } catch (const UnreadableFile&) {
        throw;
    } catch (const FileError&) {
        result.notWritable = true;
        throw;
    }
}

void FileConverter::ConvertText(InputFile& input, const FileDescriptor& target,
                                FileOutcome& outcome) const {
    outcome.encoding = m_options.encoding == "auto" ? "UTF-8" : m_options.encoding;
    std::string shownAs = nl_langinfo(CODESET);
    if (!input.IsValidText()) {
        TreatHighBytesAsCharacters();
        outcome.encoding = "8-bit";
        shownAs = TextShower::kLikeliest8Bit;
    }
    const TextShower shower(shownAs);
    OutcomeRecorder recorder(outcome, shower,
                             m_options.report.empty() ? Pictures::kNone : Pictures::kDrawn);
    LineWriteBuffer buffer(target);
    if (input.HasCrLf()) {
        buffer.UseCrLf();
    }
    std::ostream output(&buffer);
    bool whole = false;
    try {
        CommandStream commands(input.Stream(), m_options.batch);
        whole = ConvertCommands(commands, m_options.batch, output, recorder);
    } catch (const ReadFailure&) {
        throw UnreadableFile("cannot be read to its end");
    } catch (const std::bad_alloc&) {
        throw UnreadableFile("there is not enough memory to convert it");
    }
    TbTrTablesCommand::g_tablesCommand.Reset(nullptr);
    buffer.Finish();
    if (buffer.HasFailed()) {
        static_cast<void>(target.Write("\n")); // tells errno again, which others have set since
        throw SystemError("cannot write the target");
    }
    outcome.targetSize = SizeOf(target);
    outcome.status = whole ? StatusAtEnd(outcome) : FileStatus::kEnded;
    if (!whole) {
        outcome.message = outcome.commands.back().error->text;
    }
}

} // namespace recastor
