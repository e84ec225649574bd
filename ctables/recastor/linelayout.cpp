#include "ctables/recastor/linelayout.h"

#include "ctables/recastor/outputsequence.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

std::string_view WithoutLeadingBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string LineLayout::TakeText() {
    CopyPending();
    m_text.resize(m_size);
    return std::move(m_text);
}

void LineLayout::BreakLine() {
    CopyPending();
    Copy(NL_STRING);
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
        CarryLastPieceToNewLine();
        Append(piece);
    }
}

void LineLayout::Copy(std::string_view text) {
    ZELK_ASSERT(text.size() <= m_text.size() - m_size);
    text.copy(m_text.data() + m_size, text.size());
    m_size += text.size();
}

void LineLayout::CopyPending() {
    Copy(m_pending);
    m_pending = {};
}

void LineLayout::AppendToNewLine(std::string_view piece) {
    if (!std::exchange(m_nothingPlaced, false)) {
        Indent();
    }
    Append(WithoutLeadingBlanks(piece));
}

void LineLayout::Indent() {
    CopyPending();
    ZELK_ASSERT(m_indent <= m_text.size() - m_size);
    m_size += m_indent;
    m_column += m_indent;
}

void LineLayout::CarryLastPieceToNewLine() {
    const std::string_view last = m_pending.substr(m_pending.size() - m_lastPieceSize);
    // Trimming takes the last character along: a comma is told by one with a character behind.
    if (OutputSequence::TrimString(std::string(last)) == ",") {
        return;
    }
    m_pending.remove_suffix(last.size());
    BreakLine();
    Indent();
    Append(WithoutLeadingBlanks(last));
}

} // namespace recastor
