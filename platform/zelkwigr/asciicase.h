/// Letters of ASCII, whatever the locale.
#pragma once

#include <string>

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

} // namespace recastor
