#include "platform/zelkwigr/charttokenreader.h"

namespace recastor {

namespace {

using GetText = void (TokenSequenceBase::*)(const char*&, unsigned&) const;

std::string_view TextOf(const TokenSequenceBase& tokens, GetText text) {
    const char* first = nullptr;
    unsigned length = 0;
    (tokens.*text)(first, length);
    return {first, length};
}

constexpr Keyword<BuiltIn> kBuiltIns[] = {
    {"$COUNT", BuiltIn::kCount},
    {"$PCT", BuiltIn::kPercent},
    {"$CASE", BuiltIn::kCase},
};

BuiltIn BuiltInNamed(std::string_view upper) {
    for (const Keyword<BuiltIn>& row : kBuiltIns) {
        if (row.text == upper) {
            return row.meaning;
        }
    }
    return BuiltIn::kNone;
}

} // namespace

ChartTokenReader::ChartTokenReader(TokenSequenceBase& tokens) : m_tokens(tokens) {
    m_tokens.Seek(0);
    m_atEnd = !m_tokens.Next();
}

void ChartTokenReader::Fail() {
    m_failed = true;
    m_atEnd = true;
}

void ChartTokenReader::Require(bool right) {
    if (!right) {
        Fail();
    }
}

void ChartTokenReader::Skip() {
    if (!m_atEnd) {
        m_atEnd = !m_tokens.Next();
        m_tried.clear();
    }
}

bool ChartTokenReader::Take(OperatorCode symbol) {
    if (Operator() != symbol) {
        return false;
    }
    Skip();
    return true;
}

void ChartTokenReader::Expect(OperatorCode symbol) {
    Require(Take(symbol));
}

double ChartTokenReader::Number() {
    const bool negative = Take(TokenSequenceBase::kMinus);
    if (!negative) {
        Take(TokenSequenceBase::kPlus);
    }
    if (Type() != TokenSequenceBase::kNumber) {
        Fail();
        return 0;
    }
    const double value = m_tokens.AsNumber();
    Skip();
    return negative ? -value : value;
}

double ChartTokenReader::NumberOrInParentheses() {
    const bool enclosed = Take(TokenSequenceBase::kLeftParen);
    const double value = Number();
    if (enclosed) {
        Expect(TokenSequenceBase::kRightParen);
    }
    return value;
}

std::vector<std::string> ChartTokenReader::Text() {
    std::vector<std::string> lines;
    for (; AtLiteral(); Skip()) {
        lines.emplace_back(TextOf(m_tokens, &TokenSequenceBase::AsString));
    }
    Require(!lines.empty());
    return lines;
}

ChartVariable ChartTokenReader::Variable() {
    const Word word = TakeNameWord();
    if (word.upper == "VAR" && Take(TokenSequenceBase::kLeftParen)) {
        ChartVariable variable = Named(TakeNameWord());
        Expect(TokenSequenceBase::kRightParen);
        return variable;
    }
    return Named(word);
}

std::vector<ChartVariable> ChartTokenReader::VariableOrList() {
    std::vector<ChartVariable> variables;
    const Word word = TakeNameWord();
    if (word.upper != "VAR" || !Take(TokenSequenceBase::kLeftParen)) {
        variables.push_back(Named(word));
        return variables;
    }
    do {
        variables.push_back(Named(TakeNameWord()));
    } while (!m_failed && !Take(TokenSequenceBase::kRightParen));
    return variables;
}

std::string_view ChartTokenReader::UpperSpelling() const {
    return TextOf(m_tokens, &TokenSequenceBase::AsUpperString);
}

ChartTokenReader::Word ChartTokenReader::TakeNameWord() {
    if (!AtWord() || m_tokens.Operator() != TokenSequenceBase::kNotOperator) {
        Fail();
        return {};
    }
    const Word word = {TextOf(m_tokens, &TokenSequenceBase::AsString), UpperSpelling()};
    Skip();
    return word;
}

ChartVariable ChartTokenReader::Named(const Word& word) {
    const auto [place, isNew] = m_spellings.try_emplace(word.upper, word.spelling);
    return {std::string(place->second), BuiltInNamed(word.upper)};
}

} // namespace recastor
