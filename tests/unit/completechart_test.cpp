// The defaults that depend on the rest of the chart.

#include "platform/zelkwigr/completechart.h"
#include "tests/unit/chart_rows.h"

namespace recastor {

namespace {

TEST(CompleteChart, DrawsPointsForTwoAxesWithoutAnElement) {
    ExpectComplete({
        {"/X1=a /Y=b", "x1 a scale; y b scale; scatter"},
        {"/X1=a TYPE=SCALE /Y=b TYPE=SCALE", "x1 a scale; y b scale; scatter"},
        {"/X1=$case /Y=b", "x1 $case{case} cat; y b scale; scatter"},
        {"/X1=a /X2=c /Y=b /COORDINATE=THREE", "x1 a scale; x2 c scale; y b scale; three; scatter"},
    });
}

TEST(CompleteChart, DrawsBarsForOtherAxesWithoutAnElement) {
    ExpectComplete({
        {"/X1=a", "x1 a cat; y $count{count} scale; bar"},
        {"/Y=b", "y b scale; bar mean"},
        {"/X1=a /Y=$count", "x1 a cat; y $count{count} scale; bar"},
        {"/X1=a /Y=$pct", "x1 a cat; y $pct{pct} scale; bar"},
        {"/X1=a TYPE=CATEGORICAL /Y=b", "x1 a cat; y b scale; bar mean"},
        {"/X1=a /Y=b TYPE=CATEGORICAL", "x1 a cat; y b cat; bar mode"},
        {"/X1=a /X2=b /COORDINATE=THREE", "x1 a cat; x2 b cat; y $count{count} scale; three; bar"},
    });
}

TEST(CompleteChart, DrawsNothingWithoutAnAxis) {
    ExpectInvalid({"", "/COLOR=a", "/SUMMARYVAR=a", "/PANEL a", "/TITLE='t'"});
}

TEST(CompleteChart, TakesXForCategoriesBesideElementsOfGroups) {
    for (const char* element : {"BAR", "LINE", "AREA", "BOX", "ERRORBAR"}) {
        const std::string command = std::string("IGRAPH /X1=a /Y=b /") + element;
        EXPECT_EQ(DumpCompleteChart(command).rfind("x1 a cat; y b scale; ", 0), 0U) << command;
        const std::string scale = std::string("IGRAPH /X1=a TYPE=SCALE /Y=b /") + element;
        EXPECT_EQ(DumpCompleteChart(scale).rfind("x1 a scale; y b scale; ", 0), 0U) << scale;
    }
    ExpectComplete({
        {"/X1=a /PIE", "x1 a cat; pie"},
        {"/X1=a /Y=b /SCATTER /LINE", "x1 a cat; y b scale; scatter; line mean"},
    });
}

TEST(CompleteChart, TakesXForAScaleBesideOtherElements) {
    ExpectComplete({
        {"/X1=a /Y=b /SCATTER", "x1 a scale; y b scale; scatter"},
        {"/X1=a /Y=b /FITLINE", "x1 a scale; y b scale; fitline regression total"},
        {"/X1=a /HISTOGRAM", "x1 a scale; y $count{count} scale; histogram"},
    });
}

TEST(CompleteChart, TakesCasesForCategoriesOnEveryAxis) {
    ExpectComplete({
        {"/X1=$case /Y=b /SCATTER", "x1 $case{case} cat; y b scale; scatter"},
        {"/X1=a /Y=$case /SCATTER", "x1 a scale; y $case{case} cat; scatter"},
        {"/X1=a /X2=$case /Y=b /SCATTER /COORDINATE=THREE",
         "x1 a scale; x2 $case{case} cat; y b scale; three; scatter"},
        {"/X1=$case TYPE=SCALE /Y=b /SCATTER", "x1 $case{case} scale; y b scale; scatter"},
    });
}

TEST(CompleteChart, GivesAestheticsTheirTypes) {
    ExpectComplete({
        {"/Y=b /COLOR=c /STYLE=d /SIZE=e /BAR",
         "y b scale; color c cat; style d cat; size e scale; bar mean"},
        {"/Y=b /COLOR=$count /SIZE=$pct /BAR",
         "y b scale; color $count{count} scale; size $pct{pct} scale; bar mean"},
        {"/Y=b /COLOR=$pct /BAR", "y b scale; color $pct{pct} scale; bar mean"},
        {"/Y=b /COLOR=c TYPE=SCALE /SIZE=e TYPE=CATEGORICAL /BAR",
         "y b scale; color c scale; size e cat; bar mean"},
    });
}

TEST(CompleteChart, TakesCasesForCategoriesOfColorAndStyleAndForASize) {
    ExpectComplete({
        {"/Y=b /COLOR=$case /STYLE=$case /SIZE=$case /BAR",
         "y b scale; color $case{case} cat; style $case{case} cat; size $case{case} scale; "
         "bar mean"},
    });
}

TEST(CompleteChart, CountsCasesWhereAMeasureIsMissing) {
    ExpectComplete({
        {"/X1=a /BAR", "x1 a cat; y $count{count} scale; bar"},
        {"/X1=a /LINE", "x1 a cat; y $count{count} scale; line"},
        {"/X1=a /AREA", "x1 a cat; y $count{count} scale; area"},
        {"/X1=a /HISTOGRAM", "x1 a scale; y $count{count} scale; histogram"},
        {"/X1=a /PIE", "x1 a cat; pie"},
        {"/BAR", "y $count{count} scale; bar"},
    });
}

TEST(CompleteChart, SummarisesAMeasureByItsMeanOrMode) {
    ExpectComplete({
        {"/Y=b /BAR /LINE /AREA", "y b scale; bar mean; line mean; area mean"},
        {"/Y=b TYPE=CATEGORICAL /BAR /LINE /AREA", "y b cat; bar mode; line mode; area mode"},
        {"/Y=$case /BAR", "y $case{case} cat; bar mode"},
        {"/Y=b /BAR(SUM) /LINE", "y b scale; bar sum; line mean"},
        {"/Y=$pct /BAR /LINE /AREA", "y $pct{pct} scale; bar; line; area"},
    });
}

TEST(CompleteChart, SummarisesAPieByItsSum) {
    ExpectComplete({
        {"/SUMMARYVAR=a /COLOR=b /PIE", "color b cat; summaryvar a; pie sum"},
        {"/Y=a /COLOR=b /PIE", "y a scale; color b cat; pie sum"},
        {"/Y=$pct /SUMMARYVAR=a /COLOR=b /PIE",
         "y $pct{pct} scale; color b cat; summaryvar a; pie sum"},
        {"/Y=a /SUMMARYVAR=$count /COLOR=b /PIE",
         "y a scale; color b cat; summaryvar $count{count}; pie"},
        {"/Y=$pct /COLOR=b /PIE", "y $pct{pct} scale; color b cat; pie"},
        {"/COLOR=b /PIE", "color b cat; pie"},
        {"/Y=a /COLOR=b /PIE(NGT(5))", "y a scale; color b cat; pie number>5"},
    });
}

TEST(CompleteChart, LeavesACompleteChartAsItIs) {
    ChartModel chart;
    chart.x1.emplace();
    chart.x1->variable.name = "a";
    CompleteChart(chart);
    const std::string once = DumpChart(chart);
    CompleteChart(chart);
    EXPECT_EQ(DumpChart(chart), once);
    EXPECT_EQ(once, "x1 a cat; y $count{count} scale; bar");
}

} // namespace

} // namespace recastor
