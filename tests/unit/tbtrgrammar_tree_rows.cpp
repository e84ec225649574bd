// The trees of commands that parse.

#include "tests/unit/tbtrgrammar_rows.h"

namespace recastor {

namespace {

using Rows = std::vector<ParseRow>;

ParseRow Whole(const std::string& input, const std::string& globals, const std::string& groups,
               const std::string& warnings = {}) {
    return {"TABLES " + input, "(LIST (LIST" + globals + ") " + groups + ")" + warnings};
}

/// A subcommand in front of the first table.
ParseRow Global(const std::string& input, const std::string& dump,
                const std::string& warnings = {}) {
    return Whole(input + " /TABLE t", ' ' + dump, "(LIST (TABLE t))", warnings);
}

/// A subcommand behind a table.
ParseRow Local(const std::string& input, const std::string& dump,
               const std::string& warnings = {}) {
    return Whole("/TABLE t " + input, "", "(LIST (TABLE t) " + dump + ")", warnings);
}

/// One function of the STATISTICS subcommand.
ParseRow Function(const std::string& input, const std::string& dump) {
    return Local("/STATISTICS " + input, "(STATISTICS (FULLSTATFUNCTION " + dump + "))");
}

/// The arguments of a TABLE subcommand.
ParseRow Table(const std::string& input, const std::string& dump) {
    return Whole("/TABLE " + input, "", "(LIST (TABLE " + dump + "))");
}

Rows ShapeOfTheCommand() {
    return {
        Whole("TABLE a", "", "(LIST (TABLE a))"),
        Whole("= TABLE = a", "", "(LIST (TABLE a))"),
        Whole("/TABLE a /", "", "(LIST (TABLE a))"),
        Whole("// /TABLE a / BY b", "", "(LIST (TABLE a b))"),
        Whole("/TABLE a /TABLE b /TITLE 'x' /TABLE c", "",
              "(LIST (TABLE a)) (LIST (TABLE b) (TITLE 'x')) (LIST (TABLE c))"),
        Whole("GBASE CASES /BASE ALL /GBASE RESPONSES /TABLE a",
              " (GBASE (CASES)) (BASE (ALL)) (GBASE (RESPONSES))", "(LIST (TABLE a))"),
        Whole("/AUTOLABEL\n /TABLE a\n /CORNER 'c'\n /SORT x", " (AUTOLABEL)",
              "(LIST (TABLE a) (CORNER 'c') (SORT _ (SORTVAR x)))"),
    };
}

Rows WithoutGlobalSubcommandsTheirListIsEmpty() {
    return {Whole("/TABLE a", "", "(LIST (TABLE a))")};
}

Rows SubcommandsWithOneKeyword() {
    return {
        Global("/AUTOLABEL", "(AUTOLABEL)"),
        Global("/AUTOLABEL DEFAULT", "(AUTOLABEL (DEFAULT))"),
        Global("/AUTOLABEL = ON", "(AUTOLABEL (ON))"),
        Global("/AUTOLABEL offline", "(AUTOLABEL (OFF))"),
        Global("/BASE", "(BASE)"),
        Global("/BASE ANSWERING", "(BASE (ANSWERING))"),
        Global("/BASE=qual", "(BASE (QUALIFIED))"),
        Global("/BASE ALL", "(BASE (ALL))"),
        Global("/GBASE", "(GBASE)"),
        Global("/GBASE CASES", "(GBASE (CASES))"),
        Global("/GBASE RESPONSES", "(GBASE (RESPONSES))"),
        Global("/MISSING EXCLUDE", "(MISSINGSUBCOM (EXCLUDE))"),
        Global("/MISSING=INCLUDE", "(MISSINGSUBCOM (INCLUDE))"),
    };
}

Rows LiteralListsMayBeEmpty() {
    return {
        Local("/CAPTION", "(CAPTION)"),
        Local("/TITLE", "(TITLE)"),
        Local("/CORNER", "(CORNER)"),
        Local("/CAPTION 'one'", "(CAPTION 'one')"),
        Local("/TITLE 'one' \"two\", 'three'", "(TITLE 'one' \"two\" 'three')"),
        Local("/CORNER = ''", "(CORNER '')"),
        Local("/TITLE /CAPTION 'c' /TITLE 'It''s'", "(TITLE) (CAPTION 'c') (TITLE 'It''s')"),
    };
}

Rows FormatSettings() {
    return {
        Global("/FORMAT", "_"),
        Global("/FORMAT BLANK", "(FORMAT (BLANK))"),
        Global("/FORMAT ZERO", "(FORMAT (ZERO))"),
        Global("/FORMAT MISSING('-')", "(FORMAT '-')"),
        Global("/FORMAT ZERO MISSING('')", "(FORMAT (ZERO) '')"),
        Global("/FORMAT=MISSING(\"x\") BLANK", "(FORMAT \"x\" (BLANK))"),
    };
}

Rows RepeatedFormatSettingTakesTheEarlierOnesPlace() {
    return {
        Global("/FORMAT BLANK BLANK", "(FORMAT (BLANK))"),
        Global("/FORMAT ZERO ZERO ZERO", "(FORMAT (ZERO))"),
        Global("/FORMAT MISSING('a') MISSING('b')", "(FORMAT 'b')"),
        Global("/FORMAT MISSING('a') BLANK MISSING('b')", "(FORMAT 'b' (BLANK))"),
        Global("/FORMAT BLANK MISSING('a') BLANK", "(FORMAT (BLANK) 'a')"),
    };
}

Rows FormatThatCannotBeParsedIsDropped() {
    const std::string warning = FormatWarning();
    return {
        Global("/FORMAT=BOX", "_", warning),
        Global("/FORMAT ZERO CWIDTH(20,5) NBOX LENGTH(10)", "_", warning),
        Global("/FORMAT BLANK 5", "_", warning),
        Global("/FORMAT MISSING", "_", warning),
        Global("/FORMAT MISSING(5)", "_", warning),
        Global("/FORMAT=ZERO MISSING='-'", "_", warning),
        Global("/FORMAT INDENT(3) BREAK TABLE STATISTICS", "_", warning),
        Global("/FORMAT ) 'x' -1 * BY TO ALL", "_", warning),
        Global("/FORMAT x /FORMAT y /FORMAT BLANK", "_ _ (FORMAT (BLANK))", warning + warning),
        Global("/FORMAT x /GBASE CASES", "_ (GBASE (CASES))", warning),
        Global("/FORMAT x /5 /DEFAULT / BY", "_", warning),
    };
}

Rows TotalsAndTheirLabels() {
    return {
        Global("/FTOTAL t1 'Total'", "(FTOTAL t1{'Total' _})"),
        Global("/FTOTAL t1", "(FTOTAL t1)"),
        Global("/FTOTAL=t1 t2 'two', t3", "(FTOTAL t1 t2{'two' _} t3)"),
        Global("/PTOTAL a 'A' b 'B'", "(PTOTAL a{'A' _} b{'B' _})"),
        Global("/PTOTAL a", "(PTOTAL a)"),
    };
}

Rows GroupsAndTheirMembers() {
    return {
        Global("/MRGROUP g a", "(MRGROUP g (VARLIST a))"),
        Global("/MRGROUP g 'label' a b TO c d",
               "(MRGROUP g{'label' _} (VARLIST a (VARRANGE b c) d))"),
        Global("/MDGROUP g a ('yes')", "(MDGROUP g (VARLIST a) 'yes')"),
        Global("/MDGROUP g a b (1)", "(MDGROUP g (VARLIST a b) 1)"),
        Global("/MDGROUP g 'label' a TO z (\"y\")",
               "(MDGROUP g{'label' _} (VARLIST (VARRANGE a z)) \"y\")"),
        Global("/MDGROUP=g 'label' a (-1.5)", "(MDGROUP g{'label' _} (VARLIST a) -1.5)"),
        Global("/MDGROUP g a (- 1)", "(MDGROUP g (VARLIST a) -1)"),
    };
}

Rows ObservationListsItsVariables() {
    return {
        Global("/OBSERVATION v1 v2", "(OBSERVATION (VARLIST v1 v2))"),
        Global("/OBSERVATION=v1", "(OBSERVATION (VARLIST v1))"),
        Global("/OBSERVATION a, b, c", "(OBSERVATION (VARLIST a b c))"),
    };
}

Rows SortKeepsASlotForTheDirection() {
    return {
        Local("/SORT x", "(SORT _ (SORTVAR x))"),
        Local("/SORT ASCENDING x y", "(SORT (ASCENDING) (SORTVAR x) (SORTVAR y))"),
        Local("/SORT descend x", "(SORT (DESCENDING) (SORTVAR x))"),
        Local("/SORT x DESCENDING", "(SORT _ (SORTVAR x) (SORTVAR DESCENDING))"),
        Local("/SORT x (mean)", "(SORT _ (SORTVAR x (SORTFUNCTION mean)))"),
        Local("/SORT x (!mean)", "(SORT _ (SORTVAR x (SORTFUNCTION !mean)))"),
        Local("/SORT x (mean(y)) z", "(SORT _ (SORTVAR x (SORTFUNCTION mean y)) (SORTVAR z))"),
        Local("/SORT x (!mean(y))", "(SORT _ (SORTVAR x (SORTFUNCTION !mean y)))"),
    };
}

Rows StatisticsFunctions() {
    return {
        Function("mean", "_ (STATFUNCTION mean)"),
        Function("!mean", "_ (STATFUNCTION !mean)"),
        Function("ptile 25", "_ (STATFUNCTION ptile 25)"),
        Function("!ptile -2.5", "_ (STATFUNCTION !ptile -2.5)"),
        Function("U mean", "(UNWEIGHTED) (STATFUNCTION mean)"),
        Function("unwanted ptile 25", "(UNWEIGHTED) (STATFUNCTION ptile 25)"),
        Function("un", "_ (STATFUNCTION un)"),
        Local("/STATISTICS=mean(u) U count, sum",
              "(STATISTICS (FULLSTATFUNCTION _ (STATFUNCTION mean) (LIST (STATFUNCARG u _ _)))"
              " (FULLSTATFUNCTION (UNWEIGHTED) (STATFUNCTION count))"
              " (FULLSTATFUNCTION _ (STATFUNCTION sum)))"),
    };
}

Rows StatisticsArguments() {
    const std::string mean = "_ (STATFUNCTION mean)";
    return {
        Function("mean('M')", mean + " (LIST (STATFUNCARG _ _ 'M'))"),
        Function("mean((f8.2))", mean + " (LIST (STATFUNCARG _ f8.2 _))"),
        Function("mean((!f))", mean + " (LIST (STATFUNCARG _ !f _))"),
        Function("mean((f8.2) 'M')", mean + " (LIST (STATFUNCARG _ f8.2 'M'))"),
        Function("mean('M' (f8.2))", mean + " (LIST (STATFUNCARG _ f8.2 'M'))"),
        Function("mean(x)", mean + " (LIST (STATFUNCARG x _ _))"),
        Function("mean(x 'X' y (f5) z)",
                 mean + " (LIST (STATFUNCARG x _ 'X') (STATFUNCARG y f5 _) (STATFUNCARG z _ _))"),
        Function("mean(x (f5.1) 'X', y 'Y' (f6.1))",
                 mean + " (LIST (STATFUNCARG x f5.1 'X') (STATFUNCARG y f6.1 'Y'))"),
        Function("mean((f5) : a)", mean + " (LIST (STATFUNCARG _ f5 _)) (VARLIST a)"),
        Function("ptile 5 ('%' : a b c)",
                 "_ (STATFUNCTION ptile 5) (LIST (STATFUNCARG _ _ '%')) (VARLIST a b c)"),
        Function("U mean(x : a b)",
                 "(UNWEIGHTED) (STATFUNCTION mean) (LIST (STATFUNCARG x _ _)) (VARLIST a b)"),
    };
}

Rows FunctionsParenthesesMayBeEmpty() {
    return {
        Function("mean()", "_ (STATFUNCTION mean)"),
        Function("U ptile 25 ( )", "(UNWEIGHTED) (STATFUNCTION ptile 25)"),
    };
}

Rows Dimensions() {
    return {
        Table("a BY b", "a b"),
        Table("a BY b BY c", "a b c"),
        Table("= a + b BY c > d BY (LABELS)", "(+ a b) (> c d) (LABELS)"),
    };
}

Rows NestingBindsCloserThanStacking() {
    return {
        Table("x + y > z", "(+ x (> y z))"),
        Table("x > y + z", "(+ (> x y) z)"),
        Table("w + x > y + z", "(+ w (> x y) z)"),
        Table("(x + y) > z", "(> (+ x y) z)"),
        Table("x > (y + z)", "(> x (+ y z))"),
        Table("(w > x) + (y > z) > v", "(+ (> w x) (> y z v))"),
    };
}

Rows ChainsOfOneOperatorAreOneNode() {
    return {
        Table("x + y + z", "(+ x y z)"),   Table("(x + y) + z", "(+ x y z)"),
        Table("x + (y + z)", "(+ x y z)"), Table("(w + x) + (y + z)", "(+ w x y z)"),
        Table("x > y > z", "(> x y z)"),   Table("x > (y > z)", "(> x y z)"),
        Table("(x > y) > z", "(> x y z)"), Table("x GT y", "(> x y)"),
    };
}

Rows ParenthesesAroundExpressions() {
    return {
        Table("(x)", "x"),
        Table("(((x)))", "x"),
        Table("(x + y)", "(+ x y)"),
        Table("(x > y)", "(> x y)"),
        Table("((x + y))", "(+ x y)"),
        Table("(((x > y)))", "(> x y)"),
        Table("(w + x + y > z)", "(+ w x (> y z))"),
        Table("(w > x > (y + z))", "(> w x (+ y z))"),
        Table("(x) + ((y)) > (z)", "(+ x (> y z))"),
    };
}

Rows PseudoVariables() {
    const std::string tooLong(60, 'x');
    return {
        Table("x > (STATISTICS)", "(> x (STATISTICS))"),
        Table("(LABELS) > x + (STATISTICS)", "(+ (> (LABELS) x) (STATISTICS))"),
        Table("((labels)) BY (((stat)))", "(LABELS) (STATISTICS)"),
        Table("(status)", "(STATISTICS)"),
        Table("(laboratory)", "(LABELS)"),
        Table("(st) + (la)", "(+ st la)"),
        Table("statistics + labels", "(+ statistics labels)"),
        Table("(statistics" + tooLong + ")", "(STATISTICS)"),
        Table("(labels" + tooLong + ")", "(LABELS)"),
        Table("(tables)", "tables"),
    };
}

Rows ObsoleteSubcommandsAreDropped() {
    Rows rows;
    for (const char* name : {"BOXCHARS", "CONTINUED", "TFOOTNOTE", "FONTCHARS", "FOOTNOTE", "INDEX",
                             "PFOOTNOTE", "PTITLE", "WRITE"}) {
        const std::string subcommand = std::string("/") + name;
        rows.push_back(Global(subcommand + " 'x'", "_", ObsoleteWarning(name)));
        rows.push_back(Local(subcommand + " 'x'", "_", ObsoleteWarning(name)));
        rows.push_back(Global(subcommand + "=x (1 2)", "_", ObsoleteWarning(name)));
        rows.push_back(Local(subcommand + " BY TABLE", "_", ObsoleteWarning(name)));
    }
    rows.push_back(Global("/wri x /Footless y", "_ _",
                          ObsoleteWarning("WRITE") + ObsoleteWarning("FOOTNOTE")));
    return rows;
}

Rows DroppedSubcommandBetweenTablesEndsNoGroup() {
    return {Whole("/TABLE a /FOOTNOTE 'x' /TITLE 't' /TABLE b", "",
                  "(LIST (TABLE a) _ (TITLE 't')) (LIST (TABLE b))", ObsoleteWarning("FOOTNOTE"))};
}

Rows UnknownSubcommandsAreDroppedInTheirOwnSpelling() {
    return {
        Global("/XYZ 1 2", "_", UnknownWarning("XYZ")),
        Global("/xYz = a", "_", UnknownWarning("xYz")),
        Global("/!mac (5)", "_", UnknownWarning("!mac")),
        Local("/Ta_ble x", "_", UnknownWarning("Ta_ble")),
    };
}

Rows WarningsKeepTheirOrder() {
    return {
        Whole("/WRITE x /FORMAT y /odd 1 /TABLE a /INDEX 'i' /ODD 2 /TABLE b /even 3", " _ _ _",
              "(LIST (TABLE a) _ _) (LIST (TABLE b) _)",
              ObsoleteWarning("WRITE") + FormatWarning() + UnknownWarning("odd") +
                  ObsoleteWarning("INDEX") + UnknownWarning("ODD") + UnknownWarning("even")),
        Whole("/WRITE x /WRITE y /TABLE a", " _ _", "(LIST (TABLE a))",
              ObsoleteWarning("WRITE") + ObsoleteWarning("WRITE")),
    };
}

Rows BreakIsReadAtTheEndOfTheTablesBehindIt() {
    return {
        Whole("/BREAK BY z /TABLE a", "", "(LIST (TABLE a z))"),
        Whole("BREAK BY z /TABLE a", "", "(LIST (TABLE a z))"),
        Whole("/breaks = BY z /TABLE a BY b", "", "(LIST (TABLE a b z))"),
        Whole("/BREAK + z /TABLE a /TABLE b > c", "",
              "(LIST (TABLE (+ a z))) (LIST (TABLE (+ (> b c) z)))"),
        Whole("/BREAK (LABELS) /TABLE a +", "", "(LIST (TABLE (+ a (LABELS))))"),
        Whole("/BREAK > z /AUTOLABEL /TABLE a /SORT x", " (AUTOLABEL)",
              "(LIST (TABLE (> a z)) (SORT _ (SORTVAR x)))"),
        Whole("/TABLE a /BREAK BY z /TITLE 'x' /TABLE b", "",
              "(LIST (TABLE a) (TITLE 'x')) (LIST (TABLE b z))"),
        Whole("/TABLE a /BREAK BY z", "", "(LIST (TABLE a))"),
    };
}

Rows LastBreakWithArgumentsWins() {
    return {
        Whole("/BREAK BY y /BREAK BY z /TABLE a", "", "(LIST (TABLE a z))"),
        Whole("BREAK BY y /BREAK BY z /TABLE a", "", "(LIST (TABLE a z))"),
        Whole("/BREAK BY z /BREAK /TABLE a", "", "(LIST (TABLE a z))"),
        Whole("/BREAK /BREAK BY z /BREAK= /TABLE a", "", "(LIST (TABLE a z))"),
        Whole("/BREAK /TABLE a", "", "(LIST (TABLE a))"),
        Whole("BREAK EQ /TABLE a", "", "(LIST (TABLE a))"),
        Whole("/BREAK BY y /TABLE a /BREAK BY z /TABLE b /BREAK /TABLE c", "",
              "(LIST (TABLE a y)) (LIST (TABLE b z)) (LIST (TABLE c z))"),
    };
}

Rows BreakInsideOtherSubcommandsIsAWord() {
    return {
        Global("/FTOTAL break", "(FTOTAL break)"),
        Local("/SORT break", "(SORT _ (SORTVAR break))"),
        Global("/WRITE break", "_", ObsoleteWarning("WRITE")),
        Table("break BY breakfast", "break breakfast"),
    };
}

} // namespace

std::string ObsoleteWarning(const std::string& keyword) {
    return " ! Obsolete subcommand " + keyword + " has been ignored.";
}

std::string UnknownWarning(const std::string& word) {
    return " ! Unrecognized or obsolete subcommand " + word + " has been ignored.";
}

std::string FormatWarning() {
    return " ! Obsolete form of the FORMAT subcommand has been ignored.";
}

std::vector<RowGroup> TreeRows() {
    return {
        {"ShapeOfTheCommand", ShapeOfTheCommand()},
        {"WithoutGlobalSubcommandsTheirListIsEmpty", WithoutGlobalSubcommandsTheirListIsEmpty()},
        {"SubcommandsWithOneKeyword", SubcommandsWithOneKeyword()},
        {"LiteralListsMayBeEmpty", LiteralListsMayBeEmpty()},
        {"FormatSettings", FormatSettings()},
        {"RepeatedFormatSettingTakesTheEarlierOnesPlace",
         RepeatedFormatSettingTakesTheEarlierOnesPlace()},
        {"FormatThatCannotBeParsedIsDropped", FormatThatCannotBeParsedIsDropped()},
        {"TotalsAndTheirLabels", TotalsAndTheirLabels()},
        {"GroupsAndTheirMembers", GroupsAndTheirMembers()},
        {"ObservationListsItsVariables", ObservationListsItsVariables()},
        {"SortKeepsASlotForTheDirection", SortKeepsASlotForTheDirection()},
        {"StatisticsFunctions", StatisticsFunctions()},
        {"StatisticsArguments", StatisticsArguments()},
        {"FunctionsParenthesesMayBeEmpty", FunctionsParenthesesMayBeEmpty()},
        {"Dimensions", Dimensions()},
        {"NestingBindsCloserThanStacking", NestingBindsCloserThanStacking()},
        {"ChainsOfOneOperatorAreOneNode", ChainsOfOneOperatorAreOneNode()},
        {"ParenthesesAroundExpressions", ParenthesesAroundExpressions()},
        {"PseudoVariables", PseudoVariables()},
        {"ObsoleteSubcommandsAreDropped", ObsoleteSubcommandsAreDropped()},
        {"DroppedSubcommandBetweenTablesEndsNoGroup", DroppedSubcommandBetweenTablesEndsNoGroup()},
        {"UnknownSubcommandsAreDroppedInTheirOwnSpelling",
         UnknownSubcommandsAreDroppedInTheirOwnSpelling()},
        {"WarningsKeepTheirOrder", WarningsKeepTheirOrder()},
        {"BreakIsReadAtTheEndOfTheTablesBehindIt", BreakIsReadAtTheEndOfTheTablesBehindIt()},
        {"LastBreakWithArgumentsWins", LastBreakWithArgumentsWins()},
        {"BreakInsideOtherSubcommandsIsAWord", BreakInsideOtherSubcommandsIsAWord()},
    };
}

} // namespace recastor
