/// Quick looks at plain text: most lines of a syntax file hold nothing odd.
///
/// Each of these functions stands for a full walk over characters. It either knows what that would
/// find or says that it does not; the full walk then finds the answer, or what is wrong. Bytes that
/// are no characters, NULs, comments in slash and asterisk and quotes that their line does not
/// close are always left to it.
#pragma once

#include <optional>
#include <string_view>

namespace recastor {

/// The answer of FindEndOfCommand for one line that ends in a line feed.
std::optional<int> QuickEndOfCommand(std::string_view line);
/// The same for FindEndOfCommentCommand.
std::optional<int> QuickEndOfCommentCommand(std::string_view line);

/// Whether CheckTokens has surely nothing to throw.
bool QuickCheckTokens(std::string_view text);

/// The tokens that tell a command's kind.
struct QuickTokens {
    std::string_view first;      ///< a word, a macro's name or an asterisk
    std::string_view secondWord; ///< empty when the second token is no word or there is none
    bool areWhole = false;       ///< what stands behind the text cannot change or add one
};

/// The first tokens of a text that begins with one of these and whose second token is surely
/// well-formed. Words beyond ASCII are left to the full walk.
std::optional<QuickTokens> QuickFirstTokens(std::string_view text, bool batch);

} // namespace recastor
