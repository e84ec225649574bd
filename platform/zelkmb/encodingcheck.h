/// Whether a text is valid in the locale's encoding, told piece by piece.
#pragma once

#include <string>
#include <string_view>

namespace recastor {

/// Takes a text in pieces of any size; a character may be split over pieces. NUL bytes are valid.
class EncodingCheck {
public:
    void Feed(std::string_view piece);
    /// True when all that was fed is valid and no character is left incomplete.
    bool IsValid() const { return m_valid && m_undecided.empty(); }

private:
    void FeedUndecided(std::string_view& piece);

    /// Fewer than MB_LEN_MAX bytes that are no character yet: the first bytes of one whose rest
    /// has not come, or an invalid sequence that has not been told from such a beginning.
    std::string m_undecided;
    bool m_valid = true;
};

} // namespace recastor
