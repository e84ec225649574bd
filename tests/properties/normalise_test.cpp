// Laws of the algebra of table expressions.

#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/dump.h"
#include "tests/support/generators/tablescommand.h"
#include "tests/support/law.h"

#include <memory>
#include <sstream>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

constexpr int kCases = 500;

rc::Gen<Expression> AnyExpression() {
    return ExpressionsOver({"a", "b", "c", "d", "e", "f"}, 4);
}

TbTrParseNode::NodePtr TreeOf(const Expression& expression) {
    return TreeFromDump(ExpressionDump(expression));
}

TEST(NormaliseLaws, NormalizeMakesOneListOfEachRunOfAnOperation) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Expression expression = *AnyExpression();
            const auto tree = TreeOf(expression);
            ParseTree::Normalize(*tree);
            RC_ASSERT(DumpTree(tree.get()) == ExpressionDump(Flattened(expression)));
        },
        kCases));
}

TEST(NormaliseLaws, NormalizeTwiceIsNormalizeOnce) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const auto tree = TreeOf(*AnyExpression());
            ParseTree::Normalize(*tree);
            const std::string once = DumpTree(tree.get());
            ParseTree::Normalize(*tree);
            RC_ASSERT(DumpTree(tree.get()) == once);
        },
        kCases));
}

TEST(NormaliseLaws, MultiplyOutIsTheTextbookProduct) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Expression expression = Flattened(*AnyExpression());
            const auto tree = TreeOf(expression);
            const auto product = ParseTree::MultiplyOut(tree.get());
            RC_ASSERT(DumpTree(product.get()) == ExpressionDump(MultipliedOut(expression)));
            RC_ASSERT(DumpTree(tree.get()) == ExpressionDump(expression));
        },
        kCases));
}

TEST(NormaliseLaws, BasesAreFoundInAProductThatIsNotMade) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const auto tree = TreeOf(Flattened(*AnyExpression()));
            const auto bases = TreeFromDump(*rc::gen::element("(VARLIST a)", "(VARLIST b c)"));
            const auto product = ParseTree::MultiplyOut(tree.get());
            ExpandedDimensions dimensions;
            dimensions.SetDimension(0, *tree);
            const int flag = ParseTree::CheckBaseListInDimension(*product, *bases);
            RC_TAG(flag);
            RC_ASSERT(dimensions.FlagOf(0, *bases) == flag);
        },
        kCases));
}

TEST(NormaliseLaws, MultiplyOutTwiceIsMultiplyOutOnce) {
    EXPECT_TRUE(HoldsAlways([] {
        const auto tree = TreeOf(Flattened(*AnyExpression()));
        const auto once = ParseTree::MultiplyOut(tree.get());
        const auto twice = ParseTree::MultiplyOut(once.get());
        RC_ASSERT(DumpTree(twice.get()) == DumpTree(once.get()));
    }));
}

TEST(NormaliseLaws, TheSizeOfAProductIsKnownBeforeItIsMade) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Expression expression = *AnyExpression();
            std::size_t variables = 0;
            for (const Strings& term : TermsOf(expression)) {
                variables += term.size();
            }
            RC_ASSERT(ParseTree::MultipliedOutSize(*TreeOf(expression)) ==
                      static_cast<double>(variables));
        },
        kCases));
}

TEST(NormaliseLaws, GetNextVariableWalksTheLeavesInTheirOrder) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const Expression expression = *AnyExpression();
            const auto tree = TreeOf(expression);
            Strings names;
            for (const auto* leaf = ParseTree::GetNextVariable(*tree, nullptr); leaf != nullptr;
                 leaf = ParseTree::GetNextVariable(*tree, leaf)) {
                names.push_back(leaf->GetToken()->AsString(true));
            }
            RC_ASSERT(names == NamesIn(expression));
        },
        kCases));
}

std::string Printed(const TbTrParseNode& node) {
    std::ostringstream out;
    node.Print(out, 0);
    return out.str();
}

TEST(NormaliseLaws, CloneIsEqualAndAlone) {
    const rc::Gen<TablesModel> commands = TablesCommands();
    EXPECT_TRUE(HoldsAlways([&] {
        const TablesModel model = *commands;
        const TbTrParseNode& command = ParseCommand(CommandText(model));
        const std::string dump = DumpTree(&command);
        const std::string print = Printed(command);
        {
            const std::unique_ptr<TbTrParseNode> clone(command.Clone());
            RC_ASSERT(DumpTree(clone.get()) == dump);
            RC_ASSERT(Printed(*clone) == print);
            RC_ASSERT(clone->GetParent() == nullptr);
            clone->RemoveChild(clone->GetChildCount() - 1);
        }
        RC_ASSERT(DumpTree(&command) == dump);
    }));
}

} // namespace

} // namespace recastor
