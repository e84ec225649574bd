// The vocabulary of summary functions, old and new, and look-ups in the STATISTICS subcommand.

#include "ctables/recastor/parsetree_functions.h"

#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "ctables/recastor/tbtrnamelistnode.h"
#include "platform/zelkbase/zelkassert.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace recastor {

namespace {

/// One function: the new name, kind and flag stand in the row or are computed by the mapper.
struct FunctionInfo {
    std::string_view fOldName;
    FunctionOutput fOutput;
    FunctionOutput (*fMapper)(bool mr, const TbTrParseNode& node) = nullptr;
    std::uint32_t abbreviation = Abbreviation(fOldName);
};

/// The first row whose name matches wins. CTABLES has one percentile, so the estimation methods of
/// the old ones are dropped.
constexpr std::array<FunctionInfo, 25> funcInfoDictionary{{
    {"CASES", {"RESPONSES", 'R', false}},
    {"COUNT", {"COUNT", 'C', false}},
    {"CPCT", {nullptr, 'C', true}, CPCTMapper},
    {"CSPCT", {nullptr, 'R', true}, RPCTMapper},
    {"MAXIMUM", {"MAXIMUM", 'S', false}},
    {"MEAN", {"MEAN", 'S', false}},
    {"MEDIAN", {"MEDIAN", 'S', false}},
    {"MODE", {"MODE", 'S', false}},
    {"MINIMUM", {"MINIMUM", 'S', false}},
    {"PTILE", {"PTILE", 'S', false}},
    {"RANGE", {"RANGE", 'S', false}},
    {"RPCT", {nullptr, 'R', true}, RPCTMapper},
    {"RESPONSES", {"RESPONSES", 'R', false}},
    {"SEMEAN", {"SEMEAN", 'S', false}},
    {"SPCT", {"SUM", 'S', true}},
    {"STDDEV", {"STDDEV", 'S', false}},
    {"SUM", {"SUM", 'S', false}},
    {"VALIDN", {"VALIDN", 'S', false}},
    {"VARIANCE", {"VARIANCE", 'S', false}},
    {"VPCT", {"VALIDN", 'S', true}},
    {"HPTILE", {"PTILE", 'S', false}},
    {"WPTILE", {"PTILE", 'S', false}},
    {"RPTILE", {"PTILE", 'S', false}},
    {"EPTILE", {"PTILE", 'S', false}},
    {"APTILE", {"PTILE", 'S', false}},
}};

} // namespace

FunctionOutput CPCTMapper(bool mr, const TbTrParseNode& node) {
    if (mr) {
        const bool responses = GetGlobalAttribute(TB_GBASE, node) == TB_RESPONSES;
        return {responses ? "COUNT.RESPONSES" : "COUNT", 'C', true};
    }
    const int bAttr = GetGlobalAttribute(TB_BASE, node);
    switch (bAttr) {
    case TB_QUALIFIED:
        return {"COUNT", 'C', true};
    case SP_ALL:
        return {"TOTALN", 'C', true};
    default:
        ZELK_ASSERT(bAttr == TB_ANSWERING || bAttr == 0);
        return {"VALIDN", 'C', true};
    }
}

FunctionOutput RPCTMapper(bool /*mr*/, const TbTrParseNode& node) {
    const bool responses = GetGlobalAttribute(TB_GBASE, node) == TB_RESPONSES;
    return {responses ? "RESPONSES" : "RESPONSES.COUNT", 'R', true};
}

std::string ParseTree::MapFunctionName(const std::string& name, bool abbreviated, bool group,
                                       const TbTrParseNode& node, char& kind, bool& isPercentage) {
    const std::uint32_t key = Abbreviation(name);
    const auto row = std::find_if(
        funcInfoDictionary.begin(), funcInfoDictionary.end(), [&](const FunctionInfo& info) {
            return abbreviated ? info.abbreviation == key : info.fOldName == name;
        });
    if (row == funcInfoDictionary.end()) {
        return {};
    }
    const FunctionOutput output =
        row->fMapper != nullptr ? row->fMapper(group, node) : row->fOutput;
    ZELK_ASSERT_AS(output.fNewName != nullptr, "funcInfoDictionary[i].fOutput.fNewName != 0");
    ZELK_ASSERT_AS(std::strlen(output.fNewName) > 0,
                   "strlen(funcInfoDictionary[i].fOutput.fNewName) > 0");
    kind = output.fKind;
    isPercentage = output.fIsPercentage;
    return output.fNewName;
}

bool IsUnweighted(const TbTrParseNode& function) {
    return function.GetChild(0) != nullptr;
}

const TbTrParseNode& FunctionName(const TbTrParseNode& function) {
    const TbTrParseNode* const name = function.GetChild(1);
    ZELK_ASSERT(name != nullptr && name->GetNodeType() == TBI_STATFUNCTION);
    return *name;
}

const TbTrParseNode* FunctionArguments(const TbTrParseNode& function) {
    return function.GetChild(2);
}

const TbTrParseNode* BaseVariables(const TbTrParseNode& function) {
    return function.GetChild(3);
}

const TbTrParseNode* ArgumentVariable(const TbTrParseNode& argument) {
    return argument.GetChild(0);
}

const TbTrParseNode* ArgumentFormat(const TbTrParseNode& argument) {
    return argument.GetChild(1);
}

const TbTrParseNode* ArgumentLabel(const TbTrParseNode& argument) {
    return argument.GetChild(2);
}

bool NamesVariables(const TbTrParseNode* arguments) {
    return arguments != nullptr && ArgumentVariable(*arguments->GetChild(0)) != nullptr;
}

const TbTrParseNode* FindArgument(const TbTrParseNode* arguments, const std::string& name) {
    return arguments != nullptr ? FindInNameList(*arguments, name) : nullptr;
}

const TbTrParseNode* ParseTree::GetStatFunction(const TbTrParseNode& table,
                                                const std::string& name) {
    const TbTrParseNode* const statistics = FindSubcommand(table, TB_STATISTICS, false);
    return statistics != nullptr ? FindStatFunction(*statistics, name) : nullptr;
}

const TbTrParseNode* ParseTree::FindStatFunction(const TbTrParseNode& statistics,
                                                 const std::string& name) {
    for (unsigned i = 0; i < statistics.GetChildCount(); ++i) {
        const TbTrParseNode* const function = statistics.GetChild(i);
        if (FindArgument(FunctionArguments(*function), name) != nullptr) {
            return function;
        }
    }
    return nullptr;
}

} // namespace recastor
