#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/dump.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

struct TreeRow {
    const char* before;
    const char* after;
};

std::string Normalized(const std::string& dump) {
    const auto tree = TreeFromDump(dump);
    ParseTree::Normalize(*tree);
    return DumpTree(tree.get());
}

TEST(Normalize, RightNestedStackingBecomesOneNode) {
    EXPECT_EQ(Normalized("(+ a (+ b (+ c d)))"), "(+ a b c d)");
}

TEST(Normalize, NestingInsideAStackingIsUnchanged) {
    EXPECT_EQ(Normalized("(+ (> a b) c)"), "(+ (> a b) c)");
    EXPECT_EQ(Normalized("(+ a (> b c))"), "(+ a (> b c))");
}

TEST(Normalize, RunsOfTheSameOperatorBecomeOneNode) {
    const std::vector<TreeRow> rows{
        {"a", "a"},
        {"(+ a b)", "(+ a b)"},
        {"(+ (+ a b) (+ c d))", "(+ a b c d)"},
        {"(> (> a b) c)", "(> a b c)"},
        {"(> a (> b (> c d)) e)", "(> a b c d e)"},
        {"(+ a (> b (> c d)))", "(+ a (> b c d))"},
        {"(> a (+ b (+ c d)))", "(> a (+ b c d))"},
        {"(+ (> a (+ b (+ c d))) (+ e f))", "(+ (> a (+ b c d)) e f)"},
        {"(+ (+ (> a (> b c)) d) (+ e (+ f g)))", "(+ (> a b c) d e f g)"},
        {"(> (STATISTICS) (> (LABELS) b))", "(> (STATISTICS) (LABELS) b)"},
        {"(+ _ (+ a b))", "(+ _ a b)"},
    };
    for (const TreeRow& row : rows) {
        SCOPED_TRACE(row.before);
        EXPECT_EQ(Normalized(row.before), row.after);
        EXPECT_EQ(Normalized(row.after), row.after);
    }
}

TEST(Normalize, SplicedOperandsBelongToTheirNewParent) {
    const auto tree = TreeFromDump("(+ a (+ b (+ c d)) e)");
    ParseTree::Normalize(*tree);
    ASSERT_EQ(tree->GetChildCount(), 5U);
    for (unsigned i = 0; i < 5; ++i) {
        EXPECT_EQ(tree->GetChild(i)->GetParent(), tree.get());
    }
}

struct CandidateRow {
    const char* expression;
    const char* candidate; ///< `_` when there is none
    unsigned index;
};

TEST(FindMergeCandidate, FindsTheOutermostLeftmostStackingInANesting) {
    const std::vector<CandidateRow> rows{
        {"a", "_", 99},
        {"(+ a b)", "_", 99},
        {"(> a b c)", "_", 99},
        {"(+ (> a b) (> c d))", "_", 99},
        {"(> a (+ b c))", "(> a (+ b c))", 1},
        {"(> (+ a b) (+ c d))", "(> (+ a b) (+ c d))", 0},
        {"(> a b (+ c d) (+ e f))", "(> a b (+ c d) (+ e f))", 2},
        {"(+ a (> b (+ c d)))", "(> b (+ c d))", 1},
        {"(+ (> a b) (> c (+ d e)) (> (+ f g) h))", "(> c (+ d e))", 1},
        {"(> (> a (+ b c)) (+ d e))", "(> (> a (+ b c)) (+ d e))", 1},
        {"(> a (> b (+ c d)))", "(> b (+ c d))", 1},
        {"(+ _ (> a (+ b c)))", "(> a (+ b c))", 1},
    };
    for (const CandidateRow& row : rows) {
        SCOPED_TRACE(row.expression);
        const auto tree = TreeFromDump(row.expression);
        unsigned index = 99;
        EXPECT_EQ(DumpTree(ParseTree::FindMergeCandidate(*tree, index)), row.candidate);
        EXPECT_EQ(index, row.index);
    }
}

TEST(FindMergeCandidate, ChecksTheOperandsOfANesting) {
    const auto tree = TreeFromDump("(> _ (+ a b))");
    unsigned index = 0;
    EXPECT_DEATH(ParseTree::FindMergeCandidate(*tree, index), HasSubstr("root.GetChild(i) != 0"));
}

struct MergeRow {
    const char* before;
    unsigned index;
    const char* after;
};

TEST(MergePlusNode, DistributesTheOperandBesideTheStacking) {
    const std::vector<MergeRow> rows{
        {"(> (+ a b) c)", 0, "(+ (> a c) (> b c))"},
        {"(> a (+ b c))", 1, "(+ (> a b) (> a c))"},
        {"(> a (+ b c d))", 1, "(+ (> a b) (> a c) (> a d))"},
        {"(> (+ a b) (+ c d))", 0, "(+ (> a (+ c d)) (> b (+ c d)))"},
        {"(> (+ a b) (+ c d))", 1, "(+ (> (+ a b) c) (> (+ a b) d))"},
        {"(> a (+ b c) d)", 1, "(> (+ (> a b) (> a c)) d)"},
        {"(> (+ a b) c d)", 0, "(> (+ (> a c) (> b c)) d)"},
        {"(> a b (+ c d))", 2, "(> a (+ (> b c) (> b d)))"},
        {"(> a (+ (> b c) d))", 1, "(+ (> a b c) (> a d))"},
        {"(> a (+ (> b c) d) e)", 1, "(> (+ (> a b c) (> a d)) e)"},
        {"(> (+ (> a b) c) d)", 0, "(+ (> a b d) (> c d))"},
    };
    for (const MergeRow& row : rows) {
        SCOPED_TRACE(row.before);
        const auto tree = TreeFromDump(row.before);
        ParseTree::MergePlusNode(*tree, row.index);
        EXPECT_EQ(DumpTree(tree.get()), row.after);
    }
}

void ExpectMergeDeath(const char* expression, unsigned index, const char* condition) {
    SCOPED_TRACE(expression);
    const auto tree = TreeFromDump(expression);
    EXPECT_DEATH(ParseTree::MergePlusNode(*tree, index), HasSubstr(condition));
}

TEST(MergePlusNode, ChecksTheStackingAndItsPartner) {
    ExpectMergeDeath("(> a (+ b c))", 2, "subtree.GetChildCount() > reduceIndex");
    ExpectMergeDeath("(> a _)", 1, "subtree.GetChild(reduceIndex) != 0");
    ExpectMergeDeath("(> a (> b c))", 1, "GetNodeType() == SP_PLUS");
    ExpectMergeDeath("(> (+ a b))", 0, "pFirstPlusNodeSibling");
}

std::string Product(const std::string& dump) {
    return DumpTree(ParseTree::MultiplyOut(TreeFromDump(dump).get()).get());
}

TEST(MultiplyOut, TwoSumsGiveTheFourProducts) {
    EXPECT_EQ(Product("(> (+ a b) (+ c d))"), "(+ (> a c) (> a d) (> b c) (> b d))");
}

TEST(MultipliedOutSize, CountsTheVariablesOfTheProduct) {
    struct Row {
        const char* expression;
        double size;
    };
    for (const Row& row : {Row{"a", 1}, Row{"(+ a b)", 2}, Row{"(> a b)", 2},
                           Row{"(> (+ a b) (+ c d))", 8}, Row{"(> (+ a b) c (+ d e f))", 18},
                           Row{"(+ (> (+ a b) c) d)", 5}, Row{"(> a (+ b (> c (+ d e))))", 8}}) {
        SCOPED_TRACE(row.expression);
        EXPECT_EQ(row.size, ParseTree::MultipliedOutSize(*TreeFromDump(row.expression)));
    }
}

TEST(MultiplyOut, VariableAloneIsCopied) {
    const auto variable = TreeFromDump("a");
    const auto copy = ParseTree::MultiplyOut(variable.get());
    EXPECT_EQ(DumpTree(copy.get()), "a");
    EXPECT_NE(copy.get(), variable.get());
}

TEST(MultiplyOut, NothingGivesNothing) {
    EXPECT_EQ(ParseTree::MultiplyOut(nullptr), nullptr);
}

TEST(MultiplyOut, LeavesNoStackingInsideANesting) {
    const std::vector<TreeRow> rows{
        {"(+ a b)", "(+ a b)"},
        {"(> a b c)", "(> a b c)"},
        {"(+ x (> (+ a b) c) y)", "(+ x (> a c) (> b c) y)"},
        {"(> a (+ b c) d)", "(+ (> a b d) (> a c d))"},
        {"(> (+ a (> b (+ c d))) e)", "(+ (> a e) (> b c e) (> b d e))"},
        {"(> a (+ b (> c (+ d e)) f))", "(+ (> a b) (> a c d) (> a c e) (> a f))"},
        {"(> (+ a b) (+ c d) (+ e f))",
         "(+ (> a c e) (> a c f) (> a d e) (> a d f) (> b c e) (> b c f) (> b d e) (> b d f))"},
    };
    for (const TreeRow& row : rows) {
        SCOPED_TRACE(row.before);
        EXPECT_EQ(Product(row.before), row.after);
    }
}

TEST(MultiplyOut, LeavesItsArgumentAsItIs) {
    const std::string dump = "(> (+ a b) (+ c d))";
    const auto tree = TreeFromDump(dump);
    ParseTree::MultiplyOut(tree.get());
    EXPECT_EQ(DumpTree(tree.get()), dump);
}

TEST(MultiplyOutInPlace, KeepsThePlaceInTheTree) {
    const auto tree = TreeFromDump("(TABLE (> (+ a b) c) (> d (+ e f)))");
    ASSERT_EQ(tree->GetChildCount(), 2U);
    const TbTrParseNode* const rows = tree->GetChild(0);
    ParseTree::MultiplyOutInPlace(*tree->GetChild(0));
    EXPECT_EQ(DumpTree(tree.get()), "(TABLE (+ (> a c) (> b c)) (> d (+ e f)))");
    EXPECT_EQ(tree->GetChild(0), rows);
    EXPECT_EQ(rows->GetParent(), tree.get());
}

TEST(MultiplyOut, CopiesTheMarksOfVariables) {
    const auto tree = TreeFromDump("(> a (+ b c))");
    TbTrParseNode* const mark = TreeFromDump("t").release();
    mark->SetNodeType(TBI_FTOTALVAR);
    tree->GetChild(0)->SetChild(1, mark);
    EXPECT_EQ(DumpTree(ParseTree::MultiplyOut(tree.get()).get()),
              "(+ (> a{_ (FTOTALVAR t _ _)} b) (> a{_ (FTOTALVAR t _ _)} c))");
}

struct PseudoRow {
    const char* before;
    bool statistics;
    int dimension;
    const char* after;
};

void ExpectPseudoVariables(const std::vector<PseudoRow>& rows) {
    for (const PseudoRow& row : rows) {
        SCOPED_TRACE(row.before);
        const auto table = TreeFromDump(row.before);
        EXPECT_EQ(ParseTree::RemovePseudoVariables(*table, row.statistics), row.dimension);
        EXPECT_EQ(DumpTree(table.get()), row.after);
    }
}

TEST(RemovePseudoVariables, WholeColumnDimensionIsRemoved) {
    ExpectPseudoVariables({{"(TABLE a (STATISTICS))", true, 2, "(TABLE a _)"}});
}

TEST(RemovePseudoVariables, SeveralDimensionsGiveFour) {
    ExpectPseudoVariables({
        {"(TABLE (+ a (STATISTICS)) b (> c (STATISTICS)))", true, 4, "(TABLE a b c)"},
        {"(TABLE (> a (LABELS)) (LABELS))", false, 4, "(TABLE a _)"},
        {"(TABLE (LABELS) (LABELS) (LABELS))", false, 4, "(TABLE _ _ _)"},
    });
}

TEST(RemovePseudoVariables, DimensionIsThatOfThePseudoVariable) {
    ExpectPseudoVariables({
        {"(TABLE a)", true, 0, "(TABLE a)"},
        {"(TABLE a (LABELS))", true, 0, "(TABLE a (LABELS))"},
        {"(TABLE a (STATISTICS))", false, 0, "(TABLE a (STATISTICS))"},
        {"(TABLE (STATISTICS))", true, 1, "(TABLE _)"},
        {"(TABLE (> (STATISTICS) a))", true, 1, "(TABLE a)"},
        {"(TABLE a b (> (+ c (STATISTICS)) d))", true, 3, "(TABLE a b (> c d))"},
        {"(TABLE (+ a (LABELS) b) c)", false, 1, "(TABLE (+ a b) c)"},
        {"(TABLE _ (LABELS) _)", false, 2, "(TABLE _ _ _)"},
    });
}

TEST(RemovePseudoVariables, SeveralInOneDimensionCountAsOne) {
    ExpectPseudoVariables({
        {"(TABLE b (+ (STATISTICS) a (STATISTICS)))", true, 2, "(TABLE b a)"},
        {"(TABLE (+ (LABELS) (LABELS)))", false, 1, "(TABLE _)"},
    });
}

TEST(RemovePseudoVariables, OnlyATableHasDimensions) {
    ExpectPseudoVariables({{"(+ a (STATISTICS))", true, 0, "(+ a (STATISTICS))"}});
}

TEST(RemovePseudoVariables, ChecksTheNumberOfDimensions) {
    for (const char* dump : {"(TABLE)", "(TABLE a b c d)"}) {
        const auto table = TreeFromDump(dump);
        EXPECT_DEATH(ParseTree::RemovePseudoVariables(*table, true),
                     HasSubstr("0 < nDim && nDim <= 3"));
    }
}

/// The variable `name` in a tree.
TbTrParseNode* FindVariable(TbTrParseNode* node, const std::string& name) {
    if (node == nullptr || DumpTree(node) == name) {
        return node;
    }
    for (unsigned i = 0; i < node->GetChildCount(); ++i) {
        if (TbTrParseNode* found = FindVariable(node->GetChild(i), name)) {
            return found;
        }
    }
    return nullptr;
}

struct RemovalRow {
    const char* before;
    const char* variable;
    const char* after;
};

void ExpectRemovals(const std::vector<RemovalRow>& rows) {
    for (const RemovalRow& row : rows) {
        SCOPED_TRACE(std::string(row.before) + " less " + row.variable);
        const auto table = TreeFromDump(row.before);
        EXPECT_TRUE(ParseTree::RemoveTableExpressionNode(FindVariable(table.get(), row.variable)));
        EXPECT_EQ(DumpTree(table.get()), row.after);
    }
}

TEST(RemoveTableExpressionNode, OperandThatIsLeftTakesThePlaceOfTheOperation) {
    ExpectRemovals({
        {"(TABLE (+ a b))", "b", "(TABLE a)"},
        {"(TABLE (+ a b))", "a", "(TABLE b)"},
        {"(TABLE (> (+ a b) c))", "b", "(TABLE (> a c))"},
        {"(TABLE (> a (+ b c)))", "a", "(TABLE (+ b c))"},
        {"(TABLE x (+ (> a b) c))", "c", "(TABLE x (> a b))"},
    });
}

TEST(RemoveTableExpressionNode, LongerOperationStays) {
    ExpectRemovals({
        {"(TABLE (+ a b c))", "b", "(TABLE (+ a c))"},
        {"(TABLE (> a b c))", "c", "(TABLE (> a b))"},
    });
}

TEST(RemoveTableExpressionNode, WholeDimensionBecomesEmpty) {
    ExpectRemovals({{"(TABLE a b c)", "b", "(TABLE a _ c)"}, {"(TABLE a)", "a", "(TABLE _)"}});
}

TEST(RemoveTableExpressionNode, DissolvingKeepsTheTreeNormalised) {
    ExpectRemovals({
        {"(TABLE (+ a (> (+ b c) d) e))", "d", "(TABLE (+ a b c e))"},
        {"(TABLE (> a (+ (> b c) d) e))", "d", "(TABLE (> a b c e))"},
        {"(TABLE (> a (+ (> (+ b f) c) d) e))", "d", "(TABLE (> a (+ b f) c e))"},
    });
}

TEST(RemoveTableExpressionNode, ChecksTheParent) {
    const auto list = TreeFromDump("(LIST a b)");
    EXPECT_DEATH(ParseTree::RemoveTableExpressionNode(list->GetChild(0)),
                 HasSubstr("IsOperator(pParent->GetNodeType())"));
    const auto single = TreeFromDump("(TABLE (+ a))");
    EXPECT_DEATH(ParseTree::RemoveTableExpressionNode(single->GetChild(0)->GetChild(0)),
                 HasSubstr("pParent->GetChildCount() > 1"));
    EXPECT_DEATH(ParseTree::RemoveTableExpressionNode(TreeFromDump("a").get()),
                 HasSubstr("pParent"));
    const auto orphan = TreeFromDump("(+ a b)");
    EXPECT_DEATH(ParseTree::RemoveTableExpressionNode(orphan->GetChild(0)),
                 HasSubstr("grandparent != nullptr"));
}

std::string Leaves(const TbTrParseNode& root) {
    std::string leaves;
    for (const TbTrParseNode* leaf = ParseTree::GetNextVariable(root, nullptr); leaf != nullptr;
         leaf = ParseTree::GetNextVariable(root, leaf)) {
        leaves += (leaves.empty() ? "" : " ") + DumpTree(leaf);
    }
    return leaves;
}

TEST(GetNextVariable, VisitsTheLeavesInOrder) {
    const std::vector<TreeRow> rows{
        {"a", "a"},
        {"(STATISTICS)", "(STATISTICS)"},
        {"(+ a b c)", "a b c"},
        {"(> (+ a (> b c)) (+ (> d e) f) g)", "a b c d e f g"},
        {"(> a (+ b (STATISTICS) c) (LABELS))", "a b (STATISTICS) c (LABELS)"},
    };
    for (const TreeRow& row : rows) {
        SCOPED_TRACE(row.before);
        EXPECT_EQ(Leaves(*TreeFromDump(row.before)), row.after);
    }
}

TEST(GetNextVariable, StaysInsideItsRoot) {
    const auto table = TreeFromDump("(TABLE (+ (> a b) c) d)");
    EXPECT_EQ(Leaves(*table->GetChild(0)), "a b c");
    EXPECT_EQ(Leaves(*table->GetChild(0)->GetChild(0)), "a b");
    EXPECT_EQ(Leaves(*table->GetChild(1)), "d");
}

TEST(GetNextVariable, ChecksOperationsAndParents) {
    const auto bare = TreeFromDump("(+)");
    EXPECT_DEATH(ParseTree::GetNextVariable(*bare, nullptr),
                 HasSubstr("pChild->GetChildCount() > 0"));
    const auto first = TreeFromDump("(+ _ a)");
    EXPECT_DEATH(ParseTree::GetNextVariable(*first, nullptr), HasSubstr("failed: pChild,"));
    const auto second = TreeFromDump("(+ a _)");
    EXPECT_DEATH(ParseTree::GetNextVariable(*second, second->GetChild(0)),
                 HasSubstr("failed: pChild,"));
    const auto table = TreeFromDump("(TABLE a b)");
    EXPECT_DEATH(ParseTree::GetNextVariable(*table->GetChild(1), table->GetChild(0)),
                 HasSubstr("parentType == SP_PLUS || parentType == SP_GREATERTHAN"));
}

} // namespace

} // namespace recastor
