#include "ctables/recastor/tokenarray.h"

#include <algorithm>
#include <iterator>

namespace recastor {

ZELKTokenVector::TokenVector::TokenVector(const TokenVector& other) {
    AppendCopies(other);
}

ZELKTokenVector::TokenVector& ZELKTokenVector::TokenVector::operator=(const TokenVector& other) {
    if (this != &other) {
        ClearTokensAfterIndex(-1);
        AppendCopies(other);
    }
    return *this;
}

ZELKTokenVector::TokenVector::~TokenVector() = default;

void ZELKTokenVector::TokenVector::AppendCopies(const TokenVector& other) {
    m_tokens.reserve(m_tokens.size() + other.m_tokens.size());
    for (const auto& token : other.m_tokens) {
        Append(std::unique_ptr<ZELKToken>(token->Dup()));
    }
}

void ZELKTokenVector::TokenVector::ClearTokensAfterIndex(int index) {
    if (index < 0) {
        SetAside(m_tokens.size());
        return;
    }
    while (m_tokens.size() > static_cast<std::size_t>(index) + 1) {
        m_tokens.pop_back();
    }
}

void ZELKTokenVector::TokenVector::ClearTokensBeforeIndex(int index) {
    if (index > 0) {
        SetAside(std::min(static_cast<std::size_t>(index), m_tokens.size()));
    }
}

void ZELKTokenVector::TokenVector::SetAside(std::size_t count) {
    const auto end = m_tokens.begin() + static_cast<std::ptrdiff_t>(count);
    std::move(m_tokens.begin(), end, std::back_inserter(m_setAside));
    m_tokens.erase(m_tokens.begin(), end);
}

} // namespace recastor
