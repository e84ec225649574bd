// What the parser tells the classifier: errors, and warnings about subcommands that are left out.

#include "ctables/recastor/bison/buildervalues.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/messages.h"
#include "ctables/recastor/tbtrdebuglog.h"
#include "ctables/recastor/tbtrtablescommand.h"

namespace recastor {

namespace {

void LogReport(const char* function) {
    TbTrDebugLog& log = TbTrDebugLog::GetDebugLog();
    if (log.IsLoggingOn()) {
        log.GetStream() << function << std::endl;
    }
}

void Warn(const std::string& text) {
    TbTrTablesCommand::g_tablesCommand.AddWarning(text);
}

void WarnAbout(const std::string& format, const std::string& name) {
    std::string text;
    SCFormatString(text, format, name);
    Warn(text);
}

} // namespace

OpaqueValue dropped_obsolete(int code, const yyltype& location, OpaqueValue keyword,
                             OpaqueValue arguments) {
    reportObsoleteSubcommand(TbTrTablesCommand::KeywordFromCode(code), code, location);
    return dropped_values(keyword, arguments);
}

OpaqueValue dropped_unknown(const yyltype& location, OpaqueValue keyword, OpaqueValue arguments) {
    reportUnknownSubcommand(OpaqueValue_GetZELKToken(keyword)->AsString(true), location);
    return dropped_values(keyword, arguments);
}

OpaqueValue dropped_format(const yyltype& location, OpaqueValue keyword) {
    reportFormatError(location);
    return dropped_values(keyword);
}

OpaqueValue dropped_values(OpaqueValue first, OpaqueValue second, OpaqueValue third,
                           OpaqueValue fourth) {
    DropValues(first, second, third, fourth);
    return common_nothing();
}

OpaqueValue rejected_arguments(int code, const yyltype& location, OpaqueValue keyword) {
    reportSubcommandArgumentError(code, location);
    return dropped_values(keyword);
}

OpaqueValue rejected_command(const yyltype& location) {
    reportGenericError(location);
    return common_nothing();
}

void reportGenericError(const yyltype& location) {
    LogReport("reportGenericError");
    TbTrTablesCommand::g_tablesCommand.SetParseError(location, 0, TbTrTablesCommand::kBadSyntax);
}

void reportSubcommandArgumentError(int code, const yyltype& location) {
    LogReport("reportSubcommandArgumentError");
    TbTrTablesCommand::g_tablesCommand.SetParseError(location, code,
                                                     TbTrTablesCommand::kBadArgument);
}

void reportSubcommandArgumentCustomError(int code, const yyltype& location) {
    LogReport("reportSubcommandArgumentCustomError");
    auto type = TbTrTablesCommand::kBadArgument;
    if (code == TB_OBSERVATION) {
        type = TbTrTablesCommand::kRangeInObservation;
    } else if (code == TB_TABLE) {
        type = TbTrTablesCommand::kBadTableWord;
    }
    TbTrTablesCommand::g_tablesCommand.SetParseError(location, code, type);
}

void reportObsoleteSubcommand(const std::string& name, int /*code*/, const yyltype& /*location*/) {
    LogReport("reportObsoleteSubcommand");
    WarnAbout(IDS_WARN_IGNOREOBSOLETE, name);
}

void reportUnknownSubcommand(const std::string& name, const yyltype& /*location*/) {
    LogReport("reportUnknownSubcommand");
    WarnAbout(IDS_WARN_IGNOREUNKNOWN, name);
}

void reportFormatError(const yyltype& /*location*/) {
    LogReport("reportFormatError");
    Warn(IDS_WARN_OBSOLETE_FORMAT);
}

} // namespace recastor
