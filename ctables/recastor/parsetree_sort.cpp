// The SORT subcommand.

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "platform/zelkbase/zelkassert.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace recastor {

namespace {

const std::string kCountKey = "COUNT";

/// The key that the sort function gives, with its argument. False when the function is unknown.
bool SortKey(const TbTrParseNode& sortVariable, const TbTrParseNode& table, std::string& key) {
    const TbTrParseNode* const function = sortVariable.GetChild(0);
    key = kCountKey;
    if (function == nullptr) {
        return true;
    }
    const ZELKToken& name = TokenOf(*function);
    char kind = 0;
    bool isPercentage = false;
    const std::string mapped =
        ParseTree::MapFunctionName(name.AsString(false), true, false, table, kind, isPercentage);
    if (mapped.empty()) {
        ReportTranslationError(name, TB_SORT, TbTrTablesCommand::kUnknownSortFunction);
        return false;
    }
    // CTABLES sorts by no percentage; the count gives nearly the same order.
    if (!isPercentage) {
        key = mapped;
    }
    if (const TbTrParseNode* argument = function->GetChild(0)) {
        key += '(' + WrittenNameInTable(TokenOf(*argument), table) + ')';
    }
    return true;
}

/// The (upper-cased) names of an expression's variables.
class NamesInExpression {
public:
    explicit NamesInExpression(const TbTrParseNode& expression) {
        for (const TbTrParseNode* variable = ParseTree::GetNextVariable(expression, nullptr);
             variable != nullptr; variable = ParseTree::GetNextVariable(expression, variable)) {
            if (variable->GetNodeType() == SP_VARNAME) {
                m_names.insert(TokenOf(*variable).AsString(false));
            }
        }
    }
    bool Has(const std::string& name) const { return m_names.contains(name); }

private:
    std::unordered_set<std::string_view> m_names; ///< the texts are the tokens' own
};

/// A variable outside the statistics dimension is sorted by the count of the first magnet.
bool FixUpSortVariable(const std::string& name, const TbTrParseNode& table,
                       const NamesInExpression& statisticsNames, const TbTrParseNode* firstMagnet,
                       std::string& key) {
    if (key == kCountKey && !statisticsNames.Has(name)) {
        ZELK_ASSERT(firstMagnet != nullptr);
        key += '(' + WrittenNameInTable(TokenOf(*firstMagnet), table) + ')';
    }
    return true;
}

} // namespace

bool ParseTree::TranslateSort(const TbTrParseNode& table, const TbTrParseNode& expression,
                              const TbTrParseNode* firstMagnet, OutputSequence& output) {
    output.Clear();
    const TbTrParseNode* const sort = FindSubcommand(table, TB_SORT, false);
    if (sort == nullptr) {
        return true;
    }
    ZELK_ASSERT(sort->GetChildCount() > 0);
    const TbTrParseNode* const direction = sort->GetChild(0);
    const bool ascending = direction != nullptr && direction->GetNodeType() == TB_ASCENDING;
    const NamesInExpression statisticsNames(expression);
    for (unsigned i = 1; i < sort->GetChildCount(); ++i) {
        const TbTrParseNode* const sortVariable = sort->GetChild(i);
        ZELK_ASSERT(sortVariable != nullptr && sortVariable->GetNodeType() == TBI_SORTVAR);
        const ZELKToken& token = TokenOf(*sortVariable);
        std::string key;
        if (!SortKey(*sortVariable, table, key)) {
            return false;
        }
        FixUpSortVariable(token.AsString(false), table, statisticsNames, firstMagnet, key);
        if (!output.IsEmpty()) {
            output.PushBackNewline();
        }
        output.PushBack("/CATEGORIES VAR=", false);
        output.PushBack(WrittenNameInTable(token, table), false);
        output.PushBack(" ORDER=", false);
        output.PushBack(ascending ? "A" : "D", false);
        output.PushBack(" KEY=", false);
        output.PushBack(key, false);
    }
    return true;
}

} // namespace recastor
