// The grammar of the TABLES command: global subcommands, then table groups, each a TABLE
// subcommand with its local subcommands. An action is one call of the builder; what it returns is
// the rule's value.

%code top {
#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/tbtrtablescommand.h"

#include <string>
#include <string_view>

// Plain records may be moved when the parser's stack grows.
#define YYSTYPE_IS_TRIVIAL 1
#define YYLTYPE_IS_TRIVIAL 1
#define YYINITDEPTH 200
#define YYMAXDEPTH 10000

using namespace recastor;

namespace {

/// The parser skeleton's own messages in the wording of this program.
const char* ParserMessage(const char* text) {
    return std::string_view(text) == "memory exhausted" ? "parser stack overflow" : text;
}

/// Where the token stands at which the parser found an error.
const yyltype& OffendingLocation()
            { return TbTrTablesCommand::g_tablesCommand.OffendingLocation(); }

/// How the parser skeleton reports; the place is told by the rules.
void yyerror(const yyltype* /*location*/, const char* message) { ::yyerror(message); }

} // namespace

#define YY_(text) ParserMessage(text)
}

%define api.pure full
%define api.value.type {recastor::OpaqueValue}
%define api.location.type {recastor::yyltype}
%define api.token.prefix {TBTR_}
%define lr.default-reduction accepting
%define parse.error custom
%define parse.trace
%locations

// `( a + b )` and `( a > b )` are both an expression in parentheses and a rule of their own; the
// latter, a shift, is taken.
%expect 2

// The value of `error` is a copy of the lookahead's and has no destructor: it is never cleared.
%destructor { OpaqueValue_Clear($$); } <>

// The codes of TbTrNodeType, written out: the generator would take 257 for itself.
%token
    SP_SLITERAL 257         SP_NUMBER 258           SP_NONVARNAME 259       SP_VARNAME 260
    SP_PLUS 261             SP_GREATERTHAN 262      SP_SLASH 263            SP_COLON 264
    SP_LPAREN 265           SP_RPAREN 266           SP_BY 267               SP_TO 268
    TB_BREAK 269            TB_LABELS 270           SP_OTHEROP 271          TB_UNWEIGHTED 272
    TB_AUTOLABEL 273        TB_BASE 274             TB_GBASE 275            TB_MISSING 276
    TB_MISSINGSUBCOM 277    TB_DEFAULT 278          TB_ON 279               TB_OFF 280
    TB_ANSWERING 281        TB_QUALIFIED 282        SP_ALL 283              TB_CASES 284
    TB_RESPONSES 285        TB_INCLUDE 286          TB_EXCLUDE 287          TB_BLANK 288
    TB_ZERO 289             TB_FORMAT 290           TB_FTOTAL 291           TB_PTOTAL 292
    TB_MRGROUP 293          TB_MDGROUP 294          TB_SORT 295             TB_ASCENDING 296
    TB_DESCENDING 297       TB_CAPTION 298          TB_TITLE 299            TB_CORNER 300
    TB_STATISTICS 301       TB_TABLE 302            TB_OBSERVATION 303      TB_UNKNOWNSUBCOM 304
    TB_BOXCHARS 305         TB_CONTINUED 306        TB_FONTCHARS 307        TB_FOOTNOTE 308
    TB_INDEX 309            TB_PFOOTNOTE 310        TB_PTITLE 311           TB_TFOOTNOTE 312
    TB_WRITE 313            TB_ANYSUBCOMTOKEN 314

%left SP_PLUS
%left SP_GREATERTHAN

%%

start:
    globalGroup tableGroupList              { $$ = endOfParse($1, $2); }
|   error                                   { $$ = rejected_command(OffendingLocation()); YYABORT; }
;

globalGroup:
    %empty                                  { $$ = common_subcommandsList(); }
|   globalGroup globalSubcommand            { $$ = common_subcommandsList($1, $2); }
;

globalSubcommand:
    autolabel
|   base
|   ftotal
|   ptotal
|   gbase
|   mdgroup
|   mrgroup
|   missing
|   observation
|   format
|   TB_BOXCHARS craplist                    { $$ = dropped_obsolete(TB_BOXCHARS, @$, $1, $2); }
|   TB_CONTINUED craplist                   { $$ = dropped_obsolete(TB_CONTINUED, @$, $1, $2); }
|   TB_TFOOTNOTE craplist                   { $$ = dropped_obsolete(TB_TFOOTNOTE, @$, $1, $2); }
|   TB_FONTCHARS craplist                   { $$ = dropped_obsolete(TB_FONTCHARS, @$, $1, $2); }
|   TB_FOOTNOTE craplist                    { $$ = dropped_obsolete(TB_FOOTNOTE, @$, $1, $2); }
|   TB_INDEX craplist                       { $$ = dropped_obsolete(TB_INDEX, @$, $1, $2); }
|   TB_PFOOTNOTE craplist                   { $$ = dropped_obsolete(TB_PFOOTNOTE, @$, $1, $2); }
|   TB_PTITLE craplist                      { $$ = dropped_obsolete(TB_PTITLE, @$, $1, $2); }
|   TB_WRITE craplist                       { $$ = dropped_obsolete(TB_WRITE, @$, $1, $2); }
|   TB_UNKNOWNSUBCOM craplist               { $$ = dropped_unknown(@$, $1, $2); }
;

tableGroupList:
    tableGroup                              { $$ = common_tableGroupList(common_nothing(), $1); }
|   tableGroupList tableGroup               { $$ = common_tableGroupList($1, $2); }
;

tableGroup:
    table localSubcommandList               { $$ = common_tableGroup($1, $2); }
;

localSubcommandList:
    %empty                                  { $$ = common_subcommandsList(); }
|   localSubcommandList localSubcommand     { $$ = common_subcommandsList($1, $2); }
;

localSubcommand:
    caption
|   corner
|   sort
|   statistics
|   title
|   TB_BOXCHARS craplist                    { $$ = dropped_obsolete(TB_BOXCHARS, @$, $1, $2); }
|   TB_CONTINUED craplist                   { $$ = dropped_obsolete(TB_CONTINUED, @$, $1, $2); }
|   TB_TFOOTNOTE craplist                   { $$ = dropped_obsolete(TB_TFOOTNOTE, @$, $1, $2); }
|   TB_FONTCHARS craplist                   { $$ = dropped_obsolete(TB_FONTCHARS, @$, $1, $2); }
|   TB_FOOTNOTE craplist                    { $$ = dropped_obsolete(TB_FOOTNOTE, @$, $1, $2); }
|   TB_INDEX craplist                       { $$ = dropped_obsolete(TB_INDEX, @$, $1, $2); }
|   TB_PFOOTNOTE craplist                   { $$ = dropped_obsolete(TB_PFOOTNOTE, @$, $1, $2); }
|   TB_PTITLE craplist                      { $$ = dropped_obsolete(TB_PTITLE, @$, $1, $2); }
|   TB_WRITE craplist                       { $$ = dropped_obsolete(TB_WRITE, @$, $1, $2); }
|   TB_UNKNOWNSUBCOM craplist               { $$ = dropped_unknown(@$, $1, $2); }
;

autolabel:
    TB_AUTOLABEL                            { $$ = autolabel_subcommand($1, common_nothing()); }
|   TB_AUTOLABEL TB_DEFAULT                 { $$ = autolabel_subcommand($1, $2); }
|   TB_AUTOLABEL TB_ON                      { $$ = autolabel_subcommand($1, $2); }
|   TB_AUTOLABEL TB_OFF                     { $$ = autolabel_subcommand($1, $2); }
|   TB_AUTOLABEL error
            { $$ = rejected_arguments(TB_AUTOLABEL, @$, $1); YYABORT; }
;

base:
    TB_BASE                                 { $$ = base_subcommand($1, common_nothing()); }
|   TB_BASE TB_ANSWERING                    { $$ = base_subcommand($1, $2); }
|   TB_BASE TB_QUALIFIED                    { $$ = base_subcommand($1, $2); }
|   TB_BASE SP_ALL                          { $$ = base_subcommand($1, $2); }
|   TB_BASE error                           { $$ = rejected_arguments(TB_BASE, @$, $1); YYABORT; }
;

caption:
    TB_CAPTION strLiteralList               { $$ = caption_subcommand($1, $2); }
|   TB_CAPTION error
            { $$ = rejected_arguments(TB_CAPTION, @$, $1); YYABORT; }
;

title:
    TB_TITLE strLiteralList                 { $$ = title_subcommand($1, $2); }
|   TB_TITLE error                          { $$ = rejected_arguments(TB_TITLE, @$, $1); YYABORT; }
;

corner:
    TB_CORNER strLiteralList                { $$ = corner_subcommand($1, $2); }
|   TB_CORNER error                         { $$ = rejected_arguments(TB_CORNER, @$, $1); YYABORT; }
;

gbase:
    TB_GBASE                                { $$ = gbase_subcommand($1, common_nothing()); }
|   TB_GBASE TB_CASES                       { $$ = gbase_subcommand($1, $2); }
|   TB_GBASE TB_RESPONSES                   { $$ = gbase_subcommand($1, $2); }
|   TB_GBASE error                          { $$ = rejected_arguments(TB_GBASE, @$, $1); YYABORT; }
;

missing:
    TB_MISSINGSUBCOM TB_EXCLUDE             { $$ = missing_subcommand($1, $2); }
|   TB_MISSINGSUBCOM TB_INCLUDE             { $$ = missing_subcommand($1, $2); }
|   TB_MISSINGSUBCOM error
            { $$ = rejected_arguments(TB_MISSINGSUBCOM, @$, $1); YYABORT; }
;

format:
    TB_FORMAT                               { $$ = format_subcommand($1); }
|   TB_FORMAT formatSettingList             { $$ = format_subcommand($1, $2); }
|   TB_FORMAT error                         { $$ = dropped_format(@$, $1); yyerrok; }
;

formatSettingList:
    formatSetting                           { $$ = format_formatSettingList(common_nothing(), $1); }
|   formatSettingList formatSetting         { $$ = format_formatSettingList($1, $2); }
;

formatSetting:
    TB_BLANK                                { $$ = format_formatSetting($1); }
|   TB_ZERO                                 { $$ = format_formatSetting($1); }
|   TB_MISSING SP_LPAREN SP_SLITERAL SP_RPAREN
                                            { $$ = format_formatSetting($1, $2, $3, $4); }
;

ftotal:
    TB_FTOTAL totalVarSpecList              { $$ = ftotal_subcommand($1, $2); }
|   TB_FTOTAL error                         { $$ = rejected_arguments(TB_FTOTAL, @$, $1); YYABORT; }
;

ptotal:
    TB_PTOTAL totalVarSpecList              { $$ = ptotal_subcommand($1, $2); }
|   TB_PTOTAL error                         { $$ = rejected_arguments(TB_PTOTAL, @$, $1); YYABORT; }
;

totalVarSpecList:
    totalVarSpec                            { $$ = common_totalVarSpecList(common_nothing(), $1); }
|   totalVarSpecList totalVarSpec           { $$ = common_totalVarSpecList($1, $2); }
;

totalVarSpec:
    SP_VARNAME                              { $$ = common_totalVarSpec($1); }
|   SP_VARNAME SP_SLITERAL                  { $$ = common_totalVarSpec($1, $2); }
;

mrgroup:
    TB_MRGROUP SP_VARNAME variableSpecList
            { $$ = mrgroup_subcommand($1, $2, common_nothing(), $3); }
|   TB_MRGROUP SP_VARNAME SP_SLITERAL variableSpecList
                                            { $$ = mrgroup_subcommand($1, $2, $3, $4); }
|   TB_MRGROUP error
            { $$ = rejected_arguments(TB_MRGROUP, @$, $1); YYABORT; }
;

mdgroup:
    TB_MDGROUP SP_VARNAME variableSpecList SP_LPAREN SP_SLITERAL SP_RPAREN
            { $$ = mdgroup_subcommand($1, $2, common_nothing(), $3, $4, $5, $6); }
|   TB_MDGROUP SP_VARNAME variableSpecList SP_LPAREN SP_NUMBER SP_RPAREN
            { $$ = mdgroup_subcommand($1, $2, common_nothing(), $3, $4, $5, $6); }
|   TB_MDGROUP SP_VARNAME SP_SLITERAL variableSpecList SP_LPAREN SP_SLITERAL SP_RPAREN
                                            { $$ = mdgroup_subcommand($1, $2, $3, $4, $5, $6, $7); }
|   TB_MDGROUP SP_VARNAME SP_SLITERAL variableSpecList SP_LPAREN SP_NUMBER SP_RPAREN
                                            { $$ = mdgroup_subcommand($1, $2, $3, $4, $5, $6, $7); }
|   TB_MDGROUP error
            { $$ = rejected_arguments(TB_MDGROUP, @$, $1); YYABORT; }
;

observation:
    TB_OBSERVATION variableSpecList
            {
                if (!observation_subcommand($$, $1, $2)) {
                    reportSubcommandArgumentCustomError(TB_OBSERVATION, @$);
                    YYABORT;
                }
            }
|   TB_OBSERVATION error
            { $$ = rejected_arguments(TB_OBSERVATION, @$, $1); YYABORT; }
;

variableNameList:
    SP_VARNAME                              { $$ = common_variableNameList(common_nothing(), $1); }
|   variableNameList SP_VARNAME             { $$ = common_variableNameList($1, $2); }
;

variableSpecList:
    variableSpec                            { $$ = common_variableSpecList(common_nothing(), $1); }
|   variableSpecList variableSpec           { $$ = common_variableSpecList($1, $2); }
;

sort:
    TB_SORT sortVariableList                { $$ = sort_subcommand($1, common_nothing(), $2); }
|   TB_SORT TB_ASCENDING sortVariableList   { $$ = sort_subcommand($1, $2, $3); }
|   TB_SORT TB_DESCENDING sortVariableList  { $$ = sort_subcommand($1, $2, $3); }
|   TB_SORT error                           { $$ = rejected_arguments(TB_SORT, @$, $1); YYABORT; }
;

sortVariableList:
    sortVariable                            { $$ = sort_sortVariableList(common_nothing(), $1); }
|   sortVariableList sortVariable           { $$ = sort_sortVariableList($1, $2); }
;

sortVariable:
    SP_VARNAME                              { $$ = sort_sortVariable($1); }
|   SP_VARNAME SP_LPAREN sortFunction SP_RPAREN
                                            { $$ = sort_sortVariable($1, $2, $3, $4); }
;

sortFunction:
    SP_VARNAME                              { $$ = sort_sortFunction($1); }
|   SP_NONVARNAME                           { $$ = sort_sortFunction($1); }
|   SP_VARNAME SP_LPAREN SP_VARNAME SP_RPAREN
                                            { $$ = sort_sortFunction($1, $2, $3, $4); }
|   SP_NONVARNAME SP_LPAREN SP_VARNAME SP_RPAREN
                                            { $$ = sort_sortFunction($1, $2, $3, $4); }
;

statistics:
    TB_STATISTICS statFuncSpecWithWeightList
                                            { $$ = statistics_subcommand($1, $2); }
|   TB_STATISTICS error
            { $$ = rejected_arguments(TB_STATISTICS, @$, $1); YYABORT; }
;

statFuncSpecWithWeightList:
    statFuncSpecWithWeight
            { $$ = statistics_statFuncSpecWithWeightList(common_nothing(), $1); }
|   statFuncSpecWithWeightList statFuncSpecWithWeight
                                            { $$ = statistics_statFuncSpecWithWeightList($1, $2); }
;

statFuncSpecWithWeight:
    statFuncSpec
            { $$ = statistics_statFuncSpecWithWeight(common_nothing(), $1); }
|   TB_UNWEIGHTED statFuncSpec              { $$ = statistics_statFuncSpecWithWeight($1, $2); }
;

statFuncSpec:
    statFunc                                { $$ = statistics_statFuncSpec($1); }
|   statFunc SP_LPAREN SP_RPAREN
            { $$ = statistics_statFuncSpec($1, $2, common_nothing(), common_nothing(),
                                           common_nothing(), $3); }
|   statFunc SP_LPAREN statFuncArgs SP_RPAREN
            { $$ = statistics_statFuncSpec($1, $2, $3, common_nothing(), common_nothing(), $4); }
|   statFunc SP_LPAREN statFuncArgs SP_COLON variableNameList SP_RPAREN
            { $$ = statistics_statFuncSpec($1, $2, $3, $4, $5, $6); }
;

statFunc:
    SP_VARNAME                              { $$ = statistics_statFunc($1, common_nothing()); }
|   SP_NONVARNAME                           { $$ = statistics_statFunc($1, common_nothing()); }
|   SP_VARNAME SP_NUMBER                    { $$ = statistics_statFunc($1, $2); }
|   SP_NONVARNAME SP_NUMBER                 { $$ = statistics_statFunc($1, $2); }
;

statFuncArgs:
    statDisplaySpec                         { $$ = statistics_statFuncArgs($1); }
|   statArgVarSpecList                      { $$ = statistics_statFuncArgs($1); }
;

statDisplaySpec:
    SP_LPAREN statFormat SP_RPAREN
            { $$ = statistics_statDisplaySpec($1, $2, $3, common_nothing()); }
|   SP_LPAREN statFormat SP_RPAREN SP_SLITERAL
                                            { $$ = statistics_statDisplaySpec($1, $2, $3, $4); }
|   SP_SLITERAL SP_LPAREN statFormat SP_RPAREN
                                            { $$ = statistics_statDisplaySpec($2, $3, $4, $1); }
|   SP_SLITERAL
            { $$ = statistics_statDisplaySpec(common_nothing(), common_nothing(),
                                              common_nothing(), $1); }
;

statFormat:
    SP_VARNAME                              { $$ = statistics_statFormat($1); }
|   SP_NONVARNAME                           { $$ = statistics_statFormat($1); }
;

statArgVarSpecList:
    statArgVarSpec
            { $$ = statistics_statArgVarSpecList(common_nothing(), $1); }
|   statArgVarSpecList statArgVarSpec       { $$ = statistics_statArgVarSpecList($1, $2); }
;

statArgVarSpec:
    SP_VARNAME
            { $$ = statistics_statArgVarSpec($1, common_nothing()); }
|   SP_VARNAME statDisplaySpec              { $$ = statistics_statArgVarSpec($1, $2); }
;

table:
    TB_TABLE tableExpression                { $$ = table_subcommand($1, $2); }
|   TB_TABLE tableExpression SP_BY tableExpression
                                            { $$ = table_subcommand($1, $2, $3, $4); }
|   TB_TABLE tableExpression SP_BY tableExpression SP_BY tableExpression
                                            { $$ = table_subcommand($1, $2, $3, $4, $5, $6); }
|   TB_TABLE error                          { $$ = rejected_arguments(TB_TABLE, @$, $1); YYABORT; }
;

tableExpression:
    SP_VARNAME                              { $$ = table_tableItem($1); }
|   SP_LPAREN SP_NONVARNAME SP_RPAREN
            {
                if (!table_specialTableItem($$, $1, $2, $3)) {
                    reportSubcommandArgumentCustomError(TB_TABLE, @$);
                    YYABORT;
                }
            }
|   SP_LPAREN tableExpression SP_RPAREN
            {
                if (!table_parenthesisedExpression($$, $1, $2, $3)) {
                    reportSubcommandArgumentCustomError(TB_TABLE, @$);
                    YYABORT;
                }
            }
|   tableExpression SP_PLUS tableExpression { $$ = table_tableExpressionStack($1, $2, $3); }
|   SP_LPAREN tableExpression SP_PLUS tableExpression SP_RPAREN
                                            { $$ = table_tableExpressionStack($1, $2, $3, $4, $5); }
|   tableExpression SP_GREATERTHAN tableExpression
                                            { $$ = table_tableExpressionNest($1, $2, $3); }
|   SP_LPAREN tableExpression SP_GREATERTHAN tableExpression SP_RPAREN
                                            { $$ = table_tableExpressionNest($1, $2, $3, $4, $5); }
;

variableSpec:
    SP_VARNAME                              { $$ = common_variableSpec($1); }
|   SP_VARNAME SP_TO SP_VARNAME             { $$ = common_variableSpec($1, $2, $3); }
;

strLiteralList:
    %empty                                  { $$ = common_strLiteralList(); }
|   strLiteralList SP_SLITERAL              { $$ = common_strLiteralList($1, $2); }
;

craplist:
    TB_ANYSUBCOMTOKEN                       { $$ = dropped_values($1); }
|   craplist TB_ANYSUBCOMTOKEN              { $$ = dropped_values($1, $2); }
;

// A complete subcommand before one that may not stand there, or before the end: the fault is not in
// its arguments, so the error is the generic one, at the word that is out of place. The parse ends
// with `misplaced`; what stands behind it tells the parser when to get there.
start:
    globalGroup misplaced                   { $$ = dropped_values($1, $2); }
|   globalGroup misplaced localName         { $$ = dropped_values($1, $2, $3); }
|   globalGroup tableGroupList misplaced globalName
                                            { $$ = dropped_values($1, $2, $3, $4); }
;

misplaced:
    %empty                                  { $$ = rejected_command(yylloc); YYABORT; }
;

localName:
    TB_CAPTION | TB_CORNER | TB_SORT | TB_STATISTICS | TB_TITLE | TB_BREAK
;

globalName:
    TB_AUTOLABEL | TB_BASE | TB_FTOTAL | TB_PTOTAL | TB_GBASE | TB_MDGROUP | TB_MRGROUP
|   TB_MISSINGSUBCOM | TB_OBSERVATION | TB_FORMAT | TB_BREAK
;

%%

// The classifier gives the codes of TbTrNodeType; the tokens above are declared in their order.
static_assert(TBTR_SP_SLITERAL == static_cast<int>(SP_SLITERAL));
static_assert(TBTR_TB_ANYSUBCOMTOKEN == static_cast<int>(TB_ANYSUBCOMTOKEN));

namespace {

std::string SyntaxErrorMessage(const yypcontext_t* context) {
    const yysymbol_kind_t offending = yypcontext_token(context);
    if (offending == YYSYMBOL_YYEMPTY) {
        return "parse error";
    }
    std::string message = std::string("parse error, unexpected ") + yysymbol_name(offending);
    // More than four would not help; the parser then gives none.
    constexpr int kMostExpected = 4;
    yysymbol_kind_t expected[kMostExpected];
    const int count = yypcontext_expected_tokens(context, expected, kMostExpected);
    for (int i = 0; i < count; ++i) {
        message += i == 0 ? ", expecting " : " or ";
        message += yysymbol_name(expected[i]);
    }
    return message;
}

} // namespace

static int yyreport_syntax_error(const yypcontext_t* context) {
    TbTrTablesCommand::g_tablesCommand.SetOffendingLocation(*yypcontext_location(context));
    ::yyerror(SyntaxErrorMessage(context).c_str());
    return 0;
}
