// What the parser is given: codes without slashes, tokens as values, places.

#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/dump.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct Row {
    std::string command;
    std::string codes;
};

void ExpectLex(const std::vector<Row>& rows) {
    for (const auto& [command, codes] : rows) {
        SCOPED_TRACE(command);
        EXPECT_EQ(DumpLex(command), codes);
    }
}

TEST(YyLex, LeavesSlashesOut) {
    ExpectLex({
        {"TABLES /TABLE a", "TB_TABLE@1:9 SP_VARNAME@1:15 0@1:15"},
        {"TABLES TABLE a", "TB_TABLE@1:8 SP_VARNAME@1:14 0@1:14"},
        {"TABLES / / TABLE a // BY", "TB_TABLE@1:12 SP_VARNAME@1:18 SP_BY@1:23 0@1:23"},
    });
}

TEST(YyLex, PlaceIsWhereTheTokenBegins) {
    ExpectLex({
        {"TABLES\n/TABLE\n  (a)\n",
         "TB_TABLE@2:1 SP_LPAREN@3:2 SP_VARNAME@3:3 SP_RPAREN@3:4 0@3:4"},
        {"TABLES\r\n\r\n\tTABLE", "TB_TABLE@3:1 0@3:1"},
        {"TABLES /TITLE 'a\"b' 'c'", "TB_TITLE@1:9 SP_SLITERAL@1:15 SP_SLITERAL@1:21 0@1:21"},
        {"TABLES /MDGROUP g (- 5)",
         "TB_MDGROUP@1:9 SP_VARNAME@1:17 SP_LPAREN@1:19 SP_NUMBER@1:21 SP_RPAREN@1:23 0@1:23"},
        {"TABLES /BREAK z /TABLE a", "TB_TABLE@1:18 SP_VARNAME@1:24 SP_VARNAME@1:15 0@1:15"},
    });
}

TEST(YyLex, EndHasTheLastTokensPlaceOrTheCommandNames) {
    ExpectLex({
        {"TABLES /WRITE /", "TB_WRITE@1:9 0@1:9"},
        {"TABLES", "0@1:1"},
        {"  TABLES /", "0@1:3"},
        {"\n TABLES\n / /\n /BREAK z\n", "0@2:1"},
    });
}

TEST(YyLex, SubcommandNameWithoutSlashIsAnotherOperator) {
    ExpectLex({
        {"TABLES /FORMAT=BOX", "TB_FORMAT@1:9 SP_OTHEROP@1:16 0@1:16"},
        {"TABLES /FORMAT INDENT(3)", "TB_FORMAT@1:9 SP_OTHEROP@1:16 SP_LPAREN@1:22 "
                                     "SP_NUMBER@1:23 SP_RPAREN@1:24 0@1:24"},
        {"TABLES /BASE MISSING", "TB_BASE@1:9 TB_MISSING@1:14 0@1:14"},
        {"TABLES /BASE BASE", "TB_BASE@1:9 SP_OTHEROP@1:14 0@1:14"},
    });
}

TEST(YyLex, NoSubcommandNameGetsInAmongArguments) {
    for (const char* name :
         {"AUTOLABEL", "BASE",        "BOXCHARS",  "BREAK",  "CAPTION", "CONTINUED", "CORNER",
          "FONTCHARS", "FOOTNOTE",    "FORMAT",    "FTOTAL", "GBASE",   "INDEX",     "MDGROUP",
          "MRGROUP",   "OBSERVATION", "PFOOTNOTE", "PTITLE", "PTOTAL",  "SORT",      "STATISTICS",
          "TABLE",     "TFOOTNOTE",   "TITLE",     "WRITE"}) {
        EXPECT_EQ(DumpLex(std::string("TABLES /FORMAT ") + name),
                  "TB_FORMAT@1:9 SP_OTHEROP@1:16 0@1:16")
            << name;
    }
    for (const char* name : {"MISSING", "DEFAULT", "ON", "OFF", "ANSWERING", "QUALIFIED", "CASES",
                             "RESPONSES", "EXCLUDE", "INCLUDE", "BLANK", "ZERO", "ASCENDING",
                             "DESCENDING", "UNWEIGHTED", "LABELS"}) {
        EXPECT_EQ(DumpLex(std::string("TABLES /FORMAT ") + name),
                  std::string("TB_FORMAT@1:9 TB_") + name + "@1:16 0@1:16");
    }
}

TEST(YyLex, ValueIsTheTokenWithItsCode) {
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    command.Reset(TokensOf("TABLES /MISSING inCLUDE"));
    OpaqueValue value;
    yyltype place{};
    EXPECT_EQ(yylex(&value, &place), TB_MISSINGSUBCOM);
    EXPECT_TRUE(OpaqueValue_CheckZELKToken(value, TB_MISSINGSUBCOM));
    EXPECT_EQ(OpaqueValue_GetZELKToken(value)->AsString(true), "MISSING");
    OpaqueValue_Clear(value);
    EXPECT_EQ(yylex(&value, &place), TB_INCLUDE);
    EXPECT_EQ(OpaqueValue_GetZELKToken(value)->AsString(true), "inCLUDE");
    EXPECT_EQ(OpaqueValue_GetTbTokenType(value), TB_INCLUDE);
    EXPECT_EQ(place.last_line, place.first_line);
    EXPECT_EQ(place.last_column, 17);
    EXPECT_EQ(command.LastLocation().first_column, 17);
    OpaqueValue_Clear(value);
    EXPECT_EQ(yylex(&value, &place), 0);
    EXPECT_TRUE(OpaqueValue_IsEmpty(value));
    EXPECT_TRUE(OpaqueValue_IsValid(value));
}

TEST(YyLex, EmptyLiteralIsAToken) {
    ExpectLex({{"TABLES /TITLE ''", "TB_TITLE@1:9 SP_SLITERAL@1:15 0@1:15"}});
}

TEST(YyError, SaysNothingByDefault) {
    testing::internal::CaptureStderr();
    yyerror("parse error");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace

} // namespace recastor
