/// The array of tokens inside a ZELKTokenVector.
#pragma once

#include "ctables/recastor/zelktokenvector.h"
#include "platform/zelkbase/smallobjects.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace recastor {

/// Owns every token that was ever appended; what the clearing operations take out of the array
/// without deleting it is kept aside, since readers may still hold it.
class ZELKTokenVector::TokenVector : public SmallObject {
public:
    TokenVector() = default;
    /// Copies the tokens one by one.
    TokenVector(const TokenVector& other);
    TokenVector& operator=(const TokenVector& other);
    ~TokenVector();

    std::size_t size() const { return m_entries.size(); }
    /// Without a token where it was taken.
    Known At(std::size_t index) const {
        const Entry& entry = m_entries[index];
        return {entry.token.get(), entry.type, entry.code};
    }
    /// Leaves an empty place.
    std::unique_ptr<ZELKToken> Take(std::size_t index) { return std::move(m_entries[index].token); }
    template <class Token>
    void Append(std::unique_ptr<Token> token) {
        const ZELKToken::TokenType type = token->Type();
        const ZELKToken::OperatorCode code = token->OpCode();
        m_entries.push_back({std::move(token), type, code});
    }

    /// Makes room for `count` tokens.
    void Reserve(std::size_t count) { m_entries.reserve(count); }

    /// Deletes the tokens at positions above `index`, the last one first; with -1 it empties the
    /// array and deletes none.
    void ClearTokensAfterIndex(int index);
    /// Takes out the first `index` tokens (all when there are fewer) without deleting them.
    void ClearTokensBeforeIndex(int index);

private:
    struct Entry {
        std::unique_ptr<ZELKToken> token;
        ZELKToken::TokenType type;
        ZELKToken::OperatorCode code;
    };

    void AppendCopies(const TokenVector& other);
    void SetAside(std::size_t count);

    std::vector<Entry> m_entries;
    std::vector<Entry> m_setAside;
};

} // namespace recastor
