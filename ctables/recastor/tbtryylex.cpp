// The functions of the program that the generated parser calls.

#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/tbtrdebuglog.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "platform/zelkbase/zelkassert.h"

#include <memory>
#include <string>

using namespace recastor;

namespace {

bool NamesSubcommand(int code) {
    switch (code) {
    case TB_BREAK:
    case TB_AUTOLABEL:
    case TB_BASE:
    case TB_GBASE:
    case TB_MISSINGSUBCOM:
        return true;
    default:
        return (code >= TB_FORMAT && code <= TB_SORT) || (code >= TB_CAPTION && code <= TB_WRITE);
    }
}

void LogToken(int code, const ZELKToken& token) {
    TbTrDebugLog& log = TbTrDebugLog::GetDebugLog();
    if (log.IsLoggingOn()) {
        log.GetStream() << code << '\t';
        token.Print(log.GetStream(), 0);
    }
}

} // namespace

int yylex(OpaqueValue* value, yyltype* location) {
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    OpaqueValue_Init(*value);
    bool afterSlash = false;
    ZELKToken* next = nullptr;
    int yyTokenType = command.GetNextToken(next);
    std::unique_ptr<ZELKToken> token(next);
    while (yyTokenType == SP_SLASH) {
        afterSlash = true;
        yyTokenType = command.GetNextToken(next);
        token.reset(next);
    }
    if (token == nullptr) {
        ZELK_ASSERT(yyTokenType == 0);
        *location = command.LastLocation();
        return 0;
    }
    ZELK_ASSERT_AS(token->HasText(), "tokenStr.size()");
    if (NamesSubcommand(yyTokenType) && !afterSlash) {
        // Inside another subcommand's arguments: FORMAT=BOX has an argument like any other.
        yyTokenType = SP_OTHEROP;
    }
    LogToken(yyTokenType, *token);
    int line = 0;
    int column = 0;
    token->StartLocation(line, column);
    *location = {line, column, line, column};
    command.SetLastLocation(*location);
    OpaqueValue_SetZELKToken(*value, token.release(), yyTokenType);
    return yyTokenType;
}

void yyerror(const char* message) {
    TbTrDebugLog& log = TbTrDebugLog::GetDebugLog();
    if (log.IsLoggingOn()) {
        log.GetStream() << message << std::endl;
    }
}
