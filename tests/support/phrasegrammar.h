/// Grammars as text, for tests that judge what the converter writes.
///
/// A grammar is a list of rules, `name : expression` each; an indented line goes on with the rule
/// before it. An expression is made of literals in apostrophes, names of rules, parentheses, `|`
/// (the first alternative that matches counts), `?`, `*` and `+`. Some rules are built in: `nl` a
/// line feed, `number` one as short as it can be, `name` letters, digits and underscores behind a
/// letter, `string` a text in double quotes with escapes, `digit` 1 to 9, `apostrophe`, and `byte`:
/// any but blanks, line feeds, quotes and parentheses.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// What a rule whose name begins with a capital letter matched.
struct Phrase {
    std::string rule;
    std::string text;
};

/// The outcome of reading a text: the phrases in their order, and how far it was read.
struct PhraseReading {
    bool isWhole = false;
    std::size_t farthest = 0; ///< the first byte that no rule could take
    std::vector<Phrase> phrases;
};

class PhraseGrammar {
public:
    /// Throws std::invalid_argument when `rules` is no grammar.
    explicit PhraseGrammar(std::string_view rules);
    ~PhraseGrammar();
    PhraseGrammar(const PhraseGrammar&) = delete;
    PhraseGrammar& operator=(const PhraseGrammar&) = delete;

    /// Reads the whole text by the first rule.
    PhraseReading Read(std::string_view text) const;

    struct Expression;

private:
    std::map<std::string, std::unique_ptr<Expression>> m_rules;
    std::string m_first;
};

} // namespace recastor
