#include "ctables/recastor/statisticsmemo.h"

#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_functions.h"
#include "ctables/recastor/parsetree_lookup.h"

#include <algorithm>
#include <utility>

namespace recastor {

namespace {

using Traits = StatisticsMemo::Traits;

// The kinds of variables in a term tell the kind of its magnet, too: the most preferred one.
constexpr Traits kNone = 0;
constexpr Traits kHoldsScale = 1;
constexpr Traits kHoldsGroup = 2;
constexpr Traits kHoldsCategorical = 4;
constexpr Traits kHasTotals = 8;
/// It holds a variable of the first base list; the bits above are those of the other lists.
constexpr Traits kHoldsFirstBase = 16;

Traits TraitOfType(int type) {
    if (type == TB_OBSERVATION) {
        return kHoldsScale;
    }
    return IsGroupType(type) ? kHoldsGroup : kHoldsCategorical;
}

} // namespace

StatisticsMemo::StatisticsMemo(const TbTrParseNode* statistics) {
    for (unsigned i = 0; statistics != nullptr && i < statistics->GetChildCount(); ++i) {
        const TbTrParseNode& function = *statistics->GetChild(i);
        if (NamesVariables(FunctionArguments(function))) {
            m_tellsLists = false;
            return;
        }
        if (const TbTrParseNode* bases = BaseVariables(function)) {
            m_baseLists.push_back(bases);
        }
    }
    m_tellsLists = m_baseLists.size() <= kMostBaseLists;
}

StatisticsMemo::Traits StatisticsMemo::TraitsOf(const TbTrParseNode& magnet,
                                                const TbTrParseNode& table) const {
    if (!m_tellsLists) {
        return kUntold;
    }
    Traits traits = kNone;
    const TbTrParseNode& term = TermOfMagnet(magnet);
    for (const TbTrParseNode* variable = ParseTree::GetNextVariable(term, nullptr);
         variable != nullptr; variable = ParseTree::GetNextVariable(term, variable)) {
        traits |= TraitOfType(DeclaredType(*variable, table));
        traits |= variable->GetChild(1) != nullptr ? kHasTotals : kNone;
    }
    Traits base = kHoldsFirstBase;
    for (const TbTrParseNode* const list : m_baseLists) {
        traits |= ParseTree::CheckBaseListInDimension(term, *list) != 0 ? base : kNone;
        base <<= 1;
    }
    return traits;
}

const OutputSequence* StatisticsMemo::Find(Traits traits) const {
    const auto* const end = m_kept.begin() + std::min(m_keptCount, kMostKept);
    const auto* const entry =
        std::find_if(m_kept.begin(), end, [=](const Entry& kept) { return kept.traits == traits; });
    return entry != end ? &entry->list : nullptr;
}

const OutputSequence& StatisticsMemo::Keep(Traits traits, OutputSequence&& list) {
    Entry& entry = m_kept.at(m_keptCount % kMostKept);
    ++m_keptCount;
    entry = {traits, std::move(list)};
    return entry.list;
}

} // namespace recastor
