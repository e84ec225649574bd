/// Reads an IGRAPH command.
#pragma once

#include "platform/zelkwigr/igraphspec.h"
#include "platform/zelkwigr/opaquetypes.h"

#include <memory>
#include <optional>

namespace recastor {

class TokenSequenceBase;

/// One parser may read several commands, one after the other: Parse(), then, when that went well,
/// CompleteAndValidateSyntax(), then GetSettings().
class parser {
public:
    parser(ProcedureDataSource* data, FacSTDictionary* dictionary);

    /// Reads the whole command. `tokens` stands before its first token, the command's name. False
    /// when it is not written in the language.
    bool Parse(TokenSequenceBase& tokens);
    /// Fills in what the command leaves open. False when its parts do not fit together. A command
    /// is completed once.
    bool CompleteAndValidateSyntax();
    /// The graph of the last command that was valid, null before the first; it belongs to the
    /// parser.
    iGraphSpec* GetSettings() { return m_settings ? &*m_settings : nullptr; }

private:
    std::unique_ptr<ChartModel> m_chart; ///< of a command that is parsed and not yet complete
    std::optional<iGraphSpec> m_settings;
};

} // namespace recastor
