// The matchers of the tokenizer: what was scanned becomes a token.

#include "ctables/recastor/tokenarray.h"
#include "ctables/recastor/tokenscan.h"
#include "ctables/recastor/zelktokenvector.h"
#include "platform/zelkbase/neighbours.h"
#include "platform/zelkmb/zelkmb.h"

#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace recastor {

namespace {

/// A word upper-cased; empty when it is so already, as most keywords are.
class UpperCased {
public:
    explicit UpperCased(const PaddedText& word) {
        if (word.Text().size() > m_bytes.size() || !PutInCapitalsAtOnce(word)) {
            // Long, or what looks like a letter may be a part of a longer character.
            m_longWord = word.Text();
            ZELKMBstrupr_A(m_longWord.data());
            m_size = m_longWord == word.Text() ? 0 : m_longWord.size();
        }
    }

    PaddedText Text() const {
        return m_longWord.empty() ? PaddedText({m_bytes.data(), m_size}, m_bytes.size())
                                  : PaddedText({m_longWord.data(), m_size}, m_longWord.size());
    }

private:
    /// False when it cannot: the word holds characters beyond ASCII and may hold letters.
    bool PutInCapitalsAtOnce(const PaddedText& word) {
        const std::size_t size = word.Text().size();
        const char* first = word.Text().data();
        if (word.Readable() < m_bytes.size()) {
            word.Text().copy(m_bytes.data(), size);
            first = m_bytes.data();
        }
        const Neighbours inWord = kPlaces < static_cast<signed char>(size);
        const Neighbours all = LoadNeighbours(first) & inWord;
        const Neighbours isLower = (all >= 'a') & (all <= 'z');
        if (!IsAnyYes(isLower)) {
            return true;
        }
        if (IsAnyYes(all < 0)) {
            return false;
        }
        const Neighbours upper = all - (isLower & ('a' - 'A'));
        std::memcpy(m_bytes.data(), &upper, m_bytes.size());
        m_size = size;
        return true;
    }

    static constexpr Neighbours kPlaces = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

    std::array<char, sizeof(Neighbours)> m_bytes{};
    std::size_t m_size = 0;
    std::string m_longWord;
};

PaddedText TextBetween(const MBCharPointer& start, const MBCharPointer& end) {
    return {{start.Pointer(), end.Pointer()}, start.BytesToEnd()};
}

} // namespace

bool ZELKTokenVector::MatchLiteral(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    std::string value;
    if (!ScanLiteral(cursor, line, &value)) {
        return false;
    }
    m_TokVec->Append(std::make_unique<ZELKLiteralToken>(TextBetween(start, cursor), line,
                                                        start.CharacterNumber(), std::move(value)));
    return true;
}

bool ZELKTokenVector::MatchMacroToken(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    if (!ScanMacroToken(cursor)) {
        return false;
    }
    const PaddedText text = TextBetween(start, cursor);
    m_TokVec->Append(std::make_unique<ZELKStringToken>(text, line, start.CharacterNumber(),
                                                       UpperCased(text).Text(),
                                                       TokenSequenceBase::kNotOperator));
    return true;
}

bool ZELKTokenVector::MatchNumber(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    double value = 0.0;
    if (!ScanNumber(cursor, line, &value)) {
        return false;
    }
    m_TokVec->Append(std::make_unique<ZELKNumberToken>(TextBetween(start, cursor), line,
                                                       start.CharacterNumber(), value));
    return true;
}

bool ZELKTokenVector::MatchOperator(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    TokenSequenceBase::OperatorCode code = TokenSequenceBase::kNotOperator;
    if (!ScanOperator(cursor, code)) {
        return false;
    }
    if (start.Code() != ',') { // commas separate, but never reach a parser
        m_TokVec->Append(std::make_unique<ZELKOperatorToken>(TextBetween(start, cursor), line,
                                                             start.CharacterNumber(), code));
    }
    return true;
}

bool ZELKTokenVector::MatchWord(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    if (!ScanWord(cursor)) {
        return false;
    }
    const PaddedText word = TextBetween(start, cursor);
    m_TokVec->Append(std::make_unique<ZELKStringToken>(word, line, start.CharacterNumber(),
                                                       UpperCased(word).Text(),
                                                       ReservedWordCode(word.Text())));
    return true;
}

} // namespace recastor
