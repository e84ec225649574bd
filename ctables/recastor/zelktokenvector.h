/// The tokenizer: the text of one command becomes a vector of tokens, all at once.
#pragma once

#include "ctables/recastor/mbcharpointer.h"
#include "ctables/recastor/zelktoken.h"

#include <cstddef>
#include <memory>

namespace recastor {

/// The tokens of one command. Commas separate tokens and leave none. A comment, a DOCUMENT
/// command and BEGIN DATA are recognised by their first words and tokenized no further: their
/// bodies are free text.
class ZELKTokenVector {
public:
    class TokenVector;

    /// Tokenizes the NUL-terminated `text` (null: no tokens). In batch mode a "+" or "-" in front
    /// is a continuation mark and no token. A `tokenLimit` of 1 or more stops once that many
    /// tokens exist. Throws ParseError; its line counts from 1 within `text`.
    ZELKTokenVector(const char* text, bool batch, int tokenLimit);
    /// Copies the tokens, not the command state.
    ZELKTokenVector(const ZELKTokenVector& other);
    ZELKTokenVector& operator=(const ZELKTokenVector& other);
    ~ZELKTokenVector();

    /// Appends a copy of `token`.
    ZELKTokenVector& operator<<(const ZELKToken& token);

    int Count() const;
    /// The token at `index` (0-based), which must be below Count(). It belongs to the vector.
    const ZELKToken& operator[](int index) const;
    /// The same with what readers ask of every token: the answers are kept beside it, since tokens
    /// of all kinds follow each other, so that a processor cannot guess whom it will ask.
    struct Known {
        const ZELKToken* token; ///< null when it was given up
        ZELKToken::TokenType type;
        ZELKToken::OperatorCode code;
    };
    Known KnownAt(int index) const;
    /// Gives up the token at `index`, which must be below Count() and is not to be read again.
    std::unique_ptr<ZELKToken> TakeToken(int index);

    /// kStateComment, kStateDocument or kStateInlineData, else 0.
    int TypeOfCommand() const { return m_commandState; }

    /// Leaves the tokens up to `index` in the vector and deletes those behind it. With -1 the
    /// vector is emptied, but its tokens stay alive as long as it does: readers may hold them.
    void ClearTokensAfterIndex(int index);
    /// Takes the first `index` tokens out of the vector; they stay alive as long as it does.
    void ClearTokensBeforeIndex(int index);

    /// Forwards to the command boundaries; `length` is the number of bytes at `lines`.
    static int FindEndOfCommand(const char* lines, std::size_t length, bool commentMode);
    static bool IsEndData(const char* line);

    // The matchers. Each looks at the cursor's character; when it cannot start its kind of token
    // it returns false and leaves the cursor in place. Otherwise it steps past the token, appends
    // it with `line` and the first character's number, and returns true.

    /// A quoted string, its segments joined. Throws when it is not closed on its line.
    bool MatchLiteral(MBCharPointer& cursor, int line);
    /// "!" with "*", digits or a word behind it, or alone.
    bool MatchMacroToken(MBCharPointer& cursor, int line);
    /// A number without sign. Throws when its exponent has no digits or its value no double.
    bool MatchNumber(MBCharPointer& cursor, int line);
    /// The longest operator; a comma is stepped over and leaves no token.
    bool MatchOperator(MBCharPointer& cursor, int line);
    bool MatchWord(MBCharPointer& cursor, int line);

private:
    void Tokenize(MBCharPointer& cursor, int tokenLimit);
    bool MatchAny(MBCharPointer& cursor, int line);
    void UpdateCommandState(int& state) const;

    std::unique_ptr<TokenVector> m_TokVec;
    int m_commandState = 0;
};

} // namespace recastor
