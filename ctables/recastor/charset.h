/// Sets of characters, for stepping over runs of them.
#pragma once

#include <array>
#include <string_view>

namespace recastor {

/// A set of character codes of MBCharPointer: some ASCII characters, and either all or none of the
/// characters beyond ASCII. It never holds 0, the end.
class CharSet {
public:
    /// The characters of `members`.
    static constexpr CharSet Of(std::string_view members) { return {members, true}; }
    /// All characters but those of `others`.
    static constexpr CharSet AllBut(std::string_view others) { return {others, false}; }
    /// The characters for which `holds` is true; the one beyond ASCII that is asked is 128.
    template <typename Holds>
    static constexpr CharSet Where(const Holds& holds) {
        CharSet set({}, true);
        for (int code = 1; code < kAsciiEnd; ++code) {
            set.m_ascii[static_cast<std::size_t>(code)] = holds(code);
        }
        set.m_beyondAscii = holds(kAsciiEnd);
        return set;
    }

    constexpr bool Has(int code) const {
        return code >= 0 && code < kAsciiEnd ? m_ascii[static_cast<std::size_t>(code)]
                                             : m_beyondAscii;
    }
    /// Whether the byte is an ASCII character of the set.
    constexpr bool HasAscii(char byte) const { return m_ascii[static_cast<unsigned char>(byte)]; }

private:
    static constexpr int kAsciiEnd = 128;

    constexpr CharSet(std::string_view listed, bool holdsListed) : m_beyondAscii(!holdsListed) {
        for (std::size_t code = 1; code < kAsciiEnd; ++code) {
            m_ascii[code] = !holdsListed;
        }
        for (const char c : listed) {
            const auto code = static_cast<unsigned char>(c);
            if (code > 0 && code < kAsciiEnd) {
                m_ascii[code] = holdsListed;
            }
        }
    }

    std::array<bool, 256> m_ascii{}; ///< by byte; false for 0 and beyond ASCII
    bool m_beyondAscii;
};

} // namespace recastor
