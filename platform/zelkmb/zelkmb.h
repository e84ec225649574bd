/// Locale and multibyte string services.
///
/// A character is one or more bytes in the encoding of the locale that EnableLocale() chose. The
/// encoding is a property of the process, as the C library's locale is.
#pragma once

#include <cstddef>
#include <string>

namespace recastor {

/// Makes the process follow the user's locale for the encoding of text. Where that is C, POSIX
/// or not installed, it takes C.UTF-8. Number formats stay those of the C locale.
void EnableLocale();

/// From now on every byte of 0x80 and above is a character of its own. For text that is not
/// valid in the locale's encoding, and so in some 8-bit one. EnableLocale() ends it.
void TreatHighBytesAsCharacters();

/// Length in bytes of the character at `s`, looking at no more than `n` bytes; 0 at a NUL, below
/// 0 for an invalid or incomplete sequence.
int ZELKMBmblen_A(const char* s, std::size_t n);

/// Upper-cases the ASCII letters of a NUL-terminated text in place. Other characters stay, and
/// so does every length; a byte that looks like a letter inside a longer character stays too.
void ZELKMBstrupr_A(char* text);

/// Compares the `length` bytes at `text` with the NUL-terminated `word`, ASCII letters without
/// regard to case; non-zero when they are equal.
int ZELKMBqstricmp_A(const char* text, std::size_t length, const char* word);

/// The last place in the NUL-terminated `text` where `byte` stands as a character of its own;
/// null when there is none.
const char* ZELKMBstrrchr_A(const char* text, char byte);

/// Cuts `text` to at most `n` bytes without splitting a character.
void ZELKMBStringTruncate_A(std::string& text, std::size_t n);

} // namespace recastor
