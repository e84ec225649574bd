// Laws of tokens, on any text.

#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/tokenscan.h"
#include "ctables/recastor/zelktokenvector.h"
#include "tests/support/dump.h"
#include "tests/support/generators/syntaxtext.h"
#include "tests/support/law.h"
#include "tests/support/textlocale.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

class TokenLaws : public Utf8Test {};

/// `error id@line:column` for the error that `read` ends in; "" when it ends well.
template <typename Read>
std::string ErrorOf(const Read& read) {
    try {
        read();
    } catch (const ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        return "error " + std::to_string(error.GetErrorID()) + '@' + std::to_string(line) + ':' +
               std::to_string(column);
    }
    return "";
}

/// Whether the text's first words make its body free text, which is not tokenized.
bool IsFreeText(const std::string& text, bool batch) {
    int state = 0;
    ErrorOf([&] { state = ZELKTokenVector(text.c_str(), batch, 2).TypeOfCommand(); });
    return state != 0;
}

TEST_F(TokenLaws, CheckAndTokenizerGiveTheSameVerdict) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *AnySyntax();
            const bool batch = *rc::gen::arbitrary<bool>();
            RC_PRE(!IsFreeText(text, batch));
            RC_ASSERT(ErrorOf([&] { CheckTokens(text.c_str(), batch); }) ==
                      ErrorOf([&] { ZELKTokenVector(text.c_str(), batch, 0); }));
        },
        2000));
}

TEST_F(TokenLaws, TokensOfATextAreThoseOfTheirRawTexts) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *AnySyntax();
            const std::string between =
                *rc::gen::elementOf(std::vector<std::string>{" ", "\n", "\t"});
            const std::string dump = DumpTokens(text);
            RC_PRE(!dump.starts_with("error "));
            const ZELKTokenVector tokens(text.c_str(), false, 0);
            std::string again;
            for (int i = 0; i < tokens.Count(); ++i) {
                again += tokens[i].AsString(true) + between;
            }
            RC_ASSERT(DumpTokens(again) == dump);
        },
        2000));
}

TEST_F(TokenLaws, TokenLimitCutsTheListOff) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *AnySyntax();
            const int limit = *rc::gen::inRange(1, 8);
            const std::string whole = DumpTokens(text, false, 0, true);
            const std::string cut = DumpTokens(text, false, limit, true);
            if (cut.starts_with("error ")) {
                RC_ASSERT(cut == whole);
            } else {
                RC_ASSERT(ZELKTokenVector(text.c_str(), false, limit).Count() <= limit);
                RC_ASSERT(whole.starts_with(cut) || whole.starts_with("error "));
            }
        },
        2000));
}

/// Reads a text as the tokens and what separates them, counting lines and columns on its own.
class Replay {
public:
    explicit Replay(std::string_view text) : m_rest(text) {}

    void SkipSeparators() {
        while (!m_rest.empty()) {
            if (m_rest.starts_with("/*")) {
                SkipComment();
            } else if (m_rest[0] == '\n' || m_rest[0] == '\r') {
                const bool pair = m_rest.size() > 1 && m_rest[0] != m_rest[1] &&
                                  (m_rest[1] == '\n' || m_rest[1] == '\r');
                m_rest.remove_prefix(pair ? 2 : 1);
                ++m_line;
                m_column = 0;
            } else if (m_rest[0] == ' ' || m_rest[0] == '\t' || m_rest[0] == ',') {
                Take(1);
            } else {
                return;
            }
        }
    }
    /// Whether the token begins here; takes it off the text.
    bool Takes(const ZELKToken& token) {
        const std::string& raw = token.AsString(true);
        int line = 0;
        int column = 0;
        token.StartLocation(line, column);
        const bool right = line == m_line && column == m_column && m_rest.starts_with(raw);
        Take(std::min(raw.size(), m_rest.size()));
        return right;
    }
    std::string_view Rest() const { return m_rest; }

private:
    /// A comment keeps its closing slash in the text.
    void SkipComment() {
        const std::size_t stars = m_rest.find("*/", 2);
        const std::size_t close = stars == std::string_view::npos ? stars : stars + 1;
        Take(std::min({close, m_rest.find_first_of("\n\r"), m_rest.size()}));
    }
    void Take(std::size_t count) {
        for (const char byte : m_rest.substr(0, count)) {
            m_column += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
        }
        m_rest.remove_prefix(count);
    }

    std::string_view m_rest;
    int m_line = 1;
    int m_column = 1;
};

/// The text up to its end for the tokenizer: a NUL or a byte that is no text in UTF-8.
std::string_view ReadablePart(std::string_view text) {
    constexpr std::string_view kEnds("\0\xFF", 2);
    std::size_t end = std::min(text.find_first_of(kEnds), text.size());
    const std::size_t lead = text.find('\xC3');
    for (std::size_t at = lead; at < end; at = text.find('\xC3', at + 1)) {
        if (at + 1 == text.size() || (static_cast<unsigned char>(text[at + 1]) & 0xC0U) != 0x80U) {
            end = at;
        }
    }
    return text.substr(0, end);
}

TEST_F(TokenLaws, TokensAndSeparatorsMakeUpTheText) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *AnySyntax();
            RC_PRE(!DumpTokens(text).starts_with("error "));
            const ZELKTokenVector tokens(text.c_str(), false, 0);
            Replay replay(ReadablePart(text));
            for (int i = 0; i < tokens.Count(); ++i) {
                replay.SkipSeparators();
                RC_ASSERT(replay.Takes(tokens[i]));
            }
            replay.SkipSeparators();
            RC_ASSERT(replay.Rest().empty() || tokens.TypeOfCommand() != 0);
        },
        2000));
}

TEST_F(TokenLaws, LiteralOfAnyTextHasItsValue) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            std::string value = *AnySyntax();
            const auto breaks = [](char c) { return c == '\n' || c == '\r' || c == '\0'; };
            value.erase(std::remove_if(value.begin(), value.end(), breaks), value.end());
            value = std::string(ReadablePart(value));
            // A plus behind a quote joins segments, even within a literal.
            value.erase(std::remove(value.begin(), value.end(), '+'), value.end());
            const char quote = *rc::gen::elementOf(std::string("'\""));
            std::string literal(1, quote);
            for (const char c : value) {
                literal += c == quote ? std::string(2, c) : std::string(1, c);
            }
            literal += quote;
            const ZELKTokenVector tokens(literal.c_str(), false, 0);
            RC_ASSERT(tokens.Count() == 1);
            RC_ASSERT(tokens[0].AsString(false) == value);
            RC_ASSERT(tokens[0].AsString(true) == literal);
        },
        2000));
}

TEST_F(TokenLaws, EndOfACommandIsAPeriodAtTheEndOfALine) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *AnySyntax();
            const bool comment = *rc::gen::arbitrary<bool>();
            int end = -1;
            ErrorOf([&] { end = FindEndOfCommand(text.c_str(), text.size(), comment); });
            if (end >= 0) {
                const auto at = static_cast<std::size_t>(end);
                RC_ASSERT(at < text.size());
                RC_ASSERT(text[at] == '.');
                const std::size_t next =
                    std::min(text.find_first_not_of(" \t", at + 1), text.size());
                RC_ASSERT(next == text.size() || text[next] == '\n' || text[next] == '\r' ||
                          (!comment && text[next] == '/'));
            }
        },
        2000));
}

TEST_F(TokenLaws, LinesBehindTheEndOfACommandDoNotMoveIt) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *AnySyntax() + "\n";
            const std::string more = *AnySyntax();
            const bool comment = *rc::gen::arbitrary<bool>();
            const auto endOf = [&](const std::string& lines) {
                int end = -1;
                ErrorOf([&] { end = FindEndOfCommand(lines.c_str(), lines.size(), comment); });
                return end;
            };
            const int end = endOf(text);
            RC_PRE(end >= 0);
            RC_ASSERT(endOf(text + more) == end);
        },
        2000));
}

} // namespace

} // namespace recastor
