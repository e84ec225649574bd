/// Tokens made by hand, for tests of what is built from them.
#pragma once

#include "ctables/recastor/zelktoken.h"

#include <string>
#include <string_view>

namespace recastor {

inline ZELKToken* Word(std::string_view text) {
    std::string upperCased(text);
    for (char& letter : upperCased) {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return new ZELKStringToken(PaddedText(text), 1, 4, PaddedText(upperCased),
                               TokenSequenceBase::kNotOperator);
}

inline ZELKToken* Literal(std::string_view value) {
    const std::string raw = "'" + std::string(value) + "'";
    return new ZELKLiteralToken(PaddedText(raw), 1, 4, std::string(value));
}

inline ZELKToken* Number(double value) {
    const std::string raw = std::to_string(value);
    return new ZELKNumberToken(PaddedText(raw), 1, 4, value);
}

/// A word that counts its deletions.
class WatchedToken : public ZELKStringToken {
public:
    explicit WatchedToken(int& deleted) :
        ZELKStringToken(PaddedText(""), 1, 4, PaddedText(""), TokenSequenceBase::kNotOperator),
        m_deleted(deleted) {}
    ~WatchedToken() override { ++m_deleted; }
    WatchedToken(const WatchedToken&) = delete;
    WatchedToken& operator=(const WatchedToken&) = delete;

private:
    int& m_deleted;
};

} // namespace recastor
