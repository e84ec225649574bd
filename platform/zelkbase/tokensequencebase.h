/// The interface through which a parser reads the tokens of one command.
///
/// It is the boundary between the lexical layer, which implements it, and every reader, the
/// chart services among them. The order of the virtual operations is part of the boundary.
#pragma once

#include <cstdint>

namespace recastor {

/// A sequence of tokens with a current one. A fresh sequence answers for token 0; Next() makes
/// the first token current. Reading past the end is legal: every operation but LineNumber() has
/// an answer for "at end".
class TokenSequenceBase {
public:
    enum TokenType : std::int32_t {
        kAtEnd = 1,    ///< no current token
        kString = 2,   ///< a word: name, keyword or reserved word
        kNumber = 3,   ///< a numeric constant
        kLiteral = 4,  ///< a quoted string
        kOperator = 5, ///< a punctuation or operator symbol
    };

    /// What an operator symbol or a reserved word means.
    enum OperatorCode : std::int32_t {
        kNotOperator = 0,
        kLessThan = 1,
        kGreaterThan = 2,
        kEquals = 3,
        kLtOrEq = 4,
        kGtOrEq = 5,
        kNotEqual = 6,
        kNot = 7,
        kPlus = 8,
        kMinus = 9,
        kAsterisk = 10,
        kSlash = 11,
        kPower = 12,
        kLeftParen = 13,
        kRightParen = 14,
        kComma = 15,
        kColon = 16,
        kSemicolon = 17,
        kPeriod = 18,
        kUnderscore = 19,
        kQuestionMark = 20,
        kPercent = 21,
        kVerticalBar = 22,
        kAmpersand = 23,
        kLeftBrace = 24,
        kRightBrace = 25,
        kElemMult = 26,
        kElemDiv = 27,
        kElemPower = 28,
        kXtabNest = 29,
        kTo = 30,
        kWith = 31,
        kAnd = 32,
        kOr = 33,
        kBy = 34,
        kAll = 35,
        kLeftSqBracket = 36,
        kRightSqBracket = 37,
    };

    TokenSequenceBase() = default;
    TokenSequenceBase(const TokenSequenceBase&) = delete;
    TokenSequenceBase& operator=(const TokenSequenceBase&) = delete;
    virtual ~TokenSequenceBase() = default;

    /// Makes the next token current; false when there is none (the sequence is then at its end).
    virtual bool Next() = 0;
    /// 0-based index of the current token; the token count at the end.
    virtual unsigned Tell() const = 0;
    /// The following Next() makes the token at `position` (0-based) current.
    virtual void Seek(unsigned position) = 0;
    /// The number of tokens.
    virtual unsigned Size() const = 0;
    /// kAtEnd at the end.
    virtual TokenType Type() const = 0;
    /// The operator code of a symbol or a reserved word; kNotOperator for all else and at the end.
    virtual OperatorCode Operator() const = 0;
    /// The token as written, a literal unquoted; null and 0 at the end. `length` is in bytes; the
    /// text belongs to the sequence.
    virtual void AsString(const char*& text, unsigned& length) const = 0;
    /// Like AsString, a word upper-cased.
    virtual void AsUpperString(const char*& text, unsigned& length) const = 0;
    /// A number's value; 0.0 for all else and at the end.
    virtual double AsNumber() const = 0;
    /// 1-based line of the token within its command. Needs a current token.
    virtual int LineNumber() const = 0;
    /// Character number of the token within its line, counted from 1 on the command's first line
    /// and from 0 on every later one; 0 at the end.
    virtual int Column() const = 0;
};

} // namespace recastor
