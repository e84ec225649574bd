/// The bases that a percentage can have.
#pragma once

namespace recastor {

/// Bits of a set. TBTR_OTHERTABPCT is a percentage of the table too, by another combination of
/// base variables; whoever writes statistics folds it into TBTR_TABPCT.
enum PercentageBase : int {
    TBTR_ROWPCT = 1,
    TBTR_COLPCT = 2,
    TBTR_LAYERPCT = 4,
    TBTR_TABPCT = 8,
    TBTR_OTHERTABPCT = 16,
};

/// What is told of a dimension where base variables stand in some of its terms only, instead of 1
/// (in all) or 0 (in none).
inline constexpr int kMixed = -1;

} // namespace recastor
