// Laws of files in which nothing is converted.

#include "tests/support/generators/syntaxtext.h"
#include "tests/support/law.h"
#include "tests/support/run.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

using Commands = std::vector<CopiedCommand>;
using Lines = std::vector<std::string>;

bool IsBlank(const std::string& line) {
    return line.find_first_not_of(" \t") == std::string::npos;
}

/// The commands as they must come out: no line of white space only, and each with its period.
std::string Copied(const Commands& commands, const std::string& lineEnd) {
    std::string text;
    for (const CopiedCommand& command : commands) {
        for (const std::string& line : command.lines) {
            text += IsBlank(line) ? "" : line + lineEnd;
        }
        const std::size_t end = text.size() - lineEnd.size();
        text.insert(end, text[end - 1] == '.' ? "" : ".");
    }
    return text.empty() ? lineEnd : text;
}

std::string OneOf(const Lines& texts) {
    return *rc::gen::elementOf(texts);
}

/// How a command's last line may go on, the period first.
std::string Ending(const CopiedCommand& command) {
    switch (command.kind) {
    case CopiedCommand::Kind::kData:
        return "";
    case CopiedCommand::Kind::kComment:
        return OneOf({".", ". ", ".\t "});
    default:
        return OneOf({".", ".  ", ".\t", ". /* it's", "./* x. y", ". \t/* **"});
    }
}

/// A file of the commands in which periods end them, with blank lines anywhere.
std::string InteractiveFile(const Commands& commands, const std::string& lineEnd) {
    std::string file;
    for (const CopiedCommand& command : commands) {
        const auto blankLine = [&] { return OneOf({"", "", "", lineEnd, " \t" + lineEnd}); };
        const bool isData = command.kind == CopiedCommand::Kind::kData;
        file += blankLine();
        for (const std::string& line : command.lines) {
            file += line + (&line == &command.lines.back() ? Ending(command) : "") + lineEnd;
            file += isData ? "" : blankLine();
        }
    }
    return file;
}

/// A file in which the layout of the lines ends them; some have a period too.
std::string BatchFile(const Commands& commands, const std::string& lineEnd) {
    std::string file;
    for (const CopiedCommand& command : commands) {
        for (const std::string& line : command.lines) {
            file += line;
            if (&line == &command.lines.back()) {
                file += OneOf({"", Ending(command)});
            }
            file += lineEnd;
        }
        file += OneOf({"", lineEnd, "\t" + lineEnd + lineEnd});
    }
    return file;
}

Commands SomeCommands() {
    return *rc::gen::resize(8, rc::gen::container<Commands>(rc::gen::resize(20, CopiedCommands())));
}

TEST(CopyingLaws, InteractiveCommandsComeOutAsTheyWentIn) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Commands commands = SomeCommands();
            const std::string lineEnd = OneOf({"\n", "\r\n"});
            const std::string file = InteractiveFile(commands, lineEnd);
            const bool crLf = file.find("\r\n") != std::string::npos;
            RC_ASSERT(ConvertText(file) == Copied(commands, crLf ? "\r\n" : "\n"));
        },
        300));
}

TEST(CopyingLaws, BatchCommandsComeOutAsTheyWentIn) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Commands commands = SomeCommands();
            const std::string lineEnd = OneOf({"\n", "\r\n"});
            const std::string file = BatchFile(commands, lineEnd);
            const bool crLf = file.find("\r\n") != std::string::npos;
            RC_ASSERT(ConvertText(file, true) == Copied(commands, crLf ? "\r\n" : "\n"));
        },
        300));
}

TEST(CopyingLaws, CarriageReturnsAloneAreLineEndsToo) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Commands commands = SomeCommands();
            const std::string file = InteractiveFile(commands, "\r");
            RC_ASSERT(ConvertText(file) == Copied(commands, "\n"));
        },
        300));
}

/// The lines of an input: a carriage return that no line feed follows ends one as well. Those in
/// front of line feeds are left out.
Lines InputLines(const std::string& text) {
    Lines lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    }
    return lines;
}

/// The lines of an output, without what reports the error that ended the run.
Lines OutputLines(const std::string& text) {
    const std::size_t error = text.find("***** Error while tokenizing");
    return InputLines(text.substr(0, error));
}

/// Whether a line of the output is the input's, but for its period and what stood behind that.
bool IsCopyOf(const std::string& line, const std::string& input) {
    if (line == input || line == input + '.') {
        return true;
    }
    if (line.empty() || line.back() != '.' || !input.starts_with(line)) {
        return false;
    }
    std::string_view dropped = std::string_view(input).substr(line.size());
    dropped.remove_prefix(dropped.starts_with('.') ? 1 : 0); // "x.." is "x." and its period
    dropped.remove_prefix(std::min(dropped.find_first_not_of(" \t"), dropped.size()));
    return dropped.empty() || dropped.starts_with("/*");
}

/// Whether the output holds the input's first lines in order, all that are not blank; whole when
/// no error ended the run.
bool HoldsLinesOf(const Lines& output, const Lines& input, bool whole) {
    // Row by row: whether the first j lines of the output come from the input's lines so far.
    std::vector<bool> comes(output.size() + 1, false);
    comes[0] = true;
    for (const std::string& line : input) {
        if (!whole && comes.back()) {
            return true;
        }
        std::vector<bool> next(output.size() + 1, false);
        for (std::size_t j = 0; j <= output.size(); ++j) {
            next[j] = (comes[j] && IsBlank(line)) ||
                      (j > 0 && comes[j - 1] && IsCopyOf(output[j - 1], line));
        }
        comes = next;
    }
    return comes.back();
}

TEST(CopyingLaws, NoLineOfAnyTextIsLost) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string file = *AnySyntax();
            const bool batch = *rc::gen::arbitrary<bool>();
            const TextResult result = RunOnText(file, batch);
            const bool whole = result.status == 0;
            const Lines lines = OutputLines(result.output);
            if (whole && lines == Lines{""}) { // nothing was there to copy
                const Lines input = InputLines(file);
                RC_ASSERT(std::all_of(input.begin(), input.end(), IsBlank));
            } else {
                RC_ASSERT(HoldsLinesOf(lines, InputLines(file), whole));
            }
        },
        2000));
}

TEST(CopyingLaws, NoLineOfTheOutputIsBlankAndTheLastIsEnded) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string output = RunOnText(*AnySyntax(), *rc::gen::arbitrary<bool>()).output;
            const Lines lines = InputLines(output);
            RC_ASSERT(output.ends_with('\n'));
            RC_ASSERT(lines.size() == 1 || std::none_of(lines.begin(), lines.end(), IsBlank));
        },
        2000));
}

} // namespace

} // namespace recastor
