/// One-line forms of what passes from stage to stage, so that a test is one row: input, dump.
#pragma once

#include <string>

namespace recastor {

class TbTrParseNode;
class ZELKTokenSequence;

/// The tokens of a command as the driver holds it, with a line feed behind it; the caller's.
ZELKTokenSequence* TokensOf(const std::string& command);

/// The name of a grammar code, its number when it has none.
std::string CodeName(int code);

/// The tokens of a command, separated by blanks: a word as written, with its operator when it is
/// reserved (`by/kBy`); an operator's name (`kPlus`); a number with its value (`#1.5`); a literal's
/// value in backquotes. With `places` each token is followed by `@line:column`. A ParseError gives
/// `error id@line:column`.
std::string DumpTokens(const std::string& text, bool batch = false, int maxTokens = 0,
                       bool places = false);

/// The grammar codes that the classifier gives for a TABLES command, by name, slashes included.
std::string DumpCodes(const std::string& command);

/// The codes that the parser is given for a TABLES command, each with its place: `TB_TABLE@1:9`;
/// the last is the end, `0`.
std::string DumpLex(const std::string& command);

/// A tree as nested lists. A variable name, number, literal (raw, in its quotes) or other word is
/// itself; an inner node is `(TYPE child ...)` with the type's name less its prefix, `+` and `>`
/// for the operators; a null slot is `_`. The two slots of a variable name are shown, behind it in
/// braces, only when one is taken.
std::string DumpTree(const TbTrParseNode* node);

/// The tree of a TABLES command; when it cannot be parsed `error type code@line:column "text"`. The
/// warnings follow, each behind ` ! `.
std::string DumpParse(const std::string& command);

/// Parses a table expression and gives the node of its rows, which the caller owns.
TbTrParseNode* ParseExpression(const std::string& expression);

} // namespace recastor
