#include "tests/support/goldencases.h"

#include "ctables/recastor/commandline.h"
#include "tests/support/run.h"

#include <algorithm>
#include <sstream>

namespace recastor {

namespace fs = std::filesystem;

std::vector<fs::path> GoldenCases(const fs::path& folder) {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.is_directory()) {
            cases.push_back(entry.path());
        }
    }
    std::sort(cases.begin(), cases.end());
    return cases;
}

std::vector<std::string> GoldenArguments(const fs::path& goldenCase) {
    if (!fs::exists(goldenCase / "arguments")) {
        return {"input.syn", "output.syn"};
    }
    std::istringstream lines(ReadFile(goldenCase / "arguments"));
    std::vector<std::string> arguments;
    for (std::string line; std::getline(lines, line);) {
        arguments.push_back(line);
    }
    return arguments;
}

bool IsBatchCase(const fs::path& goldenCase) {
    const std::vector<std::string> arguments = GoldenArguments(goldenCase);
    std::vector<const char*> words{"recastor"};
    for (const std::string& argument : arguments) {
        words.push_back(argument.c_str());
    }
    const auto request = ReadArguments(static_cast<int>(words.size()), words.data());
    return request && request->batch;
}

} // namespace recastor
