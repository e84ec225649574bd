/// Questions that many neighbouring characters are asked at once.
#pragma once

#include <algorithm>
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

/// The place of the first of them, from 0 on, for which it is a yes; it is one for at least one.
inline std::size_t IndexOfFirstYes(Neighbours answer) {
    const auto bytes = std::bit_cast<std::array<signed char, sizeof answer>>(answer);
    const auto* const first =
        std::find_if(bytes.begin(), bytes.end(), [](signed char byte) { return byte != 0; });
    return static_cast<std::size_t>(first - bytes.begin());
}

/// A text that is long enough to be asked: a short one is copied, with blanks in front.
class LongEnoughText {
public:
    /// What is asked at once, and the byte behind it.
    static constexpr std::size_t kShortest = sizeof(Neighbours) + 1;

    explicit LongEnoughText(std::string_view text) : m_text(text) {
        if (text.size() < m_padded.size()) {
            m_padded.fill(' ');
            m_padding = m_padded.size() - text.size();
            text.copy(m_padded.data() + m_padding, text.size());
            m_text = {m_padded.data(), m_padded.size()};
        }
    }
    LongEnoughText(const LongEnoughText&) = delete;
    LongEnoughText& operator=(const LongEnoughText&) = delete;

    const char* Data() const { return m_text.data(); }
    /// The last place from which it can be asked.
    std::size_t LastPlace() const { return m_text.size() - m_padded.size(); }
    /// The number of blanks in front.
    std::size_t Padding() const { return m_padding; }

private:
    std::array<char, kShortest> m_padded{};
    std::string_view m_text;
    std::size_t m_padding = 0;
};

/// What question(byte, byte behind it) answers for the bytes from `first` on.
template <typename Question>
Neighbours Ask(const Question& question, const char* first) {
    return question(LoadNeighbours(first), LoadNeighbours(first + 1));
}

/// Whether the question is a yes anywhere in the text, which is not empty. The last byte only
/// stands behind; in a short text blanks stand in front of the first one.
template <typename Question>
bool IsAnywhere(std::string_view text, const Question& question) {
    const LongEnoughText longEnough(text);
    const char* const last = longEnough.Data() + longEnough.LastPlace();
    Neighbours answer = Ask(question, last);
    for (const char* place = longEnough.Data(); place < last; place += sizeof(Neighbours)) {
        answer |= Ask(question, place);
    }
    return IsAnyYes(answer);
}

/// The index of the first byte for which it is a yes; npos when it is a no everywhere. Again the
/// text is not empty, and its last byte only stands behind. A yes for a blank in front of a short
/// text is told as one for the first byte.
template <typename Question>
std::size_t FindFirst(std::string_view text, const Question& question) {
    constexpr std::size_t kAskedAtOnce = 256;
    std::size_t start = 0;
    while (!IsAnywhere(text.substr(start, kAskedAtOnce + 1), question)) {
        if (text.size() - start <= kAskedAtOnce + 1) {
            return std::string_view::npos;
        }
        start = std::min(start + kAskedAtOnce, text.size() - LongEnoughText::kShortest);
    }
    const LongEnoughText longEnough(text.substr(start, kAskedAtOnce + 1));
    const std::size_t padding = longEnough.Padding();
    std::size_t place = 0;
    Neighbours answer = Ask(question, longEnough.Data());
    while (!IsAnyYes(answer)) {
        place = std::min(place + sizeof(Neighbours), longEnough.LastPlace());
        answer = Ask(question, longEnough.Data() + place);
    }
    return start + std::max(place + IndexOfFirstYes(answer), padding) - padding;
}

} // namespace recastor
