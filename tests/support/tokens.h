/// Tokens made by hand, for tests of what is built from them.
#pragma once

#include "ctables/recastor/zelktoken.h"

#include <string>
#include <string_view>
#include <utility>

namespace recastor {

inline ZELKToken* Word(std::string_view text) {
    std::string upperCased(text);
    for (char& letter : upperCased) {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return new ZELKStringToken(text.data(), text.data() + text.size(), 1, 4, std::move(upperCased),
                               TokenSequenceBase::kNotOperator);
}

inline ZELKToken* Literal(std::string_view value) {
    const std::string raw = "'" + std::string(value) + "'";
    return new ZELKLiteralToken(raw.data(), raw.data() + raw.size(), 1, 4, std::string(value));
}

inline ZELKToken* Number(double value) {
    const std::string raw = std::to_string(value);
    return new ZELKNumberToken(raw.data(), raw.data() + raw.size(), 1, 4, value);
}

/// A word that counts its deletions.
class WatchedToken : public ZELKStringToken {
public:
    explicit WatchedToken(int& deleted) :
        ZELKStringToken("", "", 1, 4, "", TokenSequenceBase::kNotOperator), m_deleted(deleted) {}
    ~WatchedToken() override { ++m_deleted; }
    WatchedToken(const WatchedToken&) = delete;
    WatchedToken& operator=(const WatchedToken&) = delete;

private:
    int& m_deleted;
};

} // namespace recastor
