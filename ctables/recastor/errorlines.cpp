#include "ctables/recastor/errorlines.h"

#include "ctables/recastor/messages.h"
#include "ctables/recastor/printcommand.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "platform/zelkbase/zelkassert.h"

#include <array>
#include <cstddef>

namespace recastor {

namespace {

/// The messages of ParseError::ErrorID, from kUnclosedLiteral on.
const auto& TokenErrorTable() {
    static const std::array<const std::string*, 4> table{
        &IDS_TOKERR_UNCLOSEDLIT,
        &IDS_TOKERR_BADEXPONENT,
        &IDS_TOKERR_INVALIDNUMBER,
        &IDS_TOKERR_INVALIDCHAR,
    };
    return table;
}

/// The messages of TbTrTablesCommand::ErrorType, from kBadArgument on.
const auto& ParseErrorTable() {
    static const std::array<const std::string*, 12> table{
        &IDS_PTERROR_BADGRAMMAR, &IDS_PTERROR_TOINOBS,   &IDS_PTERROR_SPTABLEEXP,
        &IDS_PTERROR_YYERROR,    &IDS_PTERROR_UNKFUNC,   &IDS_PTERROR_UNKSORTFUNC,
        &IDS_PTERROR_BADASSOC,   &IDS_PTERROR_BADFTOTAL, &IDS_PTERROR_BADPTOTAL,
        &IDS_PTERROR_BADTOTAL,   &IDS_PTERROR_SCALETOT,  &IDS_PTERROR_TOOMANYTERMS,
    };
    return table;
}

/// Row `number` (1-based) of a table of messages; the program is wrong when there is none.
template <typename Table>
const std::string& MessageNumber(const Table& table, int number) {
    ZELK_ASSERT(number >= 1 && static_cast<std::size_t>(number) <= table.size());
    return *table[static_cast<std::size_t>(number) - 1];
}

/// An error of a TABLES command. The line is 1-based within the command; the column is as tokens
/// count it, from 1 on the first line and from 0 on later ones.
struct CommandError {
    int line;
    int column;
    std::string reason;
};

/// What the global classifier has recorded; nothing when there is no error.
std::optional<CommandError> ErrorInCommand() {
    CommandError error{};
    int keywordCode = 0;
    std::string argument;
    const TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    const int type = command.GetParseErrorInfo(error.line, error.column, keywordCode, argument);
    if (type == TbTrTablesCommand::kNoError) {
        return std::nullopt;
    }
    if (type == TbTrTablesCommand::kBadArgument) {
        argument = TbTrTablesCommand::KeywordFromCode(keywordCode);
    }
    SCFormatString(error.reason, MessageNumber(ParseErrorTable(), type), argument);
    return error;
}

} // namespace

void GetParseErrorStrings(const ParseError& error, std::string& first, std::string& second) {
    first.clear();
    second.clear();
    if (error.GetErrorID() == ParseError::kNoError) {
        return;
    }
    const ConversionError parts = ErrorOf(error);
    first = FormatLineAndColumn(IDS_TOKERR_MAIN, parts.line, parts.column);
    second = parts.text;
}

ConversionError ErrorOf(const ParseError& error) {
    long line = 0;
    int column = 0;
    error.GetLineAndCol(line, column);
    return {line, column, MessageNumber(TokenErrorTable(), error.GetErrorID())};
}

void PrintErrorLine(const std::string& text, std::ostream& out) {
    PrintCommand("***** " + text, out, 0);
}

std::optional<ConversionError> RecordedError(long lineOffset) {
    const auto error = ErrorInCommand();
    if (!error) {
        return std::nullopt;
    }
    const int column = error->line > 1 ? error->column + 1 : error->column;
    return ConversionError{error->line + lineOffset, column, error->reason};
}

void PrintParseOrTranslateError(std::ostream& out, long lineOffset) {
    if (const auto error = ErrorInCommand()) {
        // The message has always taken columns to be counted from 0 on every line.
        PrintErrorLine(
            FormatLineAndColumn(IDS_PTERROR_MAIN, error->line + lineOffset, error->column + 1),
            out);
        PrintErrorLine(error->reason, out);
    }
}

} // namespace recastor
