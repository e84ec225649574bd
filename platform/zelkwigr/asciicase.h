/// Letters of ASCII, whatever the locale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace recastor {

inline char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline std::string AsciiLower(std::string text) {
    for (char& c : text) {
        c = AsciiLower(c);
    }
    return text;
}

/// True when the texts differ in the case of letters at most.
inline bool EqualWithoutCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return AsciiLower(a) == AsciiLower(b); });
}

} // namespace recastor
