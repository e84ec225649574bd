#include "archive/picture/skeletonoftree.h"
#include "tests/support/commandtree.h"
#include "tests/support/dumpskeleton.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string Dimensions(const std::string& subcommands) {
    return DumpDimensions(SkeletonOfTree(ParseCommand("TABLES " + subcommands)).tables.at(0));
}

TableSkeleton Table(const std::string& subcommands) {
    return SkeletonOfTree(ParseCommand("TABLES " + subcommands)).tables.at(0);
}

TEST(SkeletonOfTree, NestingIsMultipliedOutOverStacking) {
    EXPECT_EQ(Dimensions("/TABLE (a + b) > c BY d > (e + f)"),
              "a[C]>c[C] + b[C]>c[C] BY d[C]>e[C] + d[C]>f[C]");
}

TEST(SkeletonOfTree, PseudoVariablesLeaveTheirDimension) {
    EXPECT_EQ(Dimensions("/TABLE (LABELS) > a BY (STATISTICS) BY b"), "a[C] BY - BY b[C]");
    EXPECT_EQ(Table("/TABLE (LABELS) > a BY (STATISTICS)").statisticsSide, TableSide::kColumns);
    EXPECT_EQ(Table("/TABLE (LABELS) > a BY (STATISTICS)").movedLabels, TableSide::kRows);
}

TEST(SkeletonOfTree, PseudoVariableInSeveralDimensionsStandsInNone) {
    EXPECT_EQ(Table("/TABLE (STATISTICS) > a BY b > (STATISTICS) > (STATISTICS)").statisticsSide,
              std::nullopt);
}

TEST(SkeletonOfTree, NamesOfStatisticsStandWhereTheyAreUnlessNoneAreAskedFor) {
    EXPECT_EQ(Table("/TABLE a BY b /STATISTICS COUNT").statisticsSide, TableSide::kColumns);
    EXPECT_TRUE(Table("/TABLE a BY b /STATISTICS COUNT").areStatisticsNamed);
    EXPECT_EQ(Table("/TABLE a BY b").statisticsSide, std::nullopt);
    EXPECT_FALSE(Table("/TABLE a BY b").areStatisticsNamed);
}

TEST(SkeletonOfTree, LabelsInLayersStayWhereTheyAre) {
    EXPECT_EQ(Table("/TABLE a BY b BY (LABELS) > c").movedLabels, std::nullopt);
}

TEST(SkeletonOfTree, ScaleVariableHasTheStatisticsOfItsTerm) {
    EXPECT_EQ(Dimensions("/OBSERVATION x /TABLE a > x > b BY c /STATISTICS MEAN('M' (F8.2)) COUNT"),
              "a[C]>x[S]{MEAN 'M' F8.2,COUNT}>b[C] BY c[C]");
}

TEST(SkeletonOfTree, FunctionWithNamesIsForThoseOnly) {
    EXPECT_EQ(Dimensions("/OBSERVATION x y /TABLE x + y /STATISTICS MEAN(y) SUM"),
              "x[S]{SUM} + y[S]{MEAN,SUM}");
}

TEST(SkeletonOfTree, GroupHasADollarAndEightBytesAndItsResponses) {
    EXPECT_EQ(Dimensions("/MRGROUP newspapers 'Read' p1 p2 /TABLE newspapers BY a > newspapers"),
              "$newspap[G]'Read' BY a[C]>$newspap[G]'Read'{RESPONSES}");
}

TEST(SkeletonOfTree, FollowingTotalBelongsToTheVariableBeforeIt) {
    EXPECT_EQ(Dimensions("/FTOTAL t 'All' /TABLE a + b + t BY c /STATISTICS COUNT"),
              "a[C] + b[C]+after'All' BY c[C]{COUNT}");
}

TEST(SkeletonOfTree, PrecedingTotalBelongsToTheOutermostVariableBehindIt) {
    EXPECT_EQ(Dimensions("/PTOTAL t /TABLE a BY t + b > c /STATISTICS COUNT"),
              "a[C] BY b[C]+before'T'>c[C]{COUNT | COUNT}");
}

TEST(SkeletonOfTree, FollowingTotalWinsOverAPrecedingOne) {
    EXPECT_EQ(Dimensions("/PTOTAL p 'P' /FTOTAL f 'F' /TABLE p + a + f"), "a[C]+after'F'");
}

TEST(SkeletonOfTree, TotalBesideAScaleVariableBelongsToWhatThatNests) {
    EXPECT_EQ(Dimensions("/OBSERVATION x /FTOTAL t 'T' /TABLE x > (a + b) + t /STATISTICS MEAN"),
              "x[S]{MEAN | MEAN}>a[C]+after'T' + x[S]{MEAN | MEAN}>b[C]+after'T'");
}

TEST(SkeletonOfTree, TotalIsOneOfAllPlacesButItsStatisticsAreOfItsOwn) {
    EXPECT_EQ(Dimensions("/FTOTAL t 'T' /TABLE b BY a + t + b > a /STATISTICS COUNT"),
              "b[C] BY a[C]+after'T'{COUNT | COUNT} + b[C]>a[C]+after'T'{COUNT}");
}

TEST(SkeletonOfTree, PercentageHasTheSideOfItsBaseVariables) {
    EXPECT_EQ(Dimensions("/TABLE a BY b /STATISTICS CPCT('r':a) CPCT('c':b) CPCT('t':a b) CPCT"),
              "a[C] BY b[C]{ROWPCT.VALIDN 'r',COLPCT.VALIDN 'c',"
              "TABLEPCT.VALIDN 't',TABLEPCT.VALIDN}");
}

TEST(SkeletonOfTree, PercentageOfAMixedStackingHasSeveralBases) {
    EXPECT_EQ(Dimensions("/TABLE a + c BY b /STATISTICS CPCT('p':a)"),
              "a[C] + c[C] BY b[C]{ROWPCT.VALIDN 'p',LAYERPCT.VALIDN 'p'}");
}

TEST(SkeletonOfTree, WordOfTheBaseFollowsTheSettings) {
    EXPECT_EQ(Dimensions("/BASE ALL /TABLE a /STATISTICS U CPCT"), "a[C]{UTABLEPCT.TOTALN}");
}

TEST(SkeletonOfTree, SortKeyOutsideTheStatisticsNamesWhatIsCounted) {
    const auto sorts = Table("/TABLE a BY b /STATISTICS COUNT /SORT=ASCENDING a b(CPCT)").sorts;
    EXPECT_EQ(sorts, (std::vector<SkeletonSort>{{"a", true, "COUNT(b)"}, {"b", true, "COUNT"}}));
}

TEST(SkeletonOfTree, HeadingsAreThoseOfTheLastSubcommands) {
    const TableSkeleton table = Table("/TABLE a /TITLE 'x' /TITLE 'It''s' \"b\" /CORNER 'c'");
    EXPECT_EQ(table.title, (std::vector<std::string>{"It's", "b"}));
    EXPECT_EQ(table.corner, std::vector<std::string>{"c"});
    EXPECT_EQ(table.caption, std::vector<std::string>());
}

TEST(SkeletonOfTree, AutomaticTitleStandsWhereNoneIsGiven) {
    EXPECT_EQ(Table("/AUTOLABEL ON /TABLE a").title, std::vector<std::string>{")TABLE"});
    EXPECT_EQ(Table("/AUTOLABEL ON /TABLE a /TITLE").title, std::vector<std::string>());
}

TEST(SkeletonOfTree, LastFormatCounts) {
    const CommandSkeleton skeleton = SkeletonOfTree(
        ParseCommand("TABLES /FORMAT ZERO MISSING('x') /FORMAT BLANK MISSING('y') /TABLE a"));
    EXPECT_FALSE(skeleton.areEmptyCellsZero);
    EXPECT_EQ(skeleton.missingText, "y");
}

TEST(SkeletonOfTree, TableOfNothingHasNoDimensionsAndNoHeadings) {
    const TableSkeleton table = Table("/FTOTAL t /TABLE t /TITLE 'x'");
    EXPECT_EQ(table, TableSkeleton());
}

TEST(SkeletonOfTree, DimensionBeyondLookingAtIsNotKept) {
    std::string expression = "(a + b)";
    for (int i = 0; i < 10; ++i) { // 2048 terms of 11 variables
        expression += " > (a + b)";
    }
    EXPECT_EQ(Dimensions("/TABLE " + expression + " BY c /SORT a /STATISTICS COUNT(a)"),
              "... BY c[C]");
    EXPECT_EQ(Table("/TABLE " + expression + " BY c /SORT c").sorts,
              (std::vector<SkeletonSort>{{"c", false, "COUNT"}}));
}

} // namespace

} // namespace recastor
