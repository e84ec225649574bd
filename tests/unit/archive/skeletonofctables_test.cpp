#include "archive/picture/skeletonofctables.h"
#include "tests/support/dumpskeleton.h"
#include "tests/support/skeletondifferences.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace recastor {

namespace {

const std::string kStart =
    "CTABLES\n  /MRSETS COUNTDUPLICATES=YES\n  /FORMAT EMPTY=BLANK\n  /TABLE ";
const std::string kCategories = "\n  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE";

TableSkeleton Table(const std::string& line, const std::string& behind) {
    return SkeletonOfCtables(kStart + line + kCategories + behind + ".\n").tables.at(0);
}

std::string Dimensions(const std::string& line, const std::string& behind = "") {
    return DumpDimensions(Table(line, behind + "\n  /SLABELS VISIBLE=NO"));
}

TEST(SkeletonOfCtables, NestingIsMultipliedOutOverStacking) {
    EXPECT_EQ(Dimensions("(a[C]+b[C])>c[C] BY d[C]>(e[C]+f[S])"),
              "a[C]>c[C] + b[C]>c[C] BY d[C]>e[C] + d[C]>f[S]");
}

TEST(SkeletonOfCtables, StatisticsHaveTheirLabelsFormatsAndTotals) {
    EXPECT_EQ(Dimensions("x[S][MEAN,'It''s',F8.2,PTILE 90,TOTALS[COUNT,\"n\"]]>a[C]"),
              "x[S]{MEAN 'It's' F8.2,PTILE 90 | COUNT 'n'}>a[C]");
    EXPECT_EQ(Dimensions("x[S][PTILE 25.,MEAN,F8.,PTILE 75.]"),
              "x[S]{PTILE 25.,MEAN F8.,PTILE 75.}");
}

TEST(SkeletonOfCtables, TotalsStandOnTheVariablesThatShareThem) {
    EXPECT_EQ(Dimensions("a[C] BY b[C]>a[C]",
                         "\n  /CATEGORIES VAR=a b TOTAL=YES POSITION=BEFORE LABEL='All'"),
              "a[C]+before'All' BY b[C]+before'All'>a[C]+before'All'");
}

TEST(SkeletonOfCtables, GroupHasTheLabelOfItsSet) {
    const CommandSkeleton skeleton = SkeletonOfCtables(
        "MRSETS\n  /MCGROUP NAME=$g LABEL='Read'  VARIABLES=p1 p2.\n" + kStart + "$g[RESPONSES]" +
        kCategories + "\n  /SLABELS POSITION=ROW VISIBLE=NO.\n");
    EXPECT_EQ(DumpDimensions(skeleton.tables.at(0)), "$g[G]'Read'{RESPONSES}");
    EXPECT_EQ(skeleton.tables.at(0).statisticsSide, TableSide::kRows);
    EXPECT_FALSE(skeleton.tables.at(0).areStatisticsNamed);
}

TEST(SkeletonOfCtables, WhatStandsBehindTheTableIsRead) {
    const TableSkeleton table = Table(
        "a[C] BY  BY b[C]", "\n  /CLABELS ROW=OPPOSITE\n  /SLABELS POSITION=LAYER"
                            "\n  /CATEGORIES VAR=a ORDER=A KEY=COUNT(b)"
                            "\n  /TITLES TITLE='One'+ 'line' + 'Two' CAPTION='c'\n   CORNER='d'");
    EXPECT_EQ(DumpDimensions(table), "a[C] BY - BY b[C]");
    EXPECT_EQ(table.movedLabels, TableSide::kColumns);
    EXPECT_EQ(table.statisticsSide, TableSide::kLayers);
    EXPECT_TRUE(table.areStatisticsNamed);
    EXPECT_EQ(table.sorts, (std::vector<SkeletonSort>{{"a", true, "COUNT(b)"}}));
    EXPECT_EQ(table.title, (std::vector<std::string>{"Oneline", "Two"}));
    EXPECT_EQ(table.caption, std::vector<std::string>{"c"});
    EXPECT_EQ(table.corner, std::vector<std::string>{"d"});
}

TEST(SkeletonOfCtables, TextOfAnotherFormIsTold) {
    EXPECT_THROW(SkeletonOfCtables("FREQUENCIES a."), std::invalid_argument);
}

TEST(SkeletonOfCtables, ParenthesesBeyondAllUseAreTold) {
    std::string line;
    for (int i = 0; i < 10000; ++i) {
        line += "a[C]>(b[C]+";
    }
    EXPECT_THROW(Dimensions(line + "c[C]" + std::string(10000, ')')), std::invalid_argument);
}

TEST(DifferencesOf, NameTheTableAndThePart) {
    CommandSkeleton one;
    one.tables = {Table("a[C] BY b[C]", "\n  /SLABELS VISIBLE=NO")};
    CommandSkeleton other = one;
    EXPECT_EQ(DifferencesOf(one, other), std::vector<std::string>());
    other.tables.at(0).dimensions.at(1).terms.at(0).at(0).name = "c";
    other.missingText = "-";
    EXPECT_EQ(DifferencesOf(one, other),
              (std::vector<std::string>{"text of missing cells", "table 1: columns"}));
    other.tables.emplace_back();
    EXPECT_EQ(DifferencesOf(one, other),
              (std::vector<std::string>{"text of missing cells", "number of tables"}));
}

} // namespace

} // namespace recastor
