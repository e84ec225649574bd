/// The text builder in which a converted command is put together.
#pragma once

#include "platform/zelkbase/smallobjects.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace recastor {

/// A line feed: the text of every line break, explicit or made by the layout.
extern const std::string NL_STRING;

/// Pieces of text and explicit line breaks in order. Print() lays them out: lines are broken
/// between pieces only, so what must stay together is made one piece by Fuse(). Lengths are bytes.
class OutputSequence {
public:
    OutputSequence();

    void Clear();
    /// Makes room for so many bytes of text, in pieces of a usual length.
    void Reserve(std::size_t size) {
        constexpr std::size_t kUsualPiece = 16;
        m_text.reserve(size);
        m_pieces.reserve(size / kUsualPiece);
    }
    bool IsEmpty() const { return m_pieces.empty(); }
    /// Appends a piece, with one blank in front when `leadingBlank`.
    void PushBack(std::string_view text, bool leadingBlank);
    void PushBackNewline();
    /// Appends the pieces of `other`. The current line then begins behind the last line break of
    /// `other` or, when it has none, with its first piece.
    void PushBack(const OutputSequence& other);
    void PushBack(OutputSequence&& other);
    /// Lets the current line begin with the next piece. What is pushed from here on stands as if
    /// it had been put together in a sequence of its own and appended.
    void BeginPart() { m_lastNewline = static_cast<std::int64_t>(m_pieces.size()) - 1; }
    /// Adds text to the last piece, which there must be.
    void ExtendLastPiece(std::string_view text);
    /// The length of the current line: of the pieces behind the last line break.
    std::size_t Length() const;
    /// Makes one piece of the current line; does nothing when that is empty.
    void Fuse();
    /// The same when the line is shorter than those that are written; a longer one may be broken.
    void FuseShortLine() {
        if (m_pieces.size() > CurrentLine() + 1) {
            FuseShortPieces();
        }
    }
    /// The pieces as text in lines of at most `width` bytes, but for a piece that is longer. Every
    /// line but the first begins with `indent` blanks; `indent` is below `width`. No line begins
    /// with a lone comma: the piece before it goes to the new line too.
    std::string Print(unsigned width, unsigned indent) const;

    /// Appends to `target` the indentation and the text without its leading blanks, and adds both
    /// lengths to `column`.
    static void AddWithIndentation(OutputSequence* target, unsigned long* column,
                                   const std::string& indentation, const std::string& text);
    /// The text from its first non-blank character on. Only the blank is a blank here.
    static std::string TrimStringLeft(const std::string& text);
    /// What stands before the last non-blank character: that one is left off as well, which the
    /// layout's rule for commas depends on.
    static std::string TrimStringRight(const std::string& text);
    static std::string TrimString(const std::string& text);

private:
    /// A piece is the text from the end of the piece before it up to its own.
    struct Piece {
        std::size_t end;
        bool isNewline;
    };

    void FuseShortPieces();
    /// Asserts that no line break stands in the current line.
    void CheckCurrentLine() const;
    /// The index behind the pieces from `piece` on that end at `end` bytes of the text at the
    /// latest, up to a line break.
    std::size_t BehindThoseThatFit(std::size_t piece, std::size_t end) const;
    /// Makes a piece of the text behind the last one.
    void AddPiece(bool isNewline);
    std::size_t CurrentLine() const { return static_cast<std::size_t>(m_lastNewline + 1); }
    std::size_t StartOf(std::size_t piece) const {
        return piece == 0 ? 0 : m_pieces[piece - 1].end;
    }

    SmallString m_text; ///< of all pieces, one behind the other
    SmallVector<Piece> m_pieces;
    std::int64_t m_lastNewline; ///< index of the last line break; -1 when there is none
};

} // namespace recastor
