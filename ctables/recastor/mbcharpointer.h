/// Forward-only cursor over multibyte text: the lexical layer never indexes text by bytes.
#pragma once

#include "ctables/recastor/charset.h"

#include <cstddef>
#include <cstdint>

namespace recastor {

/// A position in a NUL-terminated text in the locale's encoding, with the character that stands
/// there. A small value: copied wherever a position must be remembered. The text is not owned
/// and must outlive the cursor.
class MBCharPointer {
public:
    /// The code of every character of two or more bytes.
    static constexpr int kMultibyte = 4096;

    /// Stands on the first character of `text`, which has number 1.
    explicit MBCharPointer(const char* text);

    /// Steps to the next character and returns its code; at the end it stays and returns 0.
    int Next() {
        if (m_code == 0) {
            return 0;
        }
        const auto length = static_cast<std::size_t>(m_charLen);
        if (m_charCount <= length) {
            FailStep();
        }
        m_ptr += length;
        m_charCount -= length;
        ++m_charNumber;
        // The checker believes that a step can end at null.
        if (!IsAscii(*m_ptr)) { // NOLINT(clang-analyzer-core.NullDereference)
            return StepOntoLongCharacter();
        }
        m_charLen = 1; // needs no call to the platform
        m_code = static_cast<unsigned char>(*m_ptr);
        return m_code;
    }

    /// Steps over the run of characters of the set; returns the code of what stops it.
    int SkipWhile(const CharSet& set) {
        while (set.Has(m_code)) {
            if (m_code != kMultibyte) {
                SkipAsciiRun(set);
            }
            Next();
        }
        return m_code;
    }

    /// 0 at the end of the text or on an invalid byte sequence, which counts as the end; a single
    /// byte sign-extended, so that a high byte is negative and equals no ASCII character; else
    /// kMultibyte.
    int Code() const { return m_code; }

    /// First byte of the current character.
    const char* Pointer() const { return m_ptr; }

    /// Bytes from there to the end of the text, the terminating NUL included.
    std::size_t BytesToEnd() const { return m_charCount; }

    /// Number of the current character, 1-based from the start of the text; after a reset the
    /// character that the cursor then stands on has number 0. Token columns are these numbers, so
    /// columns count from 1 on the first line and from 0 on every later one.
    int CharacterNumber() const { return m_charNumber; }

    /// Called after a line break was stepped over, on the first character of the new line.
    void ResetCharacterNumber() { m_charNumber = 0; }

private:
    /// Whether the byte is a character, not the end, in every encoding.
    static constexpr bool IsAscii(char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value != 0 && value < 0x80;
    }
    /// From a single-byte character to the last ASCII character of the set in the run behind it.
    void SkipAsciiRun(const CharSet& set) {
        const char* last = m_ptr;
        while (set.HasAscii(last[1])) {
            ++last;
        }
        const std::ptrdiff_t count = last - m_ptr;
        m_ptr = last;
        m_charCount -= static_cast<std::size_t>(count);
        m_charNumber += static_cast<std::int32_t>(count);
    }
    /// The current character may be longer than a byte, or the end.
    int StepOntoLongCharacter();
    [[noreturn]] static void FailStep();

    const char* m_ptr;
    std::size_t m_charCount;    ///< bytes from m_ptr to the end, the terminating NUL included
    std::int32_t m_charLen = 0; ///< bytes of the current character
    std::int32_t m_code = 1;    ///< not 0 at first, so that the first step runs
    std::int32_t m_charNumber = 0;
};

} // namespace recastor
