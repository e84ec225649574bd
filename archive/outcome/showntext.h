/// A file's text, which is in any encoding, as UTF-8 that can be shown.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace recastor {

/// U+FFFD, shown for what has no meaning.
inline constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// Length in bytes of the UTF-8 character that `text` begins with; 0 when it is none.
std::size_t Utf8Length(std::string_view text);

/// Turns text of one encoding into UTF-8.
class TextShower {
public:
    /// What text is shown as that is not UTF-8 and whose encoding nobody named.
    static constexpr const char* kLikeliest8Bit = "CP1252";

    /// `encoding` is a name that iconv knows; of an unknown one only ASCII is shown.
    explicit TextShower(const std::string& encoding);
    ~TextShower();
    TextShower(const TextShower&) = delete;
    TextShower& operator=(const TextShower&) = delete;

    /// Valid UTF-8; what has no meaning in the encoding becomes U+FFFD.
    std::string Shown(std::string_view text) const;

private:
    void* m_conversion; ///< iconv's
};

} // namespace recastor
