// The translation of one TABLE subcommand with its local subcommands.

#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_functions.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "ctables/recastor/parsetree_totals.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

namespace {

/// A pseudo-variable that stands in several dimensions counts as standing in none.
int SingleDimension(int dimension) {
    return dimension == ParseTree::kSeveralDimensions ? 0 : dimension;
}

unsigned SlotOf(int dimension) {
    return static_cast<unsigned>(dimension - 1);
}

bool AssociateTotalsOfTable(const TbTrParseNode& table, TotalsMap& totals) {
    for (unsigned i = 0; i < table.GetChildCount(); ++i) {
        const TbTrParseNode* const expression = table.GetChild(i);
        if (expression != nullptr && !AssociateTotals(*expression, totals)) {
            return false;
        }
    }
    return true;
}

/// Refuses a statistics dimension that would grow beyond all use, and the machine's memory, when
/// its nestings are multiplied out over their stackings: n nested pairs make 2 to the power of n
/// terms.
bool CanBeMultipliedOut(TbTrParseNode& expression) {
    constexpr double kMostVariables = 2'000'000;
    unsigned unused = 0;
    if (ParseTree::FindMergeCandidate(expression, unused) == nullptr ||
        ParseTree::MultipliedOutSize(expression) <= kMostVariables) {
        return true;
    }
    ReportTranslationError(TokenOf(*ParseTree::GetNextVariable(expression, nullptr)), TB_TABLE,
                           TbTrTablesCommand::kTooManyTerms);
    return false;
}

/// The dimensions of a table once its statistics dimension is known.
class TableDimensions {
public:
    /// Multiplies the statistics dimension out, in its place in the table.
    TableDimensions(const TbTrParseNode& table, int statsDimension) :
        m_table(table), m_statsDimension(statsDimension) {
        for (unsigned slot = 0; slot < ExpandedDimensions::kDimensions; ++slot) {
            TbTrParseNode* const expression = table.GetChild(slot);
            if (expression == nullptr) {
                continue;
            }
            m_lastPresent = static_cast<int>(slot) + 1;
            if (m_lastPresent == statsDimension) {
                ParseTree::MultiplyOutInPlace(*expression);
            } else {
                m_expanded.SetDimension(slot, *expression);
            }
        }
        if (StatisticsExpression().GetNodeType() == SP_PLUS) { // there are several terms
            m_expanded.KeepStatistics(ParseTree::FindSubcommand(table, TB_STATISTICS, false));
        }
    }

    const TbTrParseNode& StatisticsExpression() const {
        return *m_table.GetChild(SlotOf(m_statsDimension));
    }

    /// Writes the dimensions, joined by BY; an absent one before the last leaves its BY.
    bool Express(const TbTrParseNode*& firstMagnet, OutputSequence& output) const {
        for (int dimension = 1; dimension <= m_lastPresent; ++dimension) {
            if (dimension > 1) {
                output.PushBack(" BY ", false);
            }
            const TbTrParseNode* const expression = m_table.GetChild(SlotOf(dimension));
            if (expression == nullptr) {
                continue;
            }
            output.BeginPart();
            if (!ParseTree::ExpressDimension(*expression, dimension, m_statsDimension, m_expanded,
                                             firstMagnet, output)) {
                return false;
            }
            output.FuseShortLine();
        }
        return true;
    }

private:
    const TbTrParseNode& m_table;
    int m_statsDimension;
    int m_lastPresent = 0;
    ExpandedDimensions m_expanded;
};

void ExpressCategories(const TbTrParseNode& table, OutputSequence& output) {
    const bool include = GetGlobalAttribute(TB_MISSINGSUBCOM, table) == TB_INCLUDE;
    output.PushBackNewline();
    output.PushBack("/CATEGORIES VAR=ALL EMPTY=EXCLUDE", false);
    output.PushBack(" MISSING=", false);
    output.PushBack(include ? "INCLUDE" : "EXCLUDE", false);
}

/// Category labels can be moved from the rows or columns to the opposite side only.
void ExpressCategoryLabels(int labelsDimension, OutputSequence& output) {
    if (labelsDimension == 1 || labelsDimension == 2) {
        output.PushBackNewline();
        output.PushBack("/CLABELS ", false);
        output.PushBack(labelsDimension == 1 ? "COL" : "ROW", false);
        output.PushBack("=OPPOSITE", false);
    }
}

/// Where the names of the statistics stand. Without a STATISTICS subcommand they are not shown.
void ExpressStatisticsLabels(const TbTrParseNode& table, int displayDimension, int statsDimension,
                             OutputSequence& output) {
    static const char* const positions[] = {"ROW", "COLUMN", "LAYER"};
    const bool hidden = ParseTree::FindNodeByType(table.GetParent(), TB_STATISTICS) == nullptr;
    const int position = displayDimension == 0 && !hidden ? statsDimension : displayDimension;
    if (position == 0 && !hidden) {
        return;
    }
    output.PushBackNewline();
    output.PushBack("/SLABELS", false);
    if (position != 0) {
        output.PushBack(" POSITION=", false);
        output.PushBack(positions[SlotOf(position)], false);
    }
    if (hidden) {
        output.PushBack(" VISIBLE=NO", false);
    }
}

void AppendOnNewLine(OutputSequence sequence, OutputSequence& output) {
    if (!sequence.IsEmpty()) {
        output.PushBackNewline();
        output.PushBack(std::move(sequence));
    }
}

/// Whether any function of the table is given for named variables.
bool DoFunctionsNameVariables(const TbTrParseNode& table) {
    const TbTrParseNode* const statistics = ParseTree::FindSubcommand(table, TB_STATISTICS, false);
    for (unsigned i = 0; statistics != nullptr && i < statistics->GetChildCount(); ++i) {
        if (NamesVariables(FunctionArguments(*statistics->GetChild(i)))) {
            return true;
        }
    }
    return false;
}

/// Whether a function is named for the variable or for the total that it has.
bool HasStatFunction(const TbTrParseNode& variable, int type, const TbTrParseNode& table,
                     const TotalsMap& totals) {
    const ZELKToken& token = TokenOf(variable);
    if (ParseTree::GetStatFunction(table, token.AsString(false)) != nullptr) {
        return true;
    }
    const auto total = totals.find(WrittenName(token, type));
    return total != totals.end() &&
           ParseTree::GetStatFunction(table, TokenOf(*total->second).AsString(false)) != nullptr;
}

/// `named`: some function names variables, so that the variable's name is worth looking up.
bool ChoosesDimension(const TbTrParseNode& variable, const TbTrParseNode& table,
                      const TotalsMap& totals, bool named) {
    const int nodeType = variable.GetNodeType();
    if (nodeType != SP_VARNAME) {
        ZELK_ASSERT(nodeType == TB_STATISTICS || nodeType == TB_LABELS);
        return false;
    }
    const int type = DeclaredType(variable, table);
    return type == TB_OBSERVATION || (named && HasStatFunction(variable, type, table, totals));
}

} // namespace

bool ParseTree::TranslateTableSubcommand(TbTrParseNode& table, OutputSequence& output) {
    ZELK_ASSERT(table.GetNodeType() == TB_TABLE);
    output.PushBack("/TABLE ", false);
    const int displayDimension = SingleDimension(RemovePseudoVariables(table, true));
    const int labelsDimension = SingleDimension(RemovePseudoVariables(table, false));
    TotalsMap totals;
    if (!AssociateTotalsOfTable(table, totals)) {
        return false;
    }
    const int statsDimension = DetermineStatsDimension(table, totals);
    if (statsDimension == 0) {
        return true;
    }
    if (!CanBeMultipliedOut(*table.GetChild(SlotOf(statsDimension)))) {
        return false;
    }
    const TableDimensions dimensions(table, statsDimension);
    const TbTrParseNode* firstMagnet = nullptr;
    if (!dimensions.Express(firstMagnet, output)) {
        return false;
    }
    ExpressCategories(table, output);
    OutputSequence totalLines;
    ExpressCatsForTotals(totals, totalLines);
    AppendOnNewLine(std::move(totalLines), output);
    ExpressCategoryLabels(labelsDimension, output);
    ExpressStatisticsLabels(table, displayDimension, statsDimension, output);
    OutputSequence sortLines;
    if (!TranslateSort(table, dimensions.StatisticsExpression(), firstMagnet, sortLines)) {
        return false;
    }
    AppendOnNewLine(std::move(sortLines), output);
    OutputSequence headings;
    TranslateHeadings(table, headings);
    AppendOnNewLine(std::move(headings), output);
    return true;
}

int ParseTree::DetermineStatsDimension(const TbTrParseNode& table, const TotalsMap& totals) {
    ZELK_ASSERT(table.GetNodeType() == TB_TABLE);
    const auto count = static_cast<int>(table.GetChildCount());
    ZELK_ASSERT(0 < count && count <= 3);
    const bool named = DoFunctionsNameVariables(table);
    int firstPresent = 0;
    for (int dimension = 1; dimension <= count; ++dimension) {
        const TbTrParseNode* const expression = table.GetChild(SlotOf(dimension));
        if (expression == nullptr) {
            continue;
        }
        firstPresent = firstPresent == 0 ? dimension : firstPresent;
        if (HoldsForAnyVariable(*expression, [&](const TbTrParseNode& variable) {
                return ChoosesDimension(variable, table, totals, named);
            })) {
            return dimension;
        }
    }
    constexpr int kColumns = 2;
    return table.GetChild(SlotOf(kColumns)) != nullptr ? kColumns : firstPresent;
}

} // namespace recastor
