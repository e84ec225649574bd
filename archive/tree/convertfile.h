/// The conversion of one file of an archive, from its place in the source to that in the target.
#pragma once

#include "archive/outcome/fileoutcome.h"
#include "archive/outcome/outcomejson.h"
#include "archive/tree/reports.h"
#include "archive/tree/targetfolder.h"
#include "archive/tree/treeoptions.h"

#include <string>

namespace recastor {

class InputFile;

/// A file to convert.
struct FileJob {
    std::string path;
    /// The file before it in its folder whose name differs in case only; empty when there is none.
    std::string twin;
    std::string previousLine; ///< of an earlier run's manifest; empty when there is none
};

/// What came of it.
struct FileResult {
    std::string line; ///< for the manifest
    ReportRows rows;
    OutcomeCounts counts;
    std::string problem;      ///< why there is no target, for standard error; empty when there is
    bool unchanged = false;   ///< the target of an earlier run was left as it is
    bool wouldChange = false; ///< the target is not, or was not, what the run makes it
    bool notWritable = false; ///< there is no target because it could not be written
};

/// The result for a file that became what `record` says, and nothing else is known of.
FileResult ResultOf(const OutcomeRecord& record);

/// The result for a file that there is no target of, with its page. `outcome` tells why.
FileResult ResultWithoutTarget(const FileOutcome& outcome, const TreeOptions& options);

/// Converts file after file. One for each process, since encodings are the process's.
class FileConverter {
public:
    /// `options` is not owned.
    explicit FileConverter(const TreeOptions& options);

    /// Whatever is wrong with the file is told in the result.
    FileResult Convert(const FileJob& job);

private:
    bool BringUpToDate(OutcomeRecord& record, const std::string& path) const;
    FileOutcome ConvertAnew(const FileJob& job, FileResult& result);
    void ConvertText(InputFile& input, const FileDescriptor& target, FileOutcome& outcome) const;
    void WriteTarget(InputFile& input, const struct stat& source, const FileJob& job,
                     FileOutcome& outcome, FileResult& result);
    std::string SourcePath(const std::string& path) const { return m_options.source + '/' + path; }

    const TreeOptions& m_options;
    ConvertedBy m_by;
    TargetFolder m_folder;
};

} // namespace recastor
