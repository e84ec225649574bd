#include "ctables/recastor/linelayout.h"

#include "ctables/recastor/outputsequence.h"

#include <utility>

namespace recastor {

std::string_view WithoutLeadingBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

void LineLayout::BreakLine() {
    Append(NL_STRING);
    m_column = 0;
    m_nothingPlaced = false;
}

void LineLayout::Place(std::string_view piece) {
    if (m_column == 0) {
        AppendToNewLine(piece);
    } else if (m_column + piece.size() <= m_width) {
        Append(piece);
    } else if (piece != ",") {
        BreakLine();
        AppendToNewLine(piece);
    } else {
        // Trimming takes the last character along: a comma is told by one with a character behind.
        if (OutputSequence::TrimString(m_text.substr(m_lastPiece)) != ",") {
            CarryLastPieceToNewLine();
        }
        Append(piece);
    }
}

void LineLayout::Append(std::string_view piece) {
    m_lastPiece = m_text.size();
    m_text += piece;
    m_column += piece.size();
}

void LineLayout::AppendToNewLine(std::string_view piece) {
    if (!std::exchange(m_nothingPlaced, false)) {
        Append(m_indentation);
    }
    Append(WithoutLeadingBlanks(piece));
}

void LineLayout::CarryLastPieceToNewLine() {
    const std::string carried(WithoutLeadingBlanks(std::string_view(m_text).substr(m_lastPiece)));
    m_text.resize(m_lastPiece);
    BreakLine();
    Append(m_indentation);
    Append(carried);
}

} // namespace recastor
