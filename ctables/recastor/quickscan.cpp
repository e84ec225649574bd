#include "ctables/recastor/quickscan.h"

#include "ctables/recastor/lexicalchars.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace recastor {

namespace {

/// What an ASCII character begins where a token may begin.
enum class Start : std::uint8_t {
    kUnknown, ///< left to the full walk
    kBlank,
    kWord,
    kDigit,
    kPeriod,
    kQuote,
    kSlash,
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

constexpr auto gStarts = [] {
    std::array<Start, 256> starts{};
    for (int code = 1; code < 128; ++code) {
        starts[static_cast<std::size_t>(code)] = StartOf(code);
    }
    return starts;
}();

constexpr CharSet gSpace = CharSet::Of(" \t\n\r");
constexpr CharSet gLiteralJoin = CharSet::Of(" \n\r");

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

/// Neighbouring characters, which are asked about all at once. What a comparison answers is such a
/// value as well: every bit of a yes is set, none of a no.
using Characters [[gnu::vector_size(16)]] = signed char;

Characters Load(const char* first) {
    Characters characters;
    std::memcpy(&characters, first, sizeof characters);
    return characters;
}

/// A control character or not ASCII: the bytes there are negative.
Characters IsControlOrHigh(Characters c) {
    return (c < ' ') | (c == 0x7F);
}
Characters IsQuoteMark(Characters c) {
    return (c == '\'') | (c == '"');
}
Characters OpensComment(Characters c, Characters next) {
    return (c == '/') & (next == '*');
}
/// A digit or a point that an exponent or a hexadecimal digit may follow.
Characters MayBeOddNumber(Characters c, Characters next) {
    const Characters lowerNext = next | ('a' - 'A');
    return (((c >= '0') & (c <= '9')) | (c == '.')) & ((lowerNext == 'e') | (lowerNext == 'x'));
}

/// Whether the answer is yes for any character of the text, which is not empty, and the one behind
/// it. The last character only stands behind.
template <typename Question>
bool IsAnywhere(std::string_view text, const Question& question) {
    constexpr std::size_t kWidth = sizeof(Characters);
    std::array<char, kWidth + 1> padded{};
    if (text.size() < padded.size()) {
        padded.fill(' ');
        text.copy(padded.data(), text.size() - 1);
        text = {padded.data(), padded.size()};
    }
    const char* const last = text.data() + text.size() - padded.size();
    Characters answer = question(Load(last), Load(last + 1));
    for (const char* place = text.data(); place < last; place += kWidth) {
        answer |= question(Load(place), Load(place + 1));
    }
    return std::bit_cast<std::array<std::uint64_t, 2>>(answer) != std::array<std::uint64_t, 2>{};
}

/// Behind the quote that closes the segment which opens at `quote`, when its line closes it with
/// nothing but ASCII before; else null.
const char* BehindSegment(const char* quote, const char* end) {
    const char* const place =
        Skip(quote + 1, end, *quote == '"' ? gInDoubleQuotes : gInApostrophes);
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

/// Behind the token at `place` when it is surely well-formed, or behind a part of it; else null.
/// A word stops before a byte that is not ASCII, which then is left to the full walk.
const char* BehindToken(const char* place, const char* end) {
    const char* const next = place + 1;
    switch (StartAt(place)) {
    case Start::kWord:
        return Skip(next, end, gWordChars);
    case Start::kDigit:
        return BehindNumber(place, end);
    case Start::kPeriod:
        return next != end && IsDigit(*next) ? BehindNumber(place, end) : next;
    case Start::kQuote:
        return BehindLiteral(place, end);
    case Start::kSlash:
        return next != end && *next == '*' ? nullptr : next;
    case Start::kOperator:
        return next;
    default:
        return nullptr;
    }
}

/// Whether the line ends at `place`, in a line feed or a carriage return and a line feed.
bool IsLineEnd(const char* place, const char* end) {
    place += place != end && *place == '\r' ? 1 : 0;
    return end - place == 1 && *place == '\n';
}

/// The end of a command on a line that may hold quotes.
std::optional<int> EndOutsideQuotes(std::string_view line) {
    const char* const end = line.data() + line.size();
    for (const char* place = Skip(line.data(), end, gPlain); place != end;
         place = Skip(place, end, gPlain)) {
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

/// The line, its characters and one more behind the last; `line` ends in a line feed.
std::string_view TextAndOneMore(std::string_view line) {
    return line.substr(0, line.size() - (line.ends_with("\r\n") ? 1 : 0));
}

/// Whether the text needs a closer look for a character that no token begins with, or for one that
/// begins what may be faulty.
bool MayHoldFaultyToken(std::string_view text) {
    return IsAnywhere(text, [](Characters c, Characters next) {
        const Characters isBlank = (c == '\t') | (c == '\n') | (c == '\r');
        const Characters isOddSign =
            (c == '!') | (c == '&') | (c == '\\') | (c == '^') | (c == '`');
        return (IsControlOrHigh(c) & ~isBlank) | IsQuoteMark(c) | isOddSign |
               OpensComment(c, next) | MayBeOddNumber(c, next);
    });
}

} // namespace

std::optional<int> QuickEndOfCommand(std::string_view line) {
    if (!line.ends_with('\n')) {
        return std::nullopt;
    }
    const bool isPlain = !IsAnywhere(TextAndOneMore(line), [](Characters c, Characters next) {
        return IsQuoteMark(c) | OpensComment(c, next) | (IsControlOrHigh(c) & (c != '\t'));
    });
    return isPlain ? PeriodAtEnd(line) : EndOutsideQuotes(line);
}

std::optional<int> QuickEndOfCommentCommand(std::string_view line) {
    const auto isOdd = [](Characters c, Characters /*next*/) {
        return IsControlOrHigh(c) & (c != '\t');
    };
    if (!line.ends_with('\n') || IsAnywhere(TextAndOneMore(line), isOdd)) {
        return std::nullopt;
    }
    return PeriodAtEnd(line);
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
    if (first == end || (StartAt(first) != Start::kWord && *first != '*')) {
        return std::nullopt;
    }
    if (*first == '*') {
        return QuickTokens{{first, 1}, {}, true};
    }
    const char* const behind = BehindToken(first, end);
    const char* const second = Skip(behind, end, gSpace);
    QuickTokens tokens{{first, behind}, {}, false};
    if (second == end) {
        return tokens;
    }
    const char* const behindSecond = *second != ',' ? BehindToken(second, end) : nullptr;
    if (behindSecond == nullptr || (behindSecond != end && IsHigh(*behindSecond))) {
        return std::nullopt;
    }
    tokens.areWhole = StartAt(second) != Start::kQuote; // the next line may join another segment
    if (StartAt(second) == Start::kWord) {
        tokens.secondWord = {second, behindSecond};
    }
    return tokens;
}

} // namespace recastor
