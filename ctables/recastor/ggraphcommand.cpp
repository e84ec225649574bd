#include "ctables/recastor/ggraphcommand.h"

namespace recastor {

namespace {

/// `text` with each `quote` in it doubled.
std::string Doubled(const std::string& text, char quote) {
    std::string doubled;
    for (const char c : text) {
        doubled += c;
        if (c == quote) {
            doubled += quote;
        }
    }
    return doubled;
}

/// The looks make up one name.
std::string Template(const std::vector<std::string>& looks) {
    std::string name;
    for (const std::string& look : looks) {
        name += Doubled(look, '"');
    }
    return "\n      TEMPLATE=[\"" + name + "\"]";
}

std::string InlineTemplate(const std::vector<std::string>& templates) {
    std::string list;
    for (const std::string& each : templates) {
        list += list.empty() ? "\"" : " \"";
        list += Doubled(each, '"') + '"';
    }
    return "\n      INLINETEMPLATE=[" + list + ']';
}

} // namespace

std::string GGraphCommand(const GGraphParts& parts) {
    std::string command = "GGRAPH\n  /GRAPHDATASET NAME=\"iGraphDataset\" VARIABLES=";
    command += parts.variables;
    command += "\n    MISSING=LISTWISE REPORTMISSING=NO\n";
    command += "  /GRAPHSPEC SOURCE=INLINE EDITABLE=YES";
    if (!parts.viewName.empty()) {
        command += " LABEL='" + Doubled(parts.viewName, '\'') + '\'';
    }
    if (!parts.looks.empty()) {
        command += Template(parts.looks);
    }
    if (!parts.inlineTemplates.empty()) {
        command += InlineTemplate(parts.inlineTemplates);
    }
    return command + ".\nBEGIN GPL" + parts.gpl + "END GPL.";
}

} // namespace recastor
