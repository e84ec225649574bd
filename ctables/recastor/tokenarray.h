/// The array of tokens inside a ZELKTokenVector.
#pragma once

#include "ctables/recastor/zelktokenvector.h"
#include "platform/zelkbase/smallobjects.h"

#include <cstddef>
#include <memory>
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

    std::size_t size() const { return m_tokens.size(); }
    /// Null for a token that was taken.
    const ZELKToken* At(std::size_t index) const { return m_tokens[index].get(); }
    /// Leaves an empty place.
    std::unique_ptr<ZELKToken> Take(std::size_t index) { return std::move(m_tokens[index]); }
    void Append(std::unique_ptr<ZELKToken> token) { m_tokens.push_back(std::move(token)); }

    /// Makes room for `count` tokens.
    void Reserve(std::size_t count) { m_tokens.reserve(count); }

    /// Deletes the tokens at positions above `index`, the last one first; with -1 it empties the
    /// array and deletes none.
    void ClearTokensAfterIndex(int index);
    /// Takes out the first `index` tokens (all when there are fewer) without deleting them.
    void ClearTokensBeforeIndex(int index);

private:
    void AppendCopies(const TokenVector& other);
    void SetAside(std::size_t count);

    std::vector<std::unique_ptr<ZELKToken>> m_tokens;
    std::vector<std::unique_ptr<ZELKToken>> m_setAside;
};

} // namespace recastor
