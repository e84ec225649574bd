#include "ctables/recastor/zelktokensequence.h"

#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/zelkname.h"
#include "ctables/recastor/zelktokenvector.h"
#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkbase/zelkassert.h"

#include <string_view>

namespace recastor {

/// The tokens and the reader's place among them.
class ZELKTokenSequenceImp : public SmallObject {
public:
    ZELKTokenSequenceImp(const std::string& text, bool batch, int maxTokens) :
        m_tokenVec(text.c_str(), batch, maxTokens) {
        MakeCurrent(0);
    }

    std::size_t Count() const { return static_cast<std::size_t>(m_tokenVec.Count()); }

    void MakeCurrent(std::size_t index) {
        m_curr = index;
        if (index >= Count()) {
            m_current = kNone;
            return;
        }
        m_current = m_tokenVec.KnownAt(static_cast<int>(index));
        ZELK_ASSERT(m_current.token != nullptr);
    }
    /// The current token; null at the end.
    const ZELKToken* Current() const { return m_current.token; }
    ZELKToken::TokenType Type() const { return m_current.type; }
    ZELKToken::OperatorCode Operator() const { return m_current.code; }
    ZELKToken::TokenType TypeOfNext() const {
        return m_nextTok < Count() ? m_tokenVec.KnownAt(static_cast<int>(m_nextTok)).type
                                   : TokenSequenceBase::kAtEnd;
    }
    ZELKToken* TakeCurrent() {
        if (m_current.token == nullptr) {
            return nullptr;
        }
        m_current = kNone;
        return m_tokenVec.TakeToken(static_cast<int>(m_curr)).release();
    }

    std::size_t m_curr = 0;
    std::size_t m_nextTok = 0; ///< the token that the next Next() makes current
    ZELKTokenVector m_tokenVec;

private:
    static constexpr ZELKTokenVector::Known kNone = {nullptr, TokenSequenceBase::kAtEnd,
                                                     TokenSequenceBase::kNotOperator};

    ZELKTokenVector::Known m_current = kNone;
};

namespace {

/// Hands out the token's text, or null and 0 when there is no token.
void GiveText(const ZELKToken* token, bool raw, const char*& text, unsigned& length) {
    text = nullptr;
    length = 0;
    if (token != nullptr) {
        const std::string& string = token->AsString(raw);
        text = string.data();
        length = static_cast<unsigned>(string.size());
    }
}

} // namespace

ZELKTokenSequence::ZELKTokenSequence(const std::string& text, bool batch, int maxTokens) :
    m_pImp(std::make_unique<ZELKTokenSequenceImp>(text, batch, maxTokens)) {}

ZELKTokenSequence::~ZELKTokenSequence() = default;

bool ZELKTokenSequence::Next() {
    m_pImp->MakeCurrent(m_pImp->m_nextTok);
    if (m_pImp->Current() == nullptr) {
        return false;
    }
    ++m_pImp->m_nextTok;
    return true;
}

unsigned ZELKTokenSequence::Tell() const {
    return static_cast<unsigned>(m_pImp->m_curr);
}

void ZELKTokenSequence::Seek(unsigned position) {
    m_pImp->m_nextTok = position;
}

unsigned ZELKTokenSequence::Size() const {
    return static_cast<unsigned>(m_pImp->Count());
}

ZELKTokenSequence::TokenType ZELKTokenSequence::Type() const {
    return m_pImp->Type();
}

ZELKTokenSequence::OperatorCode ZELKTokenSequence::Operator() const {
    return m_pImp->Operator();
}

ZELKTokenSequence::TokenType ZELKTokenSequence::TypeOfNext() const {
    return m_pImp->TypeOfNext();
}

void ZELKTokenSequence::AsString(const char*& text, unsigned& length) const {
    GiveText(m_pImp->Current(), Type() != kLiteral, text, length);
}

void ZELKTokenSequence::AsUpperString(const char*& text, unsigned& length) const {
    GiveText(m_pImp->Current(), false, text, length);
}

double ZELKTokenSequence::AsNumber() const {
    const ZELKToken* token = m_pImp->Current();
    return token != nullptr ? token->AsNumber() : 0.0;
}

int ZELKTokenSequence::LineNumber() const {
    const ZELKToken* token = m_pImp->Current();
    ZELK_ASSERT_AS(token != nullptr, "m_pImp->m_curr < m_pImp->m_tokenVec.Count()");
    int line = 0;
    int column = 0;
    token->StartLocation(line, column);
    return line;
}

int ZELKTokenSequence::Column() const {
    int line = 0;
    int column = 0;
    if (const ZELKToken* token = m_pImp->Current()) {
        token->StartLocation(line, column);
    }
    return column;
}

void ZELKTokenSequence::AsRawString(const char*& text, unsigned& length) const {
    GiveText(m_pImp->Current(), true, text, length);
}

void ZELKTokenSequence::Print(std::ostream& out) const {
    if (const ZELKToken* token = m_pImp->Current()) {
        token->Print(out, 0);
    }
}

int ZELKTokenSequence::CompareAsUpperString(const std::string& s, unsigned n) const {
    const ZELKToken* token = m_pImp->Current();
    return token != nullptr ? token->CompareAsString(s, n, false) : -1;
}

ZELKToken* ZELKTokenSequence::DupToken() const {
    const ZELKToken* token = m_pImp->Current();
    return token != nullptr ? token->Dup() : nullptr;
}

ZELKToken* ZELKTokenSequence::TakeToken() {
    return m_pImp->TakeCurrent();
}

int ZELKTokenSequence::VarNameCategory() const {
    const ZELKToken* token = m_pImp->Current();
    if (token == nullptr || token->Type() != kString) {
        return 0;
    }
    switch (ValidateZELKName(std::string_view(token->AsString(true)))) {
    case kOrdinaryName:
        return 1;
    case kScratchName:
        return 2;
    case kSystemName:
        return 3;
    default:
        return 0;
    }
}

int ZELKTokenSequence::TypeOfCommand() const {
    return KindOfCommand(m_pImp->m_tokenVec.TypeOfCommand());
}

int ZELKTokenSequence::FindEndOfCommand(const std::string& text, bool commentMode) {
    return ZELKTokenVector::FindEndOfCommand(text.c_str(), text.size(), commentMode);
}

bool ZELKTokenSequence::IsEndData(const std::string& line) {
    return ZELKTokenVector::IsEndData(line.c_str());
}

} // namespace recastor
