// The examples of the documentation. A line `<!-- golden NAME -->` in a document stands before two
// fenced blocks: text of the golden case's input, and text of its output.

#include "tests/support/goldencases.h"
#include "tests/support/run.h"

#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

struct Example {
    std::string document;
    std::string name;
    std::string before;
    std::string after;
};

/// The next fenced block, each of its lines with a line feed.
std::string ReadBlock(std::istream& lines) {
    std::string line;
    while (std::getline(lines, line) && !line.starts_with("```")) {
    }
    std::string block;
    while (std::getline(lines, line) && !line.starts_with("```")) {
        block += line + '\n';
    }
    return block;
}

void ReadExamples(const fs::path& document, std::vector<Example>& examples) {
    const std::string mark = "<!-- golden ";
    std::istringstream lines(ReadFile(document));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(mark)) {
            Example example{document.filename().string(),
                            line.substr(mark.size(), line.find(" -->") - mark.size()),
                            ReadBlock(lines),
                            {}};
            example.after = ReadBlock(lines);
            examples.push_back(example);
        }
    }
}

std::vector<Example> AllExamples() {
    const fs::path root = RECASTOR_ROOT;
    std::vector<Example> examples;
    ReadExamples(root / "README.md", examples);
    for (const auto& entry : fs::directory_iterator(root / "docs")) {
        ReadExamples(entry.path(), examples);
    }
    return examples;
}

TEST(Documentation, ExamplesAreGoldenCases) {
    const auto examples = AllExamples();
    for (const Example& example : examples) {
        SCOPED_TRACE(example.document + ", " + example.name);
        const fs::path folder = fs::path(RECASTOR_TESTS) / "golden" / example.name;
        ASSERT_FALSE(example.before.empty());
        ASSERT_FALSE(example.after.empty());
        EXPECT_NE(ReadFile(folder / "input.syn").find(example.before), std::string::npos);
        EXPECT_NE(ReadFile(folder / "output.syn").find(example.after), std::string::npos);
    }
}

/// Without this the comparison would go on with the marks that are left when others are misspelled.
TEST(Documentation, CasesThatAreNamedAfterADocumentAreShownThere) {
    std::set<std::string> shown;
    for (const Example& example : AllExamples()) {
        shown.insert(example.name);
    }
    int count = 0;
    for (const fs::path& folder : GoldenCases(fs::path(RECASTOR_TESTS) / "golden")) {
        const std::string name = folder.filename().string();
        if (name == "readme" || name.starts_with("guide_")) {
            EXPECT_TRUE(shown.contains(name)) << name;
            ++count;
        }
    }
    EXPECT_GT(count, 1);
}

} // namespace

} // namespace recastor
