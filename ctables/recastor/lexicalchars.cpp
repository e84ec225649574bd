#include "ctables/recastor/lexicalchars.h"

#include "platform/zelkmb/zelkmb.h"

namespace recastor {

namespace {

constexpr CharSet gInComment = CharSet::AllBut("\n\r*");

} // namespace

bool SkipWhitespace(MBCharPointer& cursor, int& lines) {
    lines = 0;
    bool skipped = false;
    for (;;) {
        const int code = cursor.Code();
        if (code == '\n' || code == '\r') {
            const int following = cursor.Next();
            if (following != code && (following == '\n' || following == '\r')) {
                cursor.Next();
            }
            ++lines;
            cursor.ResetCharacterNumber();
        } else if (code == ' ' || code == '\t') {
            cursor.Next();
        } else {
            return skipped;
        }
        skipped = true;
    }
}

int SkipLiteralText(MBCharPointer& cursor, int quote) {
    return cursor.SkipWhile(quote == '"' ? gInDoubleQuotes : gInApostrophes);
}

bool SkipComment(MBCharPointer& cursor) {
    if (cursor.Code() != '/') {
        return false;
    }
    const MBCharPointer start = cursor;
    if (cursor.Next() != '*') {
        cursor = start;
        return false;
    }
    cursor.Next();
    while (cursor.SkipWhile(gInComment) == '*') {
        if (cursor.Next() == '/') {
            break;
        }
    }
    return true;
}

void UpperCaseString(const std::string& source, std::string& destination) {
    if (source.empty()) {
        return;
    }
    std::string buffer = source;
    ZELKMBstrupr_A(buffer.data());
    destination = std::move(buffer);
}

} // namespace recastor
