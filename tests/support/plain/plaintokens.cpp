#include "tests/support/plain/plaintokens.h"

#include "ctables/recastor/parseerror.h"
#include "tests/support/plain/plaincursor.h"

#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <map>

namespace recastor {

namespace {

using Base = TokenSequenceBase;

const std::map<std::string, Base::OperatorCode> kSymbols{
    {"<", Base::kLessThan},      {">", Base::kGreaterThan},    {"=", Base::kEquals},
    {"~", Base::kNot},           {"+", Base::kPlus},           {"-", Base::kMinus},
    {"*", Base::kAsterisk},      {"/", Base::kSlash},          {"(", Base::kLeftParen},
    {")", Base::kRightParen},    {",", Base::kComma},          {":", Base::kColon},
    {";", Base::kSemicolon},     {".", Base::kPeriod},         {"_", Base::kUnderscore},
    {"?", Base::kQuestionMark},  {"%", Base::kPercent},        {"|", Base::kVerticalBar},
    {"&", Base::kAmpersand},     {"{", Base::kLeftBrace},      {"}", Base::kRightBrace},
    {"[", Base::kLeftSqBracket}, {"]", Base::kRightSqBracket}, {"<=", Base::kLtOrEq},
    {">=", Base::kGtOrEq},       {"~=", Base::kNotEqual},      {"<>", Base::kNotEqual},
    {"**", Base::kPower},        {"&*", Base::kElemMult},      {"&/", Base::kElemDiv},
    {"*>", Base::kXtabNest},     {"&**", Base::kElemPower},
};

const std::map<std::string, Base::OperatorCode> kReservedWords{
    {"LT", Base::kLessThan}, {"GT", Base::kGreaterThan}, {"EQ", Base::kEquals},
    {"LE", Base::kLtOrEq},   {"GE", Base::kGtOrEq},      {"NE", Base::kNotEqual},
    {"NOT", Base::kNot},     {"TO", Base::kTo},          {"WITH", Base::kWith},
    {"AND", Base::kAnd},     {"OR", Base::kOr},          {"BY", Base::kBy},
    {"ALL", Base::kAll},
};

/// The number that strtod reads at the start of the text, when it reads exactly `length` bytes and
/// a double holds it.
bool ReadNumber(const char* text, std::size_t length, double& number) {
    static const locale_t kCLocale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    char* end = nullptr;
    errno = 0;
    number = ::strtod_l(text, &end, kCLocale);
    return end == text + length && errno != ERANGE;
}

/// Reads one command from its first character on.
class Reader {
public:
    Reader(const std::string& text, bool batch) : m_text(text), m_cursor(text) {
        if (batch && m_cursor.IsOneOf("+-")) {
            m_cursor.Step();
        }
    }

    PlainTokens Read(int limit) {
        const std::size_t most =
            limit > 0 ? static_cast<std::size_t>(limit) : std::numeric_limits<std::size_t>::max();
        do {
            while (PassWhitespace(m_cursor, m_line) || PassComment(m_cursor)) {
            }
            m_start = m_cursor;
            if (!ReadLiteral() && !ReadMacroWord() && !ReadNumberToken() && !ReadSymbol() &&
                !ReadWord() && m_cursor.Code() != 0) {
                throw ParseError(m_line, m_cursor.Number(), ParseError::kInvalidCharacter);
            }
            m_result.kind = Kind();
        } while (m_cursor.Code() != 0 && m_result.tokens.size() < most && m_result.kind == 0);
        return m_result;
    }

private:
    void Add(Base::TokenType type, const std::string& value, Base::OperatorCode code,
             double number = 0.0) {
        m_result.tokens.push_back(
            {type, m_cursor.Since(m_start), value, number, code, m_line, m_start.Number()});
    }

    /// Which kind of command the first two tokens make.
    int Kind() const {
        const auto& tokens = m_result.tokens;
        const std::string first = tokens.empty() ? "" : tokens[0].value;
        const std::string start = first.substr(0, 3);
        if (start == "*" || start == "**" || start == "*>" || start == "COM") {
            return 1;
        }
        if (start == "DOC") {
            return 2;
        }
        const std::string second = first == "BEGIN" && tokens.size() > 1 ? tokens[1].value : "";
        return second == "DATA" || second == "DATA." ? 3 : 0;
    }

    bool ReadLiteral() {
        if (!m_cursor.IsQuote()) {
            return false;
        }
        std::string value;
        bool open = true;
        int quote = 0;
        PlainCursor segment = m_cursor;
        OpenSegment(quote, segment);
        while (open) {
            if (!PassToQuote(m_cursor, quote)) {
                throw ParseError(m_line, m_cursor.Number(), ParseError::kUnclosedLiteral);
            }
            value += m_cursor.Since(segment);
            m_cursor.Step();
            if (m_cursor.Code() == quote) {
                value += static_cast<char>(quote);
                m_cursor.Step();
                segment = m_cursor;
            } else if (m_cursor.Is('+')) {
                m_cursor.Step();
                PassBlanksAndBreaks();
                OpenSegment(quote, segment);
            } else {
                open = false;
            }
            open = PassJoins(quote, segment) || open;
        }
        Add(Base::kLiteral, value, Base::kNotOperator);
        return true;
    }
    /// Steps over an opening quote, if there is one: the segment begins behind it.
    bool OpenSegment(int& quote, PlainCursor& segment) {
        if (!m_cursor.IsQuote()) {
            return false;
        }
        quote = m_cursor.Code();
        m_cursor.Step();
        segment = m_cursor;
        return true;
    }
    void PassBlanksAndBreaks() {
        while (m_cursor.IsOneOf("\n\r ")) {
            m_cursor.Step();
        }
    }
    /// What may follow a segment: blanks, line breaks, and plus signs, each of which may open
    /// another segment. Whether one did.
    bool PassJoins(int& quote, PlainCursor& segment) {
        bool opened = false;
        for (PassBlanksAndBreaks(); m_cursor.Is('+'); PassBlanksAndBreaks()) {
            m_cursor.Step();
            opened = OpenSegment(quote, segment) || opened;
        }
        return opened;
    }

    bool ReadMacroWord() {
        if (!m_cursor.Is('!')) {
            return false;
        }
        m_cursor.Step();
        if (m_cursor.Is('*')) {
            m_cursor.Step();
        } else if (m_cursor.IsDigit()) {
            PassDigits();
        } else {
            PassWord();
        }
        Add(Base::kString, PlainUpperCased(m_cursor.Since(m_start)), Base::kNotOperator);
        return true;
    }

    bool ReadNumberToken() {
        int digits = PassDigits();
        if (m_cursor.Is('.')) {
            m_cursor.Step();
            digits += PassDigits();
        }
        if (digits == 0) {
            m_cursor = m_start;
            return false;
        }
        if (m_cursor.IsOneOf("Ee")) {
            m_cursor.Step();
            if (m_cursor.IsOneOf("+-")) {
                m_cursor.Step();
            }
            if (PassDigits() == 0) {
                throw ParseError(m_line, m_cursor.Number(), ParseError::kBadExponent);
            }
        }
        const std::string raw = m_cursor.Since(m_start);
        double number = 0.0;
        if (!ReadNumber(m_text.c_str() + m_start.Offset(), raw.size(), number)) {
            throw ParseError(m_line, m_start.Number(), ParseError::kInvalidNumber);
        }
        Add(Base::kNumber, raw, Base::kNotOperator, number);
        return true;
    }

    /// The longest symbol, one character after the other; a comma leaves no token.
    bool ReadSymbol() {
        PlainCursor next = m_cursor;
        next.Step();
        while (m_cursor.Code() != 0 && kSymbols.contains(next.Since(m_start))) {
            m_cursor = next;
            next.Step();
            if (next.Offset() == m_cursor.Offset()) {
                break;
            }
        }
        const std::string raw = m_cursor.Since(m_start);
        if (!raw.empty() && raw != ",") {
            Add(Base::kOperator, raw, kSymbols.at(raw));
        }
        return !raw.empty();
    }

    bool ReadWord() {
        if (!m_cursor.BeginsWord()) {
            return false;
        }
        PassWord();
        const std::string value = PlainUpperCased(m_cursor.Since(m_start));
        const auto reserved = kReservedWords.find(value);
        Add(Base::kString, value,
            reserved == kReservedWords.end() ? Base::kNotOperator : reserved->second);
        return true;
    }

    int PassDigits() {
        int count = 0;
        for (; m_cursor.IsDigit(); m_cursor.Step()) {
            ++count;
        }
        return count;
    }
    void PassWord() {
        while (m_cursor.ContinuesWord()) {
            m_cursor.Step();
        }
    }

    const std::string& m_text;
    PlainCursor m_cursor;
    PlainCursor m_start = m_cursor; ///< of the token at hand
    int m_line = 1;
    PlainTokens m_result;
};

} // namespace

PlainTokens ReadTokens(const std::string& text, bool batch, int limit) {
    return Reader(text, batch).Read(limit);
}

} // namespace recastor
