/// The lines of a converted command, as the layout fills them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace recastor {

/// The text from its first non-blank character on. Only the blank is a blank here.
std::string_view WithoutLeadingBlanks(std::string_view text);

/// Puts pieces one behind the other and breaks the line where the next one does not fit. Lengths
/// are bytes. Every line but the first begins with the indentation; a piece that is longer than a
/// line stands on one of its own. The pieces must stay where they are until the text is taken:
/// those that follow each other in memory are copied together.
class LineLayout {
public:
    /// `indent` is below `width`.
    LineLayout(unsigned width, unsigned indent) : m_width(width), m_indentation(indent, ' ') {}

    /// Makes room for a text of about this size.
    void Reserve(std::size_t size) { m_text.reserve(size + size / 16); }
    /// Ends the line.
    void BreakLine();
    /// Appends a piece to the line at hand or to a new one. A piece that is a lone comma takes the
    /// piece before it to the new line, so that no line begins with one; it takes none that is
    /// itself a comma and one more character.
    void Place(std::string_view piece);
    /// What was laid out; the layout is used up.
    std::string TakeText();

private:
    void Append(std::string_view piece) {
        if (piece.data() != m_pending.data() + m_pending.size()) {
            CopyPending();
            m_pending = piece;
        } else {
            m_pending = {m_pending.data(), m_pending.size() + piece.size()};
        }
        m_lastPieceSize = piece.size();
        m_column += piece.size();
    }
    void CopyPending();
    void AppendToNewLine(std::string_view piece);
    void Indent();
    void CarryLastPieceToNewLine();

    std::size_t m_width;
    std::string m_indentation;
    std::string m_text;
    std::string_view m_pending; ///< the pieces that are yet to be copied behind the text
    std::size_t m_column = 0;
    std::size_t m_lastPieceSize = 0; ///< of the last piece, with which the pending ones end
    bool m_nothingPlaced = true;
};

} // namespace recastor
