/// Short words as numbers, which are compared at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace recastor {

/// The first three bytes of a word as one number; a shorter word is filled up with zeros. Two words
/// have the same number when they are equal on three bytes.
constexpr std::uint32_t Abbreviation(std::string_view word) {
    constexpr std::size_t kComparedLength = 3;
    std::uint32_t packed = 0;
    for (std::size_t i = 0; i < kComparedLength; ++i) {
        packed = packed << 8U | (i < word.size() ? static_cast<unsigned char>(word[i]) : 0U);
    }
    return packed;
}

/// Whether the upper-cased word begins with the character, in either case.
constexpr bool BeginsWith(std::string_view upperCased, int code) {
    return upperCased.front() == (code >= 'a' && code <= 'z' ? code - 'a' + 'A' : code);
}

/// A word of at most four bytes as one number, which is the same for all spellings of ASCII
/// letters.
constexpr std::uint32_t PackUpperCased(std::string_view word) {
    std::uint32_t packed = 0;
    for (const char c : word) {
        const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        packed = packed << 8U | static_cast<unsigned char>(upper);
    }
    return packed;
}

} // namespace recastor
