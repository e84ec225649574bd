// The subcommands that draw, each with every keyword.

#include "tests/unit/chart_rows.h"

namespace recastor {

namespace {

TEST(ParseElements, AddUpInTheirOrder) {
    ExpectParsed({
        {"/BAR /LINE /BAR", "bar; line; bar"},
        {"/FITLINE /SCATTER", "fitline regression total; scatter"},
        {"/AREA /PIE /BOX /ERRORBAR /HISTOGRAM", "area; pie; box; errorbar ci 95; histogram"},
    });
}

TEST(ParseElements, TakeAKeySwitch) {
    ExpectParsed({
        {"/SCATTER KEY=ON", "scatter"},
        {"/BAR KEY=OFF", "bar"},
        {"/AREA KEY ON", "area"},
        {"/LINE KEY=ON", "line"},
        {"/PIE KEY=ON", "pie"},
        {"/BOX KEY=ON", "box"},
        {"/ERRORBAR KEY=ON", "errorbar ci 95"},
        {"/HISTOGRAM KEY=ON", "histogram"},
        {"/FITLINE KEY=ON", "fitline regression total"},
    });
    ExpectErrors({"/SCATTER KEY", "/BAR KEY=YES", "/AREA KEY=1", "/LINE KEY=", "/PIE KEY=ON OFF",
                  "/BOX KEY", "/ERRORBAR KEY", "/HISTOGRAM KEY", "/FITLINE KEY"});
}

TEST(ParseScatter, MayJitter) {
    ExpectParsed({
        {"/SCATTER", "scatter"},
        {"/SCATTERPLOT", "scatter"},
        {"/SCATTER COINCIDENT=NONE", "scatter"},
        {"/SCATTER COINCIDENT=JITTER", "scatter jitter"},
        {"/SCATTER COINCIDENT JITTER(5)", "scatter jitter"},
        {"/SCATTERPLOT COINCIDENT=JITTER (5) KEY=ON", "scatter jitter"},
        {"/SCATTER COINCIDENT=JITTER COINCIDENT=NONE", "scatter"},
    });
    ExpectErrors({"/SCATTER COINCIDENT", "/SCATTER COINCIDENT=YES", "/SCATTER COINCIDENT=NONE(5)",
                  "/SCATTER COINCIDENT=JITTER()", "/SCATTER COINCIDENT=JITTER 5", "/SCATTER JITTER",
                  "/SCATTER 5", "/SCATTER COINCIDENT=JITTER(5"});
}

TEST(ParseBar, ShowsLabels) {
    ExpectParsed({
        {"/BAR LABEL=VAL", "bar labels(val)"},
        {"/BAR LABEL=N", "bar labels(n)"},
        {"/BAR LABEL=PCT", "bar labels(pct)"},
        {"/BAR LABEL INSIDE N PCT VAL", "bar labels(val,n,pct)"},
        {"/BAR LABEL=OUTSIDE", "bar"},
        {"/BAR LABEL=N N", "bar labels(n)"},
        {"/BAR LABEL=N PCT LABEL=VAL", "bar labels(val)"},
    });
    ExpectErrors({"/BAR LABEL", "/BAR LABEL=", "/BAR LABEL=LABEL", "/BAR LABEL=CAT",
                  "/BAR LABEL=ON", "/BAR LABEL='x'", "/BAR VAL"});
}

TEST(ParseBar, BeginsAtABaseline) {
    ExpectParsed({
        {"/BAR BASELINE=5", "bar baseline 5"},
        {"/BAR BASELINE (-5)", "bar baseline -5"},
        {"/BAR BASELINE=0", "bar baseline 0"},
        {"/BAR BASELINE=AUTO", "bar"},
        {"/BAR BASELINE=5 BASELINE=AUTO", "bar"},
    });
    ExpectErrors({"/BAR BASELINE", "/BAR BASELINE=NONE", "/BAR BASELINE=(AUTO)", "/BAR BASELINE=(5",
                  "/BAR BASELINE=()", "/BAR BASELINE='5'", "/BAR BASELINE=5 6"});
}

TEST(ParseBar, IgnoresItsShapes) {
    ExpectParsed({
        {"/BAR SHAPE=RECTANGLE", "bar"},
        {"/BAR BARBASE SCALE SHAPE anything", "bar"},
        {"/BAR(MEAN) KEY=ON SHAPE = RECTANGLE BASELINE = AUTO", "bar mean"},
    });
    ExpectErrors({"/BAR SHAPE", "/BAR SHAPE=5", "/BAR SHAPE='x'", "/BAR BARBASE",
                  "/BAR BARBASE=(x)", "/BAR SHAPE=a b", "/BAR COLOR=red"});
}

TEST(ParseArea, KnowsItsKeywords) {
    ExpectParsed({
        {"/AREA POINTLABEL=VAL PCT", "area labels(val,pct)"},
        {"/AREA(MEAN) POINTLABEL=INSIDE N POINTLABEL=VAL", "area mean labels(val)"},
        {"/AREA BREAK=NONE", "area bridged"},
        {"/AREA BREAK=MISSING", "area"},
        {"/AREA BREAK=NONE BREAK=MISSING", "area"},
        {"/AREA BASELINE=(5)", "area baseline 5"},
        {"/AREA BASELINE=AUTO", "area"},
        {"/AREA AREALABEL=CAT N PCT", "area"},
    });
    ExpectErrors({"/AREA POINTLABEL", "/AREA POINTLABEL=LABEL", "/AREA LABEL=VAL", "/AREA BREAK",
                  "/AREA BREAK=ON", "/AREA BASELINE", "/AREA BASELINE=x", "/AREA AREALABEL",
                  "/AREA AREALABEL=VAL", "/AREA SHAPE=x"});
}

TEST(ParseArea, Interpolates) {
    ExpectParsed({
        {"/AREA INTERPOLATE=STRAIGHT", "area"},
        {"/AREA INTERPOLATE=LSTEP", "area lstep"},
        {"/AREA INTERPOLATE=CSTEP", "area cstep"},
        {"/AREA INTERPOLATE=RSTEP", "area rstep"},
        {"/AREA INTERPOLATE=LJUMP", "area ljump"},
        {"/AREA INTERPOLATE=CJUMP", "area cjump"},
        {"/AREA INTERPOLATE=RJUMP", "area rjump"},
        {"/AREA INTERPOLATE=SPLINE", "area spline"},
        {"/AREA INTERPOLATE=LAGRANGE3", "area lagrange3"},
        {"/AREA INTERPOLATE=LAGRANGE5", "area lagrange5"},
        {"/AREA INTERPOLATE=SPLINE INTERPOLATE=STRAIGHT", "area"},
    });
    ExpectErrors({"/AREA INTERPOLATE", "/AREA INTERPOLATE=NONE", "/AREA INTERPOLATE=LAGRANGE",
                  "/AREA INTERPOLATE=LSTEP RSTEP", "/AREA INTERPOLATE=5"});
}

TEST(ParseLine, KnowsItsKeywords) {
    ExpectParsed({
        {"/LINE STYLE=DOTLINE", "line dotline"},
        {"/LINE STYLE=LINE", "line"},
        {"/LINE STYLE=DOT", "line dot"},
        {"/LINE STYLE=NONE", "line none"},
        {"/LINE STYLE=NONE STYLE=LINE", "line"},
        {"/LINE LABEL=VAL N", "line labels(val,n)"},
        {"/LINE INTERPOLATE=LSTEP BREAK=NONE", "line lstep bridged"},
        {"/LINE BREAK=MISSING INTERPOLATE=SPLINE", "line spline"},
        {"/LINE DROPLINE=ON", "line"},
        {"/LINE LINELABEL=CAT PCT N", "line"},
        {"/LINE(PGT(1000)) STYLE=DOTLINE INTERPOLATE=LSTEP BREAK=NONE",
         "line percent>1000 dotline lstep bridged"},
    });
    ExpectErrors({"/LINE STYLE", "/LINE STYLE=DASH", "/LINE LABEL", "/LINE LABEL=CAT",
                  "/LINE INTERPOLATE=x", "/LINE BREAK=1", "/LINE DROPLINE", "/LINE DROPLINE=NONE",
                  "/LINE LINELABEL", "/LINE LINELABEL=INSIDE", "/LINE BASELINE=5"});
}

TEST(ParseLine, TakesTheWholeWordDotForItself) {
    ExpectParsed({{"/LINE STYLE=dotl", "line dotline"}, {"/LINE STYLE=lin", "line"}});
    ExpectErrors({"/LINE STYLE=DO"});
}

TEST(ParsePie, TurnsAndLabels) {
    ExpectParsed({
        {"/PIE START=450", "pie start 450"},
        {"/PIE START -90", "pie start -90"},
        {"/PIE CW", "pie"},
        {"/PIE CCW", "pie ccw"},
        {"/PIE CCW CW", "pie"},
        {"/PIE SLICE=LABEL", "pie labels(label)"},
        {"/PIE SLICE=VAL N PCT LABEL", "pie labels(label,val,n,pct)"},
        {"/PIE SLICE=INSIDE OUTSIDE TEXTIN NUMIN URIGHT LRIGHT ULEFT LLEFT", "pie"},
        {"/PIE SLICE=LABEL SLICE=N", "pie labels(n)"},
        {"/PIE(SUM) START 450 CCW SLICE = OUTSIDE LABEL PCT",
         "pie sum start 450 ccw labels(label,pct)"},
    });
    ExpectErrors({"/PIE START", "/PIE START=x", "/PIE START=(90)", "/PIE CW=90", "/PIE CCW 5",
                  "/PIE SLICE", "/PIE SLICE=ON", "/PIE SLICE=CAT", "/PIE LABEL=VAL"});
}

TEST(ParsePie, IgnoresLabelsOfStacksAndClusters) {
    ExpectParsed({
        {"/PIE STACK=LABEL PCT", "pie"},
        {"/PIE CLUSTER=URIGHT", "pie"},
        {"/PIE STACK=N CLUSTER=VAL SLICE=PCT", "pie labels(pct)"},
    });
    ExpectErrors({"/PIE STACK", "/PIE STACK=ON", "/PIE CLUSTER", "/PIE CLUSTER=x"});
}

TEST(ParseBox, IgnoresItsKeywords) {
    ExpectParsed({
        {"/BOX", "box"},
        {"/BOXPLOT", "box"},
        {"/BOX OUTLIERS=OFF EXTREME=ON MEDIAN=ON", "box"},
        {"/BOX LABEL=VAL N BOXBASE=SCALE WHISKER=T", "box"},
        {"/BOX CAPWIDTH(45)", "box"},
        {"/BOX CAPWIDTH=45", "box"},
        {"/BOX CAPWIDTH=(45)", "box"},
    });
    ExpectErrors({"/BOX OUTLIERS", "/BOX OUTLIERS=YES", "/BOX EXTREME", "/BOX EXTREME=x",
                  "/BOX MEDIAN", "/BOX MEDIAN=1", "/BOX LABEL", "/BOX LABEL=CAT", "/BOX BOXBASE",
                  "/BOX BOXBASE=1", "/BOX WHISKER", "/BOX WHISKER='T'", "/BOX CAPWIDTH",
                  "/BOX CAPWIDTH=a", "/BOX CAPWIDTH(45", "/BOX SYMBOL=ON"});
}

TEST(ParseErrorBar, ReachesSoFar) {
    ExpectParsed({
        {"/ERRORBAR", "errorbar ci 95"},
        {"/ERRORBAR CI 90", "errorbar ci 90"},
        {"/ERRORBAR CI(99.5)", "errorbar ci 99.5"},
        {"/ERRORBAR CI=(0)", "errorbar ci 0"},
        {"/ERRORBAR CI=100", "errorbar ci 100"},
        {"/ERRORBAR SD 2", "errorbar sd 2"},
        {"/ERRORBAR SD(0)", "errorbar sd 0"},
        {"/ERRORBAR SD(6)", "errorbar sd 6"},
        {"/ERRORBAR SE(2)", "errorbar se 2"},
        {"/ERRORBAR SE 6", "errorbar se 6"},
        {"/ERRORBAR SD 2 CI 90", "errorbar ci 90"},
    });
    ExpectErrors({"/ERRORBAR CI", "/ERRORBAR CI(101)", "/ERRORBAR CI(-1)", "/ERRORBAR CI(100.1)",
                  "/ERRORBAR SD", "/ERRORBAR SD(6.1)", "/ERRORBAR SD(-0.1)", "/ERRORBAR SE",
                  "/ERRORBAR SE(7)", "/ERRORBAR SE -1", "/ERRORBAR CI()", "/ERRORBAR CI(95",
                  "/ERRORBAR CI=x", "/ERRORBAR 95", "/ERRORBAR(95)"});
}

TEST(ParseErrorBar, KnowsItsKeywords) {
    ExpectParsed({
        {"/ERRORBAR LABEL=VAL N", "errorbar ci 95 labels(val,n)"},
        {"/ERRORBAR CAPSTYLE=T", "errorbar ci 95"},
        {"/ERRORBAR CAPSTYLE=NONE", "errorbar ci 95 nocaps"},
        {"/ERRORBAR CAPSTYLE=FANCY", "errorbar ci 95"},
        {"/ERRORBAR SYMBOL=ON", "errorbar ci 95"},
        {"/ERRORBAR SYMBOL=OFF", "errorbar ci 95 nosymbol"},
        {"/ERRORBAR SYMBOL=OFF SYMBOL=ON CAPSTYLE=NONE CAPSTYLE=T", "errorbar ci 95"},
        {"/ERRORBAR DIRECTION=BOTH CAPWIDTH(45)", "errorbar ci 95"},
        {"/ERRORBAR CAPWIDTH=45 BASELINE=AUTO BASELINE=(5)", "errorbar ci 95"},
        {"/ERRORBAR SE(2) CAPSTYLE=NONE LABEL=VAL", "errorbar se 2 labels(val) nocaps"},
    });
    ExpectErrors({"/ERRORBAR LABEL", "/ERRORBAR LABEL=x", "/ERRORBAR CAPSTYLE",
                  "/ERRORBAR CAPSTYLE=ROUND", "/ERRORBAR SYMBOL", "/ERRORBAR SYMBOL=NONE",
                  "/ERRORBAR DIRECTION", "/ERRORBAR DIRECTION=5", "/ERRORBAR BASELINE",
                  "/ERRORBAR BASELINE=UP", "/ERRORBAR CAPWIDTH", "/ERRORBAR CAPWIDTH=T"});
}

TEST(ParseHistogram, CountsInIntervals) {
    ExpectParsed({
        {"/HISTOGRAM", "histogram"},
        {"/HISTOGRAM X1INTERVAL=AUTO", "histogram"},
        {"/HISTOGRAM X1INTERVAL NUM = 20", "histogram bins 20"},
        {"/HISTOGRAM X1INTERVAL=NUM 1", "histogram bins 1"},
        {"/HISTOGRAM X1INTERVAL=NUM=250", "histogram bins 250"},
        {"/HISTOGRAM X1INTERVAL=NUM=20.0", "histogram bins 20"},
        {"/HISTOGRAM X1INTERVAL WIDTH=0.5", "histogram width 0.5"},
        {"/HISTOGRAM X1INTERVAL=NUM=20 X1INTERVAL=WIDTH=3", "histogram width 3"},
        {"/HISTOGRAM X1INTERVAL=WIDTH=3 X1INTERVAL=AUTO", "histogram"},
    });
    ExpectErrors({"/HISTOGRAM X1INTERVAL", "/HISTOGRAM X1INTERVAL=20",
                  "/HISTOGRAM X1INTERVAL=NUM=0", "/HISTOGRAM X1INTERVAL=NUM=251",
                  "/HISTOGRAM X1INTERVAL=NUM=2.5", "/HISTOGRAM X1INTERVAL=NUM=-3",
                  "/HISTOGRAM X1INTERVAL=NUM", "/HISTOGRAM X1INTERVAL=WIDTH=0",
                  "/HISTOGRAM X1INTERVAL=WIDTH=-1", "/HISTOGRAM X1INTERVAL=WIDTH",
                  "/HISTOGRAM X1INTERVAL=AUTO NUM=3", "/HISTOGRAM NUM=3"});
}

TEST(ParseHistogram, KnowsItsKeywords) {
    ExpectParsed({
        {"/HISTOGRAM CUM", "histogram cum"},
        {"/HISTOGRAM CURVE=ON", "histogram curve"},
        {"/HISTOGRAM CURVE=ON CURVE=OFF", "histogram"},
        {"/HISTOGRAM SHAPE=HISTOGRAM SURFACE=OFF", "histogram"},
        {"/HISTOGRAM X2INTERVAL=AUTO X1START=0 X2START=99", "histogram"},
        {"/HISTOGRAM X2INTERVAL NUM=250", "histogram"},
        {"/HISTOGRAM X2INTERVAL WIDTH=5 X1INTERVAL NUM=3", "histogram bins 3"},
        {"/Histogram SHAPE = HISTOGRAM CURVE = ON X1INTERVAL NUM = 20 X1START = 0",
         "histogram curve bins 20"},
    });
    ExpectErrors({"/HISTOGRAM CUM ON", "/HISTOGRAM CURVE", "/HISTOGRAM CURVE=YES",
                  "/HISTOGRAM SHAPE=BAR", "/HISTOGRAM SHAPE", "/HISTOGRAM SURFACE",
                  "/HISTOGRAM SURFACE=1", "/HISTOGRAM X2INTERVAL", "/HISTOGRAM X2INTERVAL NUM=251",
                  "/HISTOGRAM X2INTERVAL WIDTH=0", "/HISTOGRAM X1START=100",
                  "/HISTOGRAM X1START=-1", "/HISTOGRAM X1START", "/HISTOGRAM X2START=99.5",
                  "/HISTOGRAM X2START=a"});
}

TEST(ParseFitLine, KnowsItsMethods) {
    ExpectParsed({
        {"/FITLINE", "fitline regression total"},
        {"/FITLINE METHOD=NONE", "fitline none total"},
        {"/FITLINE METHOD=REGRESSION", "fitline regression total"},
        {"/FITLINE METHOD=REGRESSION LINEAR", "fitline regression total"},
        {"/FITLINE METHOD=ORIGIN", "fitline origin total"},
        {"/FITLINE METHOD=ORIGIN LINEAR", "fitline origin total"},
        {"/FITLINE METHOD=MEAN", "fitline mean total"},
        {"/FITLINE METHOD=LLR", "fitline llr total"},
        {"/FITLINE METHOD=LLR NORMAL", "fitline llr total"},
        {"/FITLINE METHOD=LLR EPANECHNIKOV BANDWIDTH=FAST", "fitline llr total"},
        {"/FITLINE METHOD=LLR UNIFORM METHOD=MEAN", "fitline mean total"},
    });
    ExpectErrors({"/FITLINE METHOD", "/FITLINE METHOD=CUBIC", "/FITLINE METHOD=LINEAR",
                  "/FITLINE METHOD=MEAN LINEAR", "/FITLINE METHOD=LLR LINEAR",
                  "/FITLINE METHOD=NONE NORMAL", "/FITLINE METHOD=REGRESSION NORMAL",
                  "/FITLINE METHOD=LLR NORMAL UNIFORM", "/FITLINE LINEAR"});
}

TEST(ParseFitLine, TellsTheKeywordLineFromTheWordLinear) {
    ExpectParsed({
        {"/FITLINE METHOD=REGRESSION LINE=MEFFECT", "fitline regression each"},
        {"/FITLINE METHOD=REGRESSION LINEA LINE=MEFFECT", "fitline regression each"},
        {"/FITLINE METHOD=REGRESSION LINEAR LIN=MEFFECT", "fitline regression each"},
        {"/FITLINE METHOD=MEAN LIN=MEFFECT", "fitline mean each"},
    });
    ExpectErrors({"/FITLINE METHOD=REGRESSION LIN", "/FITLINE METHOD=REGRESSION LIN=MEFFECT",
                  "/FITLINE METHOD=ORIGIN LIN=MEFFECT"});
}

TEST(ParseFitLine, KnowsItsIntervals) {
    ExpectParsed({
        {"/FITLINE INTERVAL=MEAN", "fitline regression mean-interval total"},
        {"/FITLINE INTERVAL=INDIVIDUAL", "fitline regression individual-interval total"},
        {"/FITLINE INTERVAL=MEAN INDIVIDUAL",
         "fitline regression mean-interval individual-interval total"},
        {"/FITLINE INTERVAL(90) = MEAN", "fitline regression mean-interval level 90 total"},
        {"/FITLINE INTERVAL (50) MEAN", "fitline regression mean-interval level 50 total"},
        {"/FITLINE INTERVAL=(100) MEAN", "fitline regression mean-interval level 100 total"},
        {"/FITLINE INTERVAL(90)=MEAN INTERVAL=INDIVIDUAL",
         "fitline regression individual-interval total"},
    });
    ExpectErrors({"/FITLINE INTERVAL", "/FITLINE INTERVAL(90)", "/FITLINE INTERVAL(49.9)=MEAN",
                  "/FITLINE INTERVAL(100.1)=MEAN", "/FITLINE INTERVAL 90 MEAN",
                  "/FITLINE INTERVAL=TOTAL", "/FITLINE INTERVAL()=MEAN",
                  "/FITLINE INTERVAL(90=MEAN"});
}

TEST(ParseFitLine, KnowsItsOtherKeywords) {
    ExpectParsed({
        {"/FITLINE LINE=TOTAL", "fitline regression total"},
        {"/FITLINE LINE=MEFFECT", "fitline regression each"},
        {"/FITLINE LINE=MEFFECT TOTAL", "fitline regression total each"},
        {"/FITLINE LINE=MEFFECT LINE=TOTAL", "fitline regression total"},
        {"/FITLINE BANDWIDTH=FAST SPIKE=OFF", "fitline regression total"},
        {"/FITLINE BANDWIDTH=CONSTRAINED X1MULTIPLIER=2.5 X2MULTIPLIER=-1",
         "fitline regression total"},
        {"/FITLINE METHOD = REGRESSION LINEAR INTERVAL(90) = MEAN LINE = TOTAL SPIKE = OFF",
         "fitline regression mean-interval level 90 total"},
    });
    ExpectErrors({"/FITLINE LINE", "/FITLINE LINE=MEAN", "/FITLINE BANDWIDTH",
                  "/FITLINE BANDWIDTH=SLOW", "/FITLINE X1MULTIPLIER", "/FITLINE X1MULTIPLIER=a",
                  "/FITLINE X2MULTIPLIER", "/FITLINE X2MULTIPLIER=(2)", "/FITLINE SPIKE",
                  "/FITLINE SPIKE=x"});
}

} // namespace

} // namespace recastor
