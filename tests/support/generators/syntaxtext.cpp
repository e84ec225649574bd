#include "tests/support/generators/syntaxtext.h"

#include <tuple>

namespace recastor {

namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;

rc::Gen<std::string> Joined(const rc::Gen<std::string>& pieces, const std::string& between) {
    return rc::gen::map(rc::gen::container<Texts>(pieces), [between](const Texts& texts) {
        std::string joined;
        for (const std::string& text : texts) {
            joined += (joined.empty() ? "" : between) + text;
        }
        return joined;
    });
}

rc::Gen<std::string> AnyOf(const Texts& texts) {
    return rc::gen::elementOf(texts);
}

/// What may stand behind the first word of an ordinary command. None ends in a period, so that a
/// line of them does not either.
const Texts& Tokens() {
    static const Texts tokens{"abc",    "v.1",  "by",         "1.5",     ".5",
                              "2E3",    "=",    "(",          ")",       "+",
                              "-",      "<>",   "&**",        ",",       "/",
                              "!x",     "'a.'", "\"b'\"",     "'it''s'", "gr\u00F6\u00DFe",
                              "TABLES", "#s",   "'\u20AC. '", "COMMENT", "*"};
    return tokens;
}

/// What may stand in a comment. Quotes and comment marks mean nothing there.
const Texts& FreeWords() {
    static const Texts words{"it's",   "e.g. this",     "\"",       "/*", "*/", "1.5", "`\\^",
                             "TABLES", "\u00E9t\u00E9", "END DATA", ","};
    return words;
}

/// Lines of inline data; some would end or begin a command elsewhere.
const Texts& DataLines() {
    static const Texts lines{"1 2 3",      "o'hara.", "",           "  ",  "TABLES /TABLE a.",
                             " END DATA",  "\t",      "END  DATA.", "* x", "\u20AC",
                             "BEGIN DATA", "1.",      "`",          " 5"};
    return lines;
}

/// `first` and up to three lines more, a blank in front of each.
rc::Gen<CopiedCommand> Lines(CopiedCommand::Kind kind, const Texts& firstWords,
                             const Texts& words) {
    const auto line = Joined(AnyOf(words), " ");
    const auto nonEmpty =
        rc::gen::suchThat(line, [](const std::string& text) { return !text.empty(); });
    const auto more = rc::gen::resize(3, rc::gen::container<Texts>(rc::gen::resize(6, nonEmpty)));
    return rc::gen::map(rc::gen::tuple(AnyOf(firstWords), rc::gen::resize(6, line), more),
                        [kind](const std::tuple<std::string, std::string, Texts>& parts) {
                            const auto& [word, rest, lines] = parts;
                            CopiedCommand command{kind, {rest.empty() ? word : word + ' ' + rest}};
                            for (const std::string& text : lines) {
                                command.lines.push_back("  " + text);
                            }
                            return command;
                        });
}

rc::Gen<CopiedCommand> DataBlocks() {
    return rc::gen::map(
        rc::gen::tuple(AnyOf({"BEGIN DATA", "begin data.", "Begin Data ."}),
                       rc::gen::resize(6, rc::gen::container<Texts>(AnyOf(DataLines()))),
                       AnyOf({"END DATA", "end data.", "End Data and so on"})),
        [](const std::tuple<std::string, Texts, std::string>& parts) {
            const auto& [begin, data, end] = parts;
            CopiedCommand command{CopiedCommand::Kind::kData, {begin}};
            command.lines.insert(command.lines.end(), data.begin(), data.end());
            command.lines.push_back(end);
            return command;
        });
}

} // namespace

rc::Gen<std::string> AnySyntax() {
    static const Texts pieces{
        "abc",    "x1",   "COMMENT ", "COM",  "DOCUMENT ", "BEGIN ", "DATA", "END DATA",
        "to",     "'",    "\"",       "''",   "/*",        "*/",     "/",    "*",
        "**",     "+",    "-",        ".",    ". ",        ".\n",    ",",    "!",
        "1",      "1e",   "0x1",      "2.5",  "1e999",     "E+",     "`",    "\x01",
        "_",      "<",    ">",        "=",    "&*",        "~",      " ",    "  ",
        "\t",     "\n",   "\n\n",     "\r\n", "\r",        "\n ",    "\n\r", "\u00E9",
        "\u20AC", "\xFF", "\xC3",     "\0"s,  "#",         "$",      "{",    "\v"};
    return Joined(AnyOf(pieces), "");
}

rc::Gen<CopiedCommand> CopiedCommands() {
    return rc::gen::oneOf(
        Lines(CopiedCommand::Kind::kOrdinary,
              {"FREQUENCIES", "Execute", "select", "#x", "!macro", "BEGIN", "X1.2"}, Tokens()),
        Lines(CopiedCommand::Kind::kComment,
              {"*", "COMMENT", "compute", "**", "*>", "DOCUMENT", "doc"}, FreeWords()),
        DataBlocks());
}

std::ostream& operator<<(std::ostream& out, const CopiedCommand& command) {
    for (const std::string& line : command.lines) {
        out << line << '\n';
    }
    return out;
}

} // namespace recastor
