#include "tests/unit/gpl_rows.h"

namespace recastor {

TEST(GplCategoryScales, EveryOrderHasItsSort) {
    ExpectLines("SCALE",
                {
                    {"/X1=a /Y=b /BOX /CATORDER a (ASCENDING)", {"cat(dim(1), sort.natural())"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (VALUE)", {"cat(dim(1), sort.natural())"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (LABELS)", {"cat(dim(1), sort.natural())"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (DESCENDING)",
                     {"cat(dim(1), sort.natural(), reverse())"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (COUNT)",
                     {"cat(dim(1), sort.statistic(summary.count()))"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (COUNT DESCENDING)",
                     {"cat(dim(1), sort.statistic(summary.count()), reverse())"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (OCCURRENCE)", {"cat(dim(1), sort.data())"}},
                    {"/X1=a /Y=b /BOX /CATORDER a (OCCURRENCE DESCENDING SHOWEMPTY)",
                     {"cat(dim(1), sort.data(), reverse())"}},
                    {"/X1=a /Y=b /BOX", {}},
                    {"/X1=a /Y=b /BOX /CATORDER b (COUNT) /CATORDER c (COUNT)", {}},
                });
}

TEST(GplCategoryScales, EveryDimensionAndAestheticMayHaveOne) {
    const char* const orders = "/CATORDER e (COUNT) /CATORDER p (VALUE) /CATORDER q (DESCENDING) "
                               "/CATORDER A (OCCURRENCE) /CATORDER d (COUNT) /CATORDER c (VALUE) ";
    const std::string lines[] = {
        "cat(dim(1), sort.data())",
        "cat(dim(3), sort.natural())",
        "cat(dim(4), sort.natural(), reverse())",
        "cat(aesthetic(aesthetic.color.interior), sort.natural())",
        "cat(aesthetic(aesthetic.shape.interior), sort.statistic(summary.count()))",
        "cat(aesthetic(aesthetic.size), sort.statistic(summary.count()))",
    };
    const std::string command = std::string(orders) +
                                "/X1=a TYPE=CATEGORICAL /Y=b /COLOR=c /STYLE=d "
                                "/SIZE=e TYPE=CATEGORICAL /PANEL=p q /SCATTER";
    EXPECT_EQ(GplLinesOf(command, "SCALE"),
              std::vector<std::string>(std::begin(lines), std::end(lines)));
}

TEST(GplCategoryScales, AClusterHasOneOfItsDimensionAndOneOfItsAesthetic) {
    ExpectLines("SCALE",
                {
                    {"/X1=a /Y=b /COLOR=c /PANEL=p /CATORDER c (COUNT) /CATORDER a (VALUE) "
                     "/CATORDER p (OCCURRENCE) /BOX",
                     {"cat(dim(1), sort.statistic(summary.count()))", "cat(dim(3), sort.natural())",
                      "cat(dim(4), sort.data())",
                      "cat(aesthetic(aesthetic.color.interior), sort.statistic(summary.count()))"}},
                    {"/X1=a /Y=b /STYLE=d /CATORDER d (VALUE) /ERRORBAR",
                     {"cat(dim(1), sort.natural())",
                      "cat(aesthetic(aesthetic.texture.pattern.interior), sort.natural())"}},
                });
}

TEST(GplCategoryScales, StyleHasOneOfEachAestheticThatShowsIt) {
    ExpectLines("SCALE", {
                             {"/X1=a /Y=b /STYLE=d /CATORDER d (VALUE) /ERRORBAR /LINE",
                              {"cat(aesthetic(aesthetic.texture.pattern.interior), sort.natural())",
                               "cat(aesthetic(aesthetic.shape.interior), sort.natural())"}},
                             {"/X1=a /Y=b /SIZE=d TYPE=CATEGORICAL /CATORDER d (VALUE) /BOX", {}},
                             {"/X1=a /Y=b /COLOR=d /CATORDER d (VALUE) /FITLINE LINE=MEFFECT", {}},
                         });
}

TEST(GplCategoryScales, ACategoricalYHasAnOrderAndNoEnds) {
    ExpectLines("SCALE",
                {
                    {"/X1=a /Y=b TYPE=CATEGORICAL /BAR /CATORDER b (COUNT)",
                     {"cat(dim(2), sort.statistic(summary.count()))"}},
                    {"/X1=a /Y=b TYPE=CATEGORICAL /BAR BASELINE=5 /SCALERANGE=b MIN=1", {}},
                });
}

TEST(GplCategoryScales, ThreeDimensions) {
    ExpectLines(
        "SCALE",
        {
            {"/X1=a /X2=b /Y=c /COORDINATE=THREE /CATORDER b (COUNT) /CATORDER a (VALUE) /BAR",
             {"cat(dim(1), sort.natural())", "cat(dim(2), sort.statistic(summary.count()))",
              "linear(dim(3), include(0))"}},
        });
}

TEST(GplLinearScales, EndsComeFromScaleRangeElseFromType) {
    ExpectLines(
        "SCALE",
        {
            {"/X1=a TYPE=SCALE (MIN=1 MAX=2.5) /Y=b /SCATTER",
             {"linear(dim(1), min(1), max(2.5))"}},
            {"/X1=a TYPE=SCALE (MIN=-1) /Y=b TYPE=SCALE (MAX=3) /SCATTER",
             {"linear(dim(1), min(-1))", "linear(dim(2), max(3))"}},
            {"/X1=a TYPE=SCALE (MIN=1 MAX=2) /Y=b /SCALERANGE=a MAX=9 /SCATTER",
             {"linear(dim(1), max(9))"}},
            {"/X1=a /Y=b /SCALERANGE=b MIN=0 MAX=1 /SCALERANGE=c MIN=5 /SCATTER",
             {"linear(dim(2), min(0), max(1))"}},
            {"/X1=a /Y=b /COLOR=c TYPE=SCALE (MIN=1 MAX=2) /SIZE=d /SCALERANGE=d MAX=7 /SCATTER",
             {"linear(aesthetic(aesthetic.color.interior), min(1), max(2))",
              "linear(aesthetic(aesthetic.size), max(7))"}},
            {"/X1=a /Y=b /COLOR=$count /SCALERANGE=$count MIN=0 MAX=9 /SCATTER",
             {"linear(aesthetic(aesthetic.color.interior), min(0), max(9))"}},
            {"/X1=a /X2=b /Y=c /SCALERANGE=b MIN=1 /COORDINATE=THREE /SCATTER",
             {"linear(dim(2), min(1))"}},
            {"/X1=a /Y=a /SCALERANGE=A MIN=1 /SCATTER",
             {"linear(dim(1), min(1))", "linear(dim(2), min(1))"}},
        });
}

TEST(GplLinearScales, BarsAreasAndHistogramsIncludeTheirBase) {
    ExpectLines("SCALE", {
                             {"/X1=a /Y=b /BAR", {"linear(dim(2), include(0))"}},
                             {"/X1=a /Y=b /AREA", {"linear(dim(2), include(0))"}},
                             {"/X1=a /HISTOGRAM", {"linear(dim(2), include(0))"}},
                             {"/X1=a /BAR", {"linear(dim(2), include(0))"}},
                             {"/X1=a /Y=b /LINE", {}},
                             {"/X1=a /Y=b /ERRORBAR BASELINE=5", {}},
                             {"/X1=a /Y=b /LINE /BAR", {"linear(dim(2), include(0))"}},
                             {"/X1=a /Y=b /COLOR=c /BAR", {"linear(dim(2), include(0))"}},
                         });
}

TEST(GplLinearScales, ABaselineIsTheOrigin) {
    ExpectLines(
        "SCALE",
        {
            {"/X1=a /Y=b /BAR BASELINE=5", {"linear(dim(2), include(5), origin(5))"}},
            {"/X1=a /Y=b /AREA BASELINE=(-2.5)", {"linear(dim(2), include(-2.5), origin(-2.5))"}},
            {"/X1=a /Y=b /BAR BASELINE=0", {"linear(dim(2), include(0))"}},
            {"/X1=a /Y=b /BAR BASELINE=AUTO", {"linear(dim(2), include(0))"}},
            {"/X1=a /Y=b /BAR BASELINE=AUTO /AREA BASELINE=0 /BAR BASELINE=3 /BAR BASELINE=4",
             {"linear(dim(2), include(3), origin(3))"}},
            {"/X1=a /Y=b /BAR BASELINE=5 /SCALERANGE=b MIN=1 MAX=9",
             {"linear(dim(2), min(1), max(9), origin(5))"}},
            {"/X1=a /Y=b TYPE=SCALE (MAX=9) /BAR BASELINE=5",
             {"linear(dim(2), max(9), origin(5))"}},
            {"/X1=a /Y=b TYPE=SCALE (MAX=9) /BAR", {"linear(dim(2), max(9))"}},
            {"/X1=a /X2=z /Y=b /COORDINATE=THREE /BAR BASELINE=5",
             {"linear(dim(3), include(5), origin(5))"}},
            {"/X1=a /SCALERANGE=$count MAX=9 /HISTOGRAM", {"linear(dim(2), max(9))"}},
        });
}

TEST(GplPieScales, TheCircleIsFull) {
    const std::string full = "linear(dim(1), dataMinimum(), dataMaximum())";
    ExpectLines(
        "SCALE",
        {
            {"/COLOR=c /PIE", {full}},
            {"/COLOR=c /PIE CW", {full}},
            {"/COLOR=c /PIE CCW", {"linear(dim(1), dataMinimum(), dataMaximum(), reverse())"}},
            {"/Y=b TYPE=SCALE (MIN=1) /COLOR=c /SCALERANGE=b MIN=1 /PIE", {full}},
            {"/COLOR=c /PANEL=p q /CATORDER q (COUNT) /CATORDER p (VALUE) /PIE",
             {full, "cat(dim(2), sort.natural())", "cat(dim(3), sort.statistic(summary.count()))"}},
            {"/COLOR=c /CATORDER c (OCCURRENCE) /PIE",
             {full, "cat(aesthetic(aesthetic.color.interior), sort.data())"}},
            {"/X1=a /CATORDER a (OCCURRENCE) /PIE",
             {full, "cat(aesthetic(aesthetic.color.interior), sort.data())"}},
            {"/STYLE=d /CATORDER d (VALUE) /PIE",
             {full, "cat(aesthetic(aesthetic.texture.pattern.interior), sort.natural())"}},
        });
}

} // namespace recastor
