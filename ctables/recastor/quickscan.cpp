#include "ctables/recastor/quickscan.h"

#include "ctables/recastor/lexicalchars.h"
#include "platform/zelkbase/neighbours.h"
#include "platform/zelkmb/zelkmb.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace recastor {

namespace {

/// What a character begins where a token may begin.
enum class Start : std::uint8_t {
    kUnknown, ///< left to the full walk
    kBlank,
    kWord,
    kDigit,
    kPeriod,
    kQuote,
    kSlash,
    kMacro,
    kOperator, ///< operators of several characters are taken piece by piece
};

constexpr Start StartOf(int code) {
    switch (code) {
    case ' ':
    case '\t':
    case '\n':
    case '\r':
        return Start::kBlank;
    case '.':
        return Start::kPeriod;
    case '\'':
    case '"':
        return Start::kQuote;
    case '/':
        return Start::kSlash;
    case '!':
        return Start::kMacro;
    default:
        break;
    }
    if (IsDigit(code)) {
        return Start::kDigit;
    }
    if (IsExtendedAlpha(code)) {
        return Start::kWord;
    }
    // An ampersand takes the asterisk or slash behind it into itself.
    constexpr std::string_view operators = "<>=~+-*(),:;_?%|{}[]";
    return operators.find(static_cast<char>(code)) != std::string_view::npos ? Start::kOperator
                                                                             : Start::kUnknown;
}

/// By byte. What is beyond ASCII begins a word, if it is a character.
constexpr auto gStarts = [] {
    std::array<Start, 256> starts{};
    for (int code = 1; code < 256; ++code) {
        starts[static_cast<std::size_t>(code)] = StartOf(code);
    }
    return starts;
}();

constexpr CharSet gSpace = CharSet::Of(" \t\n\r");
constexpr CharSet gLiteralJoin = CharSet::Of(" \n\r");
constexpr CharSet gPrintable = CharSet::Where([](int code) { return code >= ' ' || code == '\t'; });

Start StartAt(const char* place) {
    return gStarts[static_cast<unsigned char>(*place)];
}

const char* Skip(const char* place, const char* end, const CharSet& set) {
    while (place != end && set.HasAscii(*place)) {
        ++place;
    }
    return place;
}

bool IsHigh(char c) {
    return static_cast<unsigned char>(c) >= 0x80;
}

/// Steps over characters of the set, to which all beyond ASCII belong; stops at a byte beyond ASCII
/// that begins none.
const char* SkipWithHigh(const char* place, const char* end, const CharSet& set) {
    for (;;) {
        place = Skip(place, end, set);
        if (place == end || !IsHigh(*place)) {
            return place;
        }
        const int length = ZELKMBmblen_A(place, static_cast<std::size_t>(end - place));
        if (length < 1) {
            return place;
        }
        place += length;
    }
}

/// A control character or not ASCII: the bytes there are negative.
Neighbours IsControlOrHigh(Neighbours c) {
    return (c < ' ') | (c == 0x7F);
}
Neighbours IsQuoteMark(Neighbours c) {
    return (c == '\'') | (c == '"');
}
Neighbours OpensComment(Neighbours c, Neighbours next) {
    return (c == '/') & (next == '*');
}
/// A digit or a point that an exponent or a hexadecimal digit may follow.
Neighbours MayBeOddNumber(Neighbours c, Neighbours next) {
    const Neighbours lowerNext = next | ('a' - 'A');
    return (((c >= '0') & (c <= '9')) | (c == '.')) & ((lowerNext == 'e') | (lowerNext == 'x'));
}

/// Behind the quote that closes the segment which opens at `quote`, when its line closes it; else
/// null.
const char* BehindSegment(const char* quote, const char* end) {
    const char* const place =
        SkipWithHigh(quote + 1, end, *quote == '"' ? gInDoubleQuotes : gInApostrophes);
    return place != end && *place == *quote ? place + 1 : nullptr;
}

/// Behind a literal of one segment that nothing is joined to; null for others.
const char* BehindLiteral(const char* place, const char* end) {
    const char quote = *place;
    place = BehindSegment(place, end);
    if (place == nullptr || (place != end && *place == quote)) {
        return nullptr;
    }
    place = Skip(place, end, gLiteralJoin);
    return place != end && *place == '+' ? nullptr : place;
}

/// Behind a number that has neither an exponent nor very many digits, and is not hexadecimal.
const char* BehindNumber(const char* first, const char* end) {
    const char* place = Skip(first, end, gDigits);
    if (place != end && *place == '.') {
        place = Skip(place + 1, end, gDigits);
    }
    constexpr std::string_view unclear = "EeXx";
    const bool clear = place == end || unclear.find(*place) == std::string_view::npos;
    const bool isShort = static_cast<std::size_t>(place - first) <= kSafeDigits;
    return clear && isShort ? place : nullptr;
}

/// Behind a macro's name or parameter, whose mark stands in front of `next`.
const char* BehindMacroToken(const char* next, const char* end) {
    if (next != end && *next == '*') {
        return next + 1;
    }
    const char* const behindDigits = Skip(next, end, gDigits);
    return behindDigits != next ? behindDigits : SkipWithHigh(next, end, gWordChars);
}

/// Behind the token at `place` when it is surely well-formed, or behind a part of it; else null.
const char* BehindToken(const char* place, const char* end) {
    const char* const next = place + 1;
    switch (StartAt(place)) {
    case Start::kWord: {
        const char* const behind = SkipWithHigh(place, end, gWordChars);
        return behind != place ? behind : nullptr;
    }
    case Start::kDigit:
        return BehindNumber(place, end);
    case Start::kPeriod:
        return next != end && IsDigit(*next) ? BehindNumber(place, end) : next;
    case Start::kQuote:
        return BehindLiteral(place, end);
    case Start::kSlash:
        return next != end && *next == '*' ? nullptr : next;
    case Start::kMacro:
        return BehindMacroToken(next, end);
    case Start::kOperator:
        return next;
    default:
        return nullptr;
    }
}

/// The same of a token that tells what a command is: no word or macro's name beyond ASCII, and not
/// directly in front of one.
const char* BehindAsciiToken(const char* place, const char* end) {
    const Start start = StartAt(place);
    const char* const behind =
        start == Start::kWord ? Skip(place, end, gWordChars) : BehindToken(place, end);
    if (behind == nullptr || behind == place || (behind != end && IsHigh(*behind)) ||
        (start == Start::kMacro && std::any_of(place, behind, IsHigh))) {
        return nullptr;
    }
    return behind;
}

/// Whether the line ends at `place`, in a line feed or a carriage return and a line feed.
bool IsLineEnd(const char* place, const char* end) {
    place += place != end && *place == '\r' ? 1 : 0;
    return end - place == 1 && *place == '\n';
}

/// The end of a command on a line that may hold quotes.
std::optional<int> EndOutsideQuotes(std::string_view line) {
    const char* const end = line.data() + line.size();
    for (const char* place = SkipWithHigh(line.data(), end, gPlain); place != end;
         place = SkipWithHigh(place, end, gPlain)) {
        switch (StartAt(place)) {
        case Start::kPeriod: {
            const char* const behind = Skip(place + 1, end, gBlanks);
            if (IsLineEnd(behind, end)) {
                return static_cast<int>(place - line.data());
            }
            if (behind == end || *behind == '/' || *behind == '\r') {
                return std::nullopt;
            }
            place = behind;
            break;
        }
        case Start::kQuote:
            place = BehindSegment(place, end);
            if (place == nullptr) {
                return std::nullopt;
            }
            break;
        case Start::kSlash:
            ++place;
            if (place == end || *place == '*') {
                return std::nullopt;
            }
            break;
        default:
            return IsLineEnd(place, end) ? std::optional(-1) : std::nullopt;
        }
    }
    return std::nullopt;
}

/// Where the period stands that is the last thing on the line, which ends in its only line feed; -1
/// when there is none.
int PeriodAtEnd(std::string_view line) {
    const char* const begin = line.data();
    const char* last = begin + line.size() - 1;
    last -= last != begin && last[-1] == '\r' ? 1 : 0;
    while (last != begin && gBlanks.HasAscii(last[-1])) {
        --last;
    }
    return last != begin && last[-1] == '.' ? static_cast<int>(last - 1 - begin) : -1;
}

/// Whether the line, which ends in a line feed, consists of characters that are no controls but for
/// tabs and the line end.
bool IsPrintable(std::string_view line) {
    const char* const end = line.data() + line.size();
    return IsLineEnd(SkipWithHigh(line.data(), end, gPrintable), end);
}

/// The line, its characters and one more behind the last; `line` ends in a line feed.
std::string_view TextAndOneMore(std::string_view line) {
    return line.substr(0, line.size() - (line.ends_with("\r\n") ? 1 : 0));
}

/// Whether the text needs a closer look for a character that no token begins with, or for one that
/// begins what may be faulty.
bool MayHoldFaultyToken(std::string_view text) {
    return IsAnywhere(text, [](Neighbours c, Neighbours next) {
        const Neighbours isBlank = (c == '\t') | (c == '\n') | (c == '\r');
        const Neighbours isOddSign = (c == '&') | (c == '\\') | (c == '^') | (c == '`');
        return (IsControlOrHigh(c) & ~isBlank) | IsQuoteMark(c) | isOddSign |
               OpensComment(c, next) | MayBeOddNumber(c, next);
    });
}

} // namespace

std::optional<int> QuickEndOfCommand(std::string_view line) {
    if (!line.ends_with('\n')) {
        return std::nullopt;
    }
    const bool isPlain = !IsAnywhere(TextAndOneMore(line), [](Neighbours c, Neighbours next) {
        return IsQuoteMark(c) | OpensComment(c, next) | (IsControlOrHigh(c) & (c != '\t'));
    });
    return isPlain ? PeriodAtEnd(line) : EndOutsideQuotes(line);
}

std::optional<int> QuickEndOfCommentCommand(std::string_view line) {
    if (!line.ends_with('\n')) {
        return std::nullopt;
    }
    const auto isOdd = [](Neighbours c, Neighbours /*next*/) {
        return IsControlOrHigh(c) & (c != '\t');
    };
    const bool isPlain = !IsAnywhere(TextAndOneMore(line), isOdd);
    return isPlain || IsPrintable(line) ? std::optional(PeriodAtEnd(line)) : std::nullopt;
}

bool QuickCheckTokens(std::string_view text) {
    if (text.size() <= kSafeDigits && text.ends_with('\n') && !MayHoldFaultyToken(text)) {
        return true;
    }
    const char* const end = text.data() + text.size();
    const char* place = Skip(text.data(), end, gSpace);
    while (place != end) {
        place = BehindToken(place, end);
        if (place == nullptr) {
            return false;
        }
        place = Skip(place, end, gSpace);
    }
    return true;
}

std::optional<QuickTokens> QuickFirstTokens(std::string_view text, bool batch) {
    const char* const end = text.data() + text.size();
    const char* first = text.data();
    if (batch && first != end && (*first == '+' || *first == '-')) {
        ++first;
    }
    first = Skip(first, end, gBlanks);
    if (first == end) {
        return std::nullopt;
    }
    const Start start = StartAt(first);
    if (start != Start::kWord && start != Start::kMacro && *first != '*') {
        return std::nullopt;
    }
    if (*first == '*') {
        return QuickTokens{{first, 1}, {}, true};
    }
    const char* const behind = BehindAsciiToken(first, end);
    if (behind == nullptr) {
        return std::nullopt;
    }
    const char* const second = Skip(behind, end, gSpace);
    QuickTokens tokens{{first, behind}, {}, false};
    if (second == end) {
        return tokens;
    }
    const char* const behindSecond = *second != ',' ? BehindAsciiToken(second, end) : nullptr;
    if (behindSecond == nullptr) {
        return std::nullopt;
    }
    tokens.areWhole = StartAt(second) != Start::kQuote; // the next line may join another segment
    if (StartAt(second) == Start::kWord) {
        tokens.secondWord = {second, behindSecond};
    }
    return tokens;
}

} // namespace recastor
