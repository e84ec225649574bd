/// A token sequence that watches how it is read.
#pragma once

#include "platform/zelkbase/tokensequencebase.h"

namespace recastor {

/// Hands everything on to another sequence, and notes what a reader must not do: ask for the next
/// token behind the end, or for the contents of a token where there is none.
class CheckedTokens : public TokenSequenceBase {
public:
    explicit CheckedTokens(TokenSequenceBase& tokens) : m_tokens(tokens) {}

    /// Whether nothing was read past the end.
    bool WasReadRightly() const { return m_right; }
    /// Whether the reader went on until there was no token left.
    bool WasReadToTheEnd() const { return m_atEnd; }
    /// How often the reader went on to a next token.
    unsigned Steps() const { return m_steps; }

    bool Next() override {
        m_right = m_right && !m_atEnd;
        ++m_steps;
        m_atEnd = !m_tokens.Next();
        m_begun = true;
        return !m_atEnd;
    }
    unsigned Tell() const override { return m_tokens.Tell(); }
    void Seek(unsigned position) override {
        m_right = m_right && position <= Size();
        m_atEnd = false;
        m_tokens.Seek(position);
    }
    unsigned Size() const override { return m_tokens.Size(); }
    TokenType Type() const override { return m_tokens.Type(); }
    OperatorCode Operator() const override { return m_tokens.Operator(); }
    void AsString(const char*& text, unsigned& length) const override {
        NoteContents();
        m_tokens.AsString(text, length);
    }
    void AsUpperString(const char*& text, unsigned& length) const override {
        NoteContents();
        m_tokens.AsUpperString(text, length);
    }
    double AsNumber() const override {
        NoteContents();
        return m_tokens.AsNumber();
    }
    int LineNumber() const override {
        NoteContents();
        return m_tokens.LineNumber();
    }
    int Column() const override {
        NoteContents();
        return m_tokens.Column();
    }

private:
    void NoteContents() const { m_right = m_right && m_begun && !m_atEnd; }

    TokenSequenceBase& m_tokens;
    mutable bool m_right = true;
    bool m_begun = false;
    bool m_atEnd = false;
    unsigned m_steps = 0;
};

} // namespace recastor
