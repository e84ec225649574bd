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
    m_entries.reserve(m_entries.size() + other.m_entries.size());
    for (const Entry& entry : other.m_entries) {
        Append(std::unique_ptr<ZELKToken>(entry.token->Dup()));
    }
}

void ZELKTokenVector::TokenVector::ClearTokensAfterIndex(int index) {
    if (index < 0) {
        SetAside(m_entries.size());
        return;
    }
    while (m_entries.size() > static_cast<std::size_t>(index) + 1) {
        m_entries.pop_back();
    }
}

void ZELKTokenVector::TokenVector::ClearTokensBeforeIndex(int index) {
    if (index > 0) {
        SetAside(std::min(static_cast<std::size_t>(index), m_entries.size()));
    }
}

void ZELKTokenVector::TokenVector::SetAside(std::size_t count) {
    const auto end = m_entries.begin() + static_cast<std::ptrdiff_t>(count);
    std::move(m_entries.begin(), end, std::back_inserter(m_setAside));
    m_entries.erase(m_entries.begin(), end);
}

} // namespace recastor
