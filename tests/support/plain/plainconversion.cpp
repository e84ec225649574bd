#include "tests/support/plain/plainconversion.h"

#include "ctables/recastor/commandline.h"
#include "ctables/recastor/errorlines.h"
#include "ctables/recastor/parseigraph.h"
#include "ctables/recastor/recastor.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/memoryfile.h"
#include "tests/support/plain/plaincommands.h"
#include "tests/support/plain/plaintokens.h"
#include "tests/support/run.h"

#include <sstream>

namespace recastor {

namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

bool IsValidText(const std::string& text) {
    for (std::size_t at = 0; at < text.size();) {
        const int length = text[at] == '\0' ? 1 : ZELKMBmblen_A(&text[at], text.size() - at);
        if (length < 1) {
            return false;
        }
        at += static_cast<std::size_t>(length);
    }
    return true;
}

/// The command with a period in front of its last line break.
std::string Copied(std::string text) {
    text.pop_back();
    const bool carriageReturn = text.ends_with('\r');
    if (carriageReturn) {
        text.pop_back();
    }
    return text + (text.ends_with('.') ? "" : ".") + (carriageReturn ? "\r\n" : "\n");
}

std::string AsComment(const std::string& text) {
    std::string comment = " *";
    for (const char c : text) {
        comment += c;
        comment += c == '\n' ? " *" : "";
    }
    return comment + ".\n";
}

std::string Converted(const std::string& text, bool batch, std::int64_t lineOffset, bool tables) {
    std::ostringstream output;
    auto* const tokens = new ZELKTokenSequence(text, batch, 0); // the converter's own
    if (tables) {
        ParseTables(tokens, output, lineOffset);
    } else {
        ParseIgraph(tokens, output, lineOffset);
    }
    const std::string names = tables ? "TABLES command to be converted to CTABLES"
                                     : "IGRAPH command to be converted to GGRAPH";
    return "COMMENT -- Begin commenting out " + names + ".\n" + AsComment(text) +
           "COMMENT -- End commenting out " + names.substr(0, 6) + " command.\n" + output.str();
}

std::string ConvertedOrCopied(const PlainCommand& command, bool batch) {
    const std::int64_t lineOffset = command.firstLine - 1;
    try {
        const PlainTokens all = ReadTokens(command.text, batch, 0);
        const std::string start =
            all.kind == 0 && !all.tokens.empty() ? all.tokens[0].value.substr(0, 3) : "";
        return start == "TAB" || start == "IGR"
                   ? Converted(command.text, batch, lineOffset, start == "TAB")
                   : Copied(command.text);
    } catch (ParseError& error) {
        error.IncrementLine(static_cast<long>(lineOffset));
        throw;
    }
}

std::string ErrorLines(const ParseError& error) {
    std::string first;
    std::string second;
    GetParseErrorStrings(error, first, second);
    std::ostringstream lines;
    PrintErrorLine(first, lines);
    PrintErrorLine(second, lines);
    return lines.str();
}

/// The lines that hold more than white space, with the line ends of the input's first line.
std::string Tidied(const std::string& text, const std::string& input) {
    const std::size_t firstBreak = std::min(input.find_first_of("\r\n"), input.size());
    const bool crLf = input.compare(firstBreak, 2, "\r\n") == 0;
    std::string tidied;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.find_first_not_of(" \t\n\r") != std::string::npos) {
            tidied += line + (crLf && !line.ends_with('\r') ? "\r\n" : "\n");
        }
    }
    const std::string lineEnd = crLf ? "\r\n" : "\n";
    return tidied.empty() ? lineEnd : tidied;
}

} // namespace

RunTraces ProductRun(const std::string& input, bool batch) {
    const MemoryFile source(input);
    const MemoryFile target("");
    const CapturedStreams streams;
    EnableLocale();
    const int status = RunConversion({batch, source.Name(), target.Name()});
    return {target.Content(), streams.Output(), status};
}

RunTraces PlainRun(const std::string& input, bool batch) {
    if (input.starts_with("\xFF\xFE") || input.starts_with("\xFE\xFF")) {
        return {"", "", 1}; // in UTF-16, which is refused
    }
    const CapturedStreams streams;
    EnableLocale();
    if (!IsValidText(input)) {
        TreatHighBytesAsCharacters();
    }
    std::string output;
    std::optional<ParseError> error;
    try {
        PlainCommands commands = CutIntoCommands(input, batch);
        if (!commands.commands.empty() && commands.commands[0].text.starts_with(kByteOrderMark)) {
            commands.commands[0].text.erase(0, 3);
            output += kByteOrderMark;
        }
        for (const PlainCommand& command : commands.commands) {
            output += ConvertedOrCopied(command, batch);
        }
        error = commands.error;
    } catch (const ParseError& found) {
        error = found;
    }
    output += error ? ErrorLines(*error) : "";
    return {Tidied(output, input), streams.Output(), error ? 1 : 0};
}

} // namespace recastor
