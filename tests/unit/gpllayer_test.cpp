// Aesthetics and labels, which elements share.

#include "tests/unit/gpl_rows.h"

namespace recastor {

TEST(GplAestheticFunctions, PointsShowEachCaseAndSummariesTheirMean) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /COLOR=c TYPE=SCALE /SIZE=e /SCATTER",
             {"point(position(a*b), color.interior(c), size(e))"}},
            {"/X1=a /Y=b /COLOR=c TYPE=SCALE /SIZE=e /LINE STYLE=DOT",
             {"point(position(summary.mean(a*b)), color.interior(summary.mean(c)), "
              "size(summary.mean(e)))"}},
            {"/X1=a TYPE=SCALE /Y=b /COLOR=c TYPE=SCALE /BOX",
             {"schema(position(bin.quantile.letter(a*b)), color.interior(summary.mean(c)))"}},
            {"/X1=a /Y=b /COLOR=c TYPE=SCALE /ERRORBAR",
             {"interval(position(region.confi.mean(a*b, alpha(0.95))), "
              "color.interior(summary.mean(c)), shape.interior(shape.ibeam))",
              "point(position(summary.mean(a*b)), color.interior(summary.mean(c)))"}},
        });
}

TEST(GplAestheticFunctions, CategoriesAreNamed) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /COLOR=c /STYLE=d /SIZE=e TYPE=CATEGORICAL /SCATTER",
             {"point(position(a*b), color.interior(c), shape.interior(d), size(e))"}},
            {"/X1=a /Y=b /COLOR=c /STYLE=d /SIZE=e TYPE=CATEGORICAL /LINE",
             {"line(position(summary.mean(a*b)), color.interior(c), shape.interior(d), "
              "size(e), missing.wings())"}},
            {"/X1=a /Y=b /COLOR=$case /SCATTER", {"point(position(a*b), color.interior(casenum))"}},
        });
}

TEST(GplAestheticFunctions, CountsAreCountedOnEveryElement) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /COLOR=$count /SIZE=$pct /SCATTER",
                     {"point(position(a*b), color.interior(summary.count()), "
                      "size(summary.percent.count()))"}},
                    {"/X1=a /Y=b /COLOR=$pct /SIZE=$count /LINE",
                     {"line(position(summary.mean(a*b)), color.interior(summary.percent.count()), "
                      "size(summary.count()), missing.wings())"}},
                    {"/X1=a /Y=b /COLOR=$pct /SIZE=$count /BAR",
                     {"interval(position(summary.mean(a*b)), "
                      "color.interior(summary.percent.count()))"}},
                });
}

TEST(GplAestheticFunctions, AVariableOfBothKindsIsTakenAsItIsMeant) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /COLOR=b /STYLE=a /SIZE=b /SCATTER",
                     {"point(position(a*b), color.interior(b_c), shape.interior(a_c), size(b))"}},
                });
}

TEST(GplLabels, StandInTheirOrderAndEachOnce) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /BAR LABEL=PCT N VAL INSIDE",
                     {"interval(position(summary.mean(a*b)), label(summary.mean(b)), "
                      "label(summary.count()), label(summary.percent.count()))"}},
                    {"/X1=a /BAR LABEL=VAL N",
                     {"interval(position(summary.count(a)), label(summary.count()))"}},
                    {"/X1=a /BAR LABEL=VAL PCT",
                     {"interval(position(summary.count(a)), label(summary.count()), "
                      "label(summary.percent.count()))"}},
                    {"/X1=a /Y=$pct /BAR LABEL=VAL N PCT",
                     {"interval(position(summary.percent.count(a, base.all(acrossPanels()))), "
                      "label(summary.percent.count()), label(summary.count()))"}},
                    {"/X1=a /BAR LABEL=OUTSIDE", {"interval(position(summary.count(a)))"}},
                });
}

TEST(GplLabels, TheValueIsThatOfTheFunction) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /BAR(PTILE(5)) LABEL=VAL",
                     {"interval(position(summary.percentile(a*b, alpha(0.05))), "
                      "label(summary.percentile(b, alpha(0.05))))"}},
                    {"/X1=a /Y=b /BAR(PLT(5)) LABEL=VAL",
                     {"interval(position(summary.percentTrue(a*t1)), "
                      "label(summary.percentTrue(t1)))"}},
                    {"/X1=a /Y=b TYPE=CATEGORICAL /BAR LABEL=VAL",
                     {"interval(position(summary.mode(a*b)), label(summary.mode(b)))"}},
                    {"/X1=a /Y=b /COLOR=c STACK /NORMALIZE /BAR LABEL=VAL",
                     {"interval.stack(position(summary.percent(summary.mean(a*b), "
                      "base.coordinate(dim(1)))), color.interior(c), label(summary.mean(b)))"}},
                });
}

TEST(GplLabels, OfALineStandOnItsPoints) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /LINE STYLE=DOTLINE LABEL=VAL",
                     {"line(position(summary.mean(a*b)), missing.wings())",
                      "point(position(summary.mean(a*b)), label(summary.mean(b)))"}},
                    {"/X1=a /Y=b /LINE STYLE=DOT LABEL=VAL",
                     {"point(position(summary.mean(a*b)), label(summary.mean(b)))"}},
                    {"/X1=a /Y=b /LINE INTERPOLATE=LJUMP LABEL=VAL",
                     {"line(position(smooth.step(summary.mean(a*b))), label(summary.mean(b)), "
                      "jump(), missing.wings())"}},
                });
}

TEST(GplLabels, OfAnAreaAreItsPointLabels) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /AREA POINTLABEL=N AREALABEL=CAT PCT",
             {"area(position(summary.mean(a*b)), label(summary.count()), missing.wings())"}},
        });
}

} // namespace recastor
