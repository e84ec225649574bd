#include "tests/support/phrasegrammar.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace recastor {

/// A node of a rule.
struct PhraseGrammar::Expression {
    enum class Kind { kLiteral, kRule, kSequence, kChoice, kOptional, kAnyNumber };

    Kind kind;
    std::string text; ///< a literal, or a rule's name
    std::vector<std::unique_ptr<Expression>> operands;
};

namespace {

using Expression = PhraseGrammar::Expression;
using Kind = Expression::Kind;
using ExpressionPointer = std::unique_ptr<Expression>;

ExpressionPointer MakeExpression(Kind kind, std::string text = {}) {
    auto expression = std::make_unique<Expression>();
    expression->kind = kind;
    expression->text = std::move(text);
    return expression;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Reads one rule's expression.
class RuleReader {
public:
    explicit RuleReader(std::string_view text) : m_text(text) {}

    ExpressionPointer Read() {
        ExpressionPointer choice = ReadChoice();
        if (!m_text.empty()) {
            throw std::invalid_argument("left over in a rule: " + std::string(m_text));
        }
        return choice;
    }

private:
    ExpressionPointer ReadChoice() {
        auto choice = MakeExpression(Kind::kChoice);
        do {
            choice->operands.push_back(ReadSequence());
        } while (Skip('|'));
        return choice;
    }

    ExpressionPointer ReadSequence() {
        auto sequence = MakeExpression(Kind::kSequence);
        SkipBlanks();
        while (!m_text.empty() && m_text.front() != '|' && m_text.front() != ')') {
            ReadRepeated(*sequence);
            SkipBlanks();
        }
        return sequence;
    }

    void ReadRepeated(Expression& sequence) {
        const std::string_view before = m_text;
        ExpressionPointer item = ReadItem();
        const std::string_view written = before.substr(0, before.size() - m_text.size());
        if (Skip('?')) {
            item = Wrap(Kind::kOptional, std::move(item));
        } else if (Skip('*')) {
            item = Wrap(Kind::kAnyNumber, std::move(item));
        } else if (Skip('+')) {
            sequence.operands.push_back(std::move(item));
            item = Wrap(Kind::kAnyNumber, RuleReader(written).Read());
        }
        sequence.operands.push_back(std::move(item));
    }

    ExpressionPointer ReadItem() {
        if (Skip('(')) {
            ExpressionPointer choice = ReadChoice();
            if (!Skip(')')) {
                throw std::invalid_argument("a rule lacks a parenthesis");
            }
            return choice;
        }
        if (Skip('\'')) {
            return MakeExpression(Kind::kLiteral, Take(m_text.find('\''), 1));
        }
        std::size_t length = 0;
        while (length < m_text.size() && (IsLetter(m_text[length]) || IsDigit(m_text[length]))) {
            ++length;
        }
        if (length == 0) {
            throw std::invalid_argument("no rule: " + std::string(m_text));
        }
        return MakeExpression(Kind::kRule, Take(length, 0));
    }

    static ExpressionPointer Wrap(Kind kind, ExpressionPointer operand) {
        auto expression = MakeExpression(kind);
        expression->operands.push_back(std::move(operand));
        return expression;
    }

    /// So many bytes, and then some that are dropped.
    std::string Take(std::size_t length, std::size_t dropped) {
        std::string taken(m_text.substr(0, length));
        m_text.remove_prefix(length + dropped);
        return taken;
    }

    bool Skip(char c) {
        if (c != '\'' && c != '?' && c != '*' && c != '+') {
            SkipBlanks();
        }
        if (m_text.empty() || m_text.front() != c) {
            return false;
        }
        m_text.remove_prefix(1);
        return true;
    }

    void SkipBlanks() {
        while (!m_text.empty() && (m_text.front() == ' ' || m_text.front() == '\n')) {
            m_text.remove_prefix(1);
        }
    }

    std::string_view m_text;
};

/// Bytes from `at` on that make up a built-in phrase; 0 when there is none.
std::size_t NumberLength(std::string_view text) {
    std::size_t length = text.starts_with('-') ? 1 : 0;
    const std::size_t whole = length;
    while (length < text.size() && IsDigit(text[length])) {
        ++length;
    }
    if (length == whole || (text[whole] == '0' && length > whole + 1)) {
        return 0;
    }
    if (length < text.size() && text[length] == '.') {
        std::size_t end = length + 1;
        while (end < text.size() && IsDigit(text[end])) {
            ++end;
        }
        return text[end - 1] == '.' || text[end - 1] == '0' ? 0 : end;
    }
    return text.starts_with("-0") ? 0 : length;
}

std::size_t NameLength(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() &&
           (IsLetter(text[length]) ||
            (length > 0 && (IsDigit(text[length]) || text[length] == '_')))) {
        ++length;
    }
    return length;
}

std::size_t StringLength(std::string_view text) {
    if (!text.starts_with('"')) {
        return 0;
    }
    for (std::size_t i = 1; i < text.size() && text[i] != '\n'; ++i) {
        if (text[i] == '"') {
            return i + 1;
        }
        if (text[i] == '\\' &&
            (++i == text.size() || std::string_view("\"\\n").find(text[i]) == std::string::npos)) {
            return 0;
        }
    }
    return 0;
}

std::size_t BuiltInLength(const std::string& rule, std::string_view text) {
    if (rule == "nl") {
        return text.starts_with('\n') ? 1 : 0;
    }
    if (rule == "digit") {
        return !text.empty() && text.front() >= '1' && text.front() <= '9' ? 1 : 0;
    }
    if (rule == "apostrophe") {
        return text.starts_with('\'') ? 1 : 0;
    }
    if (rule == "byte") {
        return !text.empty() && std::string_view(" \n'\"()").find(text.front()) == std::string::npos
                   ? 1
                   : 0;
    }
    if (rule == "number") {
        return NumberLength(text);
    }
    if (rule == "name") {
        return NameLength(text);
    }
    if (rule == "string") {
        return StringLength(text);
    }
    throw std::invalid_argument("a rule that is not there: " + rule);
}

/// Matches a text; what a try that fails has found is forgotten.
class Matcher {
public:
    Matcher(const std::map<std::string, ExpressionPointer>& rules, std::string_view text,
            PhraseReading& reading) :
        m_rules(rules),
        m_text(text), m_reading(reading) {}

    bool Match(const Expression& expression) {
        const std::size_t place = m_place;
        const std::size_t found = m_reading.phrases.size();
        if (MatchFrom(expression)) {
            m_reading.farthest = std::max(m_reading.farthest, m_place);
            return true;
        }
        m_place = place;
        m_reading.phrases.resize(found);
        return false;
    }

    bool IsAtEnd() const { return m_place == m_text.size(); }

private:
    bool MatchFrom(const Expression& expression) {
        switch (expression.kind) {
        case Kind::kLiteral:
            return Advance(
                m_text.substr(m_place).starts_with(expression.text) ? expression.text.size() : 0);
        case Kind::kRule:
            return MatchRule(expression.text);
        case Kind::kSequence:
            for (const auto& operand : expression.operands) {
                if (!Match(*operand)) {
                    return false;
                }
            }
            return true;
        case Kind::kChoice:
            for (const auto& operand : expression.operands) {
                if (Match(*operand)) {
                    return true;
                }
            }
            return false;
        case Kind::kOptional:
            Match(*expression.operands.front());
            return true;
        default:
            while (Match(*expression.operands.front())) {
            }
            return true;
        }
    }

    bool MatchRule(const std::string& name) {
        const auto rule = m_rules.find(name);
        if (rule == m_rules.end()) {
            return Advance(BuiltInLength(name, m_text.substr(m_place)));
        }
        const std::size_t place = m_place;
        if (!Match(*rule->second)) {
            return false;
        }
        if (std::isupper(static_cast<unsigned char>(name.front())) != 0) {
            m_reading.phrases.push_back({name, std::string(m_text.substr(place, m_place - place))});
        }
        return true;
    }

    bool Advance(std::size_t length) {
        m_place += length;
        return length > 0;
    }

    const std::map<std::string, ExpressionPointer>& m_rules;
    std::string_view m_text;
    std::size_t m_place = 0;
    PhraseReading& m_reading;
};

} // namespace

PhraseGrammar::PhraseGrammar(std::string_view rules) {
    while (!rules.empty()) {
        std::size_t end = rules.find('\n');
        while (end != std::string_view::npos && end + 1 < rules.size() && rules[end + 1] == ' ') {
            end = rules.find('\n', end + 1);
        }
        const std::string_view rule = rules.substr(0, end);
        rules.remove_prefix(end == std::string_view::npos ? rules.size() : end + 1);
        if (rule.empty()) {
            continue;
        }
        const std::size_t colon = rule.find(':');
        const std::string name(rule.substr(0, rule.find_first_of(" :")));
        m_rules[name] = RuleReader(rule.substr(colon + 1)).Read();
        m_first = m_first.empty() ? name : m_first;
    }
}

PhraseGrammar::~PhraseGrammar() = default;

PhraseReading PhraseGrammar::Read(std::string_view text) const {
    PhraseReading reading;
    Matcher matcher(m_rules, text, reading);
    reading.isWhole = matcher.Match(*m_rules.at(m_first)) && matcher.IsAtEnd();
    return reading;
}

} // namespace recastor
