#include "platform/zelkmb/encodingcheck.h"

#include "platform/zelkmb/zelkmb.h"

#include <algorithm>
#include <climits>

namespace recastor {

namespace {

std::size_t AsciiPrefix(std::string_view text) {
    const auto high = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), high) - text.begin());
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
