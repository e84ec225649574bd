#include "platform/zelkmb/encodingcheck.h"

#include "platform/zelkmb/zelkmb.h"

#include <climits>
#include <cstdint>
#include <cstring>

namespace recastor {

namespace {

/// The number of ASCII characters that `text` begins with; most inputs are looked through in words
/// of eight.
std::size_t AsciiPrefix(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & kHighBits) != 0) {
            break;
        }
    }
    while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) {
        ++length;
    }
    return length;
}

} // namespace

void EncodingCheck::Feed(std::string_view piece) {
    FeedUndecided(piece);
    while (m_valid) {
        piece.remove_prefix(AsciiPrefix(piece));
        if (piece.empty()) {
            return;
        }
        const int length = ZELKMBmblen_A(piece.data(), piece.size());
        if (length > 0) {
            piece.remove_prefix(static_cast<std::size_t>(length));
        } else if (piece.size() >= MB_LEN_MAX) {
            m_valid = false;
        } else {
            m_undecided = piece;
            return;
        }
    }
}

void EncodingCheck::FeedUndecided(std::string_view& piece) {
    while (m_valid && !m_undecided.empty() && !piece.empty()) {
        m_undecided += piece.front();
        piece.remove_prefix(1);
        if (ZELKMBmblen_A(m_undecided.data(), m_undecided.size()) > 0) {
            m_undecided.clear();
        } else if (m_undecided.size() >= MB_LEN_MAX) {
            m_valid = false;
        }
    }
}

} // namespace recastor
