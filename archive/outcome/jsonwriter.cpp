#include "archive/outcome/jsonwriter.h"

#include "archive/outcome/showntext.h"

#include <array>
#include <charconv>
#include <cmath>

namespace recastor {

namespace {

/// Whether a byte stands for itself in a string.
bool IsPlain(char c) {
    return c >= ' ' && c != '"' && c != '\\' && c != '<' && c != '\x7F';
}

template <typename Value>
void AppendNumber(Value value, std::string& text) {
    constexpr std::size_t kLongest = 32;
    std::array<char, kLongest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(digits.data(), end);
}

} // namespace

void JsonWriter::Separate() {
    if (m_needsComma) {
        m_text += ',';
    }
    m_needsComma = true;
}

void JsonWriter::Open(char bracket) {
    Separate();
    m_text += bracket;
    m_needsComma = false;
}

void JsonWriter::Close(char bracket) {
    m_text += bracket;
    m_needsComma = true;
}

void JsonWriter::Key(std::string_view name) {
    Separate();
    Quote(name);
    m_text += ':';
    m_needsComma = false;
}

void JsonWriter::String(std::string_view text) {
    Separate();
    Quote(text);
}

void JsonWriter::Quote(std::string_view text) {
    m_text += '"';
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && IsPlain(text[plain])) {
            ++plain;
        }
        m_text.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) {
            break;
        }
        const std::size_t length = Utf8Length(text);
        if (length == 1) {
            QuoteAscii(text.front());
        } else {
            m_text.append(length == 0 ? kReplacement : text.substr(0, length));
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    m_text += '"';
}

void JsonWriter::QuoteAscii(char c) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    switch (c) {
    case '"':
    case '\\':
        m_text += '\\';
        m_text += c;
        return;
    case '\n':
        m_text += "\\n";
        return;
    default:
        break;
    }
    const auto value = static_cast<unsigned char>(c);
    m_text += "\\u00";
    m_text += kDigits[value >> 4U];
    m_text += kDigits[value & 0xFU];
}

void JsonWriter::Number(double value) {
    Separate();
    if (std::isfinite(value)) {
        AppendNumber(value, m_text);
    } else {
        m_text += "null";
    }
}

void JsonWriter::Integer(std::int64_t value) {
    Separate();
    AppendNumber(value, m_text);
}

void JsonWriter::Bool(bool value) {
    Separate();
    m_text += value ? "true" : "false";
}

void JsonWriter::Null() {
    Separate();
    m_text += "null";
}

void JsonWriter::Json(std::string_view json) {
    Separate();
    m_text += json;
}

void JsonWriter::Member(std::string_view name, std::string_view text) {
    Key(name);
    String(text);
}

void JsonWriter::Member(std::string_view name, const char* text) {
    Member(name, std::string_view(text));
}

void JsonWriter::Member(std::string_view name, bool value) {
    Key(name);
    Bool(value);
}

void JsonWriter::Member(std::string_view name, std::int64_t value) {
    Key(name);
    Integer(value);
}

void JsonWriter::Member(std::string_view name, std::uint64_t value) {
    Key(name);
    Integer(static_cast<std::int64_t>(value));
}

void JsonWriter::Member(std::string_view name, const std::vector<std::string>& texts) {
    Key(name);
    BeginArray();
    for (const std::string& text : texts) {
        String(text);
    }
    EndArray();
}

} // namespace recastor
