#include "tests/support/plain/plaincursor.h"

#include "platform/zelkmb/zelkmb.h"

#include <cstring>

namespace recastor {

PlainCursor::PlainCursor(const std::string& text) :
    m_text(text.c_str()), m_size(std::strlen(text.c_str())) {}

int PlainCursor::Length() const {
    return ZELKMBmblen_A(m_text + m_offset, m_size - m_offset + 1);
}

int PlainCursor::Code() const {
    constexpr int kMultibyte = 4096;
    const int length = Length();
    if (length < 1) {
        return 0;
    }
    return length > 1 ? kMultibyte : static_cast<signed char>(m_text[m_offset]);
}

bool PlainCursor::IsOneOf(const std::string& characters) const {
    const int code = Code();
    return code > 0 && code < 128 && characters.find(static_cast<char>(code)) != std::string::npos;
}

bool PlainCursor::BeginsWord() const {
    const int code = Code();
    return code < 0 || code >= 128 ||
           IsOneOf("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ#$@");
}

void PlainCursor::Step() {
    if (Code() != 0) {
        m_offset += static_cast<std::size_t>(Length());
        ++m_number;
    }
}

std::string PlainCursor::Since(const PlainCursor& start) const {
    return {m_text + start.m_offset, m_text + m_offset};
}

bool PassWhitespace(PlainCursor& cursor, int& lines) {
    const std::size_t start = cursor.Offset();
    while (cursor.IsOneOf(" \t\n\r")) {
        const bool lineFeed = cursor.Is('\n');
        const bool lineBreak = cursor.IsLineBreak();
        cursor.Step();
        if (lineBreak) {
            if (cursor.Is(lineFeed ? '\r' : '\n')) {
                cursor.Step();
            }
            ++lines;
            cursor.ResetNumber();
        }
    }
    return cursor.Offset() != start;
}

bool PassComment(PlainCursor& cursor) {
    PlainCursor inside = cursor;
    inside.Step();
    if (!cursor.Is('/') || !inside.Is('*')) {
        return false;
    }
    inside.Step();
    bool afterStar = false;
    while (inside.Code() != 0 && !inside.IsLineBreak() && !(afterStar && inside.Is('/'))) {
        afterStar = inside.Is('*');
        inside.Step();
    }
    cursor = inside;
    return true;
}

bool PassToQuote(PlainCursor& cursor, int quote) {
    while (cursor.Code() != quote) {
        if (cursor.Code() == 0 || cursor.IsLineBreak()) {
            return false;
        }
        cursor.Step();
    }
    return true;
}

std::string PlainUpperCased(const std::string& text) {
    std::string upper = text;
    for (PlainCursor cursor(text); cursor.Code() != 0; cursor.Step()) {
        if (cursor.Code() >= 'a' && cursor.Code() <= 'z') {
            upper[cursor.Offset()] = static_cast<char>(cursor.Code() - 'a' + 'A');
        }
    }
    return upper;
}

} // namespace recastor
