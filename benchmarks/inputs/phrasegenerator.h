/// Random texts from rules, for inputs of any size that look as people write them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// One of the choices, all equally likely. In a choice `[name]` stands for a text of the rule or
/// list of that name, and `[3-99]` for a number of that range, its ends included.
struct PhraseRule {
    std::string_view name;
    std::vector<std::string_view> choices;
};

/// `fewest` to `most` texts of the rule `item`, between two of them one of the rule `separator`.
struct PhraseList {
    std::string_view name;
    std::string_view item;
    std::string_view separator;
    unsigned fewest;
    unsigned most;
};

struct PhraseGrammar {
    std::vector<PhraseRule> rules;
    std::vector<PhraseList> lists;
};

/// Draws texts of a grammar. The same grammar and seed give the same texts on every machine.
class PhraseGenerator {
public:
    /// Throws std::invalid_argument for a name that no rule and no list has.
    PhraseGenerator(const PhraseGrammar& grammar, std::uint64_t seed);

    /// Appends one text of the rule or list.
    void Append(std::string_view name, std::string& text);

private:
    using Symbol = std::size_t; ///< an index of m_symbols

    /// Text and the symbol behind it.
    struct Piece {
        std::string text;
        Symbol symbol;
    };
    enum class Kind { kNothing, kRule, kList, kNumber };
    struct SymbolForm {
        Kind kind = Kind::kNothing;
        std::vector<std::vector<Piece>> choices; ///< of a rule
        Symbol item = 0;                         ///< of a list, as is the next
        Symbol separator = 0;
        unsigned fewest = 0; ///< of a list or a number, as is the next
        unsigned most = 0;
    };

    Symbol SymbolOf(std::string_view name) const;
    Symbol NumberSymbol(std::string_view range);
    std::vector<Piece> PiecesOf(std::string_view choice);
    unsigned Between(unsigned least, unsigned most);
    void AppendSymbol(Symbol symbol, std::string& text);

    std::mt19937_64 m_random;
    std::map<std::string, Symbol, std::less<>> m_names;
    std::vector<SymbolForm> m_symbols; ///< the first is nothing
};

} // namespace recastor
