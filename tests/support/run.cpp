#include "tests/support/run.h"

#include "ctables/recastor/commandline.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/memoryfile.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

extern char** environ;

namespace recastor {

namespace fs = std::filesystem;

namespace {

/// The texts as the system's calls take them: behind the last stands a null.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// The line behind the one that begins with `start`.
std::size_t BehindLine(const std::string& text, const std::string& start) {
    const std::size_t line = text.find(start);
    if (line == std::string::npos) {
        throw std::logic_error("no line begins with " + start + " in\n" + text);
    }
    return text.find('\n', line) + 1;
}

} // namespace

TextResult RunOnText(const std::string& input, bool batch) {
    const MemoryFile inputFile(input);
    const MemoryFile outputFile("");
    const CapturedStreams silence;
    EnableLocale();
    const int status = RunConversion({batch, inputFile.Name(), outputFile.Name()});
    return {status, outputFile.Content()};
}

std::string ConvertText(const std::string& input, bool batch) {
    TextResult result = RunOnText(input, batch);
    if (result.status != 0) {
        throw std::runtime_error("the run failed: " + result.output);
    }
    return std::move(result.output);
}

std::string ConvertTables(const std::string& command) {
    const std::string output = ConvertText(command + ".\n");
    const std::size_t begin = BehindLine(output, "COMMENT -- Begin CTABLES command.");
    return output.substr(begin, output.find("COMMENT -- End CTABLES command.") - begin);
}

RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const fs::path& directory, const std::vector<std::string>& environment) {
    const TemporaryFolder folder;
    const fs::path output = folder.Path() / "stdout";
    const fs::path errors = folder.Path() / "stderr";

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, directory.c_str());
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), O_WRONLY | O_CREAT,
                                     0600);
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> settings = environment;
    for (char** setting = environ; *setting != nullptr; ++setting) {
        settings.emplace_back(*setting);
    }
    pid_t child = 0;
    const int failure = posix_spawn(&child, program.c_str(), &actions, nullptr,
                                    Pointers(words).data(), Pointers(settings).data());
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) {
        throw std::runtime_error("cannot start " + program);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), ReadFile(output),
            ReadFile(errors)};
}

std::string ReadAll(std::istream& stream) {
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return ReadAll(file);
}

void WriteFile(const fs::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

CapturedStreams::CapturedStreams() :
    m_previousOutput(std::cout.rdbuf(m_output.rdbuf())),
    m_previousErrors(std::cerr.rdbuf(m_errors.rdbuf())) {}

CapturedStreams::~CapturedStreams() {
    std::cout.rdbuf(m_previousOutput);
    std::cerr.rdbuf(m_previousErrors);
}

TemporaryFolder::TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "recastor-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("cannot make a temporary folder");
    }
    m_path = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

} // namespace recastor
