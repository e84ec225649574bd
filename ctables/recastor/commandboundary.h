/// Where a command ends, and what kind of command its first words make it.
#pragma once

#include "ctables/recastor/mbcharpointer.h"
#include "ctables/recastor/zelktoken.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace recastor {

/// How far the first words of a command have told its kind.
enum CommandState : std::int32_t {
    kStateStart = 0,      ///< no word seen yet
    kStateOrdinary = 1,   ///< an ordinary command
    kStateBegin = 2,      ///< the first word was BEGIN; the second decides
    kStateComment = 3,    ///< a comment command
    kStateDocument = 4,   ///< a DOCUMENT command
    kStateInlineData = 5, ///< BEGIN DATA
};

/// Advances `state` by one token. First words are compared on three characters, so COMPUTE makes
/// a comment command as COMMENT does; only BEGIN is compared in full.
void SwitchCommandState(int& state, const ZELKToken& token);
/// The same for a token whose text, with words upper-cased, is `text`.
void SwitchCommandState(int& state, std::string_view text);

/// The CommandKind that the state makes of a command.
int KindOfCommand(int state);

/// Byte offset of the period that ends a command within the `length` bytes at `lines` (NUL-
/// terminated behind them), or -1 when none does. A period ends the command when nothing but
/// blanks and slash-asterisk comments follows it on its line; one that stands in quotes or
/// comments, or directly at the end of the text, does not. In comment mode quotes and comments
/// mean nothing. Throws ParseError for a quote that its line does not close.
int FindEndOfCommand(const char* lines, std::size_t length, bool commentMode);

/// The same for the text of a comment or DOCUMENT command.
int FindEndOfCommentCommand(const char* lines, std::size_t length);

/// Steps over a quoted segment; false when the cursor stands on no quote. Throws ParseError, with
/// `line` and the place where the line ended, when it is not closed on its line.
bool SkipLiteralSegment(MBCharPointer& cursor, int line);

/// Whether the line (NUL-terminated; null is none) ends inline data: it begins with END DATA.
bool IsEndData(const char* line);

} // namespace recastor
