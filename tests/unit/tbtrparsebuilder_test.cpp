// Actions called by hand: what the grammar cannot make them do, and what they do with the values.

#include "ctables/recastor/bison/buildervalues.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/tokens.h"
#include "tests/support/values.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

OpaqueValue Name(const char* text) {
    return TokenValue(Word(text), SP_VARNAME);
}

OpaqueValue Node(int type) {
    return NodeValue(new TbTrParseNode(type, nullptr));
}

TEST(ParseBuilder, ListsAreMadeOfTheirTypes) {
    EXPECT_EQ(DumpValue(common_subcommandsList()), "(LIST)");
    EXPECT_EQ(DumpValue(common_strLiteralList()), "(LIST)");
    EXPECT_EQ(DumpValue(common_subcommandsList(common_nothing(), Node(TB_BASE))), "(LIST (BASE))");
    EXPECT_EQ(DumpValue(common_tableGroupList(common_nothing(), Node(TBI_GENERICLIST))),
              "(LIST (LIST))");
    EXPECT_EQ(DumpValue(common_variableNameList(common_nothing(), Name("a"))), "(VARLIST a)");
    EXPECT_EQ(DumpValue(common_variableSpecList(common_nothing(), common_variableSpec(Name("a")))),
              "(VARLIST a)");
    EXPECT_EQ(DumpValue(common_totalVarSpecList(common_nothing(), common_totalVarSpec(Name("a")))),
              "(VARLIST a)");
    EXPECT_EQ(DumpValue(format_formatSettingList(common_nothing(), Node(TB_ZERO))),
              "(FORMAT (ZERO))");
    EXPECT_EQ(DumpValue(sort_sortVariableList(common_nothing(), sort_sortVariable(Name("a")))),
              "(SORT _ (SORTVAR a))");
    EXPECT_EQ(DumpValue(statistics_statFuncSpecWithWeightList(common_nothing(),
                                                              Node(TBI_FULLSTATFUNCTION))),
              "(STATISTICS (FULLSTATFUNCTION))");
    EXPECT_EQ(DumpValue(statistics_statArgVarSpecList(common_nothing(), Node(TBI_STATFUNCARG))),
              "(LIST (STATFUNCARG))");
}

TEST(ParseBuilder, DroppedSubcommandTakesANullSlot) {
    OpaqueValue list = common_subcommandsList(common_subcommandsList(), common_nothing());
    EXPECT_EQ(DumpValue(common_subcommandsList(list, Node(TB_BASE))), "(LIST _ (BASE))");
    OpaqueValue group = common_subcommandsList(common_subcommandsList(), common_nothing());
    EXPECT_EQ(DumpValue(common_tableGroup(Node(TB_TABLE), group)), "(LIST (TABLE) _)");
}

TEST(ParseBuilder, ArgumentHasThreeSlotsWhateverItSays) {
    EXPECT_EQ(DumpValue(statistics_statArgVarSpec(Name("a"), common_nothing())),
              "(STATFUNCARG a _ _)");
    EXPECT_EQ(DumpValue(statistics_statDisplaySpec(common_nothing(), common_nothing(),
                                                   common_nothing(), common_nothing())),
              "(STATFUNCARG _ _ _)");
}

TEST(ParseBuilder, ObservationRejectsARangeAnywhere) {
    OpaqueValue result;
    int deleted = 0;
    OpaqueValue list = common_variableSpecList(common_nothing(), common_variableSpec(Name("a")));
    list = common_variableSpecList(
        list,
        common_variableSpec(Name("b"), TokenValue(new WatchedToken(deleted), SP_TO), Name("c")));
    EXPECT_FALSE(observation_subcommand(
        result, TokenValue(new WatchedToken(deleted), TB_OBSERVATION), list));
    EXPECT_TRUE(OpaqueValue_IsEmpty(result) && OpaqueValue_IsValid(result));
    EXPECT_EQ(deleted, 2);
}

TEST(ParseBuilder, ParenthesisedWordIsAPseudoVariableOrAName) {
    struct Row {
        const char* word;
        int code;
        bool accepted;
        const char* dump;
    };
    for (const auto& [word, code, accepted, dump] : {
             Row{"STATISTICS", SP_NONVARNAME, true, "(STATISTICS)"},
             Row{"stagnant", SP_VARNAME, true, "(STATISTICS)"},
             Row{"LAB", SP_NONVARNAME, true, "(LABELS)"},
             Row{"Labour", SP_VARNAME, true, "(LABELS)"},
             Row{"LA", SP_VARNAME, true, "LA"},
             Row{"sta", SP_VARNAME, true, "(STATISTICS)"},
             Row{"income", SP_VARNAME, true, "income"},
             Row{"income", SP_NONVARNAME, false, "_"},
         }) {
        SCOPED_TRACE(word);
        int deleted = 0;
        OpaqueValue result;
        EXPECT_EQ(table_specialTableItem(result, TokenValue(new WatchedToken(deleted), SP_LPAREN),
                                         TokenValue(Word(word), code),
                                         TokenValue(new WatchedToken(deleted), SP_RPAREN)),
                  accepted);
        EXPECT_EQ(DumpValue(result), dump);
        EXPECT_EQ(deleted, 2);
        OpaqueValue again;
        EXPECT_EQ(table_parenthesisedExpression(again, common_nothing(),
                                                table_tableItem(TokenValue(Word(word), code)),
                                                common_nothing()),
                  accepted);
        EXPECT_EQ(DumpValue(again), dump);
    }
}

TEST(ParseBuilder, OtherExpressionsPassThroughTheirParentheses) {
    for (const int type : {SP_PLUS, SP_GREATERTHAN, TB_STATISTICS, TB_LABELS}) {
        const OpaqueValue inner = Node(type);
        OpaqueValue result;
        EXPECT_TRUE(
            table_parenthesisedExpression(result, common_nothing(), inner, common_nothing()));
        EXPECT_EQ(result.pointer, inner.pointer);
        OpaqueValue_Clear(result);
    }
}

TEST(ParseBuilder, ChildrenOfTheSameOperatorChangeTheirParent) {
    const auto stack = [](OpaqueValue left, OpaqueValue right) {
        return table_tableExpressionStack(left, common_nothing(), right);
    };
    const auto item = [](const char* name) { return table_tableItem(Name(name)); };
    for (OpaqueValue value : {
             stack(stack(item("a"), item("b")), stack(item("c"), item("d"))),
             stack(stack(stack(item("a"), item("b")), item("c")), item("d")),
             stack(item("a"), stack(item("b"), stack(item("c"), item("d")))),
         }) {
        const std::unique_ptr<TbTrParseNode> node(OpaqueValue_GiveUpParseNode(value));
        EXPECT_EQ(DumpTree(node.get()), "(+ a b c d)");
        EXPECT_EQ(node->GetToken(), nullptr);
        for (unsigned i = 0; i < node->GetChildCount(); ++i) {
            EXPECT_EQ(node->GetChild(i)->GetParent(), node.get());
            EXPECT_EQ(node->GetChildIndex(node->GetChild(i)), i);
        }
    }
}

TEST(ParseBuilder, EndOfParseGivesTheTreeToTheClassifier) {
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    command.Reset(nullptr);
    OpaqueValue groups = common_tableGroupList(common_nothing(), Node(TBI_GENERICLIST));
    groups = common_tableGroupList(groups, Node(TBI_GENERICLIST));
    const OpaqueValue result = endOfParse(common_subcommandsList(), groups);
    EXPECT_TRUE(OpaqueValue_IsEmpty(result));
    EXPECT_EQ(DumpTree(command.GetParseTree()), "(LIST (LIST) (LIST) (LIST))");
    EXPECT_EQ(command.GetParseTree()->GetParent(), nullptr);
}

TEST(ParseBuilder, KeywordsAndPunctuationAreDeleted) {
    int deleted = 0;
    const auto watched = [&](int code) { return TokenValue(new WatchedToken(deleted), code); };
    const auto expectDeleted = [&](OpaqueValue result, int count) {
        OpaqueValue_Clear(result);
        EXPECT_EQ(deleted, count);
        deleted = 0;
    };
    expectDeleted(autolabel_subcommand(watched(TB_AUTOLABEL), watched(TB_ON)), 2);
    expectDeleted(title_subcommand(watched(TB_TITLE), common_strLiteralList()), 1);
    expectDeleted(format_subcommand(watched(TB_FORMAT)), 1);
    expectDeleted(format_formatSetting(watched(TB_BLANK)), 1);
    expectDeleted(format_formatSetting(watched(TB_MISSING), watched(SP_LPAREN),
                                       TokenValue(Literal("x"), SP_SLITERAL), watched(SP_RPAREN)),
                  3);
    expectDeleted(ftotal_subcommand(watched(TB_FTOTAL), Node(TBI_VARLIST)), 1);
    expectDeleted(
        mrgroup_subcommand(watched(TB_MRGROUP), Name("g"), common_nothing(), Node(TBI_VARLIST)), 1);
    expectDeleted(mdgroup_subcommand(watched(TB_MDGROUP), Name("g"), common_nothing(),
                                     Node(TBI_VARLIST), watched(SP_LPAREN),
                                     TokenValue(Number(1), SP_NUMBER), watched(SP_RPAREN)),
                  3);
    expectDeleted(sort_subcommand(watched(TB_SORT), watched(TB_ASCENDING),
                                  sort_sortVariableList(common_nothing(), Node(TBI_SORTVAR))),
                  2);
    expectDeleted(sort_sortVariable(Name("a"), watched(SP_LPAREN), Node(TBI_SORTFUNCTION),
                                    watched(SP_RPAREN)),
                  2);
    expectDeleted(sort_sortFunction(Name("a"), watched(SP_LPAREN), Name("b"), watched(SP_RPAREN)),
                  2);
    expectDeleted(statistics_subcommand(watched(TB_STATISTICS), Node(TB_STATISTICS)), 1);
    expectDeleted(statistics_statFuncSpec(Node(TBI_STATFUNCTION), watched(SP_LPAREN),
                                          common_nothing(), watched(SP_COLON), common_nothing(),
                                          watched(SP_RPAREN)),
                  3);
    expectDeleted(statistics_statFuncSpecWithWeight(
                      watched(TB_UNWEIGHTED), statistics_statFuncSpec(Node(TBI_STATFUNCTION))),
                  1);
    expectDeleted(statistics_statDisplaySpec(watched(SP_LPAREN), common_nothing(),
                                             watched(SP_RPAREN), common_nothing()),
                  2);
    expectDeleted(table_subcommand(watched(TB_TABLE), table_tableItem(Name("a")), watched(SP_BY),
                                   table_tableItem(Name("b")), watched(SP_BY),
                                   table_tableItem(Name("c"))),
                  3);
    expectDeleted(table_tableExpressionNest(watched(SP_LPAREN), table_tableItem(Name("a")),
                                            watched(SP_GREATERTHAN), table_tableItem(Name("b")),
                                            watched(SP_RPAREN)),
                  3);
    expectDeleted(dropped_values(watched(SP_BY), watched(SP_BY), watched(SP_BY), watched(SP_BY)),
                  4);
    expectDeleted(rejected_arguments(TB_SORT, {}, watched(TB_SORT)), 1);
    expectDeleted(dropped_format({}, watched(TB_FORMAT)), 1);
    expectDeleted(dropped_obsolete(TB_WRITE, {}, watched(TB_WRITE), common_nothing()), 1);
    expectDeleted(dropped_unknown({}, watched(TB_UNKNOWNSUBCOM), watched(TB_ANYSUBCOMTOKEN)), 2);
}

TEST(ParseBuilderDeathTest, BlankAndZeroTogetherStopTheProgram) {
    const std::string unit = ", function format_subcommand, source unit "
                             "ctables/recastor/bison/tbtrparsebuilder";
    EXPECT_DEATH(DumpParse("TABLES /FORMAT BLANK ZERO /TABLE a"), "failed: nblanks == 0" + unit);
    EXPECT_DEATH(DumpParse("TABLES /FORMAT ZERO BLANK /TABLE a"), "failed: nzeros == 0" + unit);
    EXPECT_DEATH(DumpParse("TABLES /FORMAT BLANK MISSING('.') ZERO /TABLE a"),
                 "failed: numchildren >=0 && numchildren <= 2" + unit);
}

TEST(ParseBuilderDeathTest, ShapesThatTheGrammarRulesOutAreInternalErrors) {
    EXPECT_DEATH(endOfParse(Node(TB_SORT), Node(TBI_GENERICLIST)),
                 R"(OpaqueValue_GetParseNodeType\(globalGroup\) == TBI_GENERICLIST)");
    EXPECT_DEATH(endOfParse(Node(TBI_GENERICLIST), Node(TB_SORT)),
                 R"(OpaqueValue_GetParseNodeType\(tableGroupList\) == TBI_GENERICLIST)");
    EXPECT_DEATH(table_tableExpressionStack(Node(TB_SORT), common_nothing(), Node(SP_VARNAME)),
                 "illegal left node type for TABLE operation");
    EXPECT_DEATH(table_tableExpressionNest(Node(TB_SORT), common_nothing(), Node(SP_GREATERTHAN)),
                 "illegal left node type for TABLE operation");
    EXPECT_DEATH(table_tableExpressionStack(Node(SP_PLUS), common_nothing(), Node(TB_SORT)),
                 "illegal left node type for TABLE operation");
    EXPECT_DEATH(table_subcommand(common_nothing(), Node(TB_SORT)), "IsExpressionType");
    const auto filledSlot = [](int type, int child) {
        const OpaqueValue value = Node(type);
        static_cast<TbTrParseNode*>(value.pointer)->AppendChild(new TbTrParseNode(child, nullptr));
        return value;
    };
    EXPECT_DEATH(statistics_statFuncSpecWithWeight(TokenValue(Word("U"), TB_UNWEIGHTED),
                                                   filledSlot(TBI_FULLSTATFUNCTION, TB_ON)),
                 "pOldChild == 0");
    EXPECT_DEATH(statistics_statArgVarSpec(Name("a"), filledSlot(TBI_STATFUNCARG, TB_ON)),
                 "pOldChild == 0");
    EXPECT_DEATH(sort_subcommand(common_nothing(), TokenValue(Word("ASC"), TB_ASCENDING),
                                 filledSlot(TB_SORT, TB_ON)),
                 "pExistingChild == 0");
    EXPECT_DEATH(statistics_statFunc(TokenValue(Word("BY"), SP_BY), common_nothing()),
                 "CheckZELKToken");
    EXPECT_DEATH(title_subcommand(common_nothing(), Node(TB_SORT)), "TBI_GENERICLIST");
}

} // namespace

} // namespace recastor
