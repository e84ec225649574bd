/// The reference for the tokenizer.
#pragma once

#include "platform/zelkbase/tokensequencebase.h"

#include <string>
#include <vector>

namespace recastor {

struct PlainToken {
    TokenSequenceBase::TokenType type;
    std::string raw;
    std::string value; ///< a word upper-cased, a literal without its quotes, else as it is written
    double number;
    TokenSequenceBase::OperatorCode code;
    int line;
    int column;
};

struct PlainTokens {
    std::vector<PlainToken> tokens;
    int kind = 0; ///< of the command: 0 ordinary, 1 comment, 2 document, 3 inline data
};

/// The tokens of a command, at most `limit` where that is above 0. Throws ParseError.
PlainTokens ReadTokens(const std::string& text, bool batch, int limit);

} // namespace recastor
