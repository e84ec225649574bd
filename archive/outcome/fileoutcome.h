/// What became of one file of an archive: what the workers hand to the reports.
///
/// Every text is valid UTF-8 whatever the file's encoding, but for the path, which is the bytes
/// that the file system knows. Texts and paths may hold quotes, line breaks and markup: who
/// writes them escapes them.
#pragma once

#include "ctables/recastor/conversionlistener.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace recastor {

/// How the conversion of a file ended.
enum class FileStatus {
    kCopied,     ///< read to its end; it held nothing to convert
    kConverted,  ///< read to its end; every TABLES and IGRAPH command was converted
    kIncomplete, ///< read to its end; some command could not be converted
    kEnded,      ///< a text that cannot be split into tokens ended it; the rest is missing
    kFailed,     ///< no target was written: `message` tells why
    kSkipped,    ///< not tried (a link that leads out of the source, a device): `message` tells why
};

/// A command that is told of: every TABLES and IGRAPH command, and of the others those that hold
/// an error or swallow lines.
struct CommandOutcome {
    ReportedKind kind = ReportedKind::kOther;
    std::int64_t firstLine = 0; ///< of the source, 1-based
    std::int64_t lastLine = 0;
    std::string oldText; ///< with the period that ends it, without the last line feed
    std::string newText; ///< the same of its new form; empty when there is none
    std::vector<std::string> warnings;
    std::optional<ConversionError> error; ///< why there is no new form, or what ended the file
    /// Lines behind the command's first that begin with TABLES or IGRAPH: possibly commands that it
    /// swallowed.
    std::vector<std::int64_t> missedLines;

    // Pictures, each a JSON text; empty when there is none.
    std::string oldPicture;  ///< of the table that the old command makes
    std::string newPicture;  ///< of the table that the new command makes, read from its text
    std::string chartSketch; ///< of the chart that the command makes
};

/// One file.
struct FileOutcome {
    std::string path; ///< relative to the source folder, "/" between its parts; any bytes but NUL
    FileStatus status = FileStatus::kFailed;
    std::string message;            ///< why it failed, was skipped or ended; else empty
    std::vector<std::string> notes; ///< what should be known though the file was converted
    std::uint64_t sourceSize = 0;   ///< bytes
    std::uint64_t targetSize = 0;
    std::int64_t modified = 0; ///< of source and target, nanoseconds since 1970
    double milliseconds = 0;   ///< that the conversion took
    std::string contentHash;   ///< of the source, hexadecimal
    std::string encoding;      ///< "UTF-8", "8-bit" or the name that was asked for
    std::uint64_t copied = 0;  ///< commands of other kinds, told of or not
    std::vector<CommandOutcome> commands;
};

/// How much of one outcome, or of many, needs a look.
struct OutcomeCounts {
    std::uint64_t files = 0;
    std::uint64_t filesConverted = 0;  ///< read to their end without an error
    std::uint64_t filesIncomplete = 0; ///< kIncomplete and kEnded
    std::uint64_t filesFailed = 0;
    std::uint64_t filesSkipped = 0;
    std::uint64_t commandsConverted = 0;
    std::uint64_t commandsNotConverted = 0;
    std::uint64_t commandsCopied = 0;
    std::uint64_t warnings = 0; ///< of commands, and notes on files
    std::uint64_t missedLines = 0;

    OutcomeCounts& operator+=(const OutcomeCounts& other);
};

/// Whether commands of the kind are converted, not copied.
bool IsConvertible(ReportedKind kind);

/// The counts of one file.
OutcomeCounts CountsOf(const FileOutcome& outcome);

} // namespace recastor
