#include "platform/zelkmb/zelkmb.h"

#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <langinfo.h>

namespace recastor {

namespace {

enum class Encoding {
    kLocale,     ///< as the C library's locale says
    kUtf8,       ///< the same, known to be UTF-8
    kSingleByte, ///< every byte is a character
};

Encoding g_encoding = Encoding::kLocale;

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// Length of a well-formed two- or three-byte UTF-8 character that needs no further look; 0 for
/// all else, which is left to the C library. Most non-ASCII text never reaches the library.
int PlainUtf8Length(const char* s, std::size_t n) {
    const auto lead = static_cast<unsigned char>(*s);
    if (lead >= 0xC2 && lead <= 0xDF) {
        return n >= 2 && IsContinuation(s[1]) ? 2 : 0;
    }
    // E0 may be overlong and ED a surrogate.
    if (lead >= 0xE1 && lead <= 0xEF && lead != 0xED) {
        return n >= 3 && IsContinuation(s[1]) && IsContinuation(s[2]) ? 3 : 0;
    }
    return 0;
}

int LocaleLength(const char* s, std::size_t n) {
    std::mbstate_t state{};
    const std::size_t length = std::mbrlen(s, n, &state);
    // The two failures, invalid and incomplete, are the two largest values.
    return length >= static_cast<std::size_t>(-2) ? -1 : static_cast<int>(length);
}

/// Length of the character at `s`, at least 1, so that a walk always moves on.
std::size_t StepLength(const char* s, std::size_t n) {
    return static_cast<std::size_t>(std::max(1, ZELKMBmblen_A(s, n)));
}

} // namespace

void EnableLocale() {
    const char* name = std::setlocale(LC_CTYPE, "");
    if (name == nullptr || std::strcmp(name, "C") == 0 || std::strcmp(name, "POSIX") == 0) {
        // Where even that is missing, the C locale stays: every byte is a character of its own.
        static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
    }
    g_encoding =
        std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0 ? Encoding::kUtf8 : Encoding::kLocale;
}

void TreatHighBytesAsCharacters() {
    g_encoding = Encoding::kSingleByte;
}

int ZELKMBmblen_A(const char* s, std::size_t n) {
    if (n == 0) {
        return -1;
    }
    if (IsAscii(*s) || g_encoding == Encoding::kSingleByte) {
        return *s == '\0' ? 0 : 1;
    }
    if (g_encoding == Encoding::kUtf8) {
        if (const int length = PlainUtf8Length(s, n); length != 0) {
            return length;
        }
    }
    return LocaleLength(s, n);
}

void ZELKMBstrupr_A(char* text) {
    const char* const end = text + std::strlen(text);
    while (text != end) {
        if (IsAscii(*text)) {
            *text = UpperAscii(*text);
            ++text;
        } else {
            text += StepLength(text, static_cast<std::size_t>(end - text));
        }
    }
}

int ZELKMBqstricmp_A(const char* text, std::size_t length, const char* word) {
    if (std::strlen(word) != length) {
        return 0;
    }
    const auto sameLetter = [](char a, char b) { return UpperAscii(a) == UpperAscii(b); };
    return std::equal(text, text + length, word, sameLetter) ? 1 : 0;
}

const char* ZELKMBstrrchr_A(const char* text, char byte) {
    const char* found = nullptr;
    const char* const end = text + std::strlen(text);
    while (text != end) {
        const std::size_t length = StepLength(text, static_cast<std::size_t>(end - text));
        if (length == 1 && *text == byte) {
            found = text;
        }
        text += length;
    }
    return found;
}

void ZELKMBStringTruncate_A(std::string& text, std::size_t n) {
    if (text.size() <= n) {
        return;
    }
    std::size_t kept = 0;
    while (kept < n) {
        const std::size_t next = kept + StepLength(text.c_str() + kept, text.size() - kept);
        if (next > n) {
            break;
        }
        kept = next;
    }
    text.resize(kept);
}

} // namespace recastor
