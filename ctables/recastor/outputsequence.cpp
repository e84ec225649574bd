#include "ctables/recastor/outputsequence.h"

#include "platform/zelkbase/zelkassert.h"

#include <iterator>

namespace recastor {

const std::string NL_STRING = "\n";

OutputSequence::OutputSequence() {
    Clear();
}

void OutputSequence::Clear() {
    m_Sequence.clear();
    m_lastNewline = -1;
}

void OutputSequence::PushBack(std::string text, bool leadingBlank) {
    if (leadingBlank) {
        text.insert(text.begin(), ' ');
    }
    m_Sequence.emplace_back(std::move(text), false);
}

void OutputSequence::PushBackNewline() {
    m_lastNewline = static_cast<std::int64_t>(m_Sequence.size());
    m_Sequence.emplace_back(NL_STRING, true);
}

void OutputSequence::PushBack(const OutputSequence& other) {
    m_lastNewline = static_cast<std::int64_t>(m_Sequence.size()) + other.m_lastNewline;
    m_Sequence.insert(m_Sequence.end(), other.m_Sequence.begin(), other.m_Sequence.end());
}

void OutputSequence::PushBack(OutputSequence&& other) {
    m_lastNewline = static_cast<std::int64_t>(m_Sequence.size()) + other.m_lastNewline;
    m_Sequence.insert(m_Sequence.end(), std::make_move_iterator(other.m_Sequence.begin()),
                      std::make_move_iterator(other.m_Sequence.end()));
    other.Clear();
}

std::size_t OutputSequence::Length() const {
    std::size_t length = 0;
    for (std::size_t i = CurrentLine(); i < m_Sequence.size(); ++i) {
        ZELK_ASSERT(m_Sequence[i].second == false);
        length += m_Sequence[i].first.size();
    }
    return length;
}

void OutputSequence::Fuse() {
    const std::size_t first = CurrentLine();
    if (first >= m_Sequence.size()) {
        return;
    }
    std::string& fused = m_Sequence[first].first;
    for (std::size_t i = first + 1; i < m_Sequence.size(); ++i) {
        ZELK_ASSERT(m_Sequence[i].second == false);
        fused += m_Sequence[i].first;
    }
    m_Sequence.resize(first + 1);
}

std::string OutputSequence::Print(unsigned width, unsigned indent) const {
    if (IsEmpty()) {
        return {};
    }
    if (indent > width - 1) {
        ZELK_ASSERT_AS(false, "0 && \"WARNING: Indentation has been forced to size 1.\"");
    }
    const std::string indentation(indent, ' ');
    OutputSequence result;
    unsigned long column = 0;
    bool isFirst = true;
    for (const Piece& piece : m_Sequence) {
        result.PlacePiece(piece, isFirst, width, indentation, column);
        isFirst = false;
    }
    std::string text;
    for (const Piece& piece : result.m_Sequence) {
        text += piece.first;
    }
    return text;
}

/// Appends a piece of another sequence in its place: on the line at hand or on a new one.
void OutputSequence::PlacePiece(const Piece& piece, bool isFirst, unsigned width,
                                const std::string& indentation, unsigned long& column) {
    const auto& [text, isNewline] = piece;
    if (isNewline) {
        PushBackNewline();
        column = 0;
    } else if (column == 0) {
        AddWithIndentation(this, &column, isFirst ? std::string() : indentation, text);
    } else if (column + text.size() <= width) {
        PushBack(text, false);
        column += text.size();
    } else if (text != ",") {
        PushBack(NL_STRING, false);
        column = 0;
        AddWithIndentation(this, &column, indentation, text);
    } else {
        if (!IsEmpty() && TrimString(m_Sequence.back().first) != ",") {
            CarryLastPieceToNewLine(indentation, column);
        }
        PushBack(text, false);
        column += text.size();
    }
}

void OutputSequence::CarryLastPieceToNewLine(const std::string& indentation,
                                             unsigned long& column) {
    const std::string carried = TrimStringLeft(m_Sequence.back().first);
    m_Sequence.back().first = NL_STRING;
    PushBack(indentation, false);
    PushBack(carried, false);
    column = indentation.size() + carried.size();
}

void OutputSequence::AddWithIndentation(OutputSequence* target, unsigned long* column,
                                        const std::string& indentation, const std::string& text) {
    const std::string trimmed = TrimStringLeft(text);
    target->PushBack(indentation, false);
    target->PushBack(trimmed, false);
    *column += indentation.size() + trimmed.size();
}

std::string OutputSequence::TrimStringLeft(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first);
}

std::string OutputSequence::TrimStringRight(const std::string& text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string::npos ? std::string() : text.substr(0, last);
}

std::string OutputSequence::TrimString(const std::string& text) {
    return TrimStringRight(TrimStringLeft(text));
}

} // namespace recastor
