/// Runs of the whole converter, in the test's own process or in one of its own.
#pragma once

#include <filesystem>
#include <istream>
#include <sstream>
#include <string>
#include <vector>

namespace recastor {

/// How the conversion of a text ended: the exit status, and what was written until then.
struct TextResult {
    int status = 0;
    std::string output;
};

/// Converts an input text; what the run says is dropped.
TextResult RunOnText(const std::string& input, bool batch = false);

/// The text that the converter writes for an input text; throws when the run fails.
std::string ConvertText(const std::string& input, bool batch = false);

/// What a TABLES command (without its period) is replaced by: the lines between the comment that
/// begins and the one that ends the CTABLES command.
std::string ConvertTables(const std::string& command);

/// What a program left behind.
struct RunResult {
    int status = 0; ///< the exit status; 128 and the signal's number when a signal ended it
    std::string output;
    std::string errors;
};

/// Runs `program` with `arguments` in the folder `directory`. It gets this process's environment
/// and the settings `NAME=VALUE` of `environment`.
RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const std::filesystem::path& directory,
                     const std::vector<std::string>& environment = {});

/// What is left of a stream.
std::string ReadAll(std::istream& stream);
std::string ReadFile(const std::filesystem::path& path);
void WriteFile(const std::filesystem::path& path, const std::string& text);

/// While it lives it takes what the process says on its standard streams.
class CapturedStreams {
public:
    CapturedStreams();
    ~CapturedStreams();
    CapturedStreams(const CapturedStreams&) = delete;
    CapturedStreams& operator=(const CapturedStreams&) = delete;

    std::string Output() const { return m_output.str(); }
    std::string Errors() const { return m_errors.str(); }

private:
    std::ostringstream m_output;
    std::ostringstream m_errors;
    std::streambuf* m_previousOutput;
    std::streambuf* m_previousErrors;
};

/// A folder of its own under the system's temporary folder, deleted with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace recastor
