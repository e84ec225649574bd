/// The reference for the layout of pieces in lines.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace recastor {

/// Pieces of text and line breaks, each a string of its own; the operations are those of
/// OutputSequence.
class PlainPieces {
public:
    void PushBack(const std::string& text, bool leadingBlank);
    void PushBackNewline();
    void PushBack(const PlainPieces& other);
    std::size_t Length() const;
    void Fuse();
    std::string Print(std::size_t width, std::size_t indent) const;

private:
    struct Piece {
        std::string text;
        bool isNewline;
    };

    std::size_t CurrentLine() const { return static_cast<std::size_t>(m_lastNewline + 1); }

    std::vector<Piece> m_pieces;
    std::int64_t m_lastNewline = -1; ///< index of the piece before the current line
};

} // namespace recastor
