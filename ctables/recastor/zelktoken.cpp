#include "ctables/recastor/zelktoken.h"

#include <array>
#include <utility>

namespace recastor {

namespace {

using Base = TokenSequenceBase;

template <typename Code>
struct NameRow {
    Code code;
    std::string name;
};

const auto& TokenTypeTable() {
    static const std::array<NameRow<Base::TokenType>, 5> table{{
        {Base::kAtEnd, "kAtEnd"},
        {Base::kString, "kString"},
        {Base::kNumber, "kNumber"},
        {Base::kLiteral, "kLiteral"},
        {Base::kOperator, "kOperator"},
    }};
    return table;
}

/// Every code but kNotEqual, behind the row that answers for all others.
const auto& OperatorTable() {
    static const std::array<NameRow<Base::OperatorCode>, 37> table{{
        {Base::kNotOperator, "kNotOperator"},
        {Base::kLessThan, "kLessThan"},
        {Base::kGreaterThan, "kGreaterThan"},
        {Base::kEquals, "kEquals"},
        {Base::kLtOrEq, "kLtOrEq"},
        {Base::kGtOrEq, "kGtOrEq"},
        {Base::kNot, "kNot"},
        {Base::kPlus, "kPlus"},
        {Base::kMinus, "kMinus"},
        {Base::kAsterisk, "kAsterisk"},
        {Base::kSlash, "kSlash"},
        {Base::kPower, "kPower"},
        {Base::kLeftParen, "kLeftParen"},
        {Base::kRightParen, "kRightParen"},
        {Base::kComma, "kComma"},
        {Base::kColon, "kColon"},
        {Base::kSemicolon, "kSemicolon"},
        {Base::kPeriod, "kPeriod"},
        {Base::kUnderscore, "kUnderscore"},
        {Base::kQuestionMark, "kQuestionMark"},
        {Base::kPercent, "kPercent"},
        {Base::kVerticalBar, "kVerticalBar"},
        {Base::kAmpersand, "kAmpersand"},
        {Base::kLeftBrace, "kLeftBrace"},
        {Base::kRightBrace, "kRightBrace"},
        {Base::kElemMult, "kElemMult"},
        {Base::kElemDiv, "kElemDiv"},
        {Base::kElemPower, "kElemPower"},
        {Base::kXtabNest, "kXtabNest"},
        {Base::kTo, "kTo"},
        {Base::kWith, "kWith"},
        {Base::kAnd, "kAnd"},
        {Base::kOr, "kOr"},
        {Base::kBy, "kBy"},
        {Base::kAll, "kAll"},
        {Base::kLeftSqBracket, "kLeftSqBracket"},
        {Base::kRightSqBracket, "kRightSqBracket"},
    }};
    return table;
}

/// The name in the row of `code`; the first row's name when there is none.
template <typename Table, typename Code>
const std::string& NameFromTable(const Table& table, Code code) {
    for (const auto& row : table) {
        if (row.code == code) {
            return row.name;
        }
    }
    return table.front().name;
}

void PrintIndent(std::ostream& out, int indent) {
    constexpr int kDeepest = 20;
    if (indent > 0 && indent <= kDeepest) {
        out << std::string(static_cast<std::size_t>(indent), '\t');
    }
}

} // namespace

const std::string& TokenTypeName(Base::TokenType type) {
    return NameFromTable(TokenTypeTable(), type);
}

const std::string& OperatorTypeName(Base::OperatorCode code) {
    return NameFromTable(OperatorTable(), code);
}

ZELKToken::ZELKToken(const PaddedText& rawText, int line, int column) :
    m_rawText(rawText.Copy()), m_line(line), m_column(column) {}

void ZELKToken::Print(std::ostream& out, int indent) const {
    PrintIndent(out, indent);
    out << TokenTypeName(Type()) << '\t' << m_line << ':' << m_column;
}

const std::string& ZELKToken::AsString(bool /*raw*/) const {
    return m_rawText;
}

double ZELKToken::AsNumber() const {
    return 0.0;
}

ZELKToken::OperatorCode ZELKToken::OpCode() const {
    return Base::kNotOperator;
}

void ZELKToken::StartLocation(int& line, int& column) const {
    line = m_line;
    column = m_column;
}

int ZELKToken::CompareAsString(const std::string& s, unsigned n, bool raw) const {
    const std::string& text = AsString(raw);
    return n != 0 ? text.compare(0, n, s, 0, n) : text.compare(s);
}

ZELKNumberToken::ZELKNumberToken(const PaddedText& rawText, int line, int column, double value) :
    ZELKToken(rawText, line, column), m_value(value) {}

ZELKToken* ZELKNumberToken::Dup() const {
    return new ZELKNumberToken(*this);
}

void ZELKNumberToken::Print(std::ostream& out, int indent) const {
    ZELKToken::Print(out, indent);
    out << '\t' << m_value << '\t' << AsString(true) << std::endl;
}

ZELKStringToken::ZELKStringToken(const PaddedText& rawText, int line, int column,
                                 const PaddedText& upperCased, OperatorCode code) :
    ZELKToken(rawText, line, column),
    m_value(upperCased.Copy()), m_code(code) {}

ZELKToken* ZELKStringToken::Dup() const {
    return new ZELKStringToken(*this);
}

void ZELKStringToken::Print(std::ostream& out, int indent) const {
    ZELKToken::Print(out, indent);
    out << '\t' << OperatorTypeName(m_code) << '\t' << AsString(true) << std::endl;
}

const std::string& ZELKStringToken::AsString(bool raw) const {
    return raw || m_value.empty() ? ZELKToken::AsString(raw) : m_value;
}

ZELKOperatorToken::ZELKOperatorToken(const PaddedText& rawText, int line, int column,
                                     OperatorCode code) :
    ZELKToken(rawText, line, column),
    m_code(code) {}

ZELKToken* ZELKOperatorToken::Dup() const {
    return new ZELKOperatorToken(*this);
}

void ZELKOperatorToken::Print(std::ostream& out, int indent) const {
    ZELKToken::Print(out, indent);
    out << '\t' << OperatorTypeName(m_code) << '\t' << AsString(true) << std::endl;
}

ZELKLiteralToken::ZELKLiteralToken(const PaddedText& rawText, int line, int column,
                                   std::string&& value) :
    ZELKToken(rawText, line, column),
    m_value(std::move(value)) {}

ZELKToken* ZELKLiteralToken::Dup() const {
    return new ZELKLiteralToken(*this);
}

void ZELKLiteralToken::Print(std::ostream& out, int indent) const {
    ZELKToken::Print(out, indent);
    out << std::endl;
    PrintIndent(out, indent);
    out << '`' << m_value << '`' << std::endl;
}

const std::string& ZELKLiteralToken::AsString(bool raw) const {
    return raw ? ZELKToken::AsString(raw) : m_value;
}

} // namespace recastor
