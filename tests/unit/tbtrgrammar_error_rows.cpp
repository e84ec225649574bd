// The errors of commands that do not parse. In a row's command "^" stands in front of the character
// whose place is told: counted from 1 on the command's first line, from 0 on every later one.

#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/unit/tbtrgrammar_rows.h"

#include <algorithm>

namespace recastor {

namespace {

using Command = TbTrTablesCommand;
using Rows = std::vector<ParseRow>;

ParseRow Rejected(Command::ErrorType type, int code, std::string command,
                  const std::string& warnings = {}) {
    const auto mark = command.find('^');
    command.erase(mark, 1);
    const std::string before = command.substr(0, mark);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t column = line == 1 ? mark + 1 : mark - before.rfind('\n') - 1;
    return {command, "error " + std::to_string(type) + ' ' + std::to_string(code) + '@' +
                         std::to_string(line) + ':' + std::to_string(column) + " \"\"" + warnings};
}

struct BadRow {
    int code;
    std::string text;
};

/// Each text behind the command's name is an error in the arguments of the code's subcommand.
Rows BadArguments(const std::vector<BadRow>& badRows) {
    Rows rows;
    for (const auto& [code, text] : badRows) {
        rows.push_back(Rejected(Command::kBadArgument, code, "TABLES " + text));
    }
    return rows;
}

Rows BadSyntax(const std::vector<std::string>& texts) {
    Rows rows;
    for (const std::string& text : texts) {
        rows.push_back(Rejected(Command::kBadSyntax, 0, text));
    }
    return rows;
}

Rows OneKeywordSubcommands() {
    return BadArguments({
        {TB_AUTOLABEL, "/^AUTOLABEL 5 /TABLE t"},
        {TB_AUTOLABEL, "^AUTOLABEL x /TABLE t"},
        {TB_AUTOLABEL, "/^AUTO CASES /TABLE t"},
        {TB_AUTOLABEL, "/^AUTOLABEL ON OFF /TABLE t"},
        {TB_AUTOLABEL, "/^AUTOLABEL OFF 'x'"},
        {TB_AUTOLABEL, "/^AUTOLABEL BREAK z /TABLE t"},
        {TB_BASE, "/^BASE 'x' /TABLE t"},
        {TB_BASE, "/^BASE CASES /TABLE t"},
        {TB_BASE, "/^BASE ANSWERING ALL /TABLE t"},
        {TB_BASE, "/^BASE ALL ("},
        {TB_BASE, "/^BASE TABLE t"},
        {TB_GBASE, "/^GBASE ALL /TABLE t"},
        {TB_GBASE, "/^GBASE CASES RESPONSES /TABLE t"},
        {TB_GBASE, "/BASE ALL /^gbase BASE /TABLE t"},
    });
}

Rows MissingNeedsOneOfItsTwoKeywords() {
    return BadArguments({
        {TB_MISSINGSUBCOM, "/^MISSING"},
        {TB_MISSINGSUBCOM, "/^MISSING /TABLE t"},
        {TB_MISSINGSUBCOM, "/^MISSING /CAPTION 'x' /TABLE t"},
        {TB_MISSINGSUBCOM, "/^MISSING ON /TABLE t"},
        {TB_MISSINGSUBCOM, "/^MISSING MISSING /TABLE t"},
        {TB_MISSINGSUBCOM, "/^MISSING INCLUDE EXCLUDE /TABLE t"},
        {TB_MISSINGSUBCOM, "/^MISSING EXCLUDE EXCLUDE"},
    });
}

Rows LiteralSubcommands() {
    std::vector<BadRow> rows;
    for (const auto& [code, name] :
         {BadRow{TB_CAPTION, "CAPTION"}, BadRow{TB_TITLE, "TITLE"}, BadRow{TB_CORNER, "CORNER"}}) {
        for (const char* arguments : {" x", " 'a' 5", " ('a')", " 'a' b /TABLE u"}) {
            rows.push_back({code, "/TABLE t /^" + name + arguments});
        }
    }
    return BadArguments(rows);
}

Rows Totals() {
    std::vector<BadRow> rows;
    for (const auto& [code, name] : {BadRow{TB_FTOTAL, "FTOTAL"}, BadRow{TB_PTOTAL, "PTOTAL"}}) {
        for (const char* arguments : {"", " /TABLE t", " 'label' /TABLE t", " a 'x' 'y' /TABLE t",
                                      " a TO b /TABLE t", " a 5", " !a /TABLE t"}) {
            rows.push_back({code, "/^" + name + arguments});
        }
    }
    return BadArguments(rows);
}

Rows MultipleResponseGroups() {
    return BadArguments({
        {TB_MRGROUP, "/^MRGROUP"},
        {TB_MRGROUP, "/^MRGROUP /TABLE t"},
        {TB_MRGROUP, "/^MRGROUP g /TABLE t"},
        {TB_MRGROUP, "/^MRGROUP g 'label'"},
        {TB_MRGROUP, "/^MRGROUP 'label' a /TABLE t"},
        {TB_MRGROUP, "/^MRGROUP g a 'label' /TABLE t"},
        {TB_MRGROUP, "/^MRGROUP g a TO /TABLE t"},
        {TB_MRGROUP, "/^MRGROUP g a TO b TO c /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP"},
    });
}

Rows CountedValueIsNeededByMdgroupOnly() {
    return BadArguments({
        {TB_MRGROUP, "/^MRGROUP g a (1) /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g"},
        {TB_MDGROUP, "/^MDGROUP g (1) /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g a /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g 'label' a b"},
        {TB_MDGROUP, "/^MDGROUP g a () /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g a (x) /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g a (1 /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g a (1 2) /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g a (1) b /TABLE t"},
        {TB_MDGROUP, "/^MDGROUP g a (1) (2) /TABLE t"},
    });
}

Rows Observation() {
    return BadArguments({
        {TB_OBSERVATION, "/^OBSERVATION"},
        {TB_OBSERVATION, "/^OBSERVATION /TABLE t"},
        {TB_OBSERVATION, "/^OBSERVATION 5 /TABLE t"},
        {TB_OBSERVATION, "/^OBSERVATION TO b /TABLE t"},
        {TB_OBSERVATION, "/^OBSERVATION a TO /TABLE t"},
        {TB_OBSERVATION, "/^OBSERVATION a TO /TITLE 'x'"},
        {TB_OBSERVATION, "/^OBSERVATION a TO b 5 /TABLE t"},
        {TB_OBSERVATION, "/^OBSERVATION a 'x' /TABLE t"},
    });
}

Rows Sort() {
    return BadArguments({
        {TB_SORT, "/TABLE t /^SORT"},
        {TB_SORT, "/TABLE t /^SORT /TABLE u"},
        {TB_SORT, "/TABLE t /^SORT /BASE ALL"},
        {TB_SORT, "/TABLE t /^SORT ASCENDING"},
        {TB_SORT, "/TABLE t /^SORT 5"},
        {TB_SORT, "/TABLE t /^SORT !x"},
        {TB_SORT, "/TABLE t /^SORT x ()"},
        {TB_SORT, "/TABLE t /^SORT x (mean"},
        {TB_SORT, "/TABLE t /^SORT x (mean("},
        {TB_SORT, "/TABLE t /^SORT x (mean(5))"},
        {TB_SORT, "/TABLE t /^SORT x (mean())"},
        {TB_SORT, "/TABLE t /^SORT x (mean) 'x'"},
        {TB_SORT, "/TABLE t /^SORT x (mean y)"},
    });
}

Rows Statistics() {
    return BadArguments({
        {TB_STATISTICS, "/TABLE t /^STATISTICS"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS /TABLE u"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS U"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS U U mean"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS 5 mean"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS ALL"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean("},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean( /BASE ALL"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean(5)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean(x 5)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean(:a)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean('M' :)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean('M' : 'x')"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean('M' : a TO b)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean('M' 'N')"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean((f8) (f8))"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean(()) sum"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean 5 6"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean(!x)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean)"},
        {TB_STATISTICS, "/TABLE t /^STATISTICS mean 'M'"},
    });
}

Rows Table() {
    return BadArguments({
        {TB_TABLE, "/^TABLE"},
        {TB_TABLE, "^TABLE /TABLE t"},
        {TB_TABLE, "/^TABLE /CAPTION 'x'"},
        {TB_TABLE, "/^TABLE BY a"},
        {TB_TABLE, "/^TABLE a BY"},
        {TB_TABLE, "/^TABLE a BY BY b"},
        {TB_TABLE, "/^TABLE a b"},
        {TB_TABLE, "/^TABLE a TO b"},
        {TB_TABLE, "/^TABLE a + /TITLE 'x'"},
        {TB_TABLE, "/^TABLE a > > b"},
        {TB_TABLE, "/^TABLE + a"},
        {TB_TABLE, "/^TABLE -a"},
        {TB_TABLE, "/^TABLE a - b"},
        {TB_TABLE, "/^TABLE a + 5"},
        {TB_TABLE, "/^TABLE ()"},
        {TB_TABLE, "/^TABLE (a"},
        {TB_TABLE, "/^TABLE a)"},
        {TB_TABLE, "/^TABLE (a b)"},
        {TB_TABLE, "/^TABLE (a BY b)"},
        {TB_TABLE, "/^TABLE 'x'"},
        {TB_TABLE, "/^TABLE ALL"},
        {TB_TABLE, "/^TABLE !a"},
        {TB_TABLE, "/^TABLE (!x"},
        {TB_TABLE, "/^TABLE (!x) 5"},
        {TB_TABLE, "/^TABLE a * b"},
        {TB_TABLE, "/TABLE a /^TABLE"},
        {TB_TABLE, "/TABLE a /SORT x /^TABLE 5"},
        {TB_TABLE, "/^TABLE / a"},
    });
}

Rows FourDimensions() {
    return BadArguments({
        {TB_TABLE, "/^TABLE x BY y BY z BY w"},
        {TB_TABLE, "/^TABLE x + y BY y BY z BY (w) /TITLE 't'"},
    });
}

Rows RangeInObservation() {
    Rows rows;
    for (const char* command : {
             "TABLES /^OBSERVATION v1 TO v3 /TABLE t",
             "TABLES /^OBSERVATION v1 TO v3",
             "TABLES /^OBS a b TO c d /TABLE t",
             "TABLES /GBASE CASES /^OBSERVATION a TO b /CAPTION 'x'",
             "TABLES /GBASE CASES\n  /^OBSERVATION=a\n TO b /TABLE t",
         }) {
        rows.push_back(Rejected(Command::kRangeInObservation, TB_OBSERVATION, command));
    }
    return rows;
}

Rows BadWordInParentheses() {
    const std::string longWord(65, 'v');
    Rows rows;
    for (const std::string& command : {
             std::string("TABLES /TABLE ^(!x)"),
             std::string("TABLES /TABLE ^(!x))"),
             std::string("TABLES /TABLE (^(!x))"),
             std::string("TABLES /TABLE a + ^(!x) BY b"),
             std::string("TABLES /TABLE a BY b > (c + ^(!stat))"),
             std::string("TABLES /TABLE a\n BY ^(!x) /TITLE 't'"),
             "TABLES /TABLE ^(" + longWord + ")",
         }) {
        rows.push_back(Rejected(Command::kBadTableWord, TB_TABLE, command));
    }
    return rows;
}

Rows EmptyCommand() {
    return BadSyntax({
        "^TABLES",
        "^TABLES /",
        "^TABLES = / /",
        "^TABLES /BREAK z",
        "^TABLES BREAK",
    });
}

Rows NoTable() {
    return BadSyntax({
        "TABLES /^AUTOLABEL",
        "TABLES /AUTOLABEL ^ON",
        "TABLES /BASE ALL /GBASE ^CASES /",
        "TABLES /MISSING ^INCLUDE",
        "TABLES /FORMAT ^BLANK",
        "TABLES /^FORMAT",
        "TABLES /FTOTAL t ^'label'",
        "TABLES /MRGROUP g a TO ^b",
        "TABLES /MDGROUP g a (1^)",
        "TABLES /OBSERVATION a ^b",
        "TABLES /BREAK z /MISSING ^INCLUDE /BREAK y",
    });
}

Rows LocalSubcommandBeforeTheFirstTable() {
    return BadSyntax({
        "TABLES /^CAPTION 'x' /TABLE t",
        "TABLES /^CORNER 'x' /TABLE t",
        "TABLES /^SORT x /TABLE t",
        "TABLES /^STATISTICS mean /TABLE t",
        "TABLES /^TITLE 'x' /TABLE t",
        "TABLES ^TITLE",
        "TABLES /AUTOLABEL ON /^TITLE 'x' /TABLE t",
        "TABLES /FORMAT BLANK /^SORT x /TABLE t",
        "TABLES /FTOTAL tot /^CORNER 'x' /TABLE t",
        "TABLES /MDGROUP g a (1) /^STAT mean /TABLE t",
        "TABLES\n /OBSERVATION a\n /^CAPTION 'x'\n /TABLE t",
    });
}

Rows GlobalSubcommandBehindATable() {
    return BadSyntax({
        "TABLES /TABLE t /^AUTOLABEL ON",
        "TABLES /TABLE t /^BASE ALL",
        "TABLES /TABLE t BY u /^FTOTAL x",
        "TABLES /TABLE (t) /^PTOTAL x",
        "TABLES /TABLE t + u /^GBASE CASES",
        "TABLES /TABLE t > u /^MDGROUP g a (1)",
        "TABLES /TABLE t /CAPTION 'x' /^MRGROUP g a",
        "TABLES /TABLE t /SORT x /^MISSING INCLUDE",
        "TABLES /TABLE t /SORT x (mean(y)) /^OBSERVATION a",
        "TABLES /TABLE t /STATISTICS mean(x) U sum /^FORMAT BLANK",
        "TABLES /TABLE t /STATISTICS ptile 5\n/^FORMAT junk /TABLE u",
        "TABLES /TABLE t /TITLE /^BASE ALL",
        "TABLES /TABLE t /TABLE u /^GBASE CASES /TABLE v",
    });
}

Rows WordsThatNameNoSubcommand() {
    return BadSyntax({
        "TABLES /^5 /TABLE t",
        "TABLES ^-5",
        "TABLES /^'x' /TABLE t",
        "TABLES ^(TABLE t)",
        "TABLES /^ALL /TABLE t",
        "TABLES /^BY /TABLE t",
        "TABLES /^DEFAULT /TABLE t",
        "TABLES /^LABELS /TABLE t",
        "TABLES /^U /TABLE t",
    });
}

/// These names need something behind them; what follows them at once is out of place.
Rows DroppedSubcommandsWithoutArguments() {
    return BadSyntax({
        "TABLES /XYZ /^TABLE t",
        "TABLES /TABLE t /^XYZ",
        "TABLES /TABLE t /XYZ /^TITLE 'x'",
        "TABLES /WRITE /^TABLE t",
        "TABLES /TABLE t /^WRITE",
        "TABLES /TABLE t /FOOTNOTE /^SORT x /TABLE u",
        "TABLES /^BOXCHARS",
    });
}

Rows WarningsBeforeTheError() {
    const std::string obsolete = ObsoleteWarning("WRITE");
    return {
        Rejected(Command::kBadSyntax, 0, "TABLES /FORMAT ^junk", FormatWarning()),
        Rejected(Command::kBadSyntax, 0, "TABLES /WRITE ^x", obsolete),
        Rejected(Command::kBadSyntax, 0, "TABLES /WRITE x /^SORT y /TABLE t", obsolete),
        Rejected(Command::kBadSyntax, 0, "TABLES /TABLE t /WRITE x /^BASE ALL", obsolete),
        Rejected(Command::kBadSyntax, 0, "TABLES /FORMAT junk /^TITLE 'x' /TABLE t",
                 FormatWarning()),
        Rejected(Command::kBadSyntax, 0, "TABLES /FORMAT junk /odd /^TABLE t", FormatWarning()),
        Rejected(Command::kBadSyntax, 0, "TABLES /FORMAT junk /^WRITE", FormatWarning()),
        Rejected(Command::kBadArgument, TB_AUTOLABEL, "TABLES /FORMAT junk /^AUTOLABEL 5 /TABLE t",
                 FormatWarning()),
        Rejected(Command::kBadTableWord, TB_TABLE, "TABLES /odd 1 /TABLE ^(!x)",
                 UnknownWarning("odd")),
    };
}

Rows PlacesOnLaterLines() {
    return {
        Rejected(Command::kBadArgument, TB_TABLE, "TABLES\n^TABLE 5"),
        Rejected(Command::kBadArgument, TB_TABLE, "TABLES\n\n   /^TABLE\n   a\n   b"),
        Rejected(Command::kBadArgument, TB_FTOTAL, "TABLES\r\n /^FTOTAL\r\n /TABLE t"),
        Rejected(Command::kBadSyntax, 0, "TABLES\n\t/TABLE t\n\t/^BASE ALL"),
        Rejected(Command::kBadSyntax, 0, "TABLES\n /AUTOLABEL\n  ^ON\n\n"),
        Rejected(Command::kBadArgument, TB_SORT, "TABLES /TABLE a\n/TITLE 'b'/^SORT 'c'"),
    };
}

Rows BreakCanSpoilATable() {
    Rows rows = BadArguments({
        {TB_TABLE, "/BREAK z /^TABLE a"},
        {TB_TABLE, "BREAK 5 /^TABLE a"},
        {TB_TABLE, "/BREAK BY z /^TABLE a BY b BY c"},
        {TB_TABLE, "/BREAK BY z /TABLE a /BREAK + /^TABLE b"},
        {TB_TABLE, "/BREAK BY z /^TABLE"},
        {TB_TABLE, "/BREAK !x /^TABLE a"},
    });
    rows.push_back(Rejected(Command::kBadTableWord, TB_TABLE, "TABLES /BREAK + ^(!x) /TABLE a"));
    return rows;
}

} // namespace

std::vector<RowGroup> ErrorRows() {
    return {
        {"OneKeywordSubcommands", OneKeywordSubcommands()},
        {"MissingNeedsOneOfItsTwoKeywords", MissingNeedsOneOfItsTwoKeywords()},
        {"LiteralSubcommands", LiteralSubcommands()},
        {"Totals", Totals()},
        {"MultipleResponseGroups", MultipleResponseGroups()},
        {"CountedValueIsNeededByMdgroupOnly", CountedValueIsNeededByMdgroupOnly()},
        {"Observation", Observation()},
        {"Sort", Sort()},
        {"Statistics", Statistics()},
        {"Table", Table()},
        {"FourDimensions", FourDimensions()},
        {"RangeInObservation", RangeInObservation()},
        {"BadWordInParentheses", BadWordInParentheses()},
        {"EmptyCommand", EmptyCommand()},
        {"NoTable", NoTable()},
        {"LocalSubcommandBeforeTheFirstTable", LocalSubcommandBeforeTheFirstTable()},
        {"GlobalSubcommandBehindATable", GlobalSubcommandBehindATable()},
        {"WordsThatNameNoSubcommand", WordsThatNameNoSubcommand()},
        {"DroppedSubcommandsWithoutArguments", DroppedSubcommandsWithoutArguments()},
        {"WarningsBeforeTheError", WarningsBeforeTheError()},
        {"PlacesOnLaterLines", PlacesOnLaterLines()},
        {"BreakCanSpoilATable", BreakCanSpoilATable()},
    };
}

} // namespace recastor
