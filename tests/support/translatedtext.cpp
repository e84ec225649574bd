#include "tests/support/translatedtext.h"

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/commandtree.h"

#include <algorithm>
#include <stdexcept>

namespace recastor {

std::string TranslatedText(const std::string& command) {
    std::string text;
    return ParseTree::TranslateTablesCommand(&ParseCommand(command), text) ? text : RecordedError();
}

std::string TranslatedSubcommands(const std::string& command, const std::string& start) {
    const std::string mark = "\n  /";
    std::string text = TranslatedText(command);
    if (text.starts_with("error ")) {
        return text;
    }
    std::string found;
    for (std::size_t at = text.find(mark); at != std::string::npos;) {
        const std::size_t next = text.find(mark, at + 1);
        const std::size_t first = at + mark.size() - 1;
        const std::string subcommand = text.substr(first, next - first);
        if (subcommand.starts_with(start)) {
            found += (found.empty() ? "" : " | ") + subcommand;
        }
        at = next;
    }
    return found;
}

std::string TranslatedTable(const std::string& command) {
    const std::string start = "/TABLE ";
    const std::string subcommand = TranslatedSubcommands(command, start);
    return subcommand.starts_with(start) ? subcommand.substr(start.size()) : subcommand;
}

std::string TranslatedCategories(const std::string& command) {
    const std::string start = "/CATEGORIES VAR=";
    const std::string all = start + "ALL EMPTY=EXCLUDE MISSING=EXCLUDE";
    std::string lines = TranslatedSubcommands(command, start);
    if (!lines.starts_with(all)) {
        throw std::logic_error("not first: " + all + ", but " + lines);
    }
    lines.erase(0, all.size());
    const std::string between = " | " + start;
    for (std::size_t at = 0; (at = lines.find(between, at)) != std::string::npos;) {
        lines.replace(at, between.size(), at == 0 ? "" : " | ");
    }
    return lines;
}

std::string RecordedError() {
    int line = 0;
    int column = 0;
    int code = 0;
    std::string text;
    const int type = TbTrTablesCommand::g_tablesCommand.GetParseErrorInfo(line, column, code, text);
    return "error " + std::to_string(type) + ' ' + std::to_string(code) + '@' +
           std::to_string(line) + ':' + std::to_string(column) + " \"" + text + '"';
}

std::string Pieces(const OutputSequence& sequence) {
    // In lines of one byte the layout leaves an empty line where a comma takes a piece along.
    std::string lines = sequence.Print(1, 0);
    const auto isDouble = [](char a, char b) { return a == '\n' && b == '\n'; };
    lines.erase(std::unique(lines.begin(), lines.end(), isDouble), lines.end());
    return lines.starts_with('\n') ? lines.substr(1) : lines;
}

} // namespace recastor
