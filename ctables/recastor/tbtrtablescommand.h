/// One TABLES command on its way through the parser: the token classifier and the results.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "ctables/recastor/yyltype.h"
#include "ctables/recastor/zelktokensequence.h"

#include <memory>
#include <string>
#include <vector>

namespace recastor {

/// Turns the tokens of one TABLES command into grammar codes, and holds what the parse and the
/// translation leave behind: the tree, the one error and the warnings. There is one instance,
/// g_tablesCommand, since the generated parser calls free functions; Reset() prepares it for the
/// next command.
class TbTrTablesCommand {
public:
    /// The error that a command ended with. 1 to 4 come from the parser, the rest from the
    /// translator.
    enum ErrorType : int {
        kNoError = 0,
        kBadArgument = 1,         ///< a subcommand's arguments cannot be parsed
        kRangeInObservation = 2,  ///< TO on the OBSERVATION subcommand
        kBadTableWord = 3,        ///< a parenthesised word that is no variable on TABLE
        kBadSyntax = 4,           ///< any other syntax error
        kUnknownFunction = 5,     ///< on STATISTICS
        kUnknownSortFunction = 6, ///< on SORT
        kWrongTotalAssociation = 7,
        kFollowsNothing = 8,  ///< a following total
        kPrecedesNothing = 9, ///< a preceding total
        kTotalNotStacked = 10,
        kTotalStacksWithScale = 11,
        kTooManyTerms = 12, ///< a table expression multiplied out
    };

    static TbTrTablesCommand g_tablesCommand;

    /// Takes over the tokens (null for none) of the next command and forgets the previous one.
    void Reset(ZELKTokenSequence* tokens);

    /// Frees the tokens, once the command is parsed: a fifth of what a large command takes.
    void DropTokens() { m_pTokSeq.reset(); }

    /// The next grammar code; 0 at the end of the command. `token` is set to a new token that the
    /// caller owns, to null at the end. A command begins with a slash code in every case.
    int GetNextToken(ZELKToken*& token);

    /// Takes over the finished tree, which lives until the next one or the next Reset().
    void SetParseTree(TbTrParseNode* tree);
    TbTrParseNode* GetParseTree() const { return m_parseTree.get(); }

    /// Records an error; the last one wins. `code` is the grammar code of the subcommand concerned,
    /// 0 for none.
    void SetParseError(const yyltype& location, int code, ErrorType type);
    /// The name that the recorded error's message names.
    void SetParseErrorString(const std::string& text);
    /// The recorded error's type, place (line 1-based within the command, column as tokens count
    /// it), subcommand code and text.
    ErrorType GetParseErrorInfo(int& line, int& column, int& code, std::string& text) const;

    /// The place of the last token that the parser was given, of the command's name before the
    /// first one.
    const yyltype& LastLocation() const { return m_lastLocation; }
    void SetLastLocation(const yyltype& location) { m_lastLocation = location; }
    /// The place of the token that the parser could not take last.
    const yyltype& OffendingLocation() const { return m_offendingLocation; }
    void SetOffendingLocation(const yyltype& location) { m_offendingLocation = location; }

    void AddWarning(const std::string& text);
    /// The last warning; empty when there is none.
    std::string GetLastWarning() const;
    const std::vector<std::string>& ListWarnings() const { return m_warnings; }

    /// The keyword that has the grammar code; empty when none has.
    static std::string KeywordFromCode(int code);

private:
    int DoStartUp(ZELKToken*& token);
    bool AdvanceToNextSignificantToken();
    bool AdvanceAndHandleBreak();
    void CheckForBreak();
    bool SkipToNextSubcommandImpl();
    int ClassifyCurrentToken() const;
    int ClassifyStringToken() const;
    int KeywordReadHere() const;
    ZELKToken* GiveToken();
    ZELKToken* FoldSign(int& code);
    void UpdateSubcommandState(int& code);

    std::unique_ptr<ZELKTokenSequence> m_pTokSeq;
    int m_position = 0;            ///< in the subcommand: 1 its name; 0 before the command starts
    int m_subcommand = 0;          ///< grammar code of the subcommand's name
    int m_parenthesisDepth = 0;    ///< since the last slash
    unsigned m_breakPosition = 0;  ///< index of the first argument of BREAK; 0 when there is none
    unsigned m_resumePosition = 0; ///< where to go on behind the spliced arguments of BREAK; or 0
    std::unique_ptr<TbTrParseNode> m_parseTree;
    ErrorType m_errorType = kNoError;
    int m_errorCode = 0;
    yyltype m_errorLocation{};
    yyltype m_lastLocation{};
    yyltype m_offendingLocation{};
    std::string m_errorString;
    std::vector<std::string> m_warnings;
};

/// The code of the keyword that the current token is by its first three characters; 0 when none.
int TablesKeyword(const ZELKTokenSequence& tokens);

} // namespace recastor
