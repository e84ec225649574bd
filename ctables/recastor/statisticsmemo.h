/// The statistics lists of one table that were written already.
#pragma once

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/tbtrparsenode.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace recastor {

/// Every term of a table has its statistics list, and nearly all of them are the same: a list
/// depends on the kinds of a term's variables, on whether one bears a total and on whether one is a
/// base of a percentage. Where functions are given for named variables the names count as well, and
/// nothing is kept.
class StatisticsMemo {
public:
    /// What the list of a term depends on, as a set of bits.
    using Traits = std::uint32_t;
    /// They do not tell the list. Every term has a trait.
    static constexpr Traits kUntold = 0;

    /// Reads the functions of the table's STATISTICS subcommand, null for none. They and the table
    /// must not change any more.
    explicit StatisticsMemo(const TbTrParseNode* statistics);

    /// The traits of the magnet's term, or kUntold.
    Traits TraitsOf(const TbTrParseNode& magnet, const TbTrParseNode& table) const;

    /// The list of terms with the traits, until the next Keep(); null when none is kept.
    const OutputSequence* Find(Traits traits) const;
    /// Keeps a list, in the place of the oldest one when there are many, and returns it.
    const OutputSequence& Keep(Traits traits, OutputSequence&& list);

private:
    /// More base lists than there are bits for are too many to tell terms apart.
    static constexpr unsigned kMostBaseLists = 24;
    static constexpr std::size_t kMostKept = 4;

    struct Entry {
        Traits traits = 0;
        OutputSequence list;
    };

    bool m_tellsLists = true; ///< whether traits tell the lists of this table
    SmallVector<const TbTrParseNode*> m_baseLists;
    std::array<Entry, kMostKept> m_kept;
    std::size_t m_keptCount = 0; ///< of all that were ever kept
};

} // namespace recastor
