#include "ctables/recastor/outputsequence.h"

#include "ctables/recastor/linelayout.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

const std::string NL_STRING = "\n";

OutputSequence::OutputSequence() {
    Clear();
}

void OutputSequence::Clear() {
    m_text.clear();
    m_pieces.clear();
    m_lastNewline = -1;
}

void OutputSequence::PushBack(std::string_view text, bool leadingBlank) {
    if (leadingBlank) {
        m_text += ' ';
    }
    m_text += text;
    AddPiece(false);
}

void OutputSequence::AddPiece(bool isNewline) {
    constexpr std::size_t kFewPieces = 8;
    constexpr std::size_t kFewBytes = 100;
    if (m_pieces.capacity() == 0) {
        m_pieces.reserve(kFewPieces);
        m_text.reserve(kFewBytes);
    }
    m_pieces.push_back({m_text.size(), isNewline});
}

void OutputSequence::PushBackNewline() {
    m_lastNewline = static_cast<std::int64_t>(m_pieces.size());
    m_text += NL_STRING;
    AddPiece(true);
}

void OutputSequence::PushBack(const OutputSequence& other) {
    m_lastNewline = static_cast<std::int64_t>(m_pieces.size()) + other.m_lastNewline;
    const std::size_t offset = m_text.size();
    m_text += other.m_text;
    // By number, up to a count that stands: a sequence may be appended to itself.
    const std::size_t count = other.m_pieces.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Piece piece = other.m_pieces[i];
        m_pieces.push_back({offset + piece.end, piece.isNewline});
    }
}

void OutputSequence::PushBack(OutputSequence&& other) {
    if (IsEmpty()) {
        std::swap(*this, other);
    } else {
        PushBack(std::as_const(other));
    }
    other.Clear();
}

void OutputSequence::ExtendLastPiece(std::string_view text) {
    ZELK_ASSERT(!m_pieces.empty());
    m_text += text;
    m_pieces.back().end = m_text.size();
}

std::size_t OutputSequence::Length() const {
    CheckCurrentLine();
    return m_text.size() - StartOf(CurrentLine());
}

void OutputSequence::CheckCurrentLine() const {
    for (std::size_t i = CurrentLine(); i < m_pieces.size(); ++i) {
        ZELK_ASSERT_AS(!m_pieces[i].isNewline, "m_Sequence[i].second == false");
    }
}

void OutputSequence::Fuse() {
    CheckCurrentLine();
    const std::size_t first = CurrentLine();
    if (first < m_pieces.size()) {
        m_pieces.resize(first + 1);
        m_pieces.back().end = m_text.size();
    }
}

void OutputSequence::FuseShortPieces() {
    constexpr std::size_t kLineLength = 79;
    if (Length() < kLineLength) {
        Fuse();
    }
}

std::string OutputSequence::Print(unsigned width, unsigned indent) const {
    if (IsEmpty()) {
        return {};
    }
    if (indent > width - 1) {
        ZELK_ASSERT_AS(false, "0 && \"WARNING: Indentation has been forced to size 1.\"");
    }
    LineLayout layout(width, indent, m_text.size(), m_pieces.size());
    const std::string_view text(m_text);
    for (std::size_t piece = 0; piece < m_pieces.size();) {
        const std::size_t start = StartOf(piece);
        const std::size_t next =
            layout.TakesMore() ? BehindThoseThatFit(piece, start + layout.Room()) : piece;
        if (next > piece) {
            layout.PlaceWhereTheyFit(text.substr(start, StartOf(next) - start),
                                     StartOf(next) - StartOf(next - 1));
            piece = next;
            continue;
        }
        if (m_pieces[piece].isNewline) {
            layout.BreakLine();
        } else {
            layout.Place(text.substr(start, m_pieces[piece].end - start));
        }
        ++piece;
    }
    return layout.TakeText();
}

std::size_t OutputSequence::BehindThoseThatFit(std::size_t piece, std::size_t end) const {
    while (piece < m_pieces.size() && m_pieces[piece].end <= end && !m_pieces[piece].isNewline) {
        ++piece;
    }
    return piece;
}

void OutputSequence::AddWithIndentation(OutputSequence* target, unsigned long* column,
                                        const std::string& indentation, const std::string& text) {
    const std::string trimmed = TrimStringLeft(text);
    target->PushBack(indentation, false);
    target->PushBack(trimmed, false);
    *column += indentation.size() + trimmed.size();
}

std::string OutputSequence::TrimStringLeft(const std::string& text) {
    return std::string(WithoutLeadingBlanks(text));
}

std::string OutputSequence::TrimStringRight(const std::string& text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string::npos ? std::string() : text.substr(0, last);
}

std::string OutputSequence::TrimString(const std::string& text) {
    return TrimStringRight(TrimStringLeft(text));
}

} // namespace recastor
