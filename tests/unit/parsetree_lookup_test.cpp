#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/commandtree.h"
#include "tests/support/dump.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

struct TypeRow {
    const char* name;
    int type;
    const char* declaration; ///< the node and the one above it
};

TEST(FindVariableType, FindsTheDeclaringNode) {
    const TbTrParseNode& table =
        ParseTable("TABLES /AUTOLABEL=ON /OBSERVATION=x Y /MRGROUP=g 'G'm1 m2 TO m4 "
                   "/FORMAT=ZERO /MDGROUP=d m5 (1) /FTOTAL=t 'T'u /OBSERVATION=z /PTOTAL=p "
                   "/TABLE=a /STATISTICS=count(b)");
    const std::vector<TypeRow> rows{
        {"X", TB_OBSERVATION, "x in (VARLIST x Y)"},
        {"Y", TB_OBSERVATION, "Y in (VARLIST x Y)"},
        {"Z", TB_OBSERVATION, "z in (VARLIST z)"},
        {"G", TB_MRGROUP, "g{'G' _} in (MRGROUP g{'G' _} (VARLIST m1 (VARRANGE m2 m4)))"},
        {"D", TB_MDGROUP, "d in (MDGROUP d (VARLIST m5) 1)"},
        {"T", TB_FTOTAL, "t{'T' _} in (FTOTAL t{'T' _} u)"},
        {"U", TB_FTOTAL, "u in (FTOTAL t{'T' _} u)"},
        {"P", TB_PTOTAL, "p in (PTOTAL p)"},
        {"A", 0, ""},  // only in the table
        {"B", 0, ""},  // only in a function
        {"M1", 0, ""}, // a member is no group
        {"M2", 0, ""},
        {"x", 0, ""}, // names to look up are upper-cased
        {"XY", 0, ""},
    };
    for (const TypeRow& row : rows) {
        SCOPED_TRACE(row.name);
        int type = 99;
        const TbTrParseNode* const node = ParseTree::FindVariableType(table, row.name, type);
        EXPECT_EQ(type, row.type);
        EXPECT_EQ(node == nullptr ? "" : DumpTree(node) + " in " + DumpTree(node->GetParent()),
                  row.declaration);
    }
}

TEST(FindVariableType, FirstDeclarationWins) {
    int type = 0;
    ParseTree::FindVariableType(ParseTable("TABLES /PTOTAL=a /OBSERVATION=a /TABLE=a"), "A", type);
    EXPECT_EQ(type, TB_PTOTAL);
    ParseTree::FindVariableType(ParseTable("TABLES /OBSERVATION=a /PTOTAL=a /TABLE=a"), "A", type);
    EXPECT_EQ(type, TB_OBSERVATION);
}

TEST(FindVariableType, CommandWithoutGlobalListDeclaresNothing) {
    TbTrParseNode& root = ParseCommand("TABLES /OBSERVATION=a /TABLE=a");
    root.SetChild(0, nullptr);
    int type = 99;
    EXPECT_EQ(ParseTree::FindVariableType(*root.GetChild(1)->GetChild(0), "A", type), nullptr);
    EXPECT_EQ(type, 0);
}

TEST(FindVariableType, NameIsNotEmpty) {
    const TbTrParseNode& table = ParseTable("TABLES /TABLE=a");
    int type = 0;
    EXPECT_DEATH(ParseTree::FindVariableType(table, "", type), HasSubstr("!name.empty()"));
}

TEST(FindVariableType, DroppedSubcommandsArePassed) {
    int type = 0;
    EXPECT_NE(ParseTree::FindVariableType(
                  ParseTable("TABLES /FORMAT /BOXCHARS 'x' /OBSERVATION=a /TABLE=a"), "A", type),
              nullptr);
    EXPECT_EQ(type, TB_OBSERVATION);
}

TEST(FindVariableType, OnlyAVariableDeclares) {
    int type = 0;
    const auto list = TreeFromDump("(VARLIST _ (VARLIST a) b a)");
    EXPECT_EQ(ParseTree::FindVariableTypeInVarname(nullptr, "A", TB_MRGROUP, type), nullptr);
    EXPECT_EQ(ParseTree::FindVariableTypeInVarname(list.get(), "A", TB_MRGROUP, type), nullptr);
    EXPECT_EQ(ParseTree::FindVariableTypeInVarlist(nullptr, "A", TB_OBSERVATION, type), nullptr);
    EXPECT_EQ(ParseTree::FindVariableTypeInVarlist(list.get(), "C", TB_OBSERVATION, type), nullptr);
    EXPECT_EQ(type, 0);
    EXPECT_EQ(ParseTree::FindVariableTypeInVarlist(list.get(), "A", TB_OBSERVATION, type),
              list->GetChild(3));
    EXPECT_EQ(type, TB_OBSERVATION);
}

TEST(DeclaredType, IsNotedAtTheVariable) {
    const TbTrParseNode& table = ParseTable("TABLES /MDGROUP=grp m (1) /TABLE=GRP + a");
    const TbTrParseNode& group = *table.GetChild(0)->GetChild(0);
    const TbTrParseNode& categorical = *table.GetChild(0)->GetChild(1);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(DeclaredType(group, table), TB_MDGROUP);
        EXPECT_EQ(DeclaredType(categorical, table), 0);
    }
    EXPECT_EQ(group.GetNotedType(), TB_MDGROUP);
    EXPECT_EQ(categorical.GetNotedType(), 0);
}

TEST(HoldsForAnyVariable, AsksTheLeavesInOrderUpToTheFirst) {
    std::string asked;
    const auto holdsFor = [&](const char* name) {
        asked.clear();
        return HoldsForAnyVariable(*TreeFromDump("(+ a (> b (+ c e)) f)"),
                                   [&](const TbTrParseNode& variable) {
                                       asked += TokenOf(variable).AsString(true);
                                       return TokenOf(variable).AsString(true) == name;
                                   });
    };
    EXPECT_TRUE(holdsFor("c"));
    EXPECT_EQ(asked, "abc");
    EXPECT_FALSE(holdsFor("x"));
    EXPECT_EQ(asked, "abcef");
}

TEST(HoldsForAnyVariable, TreeIsChecked) {
    const auto never = [](const TbTrParseNode&) { return false; };
    EXPECT_DEATH(HoldsForAnyVariable(*TreeFromDump("(+ a _)"), never),
                 HasSubstr("expression.GetChild(i) != nullptr"));
    EXPECT_DEATH(HoldsForAnyVariable(TbTrParseNode(SP_PLUS, nullptr), never),
                 HasSubstr("expression.GetChildCount() > 0"));
}

TEST(TermOfMagnet, IsItsNestingOrItself) {
    const auto stacking = TreeFromDump("(+ a (> b c))");
    const TbTrParseNode& nesting = *stacking->GetChild(1);
    EXPECT_EQ(&TermOfMagnet(*stacking->GetChild(0)), stacking->GetChild(0));
    EXPECT_EQ(&TermOfMagnet(*nesting.GetChild(1)), &nesting);
}

TEST(WrittenName, IsTheGroupsWhereTheNameIsAGroup) {
    const TbTrParseNode& table = ParseTable("TABLES /MDGROUP=grp m (1) /TABLE=GRP");
    const TbTrParseNode& variable = *table.GetChild(0);
    EXPECT_EQ(WrittenNameInTable(TokenOf(variable), table), "$GRP");
    EXPECT_EQ(WrittenName(TokenOf(variable), TB_MRGROUP), "$GRP");
    EXPECT_EQ(WrittenName(TokenOf(variable), TB_OBSERVATION), "GRP");
    EXPECT_EQ(WrittenName(TokenOf(variable), 0), "GRP");
}

TEST(DeclaredType, OnlyTheTwoKindsOfGroupsAreGroups) {
    EXPECT_TRUE(IsGroupType(TB_MRGROUP));
    EXPECT_TRUE(IsGroupType(TB_MDGROUP));
    for (const int type : {0, static_cast<int>(TB_OBSERVATION), static_cast<int>(TB_FTOTAL),
                           static_cast<int>(TB_PTOTAL)}) {
        EXPECT_FALSE(IsGroupType(type));
    }
}

TEST(Tokens, NodeMustHaveOne) {
    EXPECT_DEATH(TokenOf(*TreeFromDump("(LIST a)")), HasSubstr("GetToken() != nullptr"));
}

TEST(Tokens, NamesAreComparedWithAnUpperCasedOne) {
    const auto variable = TreeFromDump("Ab");
    EXPECT_TRUE(IsSameName(TokenOf(*variable), "AB"));
    for (const char* name : {"Ab", "A", "ABC", ""}) {
        EXPECT_FALSE(IsSameName(TokenOf(*variable), name)) << name;
    }
}

TEST(Tokens, TranslationErrorIsRecordedAtItsToken) {
    const TbTrParseNode& table = ParseTable("TABLES\n /TABLE=a BY Bcd");
    ReportTranslationError(TokenOf(*table.GetChild(1)), TB_SORT,
                           TbTrTablesCommand::kUnknownSortFunction);
    EXPECT_EQ(RecordedError(), "error 6 295@2:13 \"Bcd\"");
}

struct GroupNameRow {
    const char* name;
    const char* written;
};

TEST(MapGroupVariableName, IsCutToEightBytesOnACharacterBoundary) {
    EnableLocale();
    const std::vector<GroupNameRow> rows{
        {"", ""},
        {"g", "$g"},
        {"g23456", "$g23456"},
        {"g234567", "$g234567"},
        {"g2345678", "$g234567"},
        {"g23456789", "$g234567"},
        {"$", "$"},
        {"$g", "$g"},
        {"$g23456789", "$g23456789"},
        {"g\xC3\xA9\xC3\xA9\xC3\xA9", "$g\xC3\xA9\xC3\xA9\xC3\xA9"},
        {"g2345\xC3\xA9", "$g2345\xC3\xA9"}, // two bytes that fit
        {"g23456\xC3\xA9", "$g23456"},       // and two that are one too many
        {"g2345\xE2\x82\xAC", "$g2345"},     // three bytes
        {"g234\xE2\x82\xAC", "$g234\xE2\x82\xAC"},
    };
    for (const GroupNameRow& row : rows) {
        std::string name = row.name;
        MapGroupVariableName(name);
        EXPECT_EQ(name, row.written);
    }
}

struct AttributeRow {
    const char* globals;
    int attribute;
    int value;
};

TEST(GetGlobalAttribute, LastSubcommandOfItsTypeCounts) {
    const std::vector<AttributeRow> rows{
        {"", TB_AUTOLABEL, 0},
        {"/AUTOLABEL", TB_AUTOLABEL, 0},
        {"/AUTOLABEL=ON", TB_AUTOLABEL, TB_ON},
        {"/AUTOLABEL=ON", TB_MISSINGSUBCOM, 0},
        {"/AUTOLABEL=ON /AUTOLABEL=OFF", TB_AUTOLABEL, TB_OFF},
        {"/AUTOLABEL=ON /AUTOLABEL", TB_AUTOLABEL, 0},
        {"/AUTOLABEL=DEFAULT /BASE=ALL", TB_AUTOLABEL, TB_DEFAULT},
        {"/MISSING=INCLUDE /GBASE=CASES", TB_MISSINGSUBCOM, TB_INCLUDE},
        {"/BASE=ALL /FORMAT /BOXCHARS 'x'", TB_BASE, SP_ALL},
    };
    for (const AttributeRow& row : rows) {
        SCOPED_TRACE(row.globals);
        TbTrParseNode& root = ParseCommand(std::string("TABLES ") + row.globals + " /TABLE=a > b");
        const TbTrParseNode& variable = *root.GetChild(1)->GetChild(0)->GetChild(0)->GetChild(1);
        EXPECT_EQ(GetGlobalAttribute(row.attribute, root), row.value);
        EXPECT_EQ(GetGlobalAttribute(row.attribute, variable), row.value);
    }
}

TEST(GetGlobalAttribute, CommandMayHaveNoGlobalList) {
    TbTrParseNode& root = ParseCommand("TABLES /AUTOLABEL=ON /TABLE=a");
    root.SetChild(0, nullptr);
    EXPECT_EQ(GetGlobalAttribute(TB_AUTOLABEL, root), 0);
}

TEST(GetGlobalAttribute, RootIsAListWithAListInFront) {
    EXPECT_DEATH(GetGlobalAttribute(TB_BASE, *TreeFromDump("(LIST)")),
                 HasSubstr("GetChildCount() > 0"));
    EXPECT_DEATH(GetGlobalAttribute(TB_BASE, *TreeFromDump("(VARLIST (LIST))")),
                 HasSubstr("TBI_GENERICLIST"));
    EXPECT_DEATH(GetGlobalAttribute(TB_BASE, *TreeFromDump("(LIST (VARLIST))")),
                 HasSubstr("list == nullptr || list->GetNodeType() == TBI_GENERICLIST"));
}

TEST(FindSubcommand, SearchesTheGroupFromEitherEnd) {
    const TbTrParseNode& table = ParseTable("TABLES /TABLE=a /TITLE 'a'/SORT=a /BOXCHARS 'x' "
                                            "/TITLE 'b'/CAPTION 'c'/TABLE=b /CORNER 'd'");
    EXPECT_EQ(DumpTree(ParseTree::FindSubcommand(table, TB_TITLE, false)), "(TITLE 'a')");
    EXPECT_EQ(DumpTree(ParseTree::FindSubcommand(table, TB_TITLE, true)), "(TITLE 'b')");
    for (const bool fromEnd : {false, true}) {
        EXPECT_EQ(DumpTree(ParseTree::FindSubcommand(table, TB_SORT, fromEnd)),
                  "(SORT _ (SORTVAR a))");
        EXPECT_EQ(DumpTree(ParseTree::FindSubcommand(table, TB_CAPTION, fromEnd)), "(CAPTION 'c')");
        EXPECT_EQ(ParseTree::FindSubcommand(table, TB_CORNER, fromEnd), nullptr);
        EXPECT_EQ(ParseTree::FindSubcommand(table, TB_TABLE, fromEnd), nullptr);
    }
}

TEST(FindSubcommand, IsGivenTheTableOfAGroup) {
    const auto group = TreeFromDump("(LIST (TABLE a) (VARLIST))");
    EXPECT_DEATH(ParseTree::FindSubcommand(*group->GetChild(1), TB_SORT, true),
                 HasSubstr("TB_TABLE"));
    EXPECT_DEATH(ParseTree::FindSubcommand(*TreeFromDump("(TABLE a)"), TB_SORT, true),
                 HasSubstr("group != nullptr"));
    const auto other = TreeFromDump("(VARLIST (TABLE a))");
    EXPECT_DEATH(ParseTree::FindSubcommand(*other->GetChild(0), TB_SORT, true),
                 HasSubstr("TBI_GENERICLIST"));
}

TEST(FindNodeByType, FindsTheFirstInPreOrder) {
    TbTrParseNode* const nothing = nullptr;
    EXPECT_EQ(ParseTree::FindNodeByType(nothing, SP_PLUS), nullptr);
    const auto tree = TreeFromDump("(> a _ (+ (> b (STATISTICS)) c) (+ e f) (LABELS))");
    EXPECT_EQ(ParseTree::FindNodeByType(tree.get(), SP_GREATERTHAN), tree.get());
    EXPECT_EQ(ParseTree::FindNodeByType(tree.get(), SP_PLUS), tree->GetChild(2));
    EXPECT_EQ(ParseTree::FindNodeByType(tree.get(), SP_VARNAME), tree->GetChild(0));
    EXPECT_EQ(DumpTree(ParseTree::FindNodeByType(tree.get(), TB_STATISTICS)), "(STATISTICS)");
    EXPECT_EQ(ParseTree::FindNodeByType(tree.get(), TB_LABELS), tree->GetChild(4));
    EXPECT_EQ(ParseTree::FindNodeByType(tree.get(), TB_TABLE), nullptr);
}

TEST(FindNodeByType, VariablesAreLeaves) {
    const auto tree = TreeFromDump("(+ a b)");
    tree->GetChild(0)->SetChild(1, TreeFromDump("(STATISTICS)").release());
    EXPECT_EQ(ParseTree::FindNodeByType(tree.get(), TB_STATISTICS), nullptr);
}

} // namespace

} // namespace recastor
