/// Short texts, copied without asking how short.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace recastor {

/// A text that is to be copied, and how many bytes may be read from where it begins: those behind
/// it may be anything. Most texts are words, of lengths that a processor cannot foresee; a copy of
/// a fixed number of bytes that is cut off then spares it the guess. Nothing is owned.
class PaddedText {
public:
    /// `readable` is at least the size of the text.
    PaddedText(std::string_view text, std::size_t readable) : m_text(text), m_readable(readable) {}
    /// Nothing may be read behind the text.
    explicit PaddedText(std::string_view text) : PaddedText(text, text.size()) {}

    std::string_view Text() const { return m_text; }
    std::size_t Readable() const { return m_readable; }
    std::string Copy() const {
        return m_text.size() <= kFixedLength && m_readable >= kFixedLength ? CopyOfFixedLength()
                                                                           : std::string(m_text);
    }

private:
    /// What a string holds without memory of its own.
    static constexpr std::size_t kFixedLength = 15;

    std::string CopyOfFixedLength() const {
        std::string copy(m_text.data(), kFixedLength);
        copy.erase(m_text.size());
        return copy;
    }

    std::string_view m_text;
    std::size_t m_readable;
};

} // namespace recastor
