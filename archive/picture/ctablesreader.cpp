#include "archive/picture/ctablesreader.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace recastor {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// Words that cannot be names, in upper case as they are written.
constexpr std::array<std::string_view, 13> kReserved{"ALL", "AND", "BY",  "EQ", "GE", "GT",  "LE",
                                                     "LT",  "NE",  "NOT", "OR", "TO", "WITH"};

bool IsNameCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || IsDigit(c) ||
           std::string_view("@#$_.").find(c) != std::string_view::npos ||
           static_cast<unsigned char>(c) >= 0x80;
}

} // namespace

void CtablesReader::SkipBlanks() {
    m_position = std::min(m_text.find_first_not_of(kBlanks, m_position), m_text.size());
}

bool CtablesReader::Accept(std::string_view word) {
    SkipBlanks();
    if (!Rest().starts_with(word)) {
        return false;
    }
    const std::size_t end = m_position + word.size();
    if (IsNameCharacter(word.back()) && end < m_text.size() && IsNameCharacter(m_text[end]) &&
        m_text[end] != '.') {
        return false;
    }
    m_position = end;
    return true;
}

void CtablesReader::Expect(std::string_view word) {
    if (!Accept(word)) {
        Fail(std::string(word));
    }
}

bool CtablesReader::AcceptAtLineStart(std::string_view word, std::size_t indentation) {
    if (!Accept(word)) {
        return false;
    }
    const std::size_t start = m_position - word.size();
    const std::size_t lineStart = m_text.find_last_of('\n', start) + 1; // 0 when there is none
    const std::string_view before = m_text.substr(lineStart, start - lineStart);
    if (before != std::string(indentation, ' ')) {
        Fail(std::string(word) + " at the start of a line, " + std::to_string(indentation) + " in");
    }
    return true;
}

std::string CtablesReader::OneOf(std::initializer_list<std::string_view> words) {
    std::string expected;
    for (const std::string_view word : words) {
        if (Accept(word)) {
            return std::string(word);
        }
        expected.append(expected.empty() ? "" : " or ").append(word);
    }
    Fail(expected);
}

std::string CtablesReader::Name() {
    SkipBlanks();
    std::size_t end = m_position;
    while (end < m_text.size() && IsNameCharacter(m_text[end])) {
        ++end;
    }
    // A period behind the last word of a line ends the command.
    const std::size_t lineEnd = std::min(m_text.find_first_not_of(" \t\r", end), m_text.size());
    if (end > m_position && m_text[end - 1] == '.' &&
        (lineEnd == m_text.size() || m_text[lineEnd] == '\n')) {
        --end;
    }
    std::string name(m_text.substr(m_position, end - m_position));
    if (name.empty() || IsDigit(name.front()) || name.front() == '.' || name.front() == '_' ||
        std::find(kReserved.begin(), kReserved.end(), name) != kReserved.end()) {
        Fail("a name");
    }
    m_position = end;
    return name;
}

std::string CtablesReader::Number() {
    SkipBlanks();
    const std::string_view rest = Rest();
    std::size_t end = rest.starts_with('+') || rest.starts_with('-') ? 1 : 0;
    const auto skipDigits = [&] {
        const std::size_t start = end;
        end = std::min(rest.find_first_not_of("0123456789", end), rest.size());
        return end > start;
    };
    bool isNumber = skipDigits();
    if (end + 1 < rest.size() && rest[end] == '.') {
        const char next = rest[end + 1];
        if (IsDigit(next)) {
            ++end;
            isNumber = skipDigits();
        } else if (isNumber && std::string_view(",].").find(next) != std::string_view::npos) {
            ++end; // the number's own period, not the command's
        }
    }
    const std::size_t exponent = rest.find_first_of("0123456789", end);
    if (isNumber && (rest.substr(end, 1) == "e" || rest.substr(end, 1) == "E") &&
        exponent <= end + 2) {
        end = exponent;
        skipDigits();
    }
    if (!isNumber) {
        Fail("a number");
    }
    m_position += end;
    return std::string(rest.substr(0, end));
}

bool CtablesReader::IsAtQuote() {
    const char next = Next();
    return next == '\'' || next == '"';
}

bool CtablesReader::IsAtNumber() {
    const char next = Next();
    return IsDigit(next) || next == '+' || next == '-' || next == '.';
}

void CtablesReader::SkipQuoted() {
    const char quote = m_text[m_position];
    while (Rest().starts_with(quote)) { // a doubled quote is a quote in the text
        const std::size_t end = m_text.find_first_of(std::string("\r\n") + quote, m_position + 1);
        if (end == std::string_view::npos || m_text[end] != quote) {
            Fail(std::string("a closing ") + quote);
        }
        m_position = end + 1;
    }
}

std::string CtablesReader::Literal() {
    if (!IsAtQuote()) {
        Fail("a literal");
    }
    const std::size_t start = m_position;
    SkipQuoted();
    std::size_t end = m_position;
    for (bool touches = Rest().starts_with('+'); Accept("+"); touches = Rest().starts_with('+')) {
        touches = touches || Rest().starts_with('\'') || Rest().starts_with('"');
        if (touches && IsAtQuote()) {
            SkipQuoted();
            end = m_position;
        }
    }
    return std::string(m_text.substr(start, end - start));
}

bool CtablesReader::IsAtEnd() {
    return Next() == 0;
}

char CtablesReader::Next() {
    SkipBlanks();
    return m_position < m_text.size() ? m_text[m_position] : '\0';
}

void CtablesReader::Fail(const std::string& expected) const {
    const std::string_view before = m_text.substr(0, m_position);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::string_view found = Rest().substr(0, Rest().find('\n'));
    throw std::invalid_argument("line " + std::to_string(line) + ": expected " + expected +
                                ", found: " + std::string(found));
}

} // namespace recastor
