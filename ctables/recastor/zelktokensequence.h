/// The one implementation of the token reader's interface: a tokenized command.
#pragma once

#include "platform/zelkbase/tokensequencebase.h"

#include <memory>
#include <ostream>
#include <string>

namespace recastor {

class ZELKToken;
class ZELKTokenSequenceImp;

/// The kinds of command that ZELKTokenSequence::TypeOfCommand tells apart.
enum CommandKind : int {
    kOrdinaryCommand = 0,
    kCommentCommand = 1,
    kDocumentCommand = 2,
    kInlineDataCommand = 3, ///< begins with BEGIN DATA
};

/// So many tokens tell a command's kind: BEGIN DATA takes two.
inline constexpr int kTokensThatTellTheKind = 2;

/// Owns the tokens of one command. Built for one reader; not shared between threads.
class ZELKTokenSequence final : public TokenSequenceBase {
public:
    /// Tokenizes `text` at once. `batch`: batch-mode syntax rules; a `maxTokens` of 1 or more
    /// stops after that many tokens. Throws ParseError.
    ZELKTokenSequence(const std::string& text, bool batch, int maxTokens);
    ~ZELKTokenSequence() override;

    bool Next() override;
    unsigned Tell() const override;
    void Seek(unsigned position) override;
    unsigned Size() const override;
    TokenType Type() const override;
    OperatorCode Operator() const override;
    void AsString(const char*& text, unsigned& length) const override;
    void AsUpperString(const char*& text, unsigned& length) const override;
    double AsNumber() const override;
    int LineNumber() const override;
    int Column() const override;

    /// The type of the token that Next() would make current; kAtEnd when there is none.
    TokenType TypeOfNext() const;
    /// The token as written, a literal with its quotes; null and 0 at the end.
    virtual void AsRawString(const char*& text, unsigned& length) const;
    /// Debug print of the current token; nothing at the end.
    virtual void Print(std::ostream& out) const;
    /// Compares the token's AsUpperString text with `s` by bytes: of the first `n` bytes of each,
    /// or whole when `n` is 0. 0 when equal; -1 at the end.
    virtual int CompareAsUpperString(const std::string& s, unsigned n) const;
    /// A copy of the current token that the caller owns; null at the end.
    virtual ZELKToken* DupToken() const;
    /// The current token itself, which the caller then owns; null at the end. Its place in the
    /// sequence is empty afterwards and must not be read again.
    ZELKToken* TakeToken();

    /// What kind of variable name the current token is: 1 ordinary, 2 scratch ("#"), 3 system
    /// ("$"), 0 none.
    int VarNameCategory() const;
    /// One of CommandKind.
    int TypeOfCommand() const;

    /// Index in `text` of the period that ends the command, -1 when it goes on. Throws ParseError.
    static int FindEndOfCommand(const std::string& text, bool commentMode);
    /// Whether `line` ends inline data.
    static bool IsEndData(const std::string& line);

private:
    std::unique_ptr<ZELKTokenSequenceImp> m_pImp;
};

} // namespace recastor
