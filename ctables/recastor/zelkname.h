/// Variable names: which strings are valid, and how to make a valid one that is not yet taken.
///
/// Names are NUL-terminated strings in the locale's encoding; lengths are bytes. Trailing blanks
/// do not belong to a name.
#pragma once

#include <cstddef>
#include <string_view>

namespace recastor {

/// The longest name, in bytes.
inline constexpr std::size_t kLongestZELKName = 64;

/// What ValidateZELKName and ValidateZELKNameCheckLastChar answer.
enum ZELKNameResult : int {
    kOrdinaryName = 0,
    kScratchName = 1,      ///< begins with "#"
    kSystemName = 2,       ///< begins with "$"
    kBadNameLength = 3,    ///< empty or too long
    kBadNameCharacter = 4, ///< holds a character that names may not hold
    kReservedWord = 5,
    kBadNameStart = 6, ///< begins with a digit, "_" or "."
    kNameEndsInPeriod = 7,
    kNameEndsInUnderscore = 100,
};

/// Classifies `name`; never answers kNameEndsInPeriod or kNameEndsInUnderscore.
int ValidateZELKName(const char* name);
/// The same of a name of known length, which holds no NUL.
int ValidateZELKName(std::string_view name);

/// Like ValidateZELKName, but tells an ordinary name that ends in "." or "_" apart.
int ValidateZELKNameCheckLastChar(const char* name);

/// Whether the character that begins at `character` may stand in a name.
bool IsValidZelkNameChar(const char* character);

/// Makes "@" and the digits out of a string of one to seven digits, such as a numeric column
/// label. True when it did; else `destination` is left alone. The two may be one buffer.
bool FormNumericZELKName(char* destination, const char* source);

/// Appends "_" and the letters of suffix number `index` (0: A, 25: Z, 26: AA, as spreadsheet
/// columns are named) to `base`, shortened so that the name fits into `maximumLength` bytes.
/// Non-zero when it cannot; `destination` then holds `base`.
int addNameSuffix(char* destination, const char* base, int index, int maximumLength);

/// Answers non-zero when `candidate` is already taken; the first two arguments are the caller's.
using NameTakenCallback = int (*)(void* first, void* second, const char* candidate);

/// Turns the string in `name`, a buffer of at least 65 bytes, into a valid ordinary name, "V" and
/// `number` when nothing of it can stay, and then into one that `taken` (may be null) lets pass.
void GenerateZELKName(char* name, long number, NameTakenCallback taken, void* first, void* second);

} // namespace recastor
