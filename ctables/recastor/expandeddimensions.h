/// The dimensions of a table as the bases of percentages are looked for in them.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"

#include <array>
#include <unordered_map>

namespace recastor {

/// A TBI_GENERICLIST with a slot for each dimension: its multiplied-out expression; null for the
/// statistics dimension and for one that the table does not have. It remembers in which dimensions
/// a list of base variables stands, for every term of a table asks that again.
class ExpandedDimensions : public TbTrParseNode {
public:
    static constexpr unsigned kDimensions = 3;

    ExpandedDimensions() : TbTrParseNode(TBI_GENERICLIST, nullptr) {}

    const ExpandedDimensions* AsExpandedDimensions() const override { return this; }

    /// What ParseTree::CheckBaseListInDimension answers for the dimension in the slot, which is not
    /// null, and the list. Both must not change any more.
    int FlagOf(unsigned slot, const TbTrParseNode& baseList) const;

private:
    using Flags = std::unordered_map<const TbTrParseNode*, int>; ///< by the list of base variables

    mutable std::array<Flags, kDimensions> m_flags;
};

} // namespace recastor
