#include "archive/outcome/showntext.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iconv.h>

namespace recastor {

namespace {

/// The bytes that may come second, by the first: RFC 3629's table of well-formed sequences.
struct Row {
    unsigned char firstFrom;
    unsigned char firstTo;
    unsigned char secondFrom;
    unsigned char secondTo;
    std::size_t length;
};
constexpr std::array<Row, 8> kWellFormed{{{0xC2, 0xDF, 0x80, 0xBF, 2},
                                          {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                          {0xE1, 0xEC, 0x80, 0xBF, 3},
                                          {0xED, 0xED, 0x80, 0x9F, 3},
                                          {0xEE, 0xEF, 0x80, 0xBF, 3},
                                          {0xF0, 0xF0, 0x90, 0xBF, 4},
                                          {0xF1, 0xF3, 0x80, 0xBF, 4},
                                          {0xF4, 0xF4, 0x80, 0x8F, 4}}};

unsigned char ByteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// A conversion to UTF-8; only of ASCII when iconv does not know the encoding.
iconv_t OpenConversion(const std::string& encoding) {
    iconv_t conversion = iconv_open("UTF-8", encoding.c_str());
    auto* const none = reinterpret_cast<iconv_t>(-1); // NOLINT: what iconv_open answers
    return conversion != none ? conversion : iconv_open("UTF-8", "ASCII");
}

} // namespace

std::size_t Utf8Length(std::string_view text) {
    if (text.empty() || ByteAt(text, 0) < 0x80) {
        return text.empty() ? 0 : 1;
    }
    for (const Row& row : kWellFormed) {
        if (ByteAt(text, 0) >= row.firstFrom && ByteAt(text, 0) <= row.firstTo) {
            bool valid = text.size() >= row.length && ByteAt(text, 1) >= row.secondFrom &&
                         ByteAt(text, 1) <= row.secondTo;
            for (std::size_t i = 2; valid && i < row.length; ++i) {
                valid = (ByteAt(text, i) & 0xC0U) == 0x80U;
            }
            return valid ? row.length : 0;
        }
    }
    return 0;
}

TextShower::TextShower(const std::string& encoding) : m_conversion(OpenConversion(encoding)) {}

TextShower::~TextShower() {
    iconv_close(m_conversion);
}

std::string TextShower::Shown(std::string_view text) const {
    if (IsAscii(text)) {
        return std::string(text);
    }
    constexpr auto kFailed = static_cast<std::size_t>(-1);
    std::string shown;
    std::string source(text);
    char* from = source.data();
    std::size_t left = source.size();
    std::array<char, 4096> block{};
    while (left > 0) {
        char* to = block.data();
        std::size_t room = block.size();
        const bool stopped = iconv(m_conversion, &from, &left, &to, &room) == kFailed;
        const bool meaningless = stopped && errno != E2BIG;
        shown.append(block.data(), to);
        if (meaningless) {
            shown += kReplacement;
            ++from;
            --left;
        }
    }
    iconv(m_conversion, nullptr, nullptr, nullptr, nullptr); // forgets shift states
    return shown;
}

} // namespace recastor
