#include "platform/zelkbase/smallobjects.h"

#include <memory>
#include <vector>

namespace recastor {

namespace {

/// Blocks are cut from pieces of so many bytes.
constexpr std::size_t kPieceSize = 65536;

/// All pieces, and how many of them were begun. Never freed: objects of static life may give their
/// blocks back after everything else.
struct Pieces {
    std::vector<std::unique_ptr<std::byte[]>> all;
    std::size_t begun = 0;
};

Pieces& ThePieces() {
    static auto& pieces = *new Pieces;
    return pieces;
}

} // namespace

std::array<SmallObjects::Block*, SmallObjects::kLargest / SmallObjects::kGranularity>
    SmallObjects::s_freeLists{};
std::size_t SmallObjects::s_inUse = 0;
std::byte* SmallObjects::s_next = nullptr;
std::byte* SmallObjects::s_end = nullptr;

void SmallObjects::GoToNextPiece() {
    Pieces& pieces = ThePieces();
    if (pieces.begun == pieces.all.size()) {
        pieces.all.push_back(std::make_unique<std::byte[]>(kPieceSize));
    }
    s_next = pieces.all[pieces.begun].get();
    s_end = s_next + kPieceSize;
    ++pieces.begun;
}

void SmallObjects::BeginAnew() {
    s_freeLists.fill(nullptr);
    ThePieces().begun = 0;
    GoToNextPiece();
}

} // namespace recastor
