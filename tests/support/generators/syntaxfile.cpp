#include "tests/support/generators/syntaxfile.h"

#include "tests/support/generators/tablescommand.h"

namespace recastor {

namespace {

rc::Gen<SyntaxCommand> CommandsWith(const rc::Gen<std::string>& text, bool isData) {
    return rc::gen::apply(
        [isData](std::string words, bool hasNoPeriod, std::string blankLines) {
            return SyntaxCommand{std::move(words), isData, isData || !hasNoPeriod,
                                 std::move(blankLines)};
        },
        text, OnceIn(2), OneOf({"", "", "\n", "  \n\n"}));
}

rc::Gen<std::string> OrdinaryCommands() {
    return OneOf({"FREQUENCIES sex", "COMPUTE y = 1.5 + x", "TITLE 'a.b'", "IF (x > 1)\n  y = 2",
                  "CROSSTABS\n  /TABLES=a BY b\n  /CELLS=COUNT",
                  "DESCRIPTIVES age /* a note.\n  hours", "DOCUMENT TABLES of all. kinds\n  'again",
                  "COMMENT It's a comment. TABLES", "* TABLES /TABLE=x. and more", "**\n *", "a.b",
                  "STRING s (A8)\n \t/x", "IF (s = \"It's.\") s='TABLES /TABLE x'",
                  "!main sex /TABLE sex", "TITL\xC3\x84 '\xC3\xA4'"});
}

rc::Gen<std::string> DataBlocks() {
    const auto lines =
        UpTo(4, OneOf({"1 2", "  2.", "'open", " TABLES /TABLE x.", "END DATE.", "."}));
    return rc::gen::apply(
        [](const std::string& begin, const Strings& data, const std::string& end) {
            return begin + '\n' + Join(data, "\n") + (data.empty() ? "" : "\n") + end;
        },
        OneOf({"BEGIN DATA", "begin data."}), lines, OneOf({"END DATA.", "END DATA", "end data"}));
}

rc::Gen<std::string> TablesTexts() {
    const auto converted = rc::gen::map(TablesCommands(), CommandText);
    const auto doubtful = rc::gen::map(TablesCommandsOfAnyTotals(), CommandText);
    const auto broken = OneOf({"TABLES", "TABLES /TABLE", "Tables /TABLE sex BY\n  /TITLE 'x'",
                               "TAB /STATISTICS COUNT /TABLE a", "tables /TABLE a /STAT foo",
                               "TABLES\n \t/OBS=a TO b /TABLE a"});
    return Either<std::string>({converted, converted, doubtful, broken});
}

} // namespace

std::string InteractiveText(const SyntaxFile& file) {
    std::string text;
    for (const SyntaxCommand& command : file) {
        text += command.blankLines + command.text + (command.isData ? "\n" : ".\n");
    }
    return text;
}

std::string BatchText(const SyntaxFile& file) {
    std::string text;
    for (const SyntaxCommand& command : file) {
        const bool hasPeriod = !command.isData && command.hasPeriodInBatch;
        text += command.blankLines + command.text + (hasPeriod ? ".\n" : "\n");
    }
    return text;
}

rc::Gen<SyntaxFile> SyntaxFiles() {
    const auto tables = CommandsWith(TablesTexts(), false);
    const auto ordinary = CommandsWith(OrdinaryCommands(), false);
    return UpTo(6, Either<SyntaxCommand>(
                       {tables, tables, ordinary, ordinary, CommandsWith(DataBlocks(), true)}));
}

std::ostream& operator<<(std::ostream& out, const SyntaxCommand& command) {
    return out << '\n' << BatchText({command});
}

} // namespace recastor
