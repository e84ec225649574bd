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

/// Upper-cased; empty when the word is so already, as most keywords are.
std::string UpperCased(std::string_view word) {
    std::array<char, sizeof(Neighbours)> bytes{};
    if (word.size() <= bytes.size()) {
        word.copy(bytes.data(), word.size());
        const Neighbours all = LoadNeighbours(bytes.data());
        const Neighbours isLower = (all >= 'a') & (all <= 'z');
        if (!IsAnyYes(isLower)) {
            return {};
        }
        if (!IsAnyYes(all < 0)) {
            const Neighbours upper = all - (isLower & ('a' - 'A'));
            std::memcpy(bytes.data(), &upper, bytes.size());
            return {bytes.data(), word.size()};
        }
    }
    // A long word, or one in which what looks like a letter may be a part of a longer character.
    std::string text(word);
    ZELKMBstrupr_A(text.data());
    return text == word ? std::string() : text;
}

std::string_view TextBetween(const MBCharPointer& start, const MBCharPointer& end) {
    return {start.Pointer(), end.Pointer()};
}

} // namespace

bool ZELKTokenVector::MatchLiteral(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    std::string value;
    if (!ScanLiteral(cursor, line, &value)) {
        return false;
    }
    m_TokVec->Append(std::make_unique<ZELKLiteralToken>(start.Pointer(), cursor.Pointer(), line,
                                                        start.CharacterNumber(), std::move(value)));
    return true;
}

bool ZELKTokenVector::MatchMacroToken(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    if (!ScanMacroToken(cursor)) {
        return false;
    }
    m_TokVec->Append(std::make_unique<ZELKStringToken>(
        start.Pointer(), cursor.Pointer(), line, start.CharacterNumber(),
        UpperCased(TextBetween(start, cursor)), TokenSequenceBase::kNotOperator));
    return true;
}

bool ZELKTokenVector::MatchNumber(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    double value = 0.0;
    if (!ScanNumber(cursor, line, &value)) {
        return false;
    }
    m_TokVec->Append(std::make_unique<ZELKNumberToken>(start.Pointer(), cursor.Pointer(), line,
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
        m_TokVec->Append(std::make_unique<ZELKOperatorToken>(start.Pointer(), cursor.Pointer(),
                                                             line, start.CharacterNumber(), code));
    }
    return true;
}

bool ZELKTokenVector::MatchWord(MBCharPointer& cursor, int line) {
    const MBCharPointer start = cursor;
    if (!ScanWord(cursor)) {
        return false;
    }
    const std::string_view word = TextBetween(start, cursor);
    m_TokVec->Append(std::make_unique<ZELKStringToken>(start.Pointer(), cursor.Pointer(), line,
                                                       start.CharacterNumber(), UpperCased(word),
                                                       ReservedWordCode(word)));
    return true;
}

} // namespace recastor
