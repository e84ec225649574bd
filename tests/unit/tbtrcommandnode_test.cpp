#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/tbtrcommandnode.h"
#include "tests/support/commandtree.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

const TbTrCommandNode& ParseRoot(const std::string& command) {
    return dynamic_cast<const TbTrCommandNode&>(ParseCommand(command));
}

TEST(CommandNode, FindsEveryKindOfDeclaration) {
    const TbTrCommandNode& root =
        ParseRoot("TABLES /OBSERVATION x y /FTOTAL t1 'All' t2 /PTOTAL t3 /MRGROUP g a b "
                  "/MDGROUP h c TO d (1) /TABLE x");
    struct Row {
        const char* name;
        int type;
    };
    for (const auto& [name, type] :
         {Row{"X", TB_OBSERVATION}, Row{"Y", TB_OBSERVATION}, Row{"T1", TB_FTOTAL},
          Row{"T2", TB_FTOTAL}, Row{"T3", TB_PTOTAL}, Row{"G", TB_MRGROUP}, Row{"H", TB_MDGROUP}}) {
        SCOPED_TRACE(name);
        const auto declaration = root.FindDeclaration(name);
        EXPECT_EQ(declaration.type, type);
        ASSERT_NE(declaration.node, nullptr);
        EXPECT_EQ(declaration.node->GetToken()->AsString(false), name);
    }
}

TEST(CommandNode, MembersOfGroupsAndUnknownNamesAreNotDeclared) {
    const TbTrCommandNode& root = ParseRoot("TABLES /MRGROUP g a b /MDGROUP h c TO d (1) /TABLE a");
    for (const char* name : {"A", "B", "C", "D", "E", "", "g"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(root.FindDeclaration(name).node, nullptr);
        EXPECT_EQ(root.FindDeclaration(name).type, 0);
    }
}

TEST(CommandNode, NamesThatLookAlikeAreToldApart) {
    const TbTrCommandNode& root = ParseRoot("TABLES /OBSERVATION ab x1 x2 /FTOTAL cb /TABLE ab");
    EXPECT_EQ(root.FindDeclaration("AB").type, TB_OBSERVATION);
    EXPECT_EQ(root.FindDeclaration("CB").type, TB_FTOTAL);
    EXPECT_EQ(root.FindDeclaration("X2").type, TB_OBSERVATION);
    for (const char* name : {"BB", "BA", "B", "AAB", "X3", "Y1", "X"}) {
        EXPECT_EQ(root.FindDeclaration(name).node, nullptr) << name;
    }
}

TEST(CommandNode, FirstDeclarationOfANameCounts) {
    EXPECT_EQ(ParseRoot("TABLES /FTOTAL n /OBSERVATION n /TABLE n").FindDeclaration("N").type,
              TB_FTOTAL);
    EXPECT_EQ(ParseRoot("TABLES /OBSERVATION n /FTOTAL n /TABLE n").FindDeclaration("N").type,
              TB_OBSERVATION);
    EXPECT_EQ(ParseRoot("TABLES /MRGROUP n a /OBSERVATION n /TABLE n").FindDeclaration("N").type,
              TB_MRGROUP);
}

TEST(CommandNode, DroppedSubcommandsAreNoObstacle) {
    const TbTrCommandNode& root =
        ParseRoot("TABLES /WRITE x /FORMAT /FORMAT 5 /BASE ALL /OBSERVATION x /TABLE x");
    EXPECT_EQ(root.FindDeclaration("X").type, TB_OBSERVATION);
}

TEST(CommandNode, AnswersAsASearchOfTheListDoes) {
    const TbTrParseNode& root =
        ParseCommand("TABLES /FTOTAL a b 'B' /PTOTAL b c /OBSERVATION c d /MRGROUP d e f "
                     "/MDGROUP e g (1) /OBSERVATION a g /TABLE a");
    const TbTrParseNode& table = *root.GetChild(1)->GetChild(0);
    for (const char* name : {"A", "B", "C", "D", "E", "F", "G", "H"}) {
        SCOPED_TRACE(name);
        int found = 0;
        int searched = 0;
        EXPECT_EQ(ParseTree::FindVariableType(table, name, found),
                  ParseTree::FindVariableTypeImpl(*root.GetChild(0), name, searched));
        EXPECT_EQ(found, searched);
    }
}

} // namespace

} // namespace recastor
