// One test family for each element; how elements share aesthetics and labels stands in
// gpllayer_test.cpp.

#include "tests/unit/gpl_rows.h"

namespace recastor {

TEST(GplScatter, IsPointsOfTheMeasure) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /SCATTER", {"point(position(a*b))"}},
                    {"/X1=a /Y=b /SCATTERPLOT COINCIDENT=NONE", {"point(position(a*b))"}},
                    {"/X1=a /Y=b /SCATTER COINCIDENT=JITTER (5)", {"point.jitter(position(a*b))"}},
                    {"/X1=a /Y=b /PANEL=p q /SCATTER", {"point(position(a*b*p*q))"}},
                    {"/X1=a /Y=b /POINTLABEL=n m ALL /SCATTER", {"point(position(a*b), label(n))"}},
                    {"/X1=a /Y=b /POINTLABEL=n NONE /SCATTER", {"point(position(a*b))"}},
                    {"/X1=a /X2=c /Y=b /COORDINATE=THREE /SCATTER COINCIDENT=JITTER",
                     {"point.jitter(position(a*c*b))"}},
                });
}

TEST(GplBar, IsAnIntervalOfTheSummary) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /BAR", {"interval(position(summary.mean(a*b)))"}},
                    {"/X1=a /Y=b /BAR(PTILE(25))",
                     {"interval(position(summary.percentile(a*b, alpha(0.25))))"}},
                    {"/X1=a /Y=b TYPE=CATEGORICAL /BAR", {"interval(position(summary.mode(a*b)))"}},
                    {"/X1=a /Y=b /BAR(SUMAV)", {"interval(position(summary.sum(a*t1)))"}},
                    {"/X1=a /BAR", {"interval(position(summary.count(a)))"}},
                    {"/X1=a /Y=$pct /BAR",
                     {"interval(position(summary.percent.count(a, base.all(acrossPanels()))))"}},
                    {"/Y=b /BAR", {"interval(position(summary.mean(1*b)))"}},
                    {"/Y=b /PANEL=p /BAR", {"interval(position(summary.mean(1*b*p)))"}},
                    {"/PANEL=p q /BAR", {"interval(position(summary.count(1*1*p*q)))"}},
                    {"/X1=a /Y=$count /PANEL=p /BAR", {"interval(position(summary.count(a*1*p)))"}},
                });
}

TEST(GplBar, ClustersTakeTheFirstDimension) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /COLOR=c /PANEL=p q /BAR",
             {"interval(position(summary.mean(c*b*a*p*q)), color.interior(c))"}},
            {"/X1=a /COLOR=c /BAR",
             {"interval(position(summary.count(c*1*a)), color.interior(c))"}},
            {"/COLOR=c /BAR", {"interval(position(summary.count(c*1*1)), color.interior(c))"}},
            {"/X1=a /Y=b /STYLE=c /BAR",
             {"interval(position(summary.mean(c*b*a)), texture.pattern.interior(c))"}},
            {"/X1=a /Y=$pct /COLOR=c /PANEL=p /BAR",
             {"interval(position(summary.percent.count(c*1*a*p, base.all(acrossPanels()))), "
              "color.interior(c))"}},
            {"/X1=a /Y=b /COLOR=c STACK /STYLE=d /BAR",
             {"interval.stack(position(summary.mean(d*b*a)), color.interior(c), "
              "texture.pattern.interior(d))"}},
        });
}

TEST(GplBar, StacksStandOnEachOther) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /COLOR=c STACK /BAR(SUM)",
                     {"interval.stack(position(summary.sum(a*b)), color.interior(c))"}},
                    {"/X1=a /Y=b /STYLE=c (STACK) /BAR",
                     {"interval.stack(position(summary.mean(a*b)), texture.pattern.interior(c))"}},
                    {"/X1=a /Y=b /COLOR=c TYPE=SCALE STACK /BAR",
                     {"interval(position(summary.mean(a*b)), color.interior(summary.mean(c)))"}},
                    {"/X1=a /Y=b /COLOR=c STACK /BAR /LINE",
                     {"interval.stack(position(summary.mean(a*b)), color.interior(c))",
                      "line(position(summary.mean(a*b)), color.interior(c), missing.wings())"}},
                });
}

TEST(GplBar, NormalizedStacksArePercentagesOfTheirPlace) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /COLOR=c STACK /NORMALIZE /BAR(SUM)",
             {"interval.stack(position(summary.percent(summary.sum(a*b), "
              "base.coordinate(dim(1)))), "
              "color.interior(c))"}},
            {"/X1=a /Y=$pct /COLOR=c STACK /NORMALIZE /BAR",
             {"interval.stack(position(summary.percent.count(a, base.coordinate(dim(1)))), "
              "color.interior(c))"}},
            {"/X1=a /COLOR=c STACK /PANEL=p q /NORMALIZE /BAR",
             {"interval.stack(position(summary.percent.count(a*1*p*q, "
              "base.coordinate(dim(1,3,4)))), color.interior(c))"}},
            {"/X1=a /Y=b /COLOR=c STACK /STYLE=d /PANEL=p /NORMALIZE /BAR",
             {"interval.stack(position(summary.percent(summary.mean(d*b*a*p), "
              "base.coordinate(dim(1,3,4)))), color.interior(c), texture.pattern.interior(d))"}},
            {"/X1=a /X2=z /Y=b /COORDINATE=THREE /COLOR=c STACK /NORMALIZE /BAR",
             {"interval.stack(position(summary.percent(summary.mean(a*z*b), "
              "base.coordinate(dim(1,2)))), color.interior(c))"}},
            {"/X1=a /Y=b /COLOR=c /NORMALIZE /BAR",
             {"interval(position(summary.mean(c*b*a)), color.interior(c))"}},
        });
}

TEST(GplBar, ThreeDimensions) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /X2=z /COORDINATE=THREE /BAR", {"interval(position(summary.count(a*z)))"}},
            {"/X1=a /X2=z /Y=b /COORDINATE=THREE /BAR",
             {"interval(position(summary.mean(a*z*b)))"}},
            {"/X2=z /Y=b /COORDINATE=THREE /BAR", {"interval(position(summary.mean(1*z*b)))"}},
        });
}

TEST(GplLine, IsALineOrPointsOrBoth) {
    const std::string line = "line(position(summary.mean(a*b)), missing.wings())";
    const std::string point = "point(position(summary.mean(a*b)))";
    ExpectLines("ELEMENT", {
                               {"/X1=a /Y=b /LINE", {line}},
                               {"/X1=a /Y=b /LINE STYLE=LINE", {line}},
                               {"/X1=a /Y=b /LINE STYLE=DOTLINE", {line, point}},
                               {"/X1=a /Y=b /LINE STYLE=DOT", {point}},
                               {"/X1=a /Y=b /LINE STYLE=NONE /LINE", {line}},
                           });
}

TEST(GplLine, EveryInterpolationHasItsFunction) {
    const auto of = [](const std::string& position, const std::string& jump = "") {
        return std::vector<std::string>{"line(position(" + position + ")" + jump +
                                        ", missing.wings())"};
    };
    const std::string s = "summary.count(a)";
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /LINE INTERPOLATE=STRAIGHT", of(s)},
            {"/X1=a /LINE INTERPOLATE=LSTEP", of("smooth.step(" + s + ")")},
            {"/X1=a /LINE INTERPOLATE=CSTEP", of("smooth.step.center(" + s + ")")},
            {"/X1=a /LINE INTERPOLATE=RSTEP", of("smooth.step.end(" + s + ")")},
            {"/X1=a /LINE INTERPOLATE=LJUMP", of("smooth.step(" + s + ")", ", jump()")},
            {"/X1=a /LINE INTERPOLATE=CJUMP", of("smooth.step.center(" + s + ")", ", jump()")},
            {"/X1=a /LINE INTERPOLATE=RJUMP", of("smooth.step.end(" + s + ")", ", jump()")},
            {"/X1=a /LINE INTERPOLATE=SPLINE", of("smooth.spline(" + s + ")")},
            {"/X1=a /LINE INTERPOLATE=LAGRANGE3", of("smooth.spline(" + s + ")")},
            {"/X1=a /LINE INTERPOLATE=LAGRANGE5", of("smooth.spline(" + s + ")")},
        });
}

TEST(GplLine, PointsAreNotInterpolated) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /LINE STYLE=DOTLINE INTERPOLATE=RJUMP BREAK=NONE",
             {"line(position(smooth.step.end(summary.count(a))), jump(), "
              "missing.interpolate())",
              "point(position(summary.count(a)))"}},
            {"/X1=a /LINE STYLE=DOT INTERPOLATE=RJUMP", {"point(position(summary.count(a)))"}},
            {"/X1=a /LINE BREAK=MISSING", {"line(position(summary.count(a)), missing.wings())"}},
        });
}

TEST(GplLine, IsNeitherStackedNorNormalized) {
    ExpectLines("ELEMENT", {{"/X1=a /Y=b /COLOR=c STACK /NORMALIZE /LINE",
                             {"line(position(summary.mean(a*b)), color.interior(c), "
                              "missing.wings())"}}});
}

TEST(GplArea, IsStackedOverCategories) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /AREA", {"area(position(summary.mean(a*b)), missing.wings())"}},
            {"/X1=a /Y=b /COLOR=c /AREA BREAK=NONE",
             {"area.stack(position(summary.mean(a*b)), color.interior(c), missing.interpolate())"}},
            {"/X1=a /Y=b /STYLE=c /AREA",
             {"area.stack(position(summary.mean(a*b)), texture.pattern.interior(c), "
              "missing.wings())"}},
            {"/X1=a /Y=b /COLOR=c TYPE=SCALE /AREA",
             {"area(position(summary.mean(a*b)), color.interior(summary.mean(c)), "
              "missing.wings())"}},
            {"/X1=a /Y=b /SIZE=c TYPE=CATEGORICAL /AREA",
             {"area(position(summary.mean(a*b)), missing.wings())"}},
            {"/X1=a /PANEL=p /AREA", {"area(position(summary.count(a*1*p)), missing.wings())"}},
        });
}

TEST(GplArea, IsInterpolatedAndNormalized) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /AREA INTERPOLATE=CJUMP POINTLABEL=VAL",
             {"area(position(smooth.step.center(summary.mean(a*b))), label(summary.mean(b)), "
              "jump(), "
              "missing.wings())"}},
            {"/X1=a /Y=b /COLOR=c /NORMALIZE /AREA(SUM) INTERPOLATE=SPLINE",
             {"area.stack(position(smooth.spline(summary.percent(summary.sum(a*b), "
              "base.coordinate(dim(1))))), color.interior(c), missing.wings())"}},
            {"/X1=a /COLOR=c /NORMALIZE /AREA",
             {"area.stack(position(summary.percent.count(a, base.coordinate(dim(1)))), "
              "color.interior(c), missing.wings())"}},
            {"/X1=a /Y=b /NORMALIZE /AREA", {"area(position(summary.mean(a*b)), missing.wings())"}},
        });
}

TEST(GplPie, IsAStackOfPercentages) {
    ExpectLines(
        "ELEMENT",
        {
            {"/COLOR=c /PIE",
             {"interval.stack(position(summary.percent(summary.count(1))), color.interior(c))"}},
            {"/Y=$pct /COLOR=c /PIE",
             {"interval.stack(position(summary.percent(summary.count(1))), color.interior(c))"}},
            {"/Y=b /COLOR=c /PIE",
             {"interval.stack(position(summary.percent(summary.sum(b))), color.interior(c))"}},
            {"/Y=b /SUMMARYVAR=m /COLOR=c /PIE",
             {"interval.stack(position(summary.percent(summary.sum(m))), color.interior(c))"}},
            {"/SUMMARYVAR=m /COLOR=c /PIE(SUMSQ)",
             {"interval.stack(position(summary.percent(summary.sum(t1))), color.interior(c))"}},
            {"/SUMMARYVAR=m /STYLE=c /PIE",
             {"interval.stack(position(summary.percent(summary.sum(m))), "
              "texture.pattern.interior(c))"}},
            {"/SUMMARYVAR=m /X1=c /PIE",
             {"interval.stack(position(summary.percent(summary.sum(m))), color.interior(c))"}},
            {"/SUMMARYVAR=m /COLOR=c /STYLE=d /SIZE=e /PIE",
             {"interval.stack(position(summary.percent(summary.sum(m))), color.interior(c), "
              "texture.pattern.interior(d))"}},
        });
}

TEST(GplPie, PanelsAreTheBaseOfPercentages) {
    ExpectLines("ELEMENT", {
                               {"/COLOR=c /PANEL=p /PIE",
                                {"interval.stack(position(summary.percent(summary.count(1*p), "
                                 "base.coordinate(dim(2)))), color.interior(c))"}},
                               {"/Y=b /COLOR=c /PANEL=p q /PIE",
                                {"interval.stack(position(summary.percent(summary.sum(b*p*q), "
                                 "base.coordinate(dim(2,3)))), color.interior(c))"}},
                           });
}

TEST(GplPie, SlicesHaveLabels) {
    ExpectLines(
        "ELEMENT",
        {
            {"/COLOR=c /PIE SLICE=PCT N VAL LABEL",
             {"interval.stack(position(summary.percent(summary.count(1))), color.interior(c), "
              "label(c), label(summary.count()), label(summary.percent.count()))"}},
            {"/Y=$pct /COLOR=c /PIE SLICE=VAL",
             {"interval.stack(position(summary.percent(summary.count(1))), color.interior(c), "
              "label(summary.count()))"}},
            {"/Y=b /STYLE=c /PIE SLICE=VAL N LABEL",
             {"interval.stack(position(summary.percent(summary.sum(b))), "
              "texture.pattern.interior(c), label(c), label(summary.sum(b)), "
              "label(summary.count()))"}},
            {"/Y=b /COLOR=c /STYLE=d /PIE SLICE=LABEL",
             {"interval.stack(position(summary.percent(summary.sum(b))), color.interior(c), "
              "texture.pattern.interior(d), label(c))"}},
            {"/Y=b /COLOR=b /PIE(NGT(5)) SLICE=VAL LABEL",
             {"interval.stack(position(summary.percent(summary.countTrue(t1))), "
              "color.interior(b_c), label(b_c), label(summary.countTrue(t1)))"}},
        });
}

TEST(GplBox, IsASchema) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /BOX", {"schema(position(bin.quantile.letter(a*b)))"}},
                    {"/X1=a /Y=b /BOXPLOT OUTLIERS=OFF LABEL=VAL",
                     {"schema(position(bin.quantile.letter(a*b)))"}},
                    {"/X1=a /Y=b /COLOR=c /STYLE=d /CASELABEL=n /BOX",
                     {"schema(position(bin.quantile.letter(c*b*a)), color.interior(c), "
                      "texture.pattern.interior(d), label(n))"}},
                    {"/Y=b /PANEL=p /BOX", {"schema(position(bin.quantile.letter(1*b*p)))"}},
                });
}

TEST(GplErrorBar, EveryExtentHasItsRegion) {
    const auto bar = [](const std::string& region, const char* shape = "ibeam") {
        return "interval(position(" + region + "), shape.interior(shape." + shape + "))";
    };
    const std::string mean = "point(position(summary.mean(a*b)))";
    const std::string standard = bar("region.confi.mean(a*b, alpha(0.95))");
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /ERRORBAR", {standard, mean}},
            {"/X1=a /Y=b /ERRORBAR CI(99)", {bar("region.confi.mean(a*b, alpha(0.99))"), mean}},
            {"/X1=a /Y=b /ERRORBAR CI 68.2", {bar("region.confi.mean(a*b, alpha(0.682))"), mean}},
            {"/X1=a /Y=b /ERRORBAR SD(1.5)", {bar("region.spread.sd(a*b, multiple(1.5))"), mean}},
            {"/X1=a /Y=b /ERRORBAR SE 2", {bar("region.spread.se(a*b, multiple(2))"), mean}},
            {"/X1=a /Y=b /ERRORBAR CAPSTYLE=T", {standard, mean}},
            {"/X1=a /Y=b /ERRORBAR CAPSTYLE=FANCY", {standard, mean}},
            {"/X1=a /Y=b /ERRORBAR CAPSTYLE=NONE",
             {bar("region.confi.mean(a*b, alpha(0.95))", "line"), mean}},
            {"/X1=a /Y=b /ERRORBAR SYMBOL=OFF", {standard}},
        });
}

TEST(GplErrorBar, TheMeanHasColorOnly) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /COLOR=c /STYLE=d /SIZE=e /ERRORBAR LABEL=N",
             {"interval(position(region.confi.mean(c*b*a, alpha(0.95))), color.interior(c), "
              "texture.pattern.interior(d), shape.interior(shape.ibeam))",
              "point(position(summary.mean(c*b*a)), color.interior(c), label(summary.count()))"}},
        });
}

TEST(GplErrorBar, LabelsStandOnTheMeanElseOnTheBar) {
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /ERRORBAR LABEL=PCT VAL",
             {"interval(position(region.confi.mean(a*b, alpha(0.95))), "
              "shape.interior(shape.ibeam))",
              "point(position(summary.mean(a*b)), label(summary.mean(b)), "
              "label(summary.percent.count()))"}},
            {"/X1=a /Y=b /ERRORBAR LABEL=VAL SYMBOL=OFF",
             {"interval(position(region.confi.mean(a*b, alpha(0.95))), label(summary.mean(b)), "
              "shape.interior(shape.ibeam))"}},
        });
}

TEST(GplHistogram, CountsInBins) {
    const auto bars = [](const std::string& position) {
        return std::vector<std::string>{"interval(position(" + position +
                                        "), shape.interior(shape.square))"};
    };
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /HISTOGRAM", bars("summary.count(bin.rect(a))")},
            {"/X1=a /HISTOGRAM X1INTERVAL=AUTO", bars("summary.count(bin.rect(a))")},
            {"/X1=a /HISTOGRAM X1INTERVAL=NUM=20",
             bars("summary.count(bin.rect(a, binCount(20)))")},
            {"/X1=a /HISTOGRAM X1INTERVAL WIDTH 0.5",
             bars("summary.count(bin.rect(a, binWidth(0.5)))")},
            {"/X1=a /Y=$pct /HISTOGRAM",
             bars("summary.percent.count(bin.rect(a), base.all(acrossPanels()))")},
            {"/X1=a /HISTOGRAM CUM", bars("summary.count.cumulative(bin.rect(a))")},
            {"/X1=a /Y=$pct /HISTOGRAM CUM",
             bars("summary.percent.count.cumulative(bin.rect(a), base.all(acrossPanels()))")},
            {"/X1=a /PANEL=p q /HISTOGRAM", bars("summary.count(bin.rect(a*1*p*q))")},
            {"/X1=a /HISTOGRAM CUM CURVE=ON", bars("summary.count.cumulative(bin.rect(a))")},
        });
}

TEST(GplHistogram, CategoriesAreStacked) {
    const std::string square = ", shape.interior(shape.square))";
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /COLOR=c /HISTOGRAM",
             {"interval.stack(position(summary.count(bin.rect(a))), color.interior(c)" + square}},
            {"/X1=a /STYLE=c CLUSTER /HISTOGRAM",
             {"interval.stack(position(summary.count(bin.rect(a))), "
              "texture.pattern.interior(c)" +
              square}},
            {"/X1=a /COLOR=c TYPE=SCALE /HISTOGRAM",
             {"interval(position(summary.count(bin.rect(a))), "
              "color.interior(summary.mean(c))" +
              square}},
        });
}

TEST(GplHistogram, TheCurveHasNoAesthetics) {
    ExpectLines("ELEMENT", {{"/X1=a /COLOR=c /PANEL=p /HISTOGRAM CURVE=ON",
                             {"interval.stack(position(summary.count(bin.rect(a*1*p))), "
                              "color.interior(c), shape.interior(shape.square))",
                              "line(position(density.normal(a*1*p)), color(\"Normal\"))"}}});
}

TEST(GplFitLine, EveryMethodHasItsSmoother) {
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /FITLINE", {"line(position(smooth.linear(a*b)))"}},
                    {"/X1=a /Y=b /FITLINE METHOD=REGRESSION LINEAR",
                     {"line(position(smooth.linear(a*b)))"}},
                    {"/X1=a /Y=b /FITLINE METHOD=MEAN", {"line(position(smooth.mean(a*b)))"}},
                    {"/X1=a /Y=b /FITLINE METHOD=LLR NORMAL BANDWIDTH=FAST",
                     {"line(position(smooth.loess(a*b)))"}},
                    {"/X1=a /Y=b /FITLINE METHOD=NONE /SCATTER", {"point(position(a*b))"}},
                    {"/X1=a /Y=b /PANEL=p /FITLINE", {"line(position(smooth.linear(a*b*p)))"}},
                });
}

TEST(GplFitLine, TheMeansIntervalStandsBehindItsLine) {
    ExpectLines("ELEMENT", {
                               {"/X1=a /Y=b /FITLINE INTERVAL=MEAN",
                                {"line(position(smooth.linear(a*b)))",
                                 "line(position(region.confi.smooth.linear(a*b, alpha(0.95))))"}},
                               {"/X1=a /Y=b /FITLINE METHOD=MEAN INTERVAL(99)=MEAN",
                                {"line(position(smooth.mean(a*b)))",
                                 "line(position(region.confi.smooth.mean(a*b, alpha(0.99))))"}},
                               {"/X1=a /Y=b /FITLINE METHOD=LLR INTERVAL=MEAN INDIVIDUAL",
                                {"line(position(smooth.loess(a*b)))"}},
                           });
}

TEST(GplFitLine, GroupsHaveLinesOfTheirOwn) {
    const std::string total = "line(position(smooth.linear(a*b)))";
    const std::string split = "line(position(smooth.linear(a*b)), split(c))";
    const std::string band = "line(position(region.confi.smooth.linear(a*b, alpha(0.95))))";
    const std::string splitBand =
        "line(position(region.confi.smooth.linear(a*b, alpha(0.95))), split(c))";
    ExpectLines("ELEMENT",
                {
                    {"/X1=a /Y=b /COLOR=c /FITLINE LINE=MEFFECT", {split}},
                    {"/X1=a /Y=b /COLOR=c /FITLINE LINE=TOTAL", {total}},
                    {"/X1=a /Y=b /COLOR=c /FITLINE LINE=MEFFECT TOTAL", {total, split}},
                    {"/X1=a /Y=b /COLOR=c /FITLINE LINE=TOTAL MEFFECT INTERVAL=MEAN",
                     {total, band, split, splitBand}},
                    {"/X1=a /Y=b /COLOR=d TYPE=SCALE /STYLE=c /FITLINE LINE=MEFFECT", {split}},
                    {"/X1=a /Y=b /SIZE=c TYPE=CATEGORICAL /FITLINE LINE=MEFFECT", {split}},
                    {"/X1=a /Y=b /COLOR=c /STYLE=d /FITLINE LINE=MEFFECT", {split}},
                });
}

TEST(GplFitLine, WithoutGroupsThereIsOneLineForAll) {
    const std::string total = "line(position(smooth.linear(a*b)))";
    ExpectLines(
        "ELEMENT",
        {
            {"/X1=a /Y=b /FITLINE LINE=MEFFECT", {total}},
            {"/X1=a /Y=b /FITLINE LINE=MEFFECT TOTAL", {total}},
            {"/X1=a /Y=b /COLOR=c TYPE=SCALE /FITLINE LINE=TOTAL MEFFECT", {total}},
            {"/X1=a /Y=b /PANEL=p /FITLINE LINE=MEFFECT", {"line(position(smooth.linear(a*b*p)))"}},
        });
}

TEST(GplFitLine, TheSplitTakesTheCategoricalName) {
    ExpectLines("ELEMENT", {{"/X1=a /Y=b /COLOR=a /FITLINE LINE=MEFFECT",
                             {"line(position(smooth.linear(a*b)), split(a_c))"}}});
}

TEST(GplElements, StandInTheOrderOfTheirSubcommands) {
    ExpectLines("ELEMENT", {
                               {"/X1=a /Y=b /LINE STYLE=DOT /ERRORBAR SYMBOL=OFF /BAR /AREA",
                                {"point(position(summary.mean(a*b)))",
                                 "interval(position(region.confi.mean(a*b, alpha(0.95))), "
                                 "shape.interior(shape.ibeam))",
                                 "interval(position(summary.mean(a*b)))",
                                 "area(position(summary.mean(a*b)), missing.wings())"}},
                               {"/X1=a /Y=b /BAR /BAR(SUM)",
                                {"interval(position(summary.mean(a*b)))",
                                 "interval(position(summary.sum(a*b)))"}},
                           });
}

} // namespace recastor
