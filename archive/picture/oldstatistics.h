/// Which statistics an old table shows, and for which of its variables.
#pragma once

#include "archive/picture/oldtable.h"

#include <vector>

namespace recastor {

using OldTerm = std::vector<OldVariable>;

/// The side whose variables carry the statistics; none for a table without dimensions.
std::optional<TableSide> StatisticsSideOf(const OldTable& table, const TbTrParseNode& node);

/// The variable of a term that its statistics are computed for: its index in the term.
std::size_t SummarisedVariable(const OldTerm& term);

/// The statistics of a term of the side that carries them.
struct TermStatistics {
    std::vector<SkeletonStatistic> cells;
    std::vector<SkeletonStatistic> totals;
};
TermStatistics StatisticsOfTerm(const OldTerm& term, const OldTable& table, TableSide side,
                                const TbTrParseNode& node);

} // namespace recastor
