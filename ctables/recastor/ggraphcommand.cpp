#include "ctables/recastor/ggraphcommand.h"

#include <cstddef>
#include <string_view>

namespace recastor {

namespace {

/// Room for all but the parts and a quote or two in them.
constexpr std::size_t kFrameSize = 256;

/// Appends `text` with each `quote` in it doubled.
void AppendDoubled(std::string_view text, char quote, std::string& command) {
    for (auto end = text.find(quote); end != std::string_view::npos; end = text.find(quote)) {
        command.append(text.substr(0, end + 1)) += quote;
        text.remove_prefix(end + 1);
    }
    command += text;
}

/// The looks make up one name.
void AppendTemplate(const std::vector<std::string>& looks, std::string& command) {
    command += "\n      TEMPLATE=[\"";
    for (const std::string& look : looks) {
        AppendDoubled(look, '"', command);
    }
    command += "\"]";
}

void AppendInlineTemplate(const std::vector<std::string>& templates, std::string& command) {
    command += "\n      INLINETEMPLATE=[";
    const char* separator = "\"";
    for (const std::string& each : templates) {
        command += separator;
        AppendDoubled(each, '"', command);
        command += '"';
        separator = " \"";
    }
    command += ']';
}

} // namespace

std::string GGraphCommand(const GGraphParts& parts) {
    std::string command;
    command.reserve(kFrameSize + parts.variables.size() + parts.gpl.size());
    command += "GGRAPH\n  /GRAPHDATASET NAME=\"iGraphDataset\" VARIABLES=";
    command += parts.variables;
    command += "\n    MISSING=LISTWISE REPORTMISSING=NO\n";
    command += "  /GRAPHSPEC SOURCE=INLINE EDITABLE=YES";
    if (!parts.viewName.empty()) {
        command += " LABEL='";
        AppendDoubled(parts.viewName, '\'', command);
        command += '\'';
    }
    if (!parts.looks.empty()) {
        AppendTemplate(parts.looks, command);
    }
    if (!parts.inlineTemplates.empty()) {
        AppendInlineTemplate(parts.inlineTemplates, command);
    }
    command += ".\nBEGIN GPL";
    command += parts.gpl;
    return command += "END GPL.";
}

} // namespace recastor
