// Laws of the whole conversion.

#include "archive/picture/ctablesgrammar.h"
#include "tests/support/convertedtables.h"
#include "tests/support/generators/syntaxfile.h"
#include "tests/support/law.h"
#include "tests/support/run.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

TEST(ConversionLaws, AConvertedFileConvertsToItself) {
    const rc::Gen<SyntaxFile> files = SyntaxFiles();
    EXPECT_TRUE(HoldsAlways([&] {
        const std::string once = ConvertText(InteractiveText(*files));
        RC_ASSERT(ConvertText(once) == once);
    }));
}

TEST(ConversionLaws, AConvertedBatchFileConvertsToItself) {
    const rc::Gen<SyntaxFile> files = SyntaxFiles();
    EXPECT_TRUE(HoldsAlways([&] {
        const std::string once = ConvertText(BatchText(*files), true);
        RC_ASSERT(ConvertText(once, true) == once);
    }));
}

TEST(ConversionLaws, BatchAndInteractiveFormsConvertAlike) {
    const rc::Gen<SyntaxFile> files = SyntaxFiles();
    EXPECT_TRUE(HoldsAlways([&] {
        SyntaxFile file = *files;
        for (SyntaxCommand& command : file) {
            std::erase(command.blankLines, ' '); // a line of blanks continues a batch command
        }
        const std::string interactive = ConvertText(InteractiveText(file));
        RC_ASSERT(ConvertText(BatchText(file), true) == interactive);
        RC_ASSERT(ConvertText(InteractiveText(file), true) == interactive);
    }));
}

bool IsTables(const SyntaxCommand& command) {
    const std::string start = command.text.substr(0, 3);
    return start == "TAB" || start == "Tab" || start == "tab";
}

/// The lines that are not of blanks only, each behind `mark` and less the period that may end it.
Strings LinesOf(const std::string& text, const std::string& mark = "") {
    Strings lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.find_first_not_of(" \t") != std::string::npos) {
            lines.push_back(mark + (line.ends_with('.') ? line.substr(0, line.size() - 1) : line));
        }
    }
    return lines;
}

/// The first line of the file that the output has not behind the lines before it, as the line of a
/// comment for a TABLES command and copied for any other; empty when it has all.
std::string FirstLineLost(const SyntaxFile& file, const std::string& output) {
    const Strings written = LinesOf(output);
    auto place = written.begin();
    for (const SyntaxCommand& command : file) {
        for (const std::string& line : LinesOf(command.text, IsTables(command) ? " *" : "")) {
            place = std::find(place, written.end(), line);
            if (place == written.end()) {
                return line;
            }
            ++place;
        }
    }
    return "";
}

TEST(ConversionLaws, NoLineIsLost) {
    const rc::Gen<SyntaxFile> files = SyntaxFiles();
    EXPECT_TRUE(HoldsAlways([&] {
        const SyntaxFile file = *files;
        for (const bool batch : {false, true}) {
            const std::string output =
                ConvertText(batch ? BatchText(file) : InteractiveText(file), batch);
            RC_LOG(output);
            RC_ASSERT(FirstLineLost(file, output) == "");
        }
    }));
}

TEST(ConversionLaws, EveryTablesCommandIsAnsweredInItsPlace) {
    const rc::Gen<SyntaxFile> files = SyntaxFiles();
    EXPECT_TRUE(HoldsAlways([&] {
        const SyntaxFile file = *files;
        const std::string output = ConvertText(InteractiveText(file));
        RC_LOG(output);
        const auto answers = ConvertedTablesIn(output);
        RC_ASSERT(static_cast<std::ptrdiff_t>(answers.size()) ==
                  std::count_if(file.begin(), file.end(), IsTables));
        for (const ConvertedTables& answer : answers) {
            if (answer.commands.empty()) {
                RC_ASSERT(answer.messages.size() == 2U);
            } else {
                ReadCtables(answer.commands);
            }
        }
    }));
}

} // namespace

} // namespace recastor
