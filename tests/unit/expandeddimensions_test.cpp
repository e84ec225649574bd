#include "ctables/recastor/expandeddimensions.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// What is answered for the expression when `bases` are the base variables.
int Flag(const char* expression, const char* bases) {
    const auto dimension = TreeFromDump(expression);
    const auto list = TreeFromDump(bases);
    ExpandedDimensions dimensions;
    dimensions.SetDimension(1, *dimension);
    return dimensions.FlagOf(1, *list);
}

TEST(ExpandedDimensions, AnswerAsTheMultipliedOutDimensionDoes) {
    struct Row {
        const char* expression;
        int flag;
    };
    for (const Row& row : {
             Row{"a", 1},
             Row{"x", 0},
             Row{"(+ a b)", 1},
             Row{"(+ x y)", 0},
             Row{"(+ a x)", -1},
             Row{"(> a x)", 1},
             Row{"(> x y)", 0},
             Row{"(> x (+ a y))", -1},
             Row{"(> x (+ a b))", 1},
             Row{"(> a (+ x y))", 1},
             Row{"(+ (> (+ x y) (+ a b)) a)", 1},
             Row{"(+ (> (+ x y) (+ a b)) x)", -1},
             Row{"(> (+ a x) (+ b y))", -1},
         }) {
        SCOPED_TRACE(row.expression);
        EXPECT_EQ(Flag(row.expression, "(VARLIST a b)"), row.flag);
    }
}

TEST(ExpandedDimensions, AnswerForEachDimensionAndListEachTime) {
    const auto rows = TreeFromDump("(+ a b)");
    const auto layers = TreeFromDump("c");
    const auto list = TreeFromDump("(VARLIST b)");
    const auto other = TreeFromDump("(VARLIST c)");
    ExpandedDimensions dimensions;
    dimensions.SetDimension(0, *rows);
    dimensions.SetDimension(2, *layers);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(dimensions.FlagOf(0, *list), -1);
        EXPECT_EQ(dimensions.FlagOf(2, *list), 0);
        EXPECT_EQ(dimensions.FlagOf(0, *other), 0);
        EXPECT_EQ(dimensions.FlagOf(2, *other), 1);
    }
}

TEST(ExpandedDimensions, KnowWhichDimensionsThereAre) {
    const auto rows = TreeFromDump("a");
    ExpandedDimensions dimensions;
    dimensions.SetDimension(0, *rows);
    EXPECT_TRUE(dimensions.HasDimension(0));
    EXPECT_FALSE(dimensions.HasDimension(1));
    EXPECT_FALSE(dimensions.HasDimension(2));
    EXPECT_EQ(dimensions.GetChildCount(), 3U);
}

TEST(ExpandedDimensions, AreKnownAmongNodes) {
    const ExpandedDimensions dimensions;
    const TbTrParseNode& node = dimensions;
    EXPECT_EQ(node.AsExpandedDimensions(), &dimensions);
    EXPECT_EQ(node.AsCommandNode(), nullptr);
    EXPECT_EQ(TbTrParseNode(TBI_GENERICLIST, nullptr).AsExpandedDimensions(), nullptr);
}

} // namespace

} // namespace recastor
