#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_functions.h"
#include "tests/support/commandtree.h"
#include "tests/support/dump.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// The new name, kind and percentage mark of a function: `VALIDN C %`; empty when it is unknown.
std::string Mapped(const std::string& name, bool abbreviated, bool group,
                   const std::string& globals = "") {
    char kind = '?';
    bool isPercentage = false;
    const std::string newName = ParseTree::MapFunctionName(
        name, abbreviated, group, ParseTable("TABLES " + globals + " /TABLE=a"), kind,
        isPercentage);
    return newName.empty() ? newName : newName + ' ' + kind + (isPercentage ? " %" : "");
}

struct FunctionRow {
    const char* name;
    const char* mapped;
};

constexpr FunctionRow kFunctions[] = {
    {"CASES", "RESPONSES R"},
    {"COUNT", "COUNT C"},
    {"CPCT", "VALIDN C %"},
    {"CSPCT", "RESPONSES.COUNT R %"},
    {"MAXIMUM", "MAXIMUM S"},
    {"MEAN", "MEAN S"},
    {"MEDIAN", "MEDIAN S"},
    {"MODE", "MODE S"},
    {"MINIMUM", "MINIMUM S"},
    {"PTILE", "PTILE S"},
    {"RANGE", "RANGE S"},
    {"RPCT", "RESPONSES.COUNT R %"},
    {"RESPONSES", "RESPONSES R"},
    {"SEMEAN", "SEMEAN S"},
    {"SPCT", "SUM S %"},
    {"STDDEV", "STDDEV S"},
    {"SUM", "SUM S"},
    {"VALIDN", "VALIDN S"},
    {"VARIANCE", "VARIANCE S"},
    {"VPCT", "VALIDN S %"},
    {"HPTILE", "PTILE S"},
    {"WPTILE", "PTILE S"},
    {"RPTILE", "PTILE S"},
    {"EPTILE", "PTILE S"},
    {"APTILE", "PTILE S"},
};

TEST(MapFunctionName, EveryFunctionHasItsNewNameKindAndPercentage) {
    for (const auto& [name, mapped] : kFunctions) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Mapped(name, false, false), mapped);
        EXPECT_EQ(Mapped(name, true, false), mapped);
    }
}

TEST(MapFunctionName, ThreeLettersAreEnoughWhenAbbreviated) {
    for (const auto& [name, mapped] : kFunctions) {
        const std::string letters = std::string(name).substr(0, 3);
        SCOPED_TRACE(letters);
        EXPECT_EQ(Mapped(letters, true, false), mapped);
        EXPECT_EQ(Mapped(letters, false, false), letters == "SUM" ? mapped : "");
    }
}

TEST(MapFunctionName, WhatFollowsTheThreeLettersDoesNotCount) {
    const std::vector<FunctionRow> rows{
        {"MEANS", "MEAN S"},    {"COUNTY", "COUNT C"},     {"MEDAL", "MEDIAN S"},
        {"MIN.1", "MINIMUM S"}, {"RESULT", "RESPONSES R"}, {"VAL", "VALIDN S"},
    };
    for (const auto& [name, mapped] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Mapped(name, true, false), mapped);
        EXPECT_EQ(Mapped(name, false, false), "");
    }
}

TEST(MapFunctionName, UnknownNamesGiveNothing) {
    for (const char* name :
         {"", "M", "ME", "SU", "FOO", "XCOUNT", "count", "CO", "PCT", "ROWPCT"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Mapped(name, true, false), "");
        EXPECT_EQ(Mapped(name, false, false), "");
    }
}

TEST(MapFunctionName, UnknownNameLeavesKindAndPercentageAlone) {
    char kind = '?';
    bool isPercentage = true;
    ParseTree::MapFunctionName("FOO", true, true, ParseTable("TABLES /TABLE=a"), kind,
                               isPercentage);
    EXPECT_EQ(kind, '?');
    EXPECT_TRUE(isPercentage);
}

struct SettingRow {
    const char* globals;
    const char* mapped;
};

constexpr SettingRow kBases[] = {
    {"", "VALIDN C %"},
    {"/BASE", "VALIDN C %"},
    {"/BASE=ANSWERING", "VALIDN C %"},
    {"/BASE=QUALIFIED", "COUNT C %"},
    {"/BASE=ALL", "TOTALN C %"},
    {"/BASE=ALL /BASE=QUALIFIED", "COUNT C %"}, // the last one
    {"/BASE=ALL /BASE", "VALIDN C %"},
};

struct GroupSettingRow {
    const char* globals;
    const char* cases;     ///< CPCT of a group
    const char* responses; ///< RPCT and CSPCT of any variable
};

constexpr GroupSettingRow kGroupBases[] = {
    {"", "COUNT C %", "RESPONSES.COUNT R %"},
    {"/GBASE", "COUNT C %", "RESPONSES.COUNT R %"},
    {"/GBASE=CASES", "COUNT C %", "RESPONSES.COUNT R %"},
    {"/GBASE=RESPONSES", "COUNT.RESPONSES C %", "RESPONSES R %"},
    {"/GBASE=RESPONSES /GBASE=CASES", "COUNT C %", "RESPONSES.COUNT R %"},
};

TEST(MapFunctionName, PercentageOfCasesFollowsBase) {
    for (const SettingRow& base : kBases) {
        for (const GroupSettingRow& groupBase : kGroupBases) {
            const std::string globals = std::string(base.globals) + ' ' + groupBase.globals;
            SCOPED_TRACE(globals);
            EXPECT_EQ(Mapped("CPCT", true, false, globals), base.mapped);
        }
    }
}

TEST(MapFunctionName, PercentageOfCasesOfAGroupFollowsGbase) {
    for (const GroupSettingRow& groupBase : kGroupBases) {
        for (const SettingRow& base : kBases) {
            const std::string globals = std::string(base.globals) + ' ' + groupBase.globals;
            SCOPED_TRACE(globals);
            EXPECT_EQ(Mapped("CPCT", true, true, globals), groupBase.cases);
        }
    }
}

TEST(MapFunctionName, PercentageOfResponsesFollowsGbase) {
    for (const GroupSettingRow& groupBase : kGroupBases) {
        for (const SettingRow& base : kBases) {
            const std::string globals = std::string(base.globals) + ' ' + groupBase.globals;
            SCOPED_TRACE(globals);
            for (const char* name : {"CSPCT", "RPCT"}) {
                EXPECT_EQ(Mapped(name, true, false, globals), groupBase.responses);
                EXPECT_EQ(Mapped(name, true, true, globals), groupBase.responses);
            }
        }
    }
}

TEST(MapFunctionName, OtherFunctionsDoNotDependOnGroupAndBases) {
    const std::string globals = "/BASE=ALL /GBASE=RESPONSES";
    for (const auto& [name, mapped] : kFunctions) {
        if (std::string(mapped).ends_with(" R %") || std::string(mapped).ends_with(" C %")) {
            continue; // the computed ones
        }
        SCOPED_TRACE(name);
        EXPECT_EQ(Mapped(name, true, false, globals), mapped);
        EXPECT_EQ(Mapped(name, true, true, globals), mapped);
    }
}

TEST(MapFunctionName, ChecksTheBaseSetting) {
    TbTrParseNode& root = ParseCommand("TABLES /BASE=ALL /TABLE=a");
    root.GetChild(0)->GetChild(0)->GetChild(0)->SetNodeType(TB_ON);
    EXPECT_DEATH(CPCTMapper(false, root), HasSubstr("bAttr == TB_ANSWERING || bAttr == 0"));
    EXPECT_STREQ(CPCTMapper(true, root).fNewName, "COUNT");
}

/// The `index`th function of a parsed STATISTICS subcommand.
const TbTrParseNode& Function(const std::string& statistics, unsigned index = 0) {
    return *ParseCommand("TABLES /TABLE=a /STATISTICS=" + statistics)
                .GetChild(1)
                ->GetChild(1)
                ->GetChild(index);
}

struct PartsRow {
    const char* function;
    bool unweighted;
    const char* name;
    const char* arguments;
    const char* bases;
};

TEST(FunctionParts, AreFoundInTheFunctionNode) {
    const std::vector<PartsRow> rows{
        {"count", false, "(STATFUNCTION count)", "_", "_"},
        {"count()", false, "(STATFUNCTION count)", "_", "_"},
        {"U ptile 25", true, "(STATFUNCTION ptile 25)", "_", "_"},
        {"UNWEIGHTED count(a)", true, "(STATFUNCTION count)", "(LIST (STATFUNCARG a _ _))", "_"},
        {"cpct(a'A'(F5.1)b:c d)", false, "(STATFUNCTION cpct)",
         "(LIST (STATFUNCARG a F5.1 'A') (STATFUNCARG b _ _))", "(VARLIST c d)"},
    };
    for (const PartsRow& row : rows) {
        SCOPED_TRACE(row.function);
        const TbTrParseNode& function = Function(row.function);
        EXPECT_EQ(IsUnweighted(function), row.unweighted);
        EXPECT_EQ(DumpTree(&FunctionName(function)), row.name);
        EXPECT_EQ(DumpTree(FunctionArguments(function)), row.arguments);
        EXPECT_EQ(DumpTree(BaseVariables(function)), row.bases);
    }
}

TEST(FunctionParts, ArgumentHasVariableFormatAndLabel) {
    const TbTrParseNode& argument = *FunctionArguments(Function("count(a'A'(F5))"))->GetChild(0);
    EXPECT_EQ(DumpTree(ArgumentVariable(argument)), "a");
    EXPECT_EQ(DumpTree(ArgumentFormat(argument)), "F5");
    EXPECT_EQ(DumpTree(ArgumentLabel(argument)), "'A'");
    const TbTrParseNode& display = *FunctionArguments(Function("count('N')"))->GetChild(0);
    EXPECT_EQ(ArgumentVariable(display), nullptr);
    EXPECT_EQ(ArgumentFormat(display), nullptr);
    EXPECT_EQ(DumpTree(ArgumentLabel(display)), "'N'");
}

TEST(FunctionParts, FunctionMustHaveAName) {
    EXPECT_DEATH(FunctionName(*TreeFromDump("(LIST _)")), HasSubstr("name != nullptr"));
    EXPECT_DEATH(FunctionName(*TreeFromDump("(LIST _ a)")), HasSubstr("TBI_STATFUNCTION"));
}

TEST(FindArgument, ComparesUpperCasedNames) {
    const TbTrParseNode* const arguments = FunctionArguments(Function("count(a Bc 'B')"));
    EXPECT_EQ(DumpTree(FindArgument(arguments, "A")), "(STATFUNCARG a _ _)");
    EXPECT_EQ(DumpTree(FindArgument(arguments, "BC")), "(STATFUNCARG Bc _ 'B')");
    EXPECT_EQ(FindArgument(arguments, "B"), nullptr);
    EXPECT_EQ(FindArgument(arguments, "a"), nullptr);
    EXPECT_EQ(FindArgument(nullptr, "A"), nullptr);
    EXPECT_EQ(FindArgument(FunctionArguments(Function("count('A')")), "A"), nullptr);
}

TEST(GetStatFunction, FunctionIsSpecifiedForWhatItNames) {
    const std::vector<std::pair<const char*, const char*>> rows{
        {"A", "mean"}, {"B", "count"}, {"T", "count"}, {"C", "_"}, {"D", "_"}, {"MEAN", "_"},
    };
    for (const auto& [variable, expected] : rows) {
        SCOPED_TRACE(variable);
        const TbTrParseNode* const function = ParseTree::GetStatFunction(
            ParseTable("TABLES /TABLE=a + b /STATISTICS=sum mean(a) count(b t) mode(a b:c)"),
            variable);
        EXPECT_EQ(function == nullptr ? "_" : FunctionName(*function).GetToken()->AsString(true),
                  expected);
    }
}

TEST(GetStatFunction, OnlyTheTablesOwnFirstStatisticsCounts) {
    const std::string command = "TABLES /TABLE=a /STATISTICS=mean(b) /STATISTICS=count(c) "
                                "/TABLE=a /TITLE /STATISTICS=mean(d) /TABLE=a";
    EXPECT_NE(ParseTree::GetStatFunction(ParseTable(command, 1), "B"), nullptr);
    EXPECT_EQ(ParseTree::GetStatFunction(ParseTable(command, 1), "C"), nullptr);
    EXPECT_EQ(ParseTree::GetStatFunction(ParseTable(command, 1), "D"), nullptr);
    EXPECT_NE(ParseTree::GetStatFunction(ParseTable(command, 2), "D"), nullptr);
    EXPECT_EQ(ParseTree::GetStatFunction(ParseTable(command, 3), "D"), nullptr);
}

} // namespace

} // namespace recastor
