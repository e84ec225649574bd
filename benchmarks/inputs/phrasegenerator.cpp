#include "benchmarks/inputs/phrasegenerator.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <stdexcept>

namespace recastor {

namespace {

unsigned NumberOf(std::string_view digits) {
    unsigned number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

bool IsRange(std::string_view name) {
    return !name.empty() && std::isdigit(static_cast<unsigned char>(name.front())) != 0;
}

} // namespace

PhraseGenerator::PhraseGenerator(const PhraseGrammar& grammar, std::uint64_t seed) :
    m_random(seed), m_symbols(1) {
    for (const PhraseRule& rule : grammar.rules) {
        m_names.emplace(rule.name, m_symbols.size());
        m_symbols.emplace_back().kind = Kind::kRule;
    }
    for (const PhraseList& list : grammar.lists) {
        m_names.emplace(list.name, m_symbols.size());
        m_symbols.emplace_back().kind = Kind::kList;
    }
    for (const PhraseRule& rule : grammar.rules) {
        for (const std::string_view choice : rule.choices) {
            std::vector<Piece> pieces = PiecesOf(choice); // may add a symbol
            m_symbols[SymbolOf(rule.name)].choices.push_back(std::move(pieces));
        }
    }
    for (const PhraseList& list : grammar.lists) {
        SymbolForm& form = m_symbols[SymbolOf(list.name)];
        form.item = SymbolOf(list.item);
        form.separator = SymbolOf(list.separator);
        form.fewest = list.fewest;
        form.most = list.most;
    }
}

void PhraseGenerator::Append(std::string_view name, std::string& text) {
    AppendSymbol(SymbolOf(name), text);
}

PhraseGenerator::Symbol PhraseGenerator::SymbolOf(std::string_view name) const {
    const auto place = m_names.find(name);
    if (place == m_names.end()) {
        throw std::invalid_argument("no rule is called " + std::string(name));
    }
    return place->second;
}

PhraseGenerator::Symbol PhraseGenerator::NumberSymbol(std::string_view range) {
    const auto dash = range.find('-');
    SymbolForm& form = m_symbols.emplace_back();
    form.kind = Kind::kNumber;
    form.fewest = NumberOf(range.substr(0, dash));
    form.most = NumberOf(range.substr(dash + 1));
    return m_symbols.size() - 1;
}

std::vector<PhraseGenerator::Piece> PhraseGenerator::PiecesOf(std::string_view choice) {
    std::vector<Piece> pieces;
    for (;;) {
        const auto open = choice.find('[');
        if (open == std::string_view::npos) {
            pieces.push_back({std::string(choice), 0});
            return pieces;
        }
        const auto close = choice.find(']', open);
        const std::string_view name = choice.substr(open + 1, close - open - 1);
        const Symbol symbol = IsRange(name) ? NumberSymbol(name) : SymbolOf(name);
        pieces.push_back({std::string(choice.substr(0, open)), symbol});
        choice.remove_prefix(close + 1);
    }
}

unsigned PhraseGenerator::Between(unsigned least, unsigned most) {
    return least + static_cast<unsigned>(m_random() % (most - least + 1U));
}

void PhraseGenerator::AppendSymbol(Symbol symbol, std::string& text) {
    const SymbolForm& form = m_symbols[symbol];
    switch (form.kind) {
    case Kind::kNothing:
        break;
    case Kind::kNumber:
        text += std::to_string(Between(form.fewest, form.most));
        break;
    case Kind::kList:
        for (unsigned i = Between(form.fewest, form.most); i > 0; --i) {
            AppendSymbol(form.item, text);
            AppendSymbol(i > 1 ? form.separator : 0, text);
        }
        break;
    case Kind::kRule:
        for (const Piece& piece : form.choices[m_random() % form.choices.size()]) {
            text += piece.text;
            AppendSymbol(piece.symbol, text);
        }
        break;
    }
}

} // namespace recastor
