/// The character level of command syntax: what may stand in a word, and what separates tokens.
#pragma once

#include "ctables/recastor/mbcharpointer.h"

#include <cstddef>
#include <string>

namespace recastor {

// The classes take character codes of MBCharPointer.

/// An ASCII decimal digit.
constexpr bool IsDigit(int code) {
    return code >= '0' && code <= '9';
}

/// May start a word: an ASCII letter, "#", "$", "@", and everything beyond ASCII.
constexpr bool IsExtendedAlpha(int code) {
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || code == '#' ||
           code == '$' || code == '@' || code < 0 || code >= 128;
}

/// May continue a word but not start one: ".", "_" or a digit. A word therefore takes a period
/// that follows it into itself.
constexpr bool IsWordBodyOnly(int code) {
    return code == '.' || code == '_' || IsDigit(code);
}

/// A control character that may not stand outside quotes; 3895 is one too for readers of wide
/// characters, though no cursor gives it.
constexpr bool IsInvalidUnquoted(int code) {
    return (code >= 1 && code <= 8) || code == 11 || code == 12 || (code >= 14 && code <= 31) ||
           code == 3895;
}

/// A digit, or the point, which may also be an operator.
constexpr bool CanStartNumber(int code) {
    return IsDigit(code) || code == '.';
}

/// A number of so many digits, with or without a point and without exponent, is within the range of
/// doubles whatever its digits are.
inline constexpr std::size_t kSafeDigits = 300;

/// The apostrophe or the double quote.
constexpr bool IsQuote(int code) {
    return code == '\'' || code == '"';
}

inline constexpr CharSet gWordStarts = CharSet::Where(IsExtendedAlpha);
/// The characters of a word behind its first.
inline constexpr CharSet gWordChars =
    CharSet::Where([](int code) { return IsExtendedAlpha(code) || IsWordBodyOnly(code); });
inline constexpr CharSet gDigits = CharSet::Where(IsDigit);
inline constexpr CharSet gBlanks = CharSet::Of(" \t");
/// What a quoted segment goes on with.
inline constexpr CharSet gInApostrophes = CharSet::AllBut("\n\r'");
inline constexpr CharSet gInDoubleQuotes = CharSet::AllBut("\n\r\"");
/// What neither ends a command nor begins what may hide a period.
inline constexpr CharSet gPlain = CharSet::AllBut(".\n\r'\"/");

/// Skips blanks, tabs and line breaks; true when there were any. `lines` is set to the number of
/// line breaks, each of "\n", "\r", "\n\r" and "\r\n" being one. Behind a line break the cursor's
/// character number is reset, so the new line's first character has number 0.
bool SkipWhitespace(MBCharPointer& cursor, int& lines);

/// Steps from inside a quoted segment to its closing quote, or to the line break or the end where
/// it breaks off; returns the code there.
int SkipLiteralText(MBCharPointer& cursor, int quote);

/// Skips a slash-asterisk comment, which ends with its line at the latest. A closing slash is not
/// skipped: it stays in the text as an operator. False, with the cursor in place, when there is
/// no comment.
bool SkipComment(MBCharPointer& cursor);

/// Sets `destination` to the upper-cased `source`; an empty source leaves it unchanged.
void UpperCaseString(const std::string& source, std::string& destination);

} // namespace recastor
