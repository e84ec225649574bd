/// The reference for the cursor: nothing is kept, every question asks the platform anew.
///
/// What stands in this folder reads command syntax a second time, from the rules and in the
/// plainest way, so that what the program does to be fast can be compared with it.
#pragma once

#include <cstddef>
#include <string>

namespace recastor {

/// A place in a text, up to its first NUL or byte that is no text. A copy is another place.
class PlainCursor {
public:
    /// Stands on the first character, which has number 1. The text must outlive the cursor.
    explicit PlainCursor(const std::string& text);

    /// 0 at the end, 4096 for a character of several bytes, else the byte as a signed number.
    int Code() const;
    bool Is(char character) const { return Code() == character; }
    bool IsOneOf(const std::string& characters) const;
    bool IsLineBreak() const { return IsOneOf("\n\r"); }
    bool IsQuote() const { return IsOneOf("'\""); }
    bool IsDigit() const { return IsOneOf("0123456789"); }
    bool BeginsWord() const;
    bool ContinuesWord() const { return BeginsWord() || IsDigit() || IsOneOf("._"); }

    /// To the next character; at the end it stays.
    void Step();
    std::size_t Offset() const { return m_offset; }
    int Number() const { return m_number; }
    void ResetNumber() { m_number = 0; }
    /// The bytes from `start` to here.
    std::string Since(const PlainCursor& start) const;

private:
    int Length() const;

    const char* m_text;
    std::size_t m_size;
    std::size_t m_offset = 0;
    int m_number = 1;
};

/// Steps over blanks, tabs and line breaks; adds the latter to `lines`. Whether there were any.
bool PassWhitespace(PlainCursor& cursor, int& lines);

/// Steps over a comment up to its closing slash, or to the end of its line. Whether there was one.
bool PassComment(PlainCursor& cursor);

/// Steps to the quote, or to where the line or the text ends. Whether the quote stands there.
bool PassToQuote(PlainCursor& cursor, int quote);

/// ASCII letters in upper case, but not bytes inside longer characters.
std::string PlainUpperCased(const std::string& text);

} // namespace recastor
