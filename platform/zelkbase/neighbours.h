/// Questions that many neighbouring characters are asked at once.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace recastor {

/// Neighbouring bytes of a text. What a comparison answers is such a value as well: every bit of a
/// yes is set, none of a no. Bytes of 0x80 and above are negative.
using Neighbours [[gnu::vector_size(16)]] = signed char;

/// The bytes from `first` on.
inline Neighbours LoadNeighbours(const char* first) {
    Neighbours bytes;
    std::memcpy(&bytes, first, sizeof bytes);
    return bytes;
}

/// Whether the answer is a yes for any of them.
inline bool IsAnyYes(Neighbours answer) {
    return std::bit_cast<std::array<std::uint64_t, 2>>(answer) != std::array<std::uint64_t, 2>{};
}

/// Whether question(byte, byte behind it) is a yes anywhere in the text, which is not empty. The
/// last byte only stands behind; in a short text blanks stand in front of the first one.
template <typename Question>
bool IsAnywhere(std::string_view text, const Question& question) {
    constexpr std::size_t kWidth = sizeof(Neighbours);
    std::array<char, kWidth + 1> padded{};
    if (text.size() < padded.size()) {
        padded.fill(' ');
        text.copy(padded.data() + padded.size() - text.size(), text.size());
        text = {padded.data(), padded.size()};
    }
    const char* const last = text.data() + text.size() - padded.size();
    Neighbours answer = question(LoadNeighbours(last), LoadNeighbours(last + 1));
    for (const char* place = text.data(); place < last; place += kWidth) {
        answer |= question(LoadNeighbours(place), LoadNeighbours(place + 1));
    }
    return IsAnyYes(answer);
}

} // namespace recastor
