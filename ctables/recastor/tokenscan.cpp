#include "ctables/recastor/tokenscan.h"

#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/lexicalchars.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/quickscan.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace recastor {

namespace {

using Base = TokenSequenceBase;

struct SpellingRow {
    std::string_view spelling;
    Base::OperatorCode code;
};

// A longer operator is found through a shorter one that it begins with.
constexpr std::array<SpellingRow, 23> gOneCharOps{{
    {"<", Base::kLessThan},      {">", Base::kGreaterThan},    {"=", Base::kEquals},
    {"~", Base::kNot},           {"+", Base::kPlus},           {"-", Base::kMinus},
    {"*", Base::kAsterisk},      {"/", Base::kSlash},          {"(", Base::kLeftParen},
    {")", Base::kRightParen},    {",", Base::kComma},          {":", Base::kColon},
    {";", Base::kSemicolon},     {".", Base::kPeriod},         {"_", Base::kUnderscore},
    {"?", Base::kQuestionMark},  {"%", Base::kPercent},        {"|", Base::kVerticalBar},
    {"&", Base::kAmpersand},     {"{", Base::kLeftBrace},      {"}", Base::kRightBrace},
    {"[", Base::kLeftSqBracket}, {"]", Base::kRightSqBracket},
}};

constexpr std::array<SpellingRow, 8> gTwoCharOps{{
    {"<=", Base::kLtOrEq},
    {">=", Base::kGtOrEq},
    {"~=", Base::kNotEqual},
    {"<>", Base::kNotEqual},
    {"**", Base::kPower},
    {"&*", Base::kElemMult},
    {"&/", Base::kElemDiv},
    {"*>", Base::kXtabNest},
}};

constexpr std::array<SpellingRow, 1> gThreeCharOps{{
    {"&**", Base::kElemPower},
}};

constexpr std::array<SpellingRow, 13> gReservedWords{{
    {"LT", Base::kLessThan},
    {"GT", Base::kGreaterThan},
    {"EQ", Base::kEquals},
    {"LE", Base::kLtOrEq},
    {"GE", Base::kGtOrEq},
    {"NE", Base::kNotEqual},
    {"NOT", Base::kNot},
    {"TO", Base::kTo},
    {"WITH", Base::kWith},
    {"AND", Base::kAnd},
    {"OR", Base::kOr},
    {"BY", Base::kBy},
    {"ALL", Base::kAll},
}};

/// gReservedWords as numbers, since every short word is looked up there.
constexpr auto gPackedReservedWords = [] {
    std::array<std::uint32_t, gReservedWords.size()> packed{};
    std::transform(gReservedWords.begin(), gReservedWords.end(), packed.begin(),
                   [](const SpellingRow& row) { return PackUpperCased(row.spelling); });
    return packed;
}();

/// The letters that they begin with, which tell most words apart from them.
constexpr CharSet gReservedStarts = CharSet::Where([](int code) {
    return std::any_of(gReservedWords.begin(), gReservedWords.end(),
                       [code](const SpellingRow& row) { return BeginsWith(row.spelling, code); });
});

/// The characters that operators of more than one begin with.
constexpr CharSet gLongerOpStarts = CharSet::Where([](int code) {
    return std::any_of(gTwoCharOps.begin(), gTwoCharOps.end(),
                       [code](const SpellingRow& row) { return row.spelling.front() == code; });
});

/// The code of `spelling` in `table`, kNotOperator when it has no row.
template <typename Table>
Base::OperatorCode FindSpelling(const Table& table, std::string_view spelling) {
    for (const SpellingRow& row : table) {
        if (row.spelling == spelling) {
            return row.code;
        }
    }
    return Base::kNotOperator;
}

/// gOneCharOps by character, since every character that begins a token is looked up there.
constexpr auto gCodeOfChar = [] {
    std::array<Base::OperatorCode, 128> codes{};
    for (const SpellingRow& row : gOneCharOps) {
        codes[static_cast<unsigned char>(row.spelling.front())] = row.code;
    }
    return codes;
}();

Base::OperatorCode OneCharOperator(int code) {
    return code > 0 && code < 128 ? gCodeOfChar[static_cast<std::size_t>(code)]
                                  : Base::kNotOperator;
}

bool IsLineBreakOrBlank(int code) {
    return code == '\n' || code == '\r' || code == ' ';
}

/// Opens the literal's next segment when the cursor stands on a quote of either kind.
void OpenSegment(MBCharPointer& cursor, int& quote, const char*& segment) {
    if (IsQuote(cursor.Code())) {
        quote = cursor.Code();
        cursor.Next();
        segment = cursor.Pointer();
    }
}

/// Skips the blanks and line breaks behind a closing quote. Line breaks are not counted here: what
/// follows a literal keeps the literal's line. A "+" joins the segment whose quote follows it
/// directly; another "+" is lost.
void SkipJoins(MBCharPointer& cursor, int& quote, const char*& segment) {
    for (;;) {
        if (IsLineBreakOrBlank(cursor.Code())) {
            cursor.Next();
        } else if (cursor.Code() == '+') {
            cursor.Next();
            OpenSegment(cursor, quote, segment);
        } else {
            return;
        }
    }
}

/// Steps past the digits at the cursor and returns their number.
std::size_t SkipDigits(MBCharPointer& cursor) {
    const char* const first = cursor.Pointer();
    cursor.SkipWhile(gDigits);
    return static_cast<std::size_t>(cursor.Pointer() - first);
}

/// Keeps numbers readable whatever decimal sign the user's locale has.
class NumericCLocale {
public:
    NumericCLocale() {
        const char* current = std::setlocale(LC_NUMERIC, nullptr);
        if (current != nullptr && std::strcmp(current, "C") != 0) {
            m_previous = current;
            static_cast<void>(std::setlocale(LC_NUMERIC, "C"));
        }
    }
    ~NumericCLocale() {
        if (!m_previous.empty()) {
            static_cast<void>(std::setlocale(LC_NUMERIC, m_previous.c_str()));
        }
    }
    NumericCLocale(const NumericCLocale&) = delete;
    NumericCLocale& operator=(const NumericCLocale&) = delete;

private:
    std::string m_previous; ///< empty when there is nothing to restore
};

/// Whether [first, end), digits with or without a point, needs no reading to be a valid number.
bool IsPlainNumber(const char* first, const char* end) {
    const bool hexadecimal = *first == '0' && (*end == 'x' || *end == 'X');
    return static_cast<std::size_t>(end - first) <= kSafeDigits && !hexadecimal;
}

/// Reads the number from the source text. False when it does not end at `end` (0x1A is read as
/// hexadecimal) or when no double holds it.
bool ReadNumber(const char* first, const char* end, double& value) {
    const NumericCLocale locale;
    char* stop = nullptr;
    errno = 0;
    value = std::strtod(first, &stop);
    return stop == end && errno != ERANGE;
}

} // namespace

bool ScanLiteral(MBCharPointer& cursor, int line, std::string* value) {
    if (!IsQuote(cursor.Code())) {
        return false;
    }
    const MBCharPointer start = cursor;
    int quote = 0;
    const char* segment = nullptr;
    OpenSegment(cursor, quote, segment);
    while (segment != nullptr) {
        int code = SkipLiteralText(cursor, quote);
        if (code != quote) {
            const int column = cursor.CharacterNumber();
            cursor = start;
            throw ParseError(line, column, ParseError::kUnclosedLiteral);
        }
        if (value != nullptr) {
            value->append(segment, cursor.Pointer());
        }
        code = cursor.Next();
        if (code == quote) { // a doubled quote: the literal goes on, with one of the two in it
            if (value != nullptr) {
                *value += static_cast<char>(quote);
            }
            cursor.Next();
            segment = cursor.Pointer();
        } else if (code == '+') {
            // Without a quote behind the "+" the old segment goes on.
            do {
                code = cursor.Next();
            } while (IsLineBreakOrBlank(code));
            OpenSegment(cursor, quote, segment);
        } else {
            segment = nullptr;
        }
        SkipJoins(cursor, quote, segment);
    }
    return true;
}

bool ScanMacroToken(MBCharPointer& cursor) {
    if (cursor.Code() != '!') {
        return false;
    }
    if (cursor.Next() == '*') {
        cursor.Next();
    } else if (SkipDigits(cursor) == 0) {
        cursor.SkipWhile(gWordChars);
    }
    return true;
}

bool ScanNumber(MBCharPointer& cursor, int line, double* value) {
    if (!CanStartNumber(cursor.Code())) {
        return false;
    }
    const MBCharPointer start = cursor;
    const std::size_t digits = SkipDigits(cursor);
    if (cursor.Code() == '.') {
        cursor.Next();
        if (SkipDigits(cursor) + digits == 0) { // a lone point is an operator
            cursor = start;
            return false;
        }
    }
    const bool hasExponent = cursor.Code() == 'E' || cursor.Code() == 'e';
    if (hasExponent) {
        const int sign = cursor.Next();
        if (sign == '+' || sign == '-') {
            cursor.Next();
        }
        if (SkipDigits(cursor) == 0) {
            const int column = cursor.CharacterNumber();
            cursor = start;
            throw ParseError(line, column, ParseError::kBadExponent);
        }
    }
    double number = 0.0;
    if (!hasExponent && IsPlainNumber(start.Pointer(), cursor.Pointer())) {
        if (value != nullptr) {
            std::from_chars(start.Pointer(), cursor.Pointer(), number);
        }
    } else if (!ReadNumber(start.Pointer(), cursor.Pointer(), number)) {
        cursor = start;
        throw ParseError(line, start.CharacterNumber(), ParseError::kInvalidNumber);
    }
    if (value != nullptr) {
        *value = number;
    }
    return true;
}

bool ScanOperator(MBCharPointer& cursor, TokenSequenceBase::OperatorCode& code) {
    code = OneCharOperator(cursor.Code());
    if (code == Base::kNotOperator) {
        return false;
    }
    const char* const first = cursor.Pointer();
    const bool mayGoOn = gLongerOpStarts.Has(cursor.Code());
    const auto extend = [&](const auto& table) {
        const auto length = static_cast<std::size_t>(cursor.Pointer() - first) + 1;
        const Base::OperatorCode longer = FindSpelling(table, {first, length});
        if (longer == Base::kNotOperator) {
            return false;
        }
        code = longer;
        cursor.Next();
        return true;
    };
    cursor.Next();
    if (mayGoOn && extend(gTwoCharOps)) {
        extend(gThreeCharOps);
    }
    return true;
}

bool ScanWord(MBCharPointer& cursor) {
    if (!gWordStarts.Has(cursor.Code())) {
        return false;
    }
    cursor.SkipWhile(gWordChars);
    return true;
}

TokenSequenceBase::OperatorCode ReservedWordCode(std::string_view word) {
    constexpr std::size_t kLongestReservedWord = 4;
    if (word.empty() || word.size() > kLongestReservedWord ||
        !gReservedStarts.HasAscii(word.front())) {
        return Base::kNotOperator;
    }
    const auto* const found =
        std::find(gPackedReservedWords.begin(), gPackedReservedWords.end(), PackUpperCased(word));
    const auto index = static_cast<std::size_t>(found - gPackedReservedWords.begin());
    return index < gReservedWords.size() ? gReservedWords[index].code : Base::kNotOperator;
}

void SkipBatchMark(MBCharPointer& cursor, bool batch) {
    if (batch && (cursor.Code() == '+' || cursor.Code() == '-')) {
        cursor.Next();
    }
}

void SkipSeparators(MBCharPointer& cursor, int& line) {
    for (;;) {
        int lines = 0;
        switch (cursor.Code()) {
        case ' ':
        case '\t':
            cursor.Next();
            break;
        case '\n':
        case '\r':
            SkipWhitespace(cursor, lines);
            line += lines;
            break;
        case '/':
            if (!SkipComment(cursor)) {
                return;
            }
            break;
        default:
            return;
        }
    }
}

void CheckTokens(const char* text, bool batch) {
    if (QuickCheckTokens(text)) {
        return;
    }
    MBCharPointer cursor(text);
    SkipBatchMark(cursor, batch);
    int line = 1;
    Base::OperatorCode code = Base::kNotOperator;
    do {
        SkipSeparators(cursor, line);
        if (!(ScanLiteral(cursor, line, nullptr) || ScanMacroToken(cursor) ||
              ScanNumber(cursor, line, nullptr) || ScanOperator(cursor, code) ||
              ScanWord(cursor)) &&
            cursor.Code() != 0) {
            throw ParseError(line, cursor.CharacterNumber(), ParseError::kInvalidCharacter);
        }
    } while (cursor.Code() != 0);
}

} // namespace recastor
