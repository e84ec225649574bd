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
    /// `indent` is below `width`. At most `count` pieces and line breaks will come, of `size` bytes
    /// together.
    LineLayout(unsigned width, unsigned indent, std::size_t size, std::size_t count) :
        m_width(width), m_indent(indent), m_text(size + count * (1 + indent), ' ') {}

    /// Ends the line.
    void BreakLine();
    /// Appends a piece to the line at hand or to a new one. A piece that is a lone comma takes the
    /// piece before it to the new line, so that no line begins with one; it takes none that is
    /// itself a comma and one more character.
    void Place(std::string_view piece);
    /// Whether the line at hand is begun and may take more.
    bool TakesMore() const { return m_column != 0 && m_column <= m_width; }
    /// How many bytes still fit into such a line.
    std::size_t Room() const { return m_width - m_column; }
    /// Places pieces at once that fit into such a line and follow each other in memory; the last of
    /// them has `lastPieceSize` bytes.
    void PlaceWhereTheyFit(std::string_view pieces, std::size_t lastPieceSize) {
        Append(pieces);
        m_lastPieceSize = lastPieceSize;
    }
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
    void Copy(std::string_view text);
    void CopyPending();
    void AppendToNewLine(std::string_view piece);
    void Indent();
    void CarryLastPieceToNewLine();

    std::size_t m_width;
    std::size_t m_indent;
    std::string m_text;         ///< as long as it may become; blanks behind what is laid out
    std::size_t m_size = 0;     ///< of what is laid out
    std::string_view m_pending; ///< the pieces that are yet to be copied behind the text
    std::size_t m_column = 0;
    std::size_t m_lastPieceSize = 0; ///< of the last piece, with which the pending ones end
    bool m_nothingPlaced = true;
};

} // namespace recastor
