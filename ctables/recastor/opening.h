/// What the first tokens of a command tell about it.
#pragma once

#include <cstdint>
#include <string>

namespace recastor {

struct Opening {
    int kind = 0;            ///< one of CommandKind
    bool holdsToken = false; ///< a text may hold none: a lone comma, an open comment
    /// Of the first token, a word upper-cased, a literal unquoted; of an asterisk for every
    /// operator that begins with one.
    std::uint32_t abbreviation = 0;
    bool isWhole = false; ///< surely the same for every text that begins with this one
};

/// Reads no further than the second token. `batch`: batch-mode syntax rules. Throws ParseError.
Opening ReadOpening(const std::string& text, bool batch);

} // namespace recastor
