#include "ctables/recastor/zelktokenvector.h"

#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/lexicalchars.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/tokenarray.h"
#include "ctables/recastor/tokenscan.h"
#include "platform/zelkbase/zelkassert.h"

#include <limits>

namespace recastor {

namespace {

/// Most commands have no more tokens.
constexpr std::size_t kUsualCount = 64;

} // namespace

ZELKTokenVector::ZELKTokenVector(const char* text, bool batch, int tokenLimit) :
    m_TokVec(std::make_unique<TokenVector>()) {
    if (text == nullptr) {
        return;
    }
    MBCharPointer cursor(text);
    SkipBatchMark(cursor, batch);
    if (tokenLimit < 1) {
        m_TokVec->Reserve(kUsualCount);
    }
    Tokenize(cursor, tokenLimit < 1 ? std::numeric_limits<int>::max() : tokenLimit);
}

ZELKTokenVector::ZELKTokenVector(const ZELKTokenVector& other) :
    m_TokVec(std::make_unique<TokenVector>(*other.m_TokVec)) {}

ZELKTokenVector& ZELKTokenVector::operator=(const ZELKTokenVector& other) {
    if (this != &other) {
        *m_TokVec = *other.m_TokVec;
        m_commandState = other.m_commandState;
    }
    return *this;
}

ZELKTokenVector::~ZELKTokenVector() = default;

void ZELKTokenVector::Tokenize(MBCharPointer& cursor, int tokenLimit) {
    int line = 1;
    int state = kStateStart;
    do {
        SkipSeparators(cursor, line);
        if (!MatchAny(cursor, line) && cursor.Code() != 0) {
            throw ParseError(line, cursor.CharacterNumber(), ParseError::kInvalidCharacter);
        }
        UpdateCommandState(state);
    } while (cursor.Code() != 0 && Count() < tokenLimit && state < kStateComment);
    m_commandState = state >= kStateComment ? state : 0;
}

bool ZELKTokenVector::MatchAny(MBCharPointer& cursor, int line) {
    // No two kinds of token begin alike, but for a number and the operator that a point is.
    const int code = cursor.Code();
    if (gWordStarts.Has(code)) {
        return MatchWord(cursor, line);
    }
    if (IsQuote(code)) {
        return MatchLiteral(cursor, line);
    }
    if (code == '!') {
        return MatchMacroToken(cursor, line);
    }
    return (CanStartNumber(code) && MatchNumber(cursor, line)) || MatchOperator(cursor, line);
}

/// Lets the first two tokens tell the kind of the command. A text may hold none: a comma or a
/// comment leaves no token, and the state waits.
void ZELKTokenVector::UpdateCommandState(int& state) const {
    if (state == kStateStart && Count() > 0) {
        ZELK_ASSERT(Count() == 1);
        SwitchCommandState(state, (*this)[0]);
    } else if (state == kStateBegin && Count() > 1) {
        ZELK_ASSERT(Count() == 2);
        SwitchCommandState(state, (*this)[1]);
    }
}

ZELKTokenVector& ZELKTokenVector::operator<<(const ZELKToken& token) {
    m_TokVec->Append(std::unique_ptr<ZELKToken>(token.Dup()));
    return *this;
}

int ZELKTokenVector::Count() const {
    return static_cast<int>(m_TokVec->size());
}

const ZELKToken& ZELKTokenVector::operator[](int index) const {
    ZELK_ASSERT_AS(0 <= index && index < Count(), "0 <= index && index < (int)m_TokVec.size()");
    const ZELKToken* const token = m_TokVec->At(static_cast<std::size_t>(index)).token;
    ZELK_ASSERT(token != nullptr);
    return *token;
}

ZELKTokenVector::Known ZELKTokenVector::KnownAt(int index) const {
    ZELK_ASSERT(0 <= index && index < Count());
    return m_TokVec->At(static_cast<std::size_t>(index));
}

std::unique_ptr<ZELKToken> ZELKTokenVector::TakeToken(int index) {
    ZELK_ASSERT(0 <= index && index < Count());
    return m_TokVec->Take(static_cast<std::size_t>(index));
}

void ZELKTokenVector::ClearTokensAfterIndex(int index) {
    m_TokVec->ClearTokensAfterIndex(index);
}

void ZELKTokenVector::ClearTokensBeforeIndex(int index) {
    m_TokVec->ClearTokensBeforeIndex(index);
}

int ZELKTokenVector::FindEndOfCommand(const char* lines, std::size_t length, bool commentMode) {
    return recastor::FindEndOfCommand(lines, length, commentMode);
}

bool ZELKTokenVector::IsEndData(const char* line) {
    return recastor::IsEndData(line);
}

} // namespace recastor
