/// Reads the small parts of the commands that the converter writes: words, names, literals.
#pragma once

#include <string>
#include <string_view>

namespace recastor {

/// Of ASCII.
constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A place in a text. What is asked for is looked for behind blanks and line ends.
class CtablesReader {
public:
    explicit CtablesReader(std::string_view text) : m_text(text) {}

    /// Goes behind `word` when it stands next. A word that ends in a letter must end there.
    bool Accept(std::string_view word);
    /// The same, or fails.
    void Expect(std::string_view word);
    /// Accept() for a word that must begin a line, `indentation` blanks in.
    bool AcceptAtLineStart(std::string_view word, std::size_t indentation);
    /// The one of the words that stands next, or fails.
    std::string OneOf(std::initializer_list<std::string_view> words);

    /// A word of letters, digits and what else may stand in names; fails for none.
    std::string Name();
    bool IsAtNumber();
    /// A number, with its sign and exponent; fails for none.
    std::string Number();
    bool IsAtQuote();
    /// A quoted text or several joined by `+`, with the quotes; fails for none. A plus sign joins
    /// when it touches a quote; one that stands apart from both says nothing and is skipped.
    std::string Literal();
    bool IsAtEnd();
    /// The next character that is no blank; 0 at the end.
    char Next();

    [[noreturn]] void Fail(const std::string& expected) const;

private:
    void SkipBlanks();
    std::string_view Rest() const { return m_text.substr(m_position); }
    void SkipQuoted();

    std::string_view m_text;
    std::size_t m_position = 0;
};

} // namespace recastor
