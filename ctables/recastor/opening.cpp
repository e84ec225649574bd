#include "ctables/recastor/opening.h"

#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/quickscan.h"
#include "ctables/recastor/zelktokensequence.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace recastor {

namespace {

/// The start of a word that is ASCII, upper-cased: as much of it as can matter.
class WordStart {
public:
    explicit WordStart(std::string_view word) : m_length(std::min(word.size(), m_start.size())) {
        std::transform(word.begin(), word.begin() + m_length, m_start.begin(), [](char c) {
            return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        });
    }
    std::string_view Text() const { return {m_start.data(), m_length}; }

private:
    std::array<char, 8> m_start{}; ///< longer than BEGIN and DATA
    std::size_t m_length;
};

/// The same without a token, for nearly all commands.
std::optional<Opening> QuickOpening(std::string_view text, bool batch) {
    const std::optional<QuickTokens> tokens = QuickFirstTokens(text, batch);
    if (!tokens) {
        return std::nullopt;
    }
    const WordStart first(tokens->first);
    int state = kStateStart;
    SwitchCommandState(state, first.Text());
    if (state == kStateBegin) {
        if (tokens->secondWord.empty()) {
            return std::nullopt;
        }
        SwitchCommandState(state, WordStart(tokens->secondWord).Text());
    }
    return Opening{KindOfCommand(state), true, Abbreviation(first.Text()), tokens->areWhole};
}

} // namespace

Opening ReadOpening(const std::string& text, bool batch) {
    if (const std::optional<Opening> quick = QuickOpening(text, batch)) {
        return *quick;
    }
    ZELKTokenSequence tokens(text, batch, kTokensThatTellTheKind);
    Opening opening{tokens.TypeOfCommand(), tokens.Next(), 0};
    if (opening.holdsToken) {
        const char* word = nullptr;
        unsigned length = 0;
        tokens.AsUpperString(word, length);
        opening.abbreviation = Abbreviation({word, length});
    }
    return opening;
}

} // namespace recastor
