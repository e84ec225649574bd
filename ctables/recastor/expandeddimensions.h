/// The dimensions of a table as the bases of percentages are looked for in them.
#pragma once

#include "ctables/recastor/statisticsmemo.h"
#include "ctables/recastor/tbtrparsenode.h"
#include "platform/zelkbase/smallobjects.h"

#include <array>
#include <optional>

namespace recastor {

/// A TBI_GENERICLIST with an empty slot for each dimension. It answers for the dimensions beside
/// the statistics dimension as their multiplied-out forms would, without making those: they can be
/// far larger than the table. It remembers its answers, for every term of a table asks again, and
/// the statistics lists that the terms have got.
class ExpandedDimensions : public TbTrParseNode {
public:
    static constexpr unsigned kDimensions = 3;

    ExpandedDimensions() : TbTrParseNode(TBI_GENERICLIST, nullptr) {
        InsertNullChildren(0, kDimensions);
    }

    const ExpandedDimensions* AsExpandedDimensions() const override { return this; }

    /// Lets the slot stand for a dimension, which stays the table's and must not change any more.
    void SetDimension(unsigned slot, const TbTrParseNode& expression) {
        m_dimensions.at(slot) = &expression;
    }
    bool HasDimension(unsigned slot) const { return m_dimensions.at(slot) != nullptr; }

    /// What ParseTree::CheckBaseListInDimension answers for the multiplied-out dimension in the
    /// slot, which has one. The list must not change any more.
    int FlagOf(unsigned slot, const TbTrParseNode& baseList) const;

    /// Lets statistics lists be kept. They are those of one dimension, the statistics dimension, of
    /// one table, whose STATISTICS subcommand (null for none) must not change any more.
    void KeepStatistics(const TbTrParseNode* statistics) { m_statistics.emplace(statistics); }
    /// The lists kept so far; null when none are to be kept.
    StatisticsMemo* KeptStatistics() const { return m_statistics ? &*m_statistics : nullptr; }

private:
    using Flags = SmallHashMap<const TbTrParseNode*, int>; ///< by the list of base variables

    std::array<const TbTrParseNode*, kDimensions> m_dimensions{};
    mutable std::array<Flags, kDimensions> m_flags;
    mutable std::optional<StatisticsMemo> m_statistics;
};

} // namespace recastor
