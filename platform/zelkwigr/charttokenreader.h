/// Reads the tokens of an IGRAPH command as the pieces that its language is made of.
#pragma once

#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkbase/tokensequencebase.h"
#include "platform/zelkwigr/chartmodel.h"
#include "platform/zelkwigr/keywords.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// Goes through the tokens once, from the first to the last, and stops for good at the first one
/// that does not fit: from then on it is at the end, and what is read is empty. So a form is read
/// straight on, and whether it was right is asked once, behind it.
class ChartTokenReader {
public:
    using OperatorCode = TokenSequenceBase::OperatorCode;

    /// Begins at the first token. The tokens must outlive the reader.
    explicit ChartTokenReader(TokenSequenceBase& tokens);

    bool HasFailed() const { return m_failed; }
    void Fail();
    /// Fails unless what was read is right.
    void Require(bool right);

    bool AtEnd() const { return m_atEnd; }
    /// Whether nothing is left before the next slash or the end.
    bool AtSubcommandEnd() const { return m_atEnd || Operator() == TokenSequenceBase::kSlash; }
    bool AtWord() const { return Type() == TokenSequenceBase::kString; }
    bool AtLiteral() const { return Type() == TokenSequenceBase::kLiteral; }

    /// Steps over one token, whatever it is.
    void Skip();
    /// Steps over this symbol when it is the next token; a reserved word is no symbol.
    bool Take(OperatorCode symbol);
    /// Steps over this symbol, which must be there.
    void Expect(OperatorCode symbol);
    /// Steps over the equals sign that may stand behind a subcommand or keyword.
    void SkipEquals() { Take(TokenSequenceBase::kEquals); }

    /// A number with its sign, if any.
    double Number();
    /// The same, bare or in parentheses.
    double NumberOrInParentheses();
    /// One or more literals.
    std::vector<std::string> Text();
    /// A name, bare or as VAR(name).
    ChartVariable Variable();
    /// The same, or several names in one VAR(...).
    std::vector<ChartVariable> VariableOrList();

    /// Steps over the next word when it is a keyword of the table; else null. Tables that are tried
    /// one after the other at one word make one place.
    template <class Meaning, std::size_t n>
    const Meaning* TakeKeyword(const Keyword<Meaning> (&table)[n]) {
        return TakeKeyword(table, m_tried);
    }
    /// A keyword of the table, which must be there.
    template <class Meaning, std::size_t n>
    Meaning Choice(const Keyword<Meaning> (&table)[n]) {
        const Meaning* found = TakeKeyword(table);
        if (!found) {
            Fail();
            return Meaning();
        }
        return *found;
    }
    /// Like TakeKeyword where the subcommand may also go on with its options.
    template <class Meaning, std::size_t n>
    const Meaning* TakeKeywordBesideOptions(const Keyword<Meaning> (&table)[n]) {
        return TakeKeyword(table, m_options);
    }
    /// Says which options the subcommand has.
    template <class Meaning, std::size_t n>
    void OpenOptions(const Keyword<Meaning> (&table)[n]) {
        m_options.clear();
        AddWords(table, m_options);
    }

private:
    using Words = SmallVector<std::string_view>;

    /// A word that may be a name: as written, and upper-cased to tell names apart.
    struct Word {
        std::string_view spelling;
        std::string_view upper;
    };

    TokenSequenceBase::TokenType Type() const {
        return m_atEnd ? TokenSequenceBase::kAtEnd : m_tokens.Type();
    }
    OperatorCode Operator() const {
        return Type() == TokenSequenceBase::kOperator ? m_tokens.Operator()
                                                      : TokenSequenceBase::kNotOperator;
    }

    std::string_view UpperSpelling() const;
    Word TakeNameWord();
    /// The variable of this name, in the spelling that the command began with.
    ChartVariable Named(const Word& word);

    template <class Meaning, std::size_t n>
    static void AddWords(const Keyword<Meaning> (&table)[n], Words& words) {
        for (const Keyword<Meaning>& row : table) {
            words.push_back(row.text);
        }
    }

    template <class Meaning, std::size_t n>
    const Meaning* TakeKeyword(const Keyword<Meaning> (&table)[n], const Words& rivals) {
        if (!AtWord()) {
            return nullptr;
        }
        const auto* found = FindKeyword<Meaning>(UpperSpelling(), table, rivals);
        if (found) {
            Skip();
        } else {
            AddWords(table, m_tried);
        }
        return found;
    }

    TokenSequenceBase& m_tokens;
    bool m_atEnd;
    bool m_failed = false;
    Words m_tried;   ///< the keywords that the token at hand was found not to be
    Words m_options; ///< of the subcommand at hand
    SmallHashMap<std::string_view, std::string_view> m_spellings; ///< by upper-cased names
};

} // namespace recastor
