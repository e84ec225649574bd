/// The tokens of command syntax as stretches of text: where each one ends.
#pragma once

#include "ctables/recastor/mbcharpointer.h"
#include "platform/zelkbase/tokensequencebase.h"

#include <string>
#include <string_view>

namespace recastor {

// The scanners. Each looks at the cursor's character; when it cannot start its kind of token it
// returns false and leaves the cursor in place. Otherwise it steps past the token and returns true.
// What the token means is told only when it is asked for: null outputs are allowed. `line` is the
// cursor's, for the ParseError that some throw.

/// A quoted string, its segments joined, with the blanks and line breaks behind it; `value` (empty
/// before) is set to its contents. Throws when it is not closed on its line.
bool ScanLiteral(MBCharPointer& cursor, int line, std::string* value);
/// "!" with "*", digits or a word behind it, or alone.
bool ScanMacroToken(MBCharPointer& cursor);
/// A number without sign. Throws when its exponent has no digits or no double holds it.
bool ScanNumber(MBCharPointer& cursor, int line, double* value);
/// The longest operator.
bool ScanOperator(MBCharPointer& cursor, TokenSequenceBase::OperatorCode& code);
bool ScanWord(MBCharPointer& cursor);

/// The operator that a word, in any case, is; kNotOperator for a word that is not reserved.
TokenSequenceBase::OperatorCode ReservedWordCode(std::string_view word);

/// In batch mode a "+" or "-" at the start is a continuation mark and no token.
void SkipBatchMark(MBCharPointer& cursor, bool batch);
/// Skips white space and comments; adds the lines that it crosses to `line`.
void SkipSeparators(MBCharPointer& cursor, int& line);

/// Throws what tokenizing the whole NUL-terminated text would throw, but makes no token: for
/// commands that are only copied.
void CheckTokens(const char* text, bool batch);

} // namespace recastor
