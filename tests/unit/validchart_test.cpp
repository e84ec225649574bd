// Which charts are valid: each rule with what it allows and what it does not.

#include "tests/unit/chart_rows.h"

namespace recastor {

namespace {

TEST(ValidChart, DrawsSomething) {
    ExpectValid({"/X1=a", "/Y=a", "/BAR", "/X1=a /X2=b /COORDINATE=THREE"});
    ExpectInvalid({"", "/COLOR=a", "/COORDINATE=HORIZONTAL"});
}

TEST(ValidChart, HasMinimumsBelowMaximums) {
    ExpectValid({"/X1=a TYPE=SCALE (MIN=1 MAX=2) /Y=b", "/Y=a TYPE=SCALE (MIN=-2 MAX=-1)",
                 "/Y=a /SCALERANGE a MIN=0 MAX=0.1", "/Y=a TYPE=SCALE (MIN=5)",
                 "/Y=a /SCALERANGE a MAX=-5", "/Y=a TYPE=SCALE (MIN=5) /SCALERANGE a MAX=1"});
    ExpectInvalid({"/X1=a TYPE=SCALE (MIN=1 MAX=1) /Y=b", "/Y=a TYPE=SCALE (MIN=2 MAX=1)",
                   "/X1=a /X2=b TYPE=SCALE (MIN=2 MAX=1) /Y=c /COORDINATE=THREE",
                   "/Y=a /COLOR=b TYPE=SCALE (MIN=2 MAX=1)",
                   "/Y=a /SIZE=b TYPE=SCALE (MIN=2 MAX=1)", "/Y=a /SCALERANGE a MIN=5 MAX=5",
                   "/Y=a /SCALERANGE z MIN=6 MAX=5"});
}

TEST(ValidChart, CountsOnMeasuresColorsAndSizesOnly) {
    ExpectValid({"/X1=a /Y=$count", "/X1=a /Y=$pct /BAR", "/Y=a /COLOR=$count", "/Y=a /SIZE=$pct",
                 "/SUMMARYVAR=$count /COLOR=a /PIE", "/Y=a /SCALERANGE $count MIN=0",
                 "/X1=a /REFLINE $count 5", "/X1=a /Y=b /POINTLABEL $count NONE",
                 "/X1=a /Y=b /POINTLABEL c $count"});
    ExpectInvalid({"/X1=$count /Y=a", "/X1=$pct /Y=a /BAR",
                   "/X1=a /X2=$count /Y=b /COORDINATE=THREE", "/Y=a /STYLE=$count",
                   "/Y=a /STYLE=$pct", "/Y=a /PANEL b $count", "/Y=a /PANEL $pct",
                   "/X1=a /Y=b /POINTLABEL $count", "/Y=a /CASELABEL $pct /BOX",
                   "/Y=a /CATORDER $count (DESCENDING)", "/Y=a /CATORDER $pct (LABEL)"});
}

TEST(ValidChart, HasNoCategoriesOfCounts) {
    ExpectValid({"/X1=a /Y=$count TYPE=SCALE", "/Y=a /COLOR=$pct TYPE=SCALE"});
    ExpectInvalid({"/X1=a /Y=$count TYPE=CATEGORICAL", "/X1=a /Y=$pct TYPE=CATEGORICAL",
                   "/Y=a /COLOR=$count TYPE=CATEGORICAL", "/Y=a /SIZE=$pct TYPE=CATEGORICAL"});
}

TEST(ValidChart, HasAnyPlaceForCases) {
    ExpectValid({"/X1=$case /Y=a", "/Y=a /STYLE=$case", "/Y=a /PANEL $case",
                 "/X1=a /Y=b /POINTLABEL $case", "/Y=a /CASELABEL $case /BOX",
                 "/Y=a /CATORDER $case (DESCENDING)", "/Y=a /COLOR=$case TYPE=CATEGORICAL"});
}

TEST(ValidChart, HasStylesOfCategories) {
    ExpectValid({"/Y=a /STYLE=b", "/Y=a /STYLE=b TYPE=CATEGORICAL"});
    ExpectInvalid({"/Y=a /STYLE=b TYPE=SCALE"});
}

TEST(ValidChart, HasThreeAxesInThreeDimensionsAndNowhereElse) {
    ExpectValid({"/X1=a /X2=b /Y=c /COORDINATE=THREE", "/X1=a /X2=b /COORDINATE=THREE /BAR"});
    ExpectInvalid({"/X1=a /Y=b /COORDINATE=THREE", "/X1=a /X2=b /Y=c",
                   "/X1=a /X2=b /Y=c /COORDINATE=HORIZONTAL", "/X2=a"});
}

TEST(ValidChart, DrawsPointsAndFitLinesForTwoAxes) {
    ExpectValid({"/X1=a /Y=b /SCATTER", "/X1=a /Y=b /FITLINE", "/X1=a /Y=b /FITLINE /SCATTER",
                 "/X1=a TYPE=CATEGORICAL /Y=b TYPE=CATEGORICAL /SCATTER"});
    ExpectInvalid({"/X1=a /SCATTER", "/Y=b /SCATTER", "/X1=a /Y=$count /SCATTER",
                   "/X1=a /Y=$pct /SCATTER", "/SCATTER", "/X1=a /FITLINE", "/Y=b /FITLINE",
                   "/X1=a /Y=$count /FITLINE", "/X1=a /SCATTER /BAR"});
}

TEST(ValidChart, FitsLinesToScales) {
    ExpectValid({"/X1=a TYPE=SCALE /Y=b TYPE=SCALE /FITLINE"});
    ExpectInvalid({"/X1=a TYPE=CATEGORICAL /Y=b /FITLINE", "/X1=a /Y=b TYPE=CATEGORICAL /FITLINE",
                   "/X1=a /Y=b /FITLINE /BAR", "/X1=$case /Y=b /FITLINE"});
}

TEST(ValidChart, HasHistogramsOfOneScale) {
    ExpectValid({"/X1=a /HISTOGRAM", "/X1=a /Y=$count /HISTOGRAM", "/X1=a /Y=$pct /HISTOGRAM"});
    ExpectInvalid({"/HISTOGRAM", "/Y=$count /HISTOGRAM", "/X1=a TYPE=CATEGORICAL /HISTOGRAM",
                   "/X1=a /Y=b /HISTOGRAM", "/X1=a /HISTOGRAM /BAR", "/X1=$case /HISTOGRAM",
                   "/X1=a /Y=$case /HISTOGRAM"});
}

TEST(ValidChart, HasBoxesAndErrorBarsOfAScale) {
    ExpectValid({"/Y=a /BOX", "/X1=b /Y=a /ERRORBAR", "/Y=$case TYPE=SCALE /BOX"});
    ExpectInvalid({"/BOX", "/X1=a /BOX", "/Y=$count /BOX", "/Y=a TYPE=CATEGORICAL /BOX",
                   "/ERRORBAR", "/Y=$pct /ERRORBAR", "/Y=a TYPE=CATEGORICAL /ERRORBAR",
                   "/Y=$case /BOX"});
}

TEST(ValidChart, SummarisesVariablesOnly) {
    ExpectValid({"/Y=a /BAR(SUM)", "/Y=a /LINE(PTILE(5))", "/Y=a /AREA(NGT(1))"});
    ExpectInvalid({"/X1=a /BAR(SUM)", "/X1=a /Y=$count /BAR(MEAN)", "/Y=$pct /LINE(SUM)",
                   "/Y=$count /AREA(SUM)", "/COLOR=a /PIE(SUM)", "/Y=$count /COLOR=a /PIE(SUM)",
                   "/Y=b /SUMMARYVAR=$count /COLOR=a /PIE(SUM)", "/Y=$count /BAR /LINE(SUM)"});
}

TEST(ValidChart, SummarisesCategoriesByTheirModeOnly) {
    ExpectValid({"/Y=a TYPE=CATEGORICAL /BAR(MODE)", "/Y=a TYPE=CATEGORICAL /LINE"});
    ExpectInvalid({"/Y=a TYPE=CATEGORICAL /BAR(MEAN)", "/Y=a TYPE=CATEGORICAL /LINE(SUM)",
                   "/Y=a TYPE=CATEGORICAL /AREA(NGT(1))", "/Y=$case /BAR(MEAN)"});
}

TEST(ValidChart, SlicesPiesByCategories) {
    ExpectValid({"/COLOR=a /PIE", "/STYLE=a /PIE", "/X1=a /PIE",
                 "/COLOR=a /STYLE=b /X1=c TYPE=SCALE /PIE", "/STYLE=b /X1=c TYPE=SCALE /PIE"});
    ExpectInvalid({"/PIE", "/Y=a /PIE", "/SUMMARYVAR=a /PIE", "/COLOR=a TYPE=SCALE /PIE",
                   "/COLOR=a TYPE=SCALE /STYLE=b /PIE", "/X1=a TYPE=SCALE /PIE",
                   "/COLOR=$count /PIE", "/SIZE=a /PIE"});
}

TEST(ValidChart, HasPiesOfAScale) {
    ExpectValid({"/Y=a /COLOR=b /PIE", "/SUMMARYVAR=a /Y=c TYPE=CATEGORICAL /COLOR=b /PIE"});
    ExpectInvalid({"/Y=a TYPE=CATEGORICAL /COLOR=b /PIE", "/Y=$case /COLOR=b /PIE",
                   "/Y=a TYPE=CATEGORICAL /COLOR=b /PIE(SUM)"});
}

TEST(ValidChart, HasPiesOfWhatAddsUp) {
    ExpectValid({"/Y=a /COLOR=b /PIE(SUM)", "/Y=a /COLOR=b /PIE(SUMAV)",
                 "/Y=a /COLOR=b /PIE(SUMSQ)", "/Y=a /COLOR=b /PIE(NGT(1))",
                 "/Y=a /COLOR=b /PIE(NGE(1))", "/Y=a /COLOR=b /PIE(NLT(1))",
                 "/Y=a /COLOR=b /PIE(NLE(1))", "/Y=a /COLOR=b /PIE(NEQ(1))",
                 "/Y=a /COLOR=b /PIE(NIN(1 2))"});
    ExpectInvalid({"/Y=a /COLOR=b /PIE(MEAN)",     "/Y=a /COLOR=b /PIE(MEDIAN)",
                   "/Y=a /COLOR=b /PIE(MODE)",     "/Y=a /COLOR=b /PIE(MINIMUM)",
                   "/Y=a /COLOR=b /PIE(MAXIMUM)",  "/Y=a /COLOR=b /PIE(FIRST)",
                   "/Y=a /COLOR=b /PIE(LAST)",     "/Y=a /COLOR=b /PIE(STDDEV)",
                   "/Y=a /COLOR=b /PIE(VARIANCE)", "/Y=a /COLOR=b /PIE(SEMEAN)",
                   "/Y=a /COLOR=b /PIE(KURTOSIS)", "/Y=a /COLOR=b /PIE(SKEWNESS)",
                   "/Y=a /COLOR=b /PIE(SEKURT)",   "/Y=a /COLOR=b /PIE(SESKEW)",
                   "/Y=a /COLOR=b /PIE(PTILE(5))", "/Y=a /COLOR=b /PIE(PGT(1))",
                   "/Y=a /COLOR=b /PIE(PGE(1))",   "/Y=a /COLOR=b /PIE(PLT(1))",
                   "/Y=a /COLOR=b /PIE(PLE(1))",   "/Y=a /COLOR=b /PIE(PEQ(1))",
                   "/Y=a /COLOR=b /PIE(PIN(1 2))"});
}

TEST(ValidChart, AsksEveryElement) {
    ExpectValid({"/X1=a /Y=b /SCATTER /BAR /LINE"});
    ExpectInvalid(
        {"/X1=a /Y=b /SCATTER /BAR /HISTOGRAM", "/X1=a /BAR /BOX", "/X1=a /Y=b /BAR /PIE(MEAN)"});
}

} // namespace

} // namespace recastor
