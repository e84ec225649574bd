/// The three characters on which the language compares its words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace recastor {

/// The first three bytes of a word as one number; a shorter word is filled up with zeros. Two words
/// have the same number when they are equal on three characters.
constexpr std::uint32_t Abbreviation(std::string_view word) {
    constexpr std::size_t kComparedLength = 3;
    std::uint32_t packed = 0;
    for (std::size_t i = 0; i < kComparedLength; ++i) {
        packed = packed << 8U | (i < word.size() ? static_cast<unsigned char>(word[i]) : 0U);
    }
    return packed;
}

} // namespace recastor
