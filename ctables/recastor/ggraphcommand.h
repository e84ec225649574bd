/// The text of a GGRAPH command.
#pragma once

#include <string>
#include <vector>

namespace recastor {

/// What a GGRAPH command is made of.
struct GGraphParts {
    std::string viewName;                     ///< the graph's label; empty for none
    std::string variables;                    ///< one blank between
    std::vector<std::string> looks;           ///< written as one name
    std::vector<std::string> inlineTemplates; ///< written each by itself
    std::string gpl;                          ///< begins and ends with a line break
};

/// The command and its GPL block, up to the period of END GPL. Quotes in a text are doubled, so
/// that the command reads back.
std::string GGraphCommand(const GGraphParts& parts);

} // namespace recastor
