#include "archive/outcome/shownpath.h"

#include "archive/outcome/showntext.h"

#include <algorithm>
#include <charconv>

namespace recastor {

namespace {

constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kOthersThatStandForThemselves = "0123456789/-._";

void AppendHex(char byte, std::string_view prefix, std::string& text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text.append(prefix);
    text += kDigits[value >> 4U];
    text += kDigits[value & 0xFU];
}

/// Control characters of ASCII, and the two of a byte each that start those of Latin-1 (C2 80 to
/// C2 9F), would move a terminal's cursor.
bool IsControl(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    if (character.size() == 1) {
        return first < 0x20 || first == 0x7F;
    }
    return first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

} // namespace

std::string ShownPath(std::string_view path) {
    std::string shown;
    while (!path.empty()) {
        const std::size_t length = Utf8Length(path);
        const std::string_view character = path.substr(0, std::max<std::size_t>(length, 1));
        if (length == 0 || IsControl(character)) {
            for (const char byte : character) {
                AppendHex(byte, "\\x", shown);
            }
        } else {
            shown.append(character);
        }
        path.remove_prefix(character.size());
    }
    return shown;
}

std::string UriOfPath(std::string_view path) {
    std::string uri;
    for (const char byte : path) {
        if (kLetters.find(byte) != std::string_view::npos ||
            kOthersThatStandForThemselves.find(byte) != std::string_view::npos) {
            uri += byte;
        } else {
            AppendHex(byte, "%", uri);
        }
    }
    return uri;
}

std::string PathOfUri(std::string_view uri) {
    std::string path;
    while (!uri.empty()) {
        unsigned value = 0;
        const char* const behind = uri.data() + std::min<std::size_t>(uri.size(), 3);
        const bool escaped = uri.front() == '%' && uri.size() >= 3 &&
                             std::from_chars(uri.data() + 1, behind, value, 16).ptr == behind;
        path += escaped ? static_cast<char>(value) : uri.front();
        uri.remove_prefix(escaped ? 3 : 1);
    }
    return path;
}

bool IsBeforeInWalk(std::string_view left, std::string_view right) {
    const auto rank = [](char byte) {
        return byte == '/' ? 0U : static_cast<unsigned>(static_cast<unsigned char>(byte)) + 1;
    };
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [&](char a, char b) { return rank(a) < rank(b); });
}

} // namespace recastor
