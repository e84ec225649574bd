/// The error that ends a run: a text that cannot be split into tokens or commands.
#pragma once

#include <cstdint>

namespace recastor {

/// Thrown by value by the lexical layer. Its line is counted within the text that was examined
/// until whoever gave that text adds the lines before it.
class ParseError {
public:
    enum ErrorID : std::int32_t {
        kNoError = 0,
        kUnclosedLiteral = 1,
        kBadExponent = 2,
        kInvalidNumber = 3,
        kInvalidCharacter = 4,
    };

    /// `line` is 1-based, `column` as the tokenizer counts it.
    ParseError(std::int64_t line, std::int32_t column, ErrorID id) :
        m_line(line), m_column(column), m_id(id) {}

    ErrorID GetErrorID() const { return m_id; }

    void GetLineAndCol(long& line, int& column) const {
        line = static_cast<long>(m_line);
        column = m_column;
    }

    void IncrementLine(long n) { m_line += n; }

private:
    std::int64_t m_line;
    std::int32_t m_column;
    ErrorID m_id;
};

} // namespace recastor
