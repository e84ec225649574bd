#include "ctables/recastor/expandeddimensions.h"

#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/percentagebase.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

namespace {

/// Which kinds of terms an expression multiplies out to.
struct TermKinds {
    bool withBase;    ///< some hold a base variable
    bool withoutBase; ///< some hold none
};

/// A term of a stacking is one of an operand's; a term of a nesting holds one of each operand.
TermKinds KindsOfTerms(const TbTrParseNode& expression, const TbTrParseNode& baseList) {
    const int type = expression.GetNodeType();
    if (type == SP_VARNAME) {
        const bool isBase = ParseTree::CheckBaseListInVariable(expression, baseList) != 0;
        return {isBase, !isBase};
    }
    ZELK_ASSERT(type == SP_PLUS || type == SP_GREATERTHAN);
    const bool isNesting = type == SP_GREATERTHAN;
    TermKinds kinds{false, isNesting};
    for (unsigned i = 0; i < expression.GetChildCount(); ++i) {
        const TermKinds operand = KindsOfTerms(*expression.GetChild(i), baseList);
        kinds.withBase = kinds.withBase || operand.withBase;
        kinds.withoutBase = isNesting ? kinds.withoutBase && operand.withoutBase
                                      : kinds.withoutBase || operand.withoutBase;
    }
    return kinds;
}

} // namespace

int ExpandedDimensions::FlagOf(unsigned slot, const TbTrParseNode& baseList) const {
    Flags& flags = m_flags.at(slot);
    const auto known = flags.find(&baseList);
    if (known != flags.end()) {
        return known->second;
    }
    const TermKinds kinds = KindsOfTerms(*m_dimensions.at(slot), baseList);
    const bool isMixed = kinds.withBase && kinds.withoutBase;
    const int flag = isMixed ? kMixed : static_cast<int>(kinds.withBase);
    flags.emplace(&baseList, flag);
    return flag;
}

} // namespace recastor
