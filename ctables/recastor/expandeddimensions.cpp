#include "ctables/recastor/expandeddimensions.h"

#include "ctables/recastor/parsetree.h"

namespace recastor {

int ExpandedDimensions::FlagOf(unsigned slot, const TbTrParseNode& baseList) const {
    Flags& flags = m_flags.at(slot);
    const auto known = flags.find(&baseList);
    if (known != flags.end()) {
        return known->second;
    }
    const int flag = ParseTree::CheckBaseListInDimension(*GetChild(slot), baseList);
    flags.emplace(&baseList, flag);
    return flag;
}

} // namespace recastor
