/// The message catalogue: every text that the program writes for its user, but for the reasons why
/// a chart has no GPL (platform/zelkwigr/gplobstacles.cpp).
///
/// A message's constant is its key as well as its text. "%s" stands for a text, "%ld" for a line
/// and "%d" for a column.
#pragma once

#include <string>

namespace recastor {

// The command line and its files.
extern const std::string IDS_STRING_USAGE;
extern const std::string IDS_STRING_ARGS;
extern const std::string IDS_STRING_ERROR_INPUT_FILE;
extern const std::string IDS_STRING_ERROR_OUTPUT_FILE;
extern const std::string IDS_STRING_ERROR_READING_INPUT;
extern const std::string IDS_STRING_ERROR_UTF16_INPUT;
extern const std::string IDS_STRING_ERROR_WRITING_OUTPUT;
extern const std::string IDS_STRING_ERROR_NO_MEMORY;
extern const std::string IDS_FAILED_MESSAGE;

// The comment lines that frame a converted command.
extern const std::string IDS_STRING_COMMENT_BEGIN_TABLES_COMMAND;
extern const std::string IDS_STRING_COMMENT_END_TABLES_COMMAND;
extern const std::string IDS_STRING_BEGIN_CTABLES_COMMAND;
extern const std::string IDS_STRING_END_CTABLES_COMMAND;
extern const std::string IDS_STRING_COMMENT_BEGIN_IGRAPH_COMMAND;
extern const std::string IDS_STRING_COMMENT_END_IGRAPH_COMMAND;
extern const std::string IDS_STRING_BEGIN_GGRAPH_COMMAND;
extern const std::string IDS_STRING_END_GGRAPH_COMMAND;
extern const std::string IDS_STRING_IGRAPH_ERROR;

// What ends a run: the text cannot be split into tokens.
extern const std::string IDS_TOKERR_MAIN;
extern const std::string IDS_TOKERR_UNCLOSEDLIT;
extern const std::string IDS_TOKERR_BADEXPONENT;
extern const std::string IDS_TOKERR_INVALIDNUMBER;
extern const std::string IDS_TOKERR_INVALIDCHAR;

// Why one TABLES command cannot be converted.
extern const std::string IDS_PTERROR_MAIN;
extern const std::string IDS_PTERROR_BADGRAMMAR;
extern const std::string IDS_PTERROR_TOINOBS;
extern const std::string IDS_PTERROR_SPTABLEEXP;
extern const std::string IDS_PTERROR_YYERROR;
extern const std::string IDS_PTERROR_UNKFUNC;
extern const std::string IDS_PTERROR_UNKSORTFUNC;
extern const std::string IDS_PTERROR_BADASSOC;
extern const std::string IDS_PTERROR_BADFTOTAL;
extern const std::string IDS_PTERROR_BADPTOTAL;
extern const std::string IDS_PTERROR_BADTOTAL;
extern const std::string IDS_PTERROR_SCALETOT;
extern const std::string IDS_PTERROR_TOOMANYTERMS;

// What was left out of a converted TABLES command.
extern const std::string IDS_WARN_IGNOREOBSOLETE;
extern const std::string IDS_WARN_IGNOREUNKNOWN;
extern const std::string IDS_WARN_OBSOLETE_FORMAT;

// Progress on standard output, one line a command.
extern const std::string IDS_CONVERSION_TABLES_SUCCEED;
extern const std::string IDS_CONVERSION_TABLES_FAIL;
extern const std::string IDS_CONVERSION_IGRAPH_SUCCEED;
extern const std::string IDS_CONVERSION_IGRAPH_FAIL;

// Kept in the catalogue for translators of the program; nothing writes them.
extern const std::string IDS_STRING_PARSE_ERROR;
extern const std::string IDS_GEEKY_ERROR_MESSAGE;

/// Fetches the message `id` into `out`. False, with `out` left alone, when the message is empty.
bool SCLoadString(std::string& out, const std::string& id);

/// Puts `argument` in the place of the one "%s" of `format`.
void SCFormatString(std::string& out, const std::string& format, const std::string& argument);

/// Puts `line` and `column` in the place of the one "%ld" and the one "%d" of `format`.
std::string FormatLineAndColumn(const std::string& format, long line, int column);

} // namespace recastor
