#include "ctables/recastor/commandboundary.h"

#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/lexicalchars.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/quickscan.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkbase/zelkassert.h"

#include <array>
#include <cstring>
#include <string_view>

namespace recastor {

namespace {

/// A word that opens a command of another kind, and whether all of it counts.
struct SpecialWord {
    std::string_view word;
    CommandState state;
    bool inFull = false;
    std::uint32_t abbreviation = Abbreviation(word);
};

constexpr std::array<SpecialWord, 6> gSpecialWords{{
    {"*", kStateComment},
    {"COMMENT", kStateComment},
    {"**", kStateComment},
    {"*>", kStateComment},
    {"DOCUMENT", kStateDocument},
    {"BEGIN", kStateBegin, true},
}};

constexpr std::string_view gData = "DATA";

/// Whether the token after BEGIN is DATA. A word takes a period that follows it into itself, so
/// "DATA." counts.
bool IsDataWord(std::string_view word) {
    return word == gData || (word.size() == gData.size() + 1 && word.ends_with('.') &&
                             word.compare(0, gData.size(), gData) == 0);
}

/// A text with a known end, for telling it from a NUL byte inside.
struct Text {
    const char* begin;
    const char* end;

    bool EndsAt(const MBCharPointer& cursor) const {
        return cursor.Code() == 0 && cursor.Pointer() == end;
    }
    int OffsetOf(const char* place) const { return static_cast<int>(place - begin); }
};

constexpr CharSet gNotPeriods = CharSet::AllBut(".");

/// Steps to the next period outside quotes and comments, or to the end.
void SkipToPeriod(MBCharPointer& cursor, int& line) {
    for (;;) {
        int lines = 0;
        switch (cursor.Code()) {
        case '.':
        case 0:
            return;
        case '\n':
        case '\r': {
            const bool advanced = SkipWhitespace(cursor, lines);
            ZELK_ASSERT(advanced);
            line += lines;
            break;
        }
        case '\'':
        case '"': {
            const bool advanced = SkipLiteralSegment(cursor, line);
            ZELK_ASSERT(advanced);
            break;
        }
        case '/':
            if (!SkipComment(cursor)) {
                cursor.Next();
            }
            break;
        default:
            cursor.SkipWhile(gPlain);
        }
    }
}

/// Whether the period that the cursor has just stepped over is the last thing on its line. Steps
/// over the blanks and comments behind it either way.
bool ConfirmPeriod(MBCharPointer& cursor, const Text& text, int& line) {
    for (;;) {
        const bool comment = SkipComment(cursor);
        int lines = 0;
        const bool whitespace = SkipWhitespace(cursor, lines);
        line += lines;
        if (whitespace && (lines > 0 || text.EndsAt(cursor))) {
            return true;
        }
        if (!comment && !whitespace) {
            return false;
        }
    }
}

} // namespace

void SwitchCommandState(int& state, const ZELKToken& token) {
    SwitchCommandState(state, token.AsString(false));
}

void SwitchCommandState(int& state, std::string_view text) {
    if (state == kStateBegin) {
        state = IsDataWord(text) ? kStateInlineData : kStateOrdinary;
        return;
    }
    if (state != kStateStart) {
        return;
    }
    state = kStateOrdinary;
    const std::uint32_t abbreviation = Abbreviation(text);
    for (const SpecialWord& row : gSpecialWords) {
        if (row.abbreviation == abbreviation && (!row.inFull || row.word == text)) {
            state = row.state;
            return;
        }
    }
}

int KindOfCommand(int state) {
    switch (state) {
    case kStateComment:
        return kCommentCommand;
    case kStateDocument:
        return kDocumentCommand;
    case kStateInlineData:
        return kInlineDataCommand;
    default:
        return kOrdinaryCommand;
    }
}

int FindEndOfCommand(const char* lines, std::size_t length, bool commentMode) {
    ZELK_ASSERT(lines);
    if (commentMode) {
        return FindEndOfCommentCommand(lines, length);
    }
    if (const auto end = QuickEndOfCommand({lines, length})) {
        return *end;
    }
    const Text text{lines, lines + length};
    MBCharPointer cursor(lines);
    int line = 1;
    for (;;) {
        SkipToPeriod(cursor, line);
        if (cursor.Code() == 0) {
            return -1;
        }
        const char* const period = cursor.Pointer();
        cursor.Next();
        if (ConfirmPeriod(cursor, text, line)) {
            return text.OffsetOf(period);
        }
    }
}

int FindEndOfCommentCommand(const char* lines, std::size_t length) {
    if (const auto end = QuickEndOfCommentCommand({lines, length})) {
        return *end;
    }
    const Text text{lines, lines + length};
    MBCharPointer cursor(lines);
    for (;;) {
        if (cursor.SkipWhile(gNotPeriods) == 0) {
            return -1;
        }
        const char* const period = cursor.Pointer();
        cursor.Next();
        const int code = cursor.SkipWhile(gBlanks);
        if (code == '\n' || code == '\r' || text.EndsAt(cursor)) {
            return text.OffsetOf(period);
        }
    }
}

bool SkipLiteralSegment(MBCharPointer& cursor, int line) {
    if (!IsQuote(cursor.Code())) {
        return false;
    }
    const MBCharPointer start = cursor;
    const int quote = cursor.Code();
    cursor.Next();
    if (SkipLiteralText(cursor, quote) != quote) {
        const int column = cursor.CharacterNumber();
        cursor = start;
        throw ParseError(line, column, ParseError::kUnclosedLiteral);
    }
    cursor.Next();
    return true;
}

bool IsEndData(const char* line) {
    static const std::string endData = "END DATA";
    if (line == nullptr) {
        return false;
    }
    std::string start;
    UpperCaseString(std::string(line, strnlen(line, endData.size())), start);
    return start == endData;
}

} // namespace recastor
