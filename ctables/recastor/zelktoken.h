/// The tokens of command syntax: words, numbers, operators and literals.
#pragma once

#include "platform/zelkbase/paddedtext.h"
#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkbase/tokensequencebase.h"

#include <cstdint>
#include <ostream>
#include <string>

namespace recastor {

/// Name of a token type for debug printing; "kAtEnd" for a value that is none.
const std::string& TokenTypeName(TokenSequenceBase::TokenType type);

/// Name of an operator code for debug printing; "kNotOperator" for kNotEqual, which has no row in
/// the table, and for a value that is no code.
const std::string& OperatorTypeName(TokenSequenceBase::OperatorCode code);

/// One token: its source bytes and the place where they begin. A heap object; copies made by
/// Dup() belong to the caller.
class ZELKToken : public SmallObject {
public:
    using TokenType = TokenSequenceBase::TokenType;
    using OperatorCode = TokenSequenceBase::OperatorCode;

    /// Copies the raw text; `line` is 1-based, `column` a character number of the cursor (from 1 on
    /// the first line, from 0 on later ones).
    ZELKToken(const PaddedText& rawText, int line, int column);

    virtual ~ZELKToken() = default;
    virtual TokenType Type() const = 0;
    /// An independent heap copy that the caller owns.
    virtual ZELKToken* Dup() const = 0;
    /// Debug print: `indent` tabs (none when it is below 0 or above 20), type, line and column.
    virtual void Print(std::ostream& out, int indent) const = 0;
    /// The source text when `raw`; else a word upper-cased and a literal unquoted.
    virtual const std::string& AsString(bool raw) const;
    /// Whether there is any source text: what every token is asked, whatever its kind.
    bool HasText() const { return !m_rawText.empty(); }
    /// A number's value, 0.0 for other tokens.
    virtual double AsNumber() const;
    virtual OperatorCode OpCode() const;
    virtual void StartLocation(int& line, int& column) const;
    /// Three-way comparison of AsString(raw) with `s` by bytes: of the first `n` bytes of each
    /// (a shorter text takes part whole), or of the whole texts when `n` is 0.
    virtual int CompareAsString(const std::string& s, unsigned n, bool raw) const;

protected:
    ZELKToken(const ZELKToken&) = default;
    ZELKToken& operator=(const ZELKToken&) = default;

private:
    std::string m_rawText;
    std::int32_t m_line;
    std::int32_t m_column;
};

/// A numeric constant.
class ZELKNumberToken final : public ZELKToken {
public:
    ZELKNumberToken(const PaddedText& rawText, int line, int column, double value);
    TokenType Type() const override { return TokenSequenceBase::kNumber; }
    ZELKToken* Dup() const override;
    void Print(std::ostream& out, int indent) const override;
    double AsNumber() const override { return m_value; }

private:
    double m_value;
};

/// A word: a name, a keyword or, with an operator code, a reserved word.
class ZELKStringToken : public ZELKToken {
public:
    /// `upperCased` may be empty when the raw text is upper-cased already.
    ZELKStringToken(const PaddedText& rawText, int line, int column, const PaddedText& upperCased,
                    OperatorCode code);
    TokenType Type() const override { return TokenSequenceBase::kString; }
    ZELKToken* Dup() const override;
    void Print(std::ostream& out, int indent) const override;
    const std::string& AsString(bool raw) const override;
    OperatorCode OpCode() const override { return m_code; }

private:
    std::string m_value; ///< empty when it is the raw text
    OperatorCode m_code;
};

/// A punctuation or operator symbol.
class ZELKOperatorToken final : public ZELKToken {
public:
    ZELKOperatorToken(const PaddedText& rawText, int line, int column, OperatorCode code);
    TokenType Type() const override { return TokenSequenceBase::kOperator; }
    ZELKToken* Dup() const override;
    void Print(std::ostream& out, int indent) const override;
    OperatorCode OpCode() const override { return m_code; }

private:
    OperatorCode m_code;
};

/// A quoted string; its raw text keeps the quotes and the joins of its segments.
class ZELKLiteralToken final : public ZELKToken {
public:
    ZELKLiteralToken(const PaddedText& rawText, int line, int column, std::string&& value);
    TokenType Type() const override { return TokenSequenceBase::kLiteral; }
    ZELKToken* Dup() const override;
    void Print(std::ostream& out, int indent) const override;
    const std::string& AsString(bool raw) const override;

private:
    std::string m_value;
};

} // namespace recastor
