#include "platform/zelkbase/smallobjects.h"

#include <memory>
#include <vector>

namespace recastor {

namespace {

/// Blocks are cut from pieces of about this many bytes.
constexpr std::size_t kPieceSize = 65536;

} // namespace

std::array<SmallObjects::Block*, SmallObjects::kLargest / SmallObjects::kGranularity>
    SmallObjects::s_freeLists{};

/// A list of new blocks of `size` bytes.
SmallObjects::Block* SmallObjects::NewBlocks(std::size_t size) {
    // Never freed: objects of static life may give their blocks back after everything else.
    static auto& pieces = *new std::vector<std::unique_ptr<std::byte[]>>;
    pieces.push_back(std::make_unique<std::byte[]>(kPieceSize));
    std::byte* const piece = pieces.back().get();
    Block* list = nullptr;
    for (std::size_t count = kPieceSize / size; count > 0; --count) {
        list = ::new (piece + (count - 1) * size) Block{list};
    }
    return list;
}

} // namespace recastor
