// The summary functions, each in the places where one may stand.

#include "tests/unit/chart_rows.h"

namespace recastor {

namespace {

TEST(ParseSummary, KnowsTheFunctionsWithoutArguments) {
    ExpectParsed({
        {"/BAR(MEAN)", "bar mean"},
        {"/BAR(MEDIAN)", "bar median"},
        {"/BAR(GMEDIAN)", "bar median"},
        {"/BAR(MODE)", "bar mode"},
        {"/BAR(MINIMUM)", "bar min"},
        {"/BAR(MAXIMUM)", "bar max"},
        {"/BAR(FIRST)", "bar first"},
        {"/BAR(LAST)", "bar last"},
        {"/BAR(SUM)", "bar sum"},
        {"/BAR(SUMAV)", "bar sumav"},
        {"/BAR(SUMSQ)", "bar sumsq"},
        {"/BAR(STDDEV)", "bar sd"},
        {"/BAR(SD)", "bar sd"},
        {"/BAR(VARIANCE)", "bar variance"},
        {"/BAR(SEMEAN)", "bar se"},
        {"/BAR(SE)", "bar se"},
        {"/BAR(KURTOSIS)", "bar kurtosis"},
        {"/BAR(SKEWNESS)", "bar skewness"},
        {"/BAR(SEKURT)", "bar sekurt"},
        {"/BAR(SESKEW)", "bar seskew"},
    });
    ExpectErrors({"/BAR(MEAN(1))", "/BAR(SUM())", "/BAR(RANGE)", "/BAR(N)", "/BAR()",
                  "/BAR(MEAN SUM)", "/BAR(MEAN", "/BAR MEAN", "/BAR(1)", "/BAR('MEAN')",
                  "/BAR((MEAN))", "/BAR(MEAN))", "/BAR(MEAN) (SUM)"});
}

TEST(ParseSummary, TakesAPercentileBetweenZeroAndAHundred) {
    ExpectParsed({
        {"/BAR(PTILE(25))", "bar ptile(25)"},
        {"/BAR(PTILE(0.1))", "bar ptile(0.1)"},
        {"/BAR(PTILE(99.9))", "bar ptile(99.9)"},
    });
    ExpectErrors({"/BAR(PTILE(0))", "/BAR(PTILE(100))", "/BAR(PTILE(-1))", "/BAR(PTILE(101))",
                  "/BAR(PTILE)", "/BAR(PTILE())", "/BAR(PTILE 25)", "/BAR(PTILE(25 50))",
                  "/BAR(PTILE(25)", "/BAR(PTILE(a))"});
}

TEST(ParseSummary, CountsTheValuesOnOneSideOfANumber) {
    ExpectParsed({
        {"/BAR(NGT(5))", "bar number>5"},
        {"/BAR(NGE(5))", "bar number>=5"},
        {"/BAR(NLT(5))", "bar number<5"},
        {"/BAR(NLE(-5))", "bar number<=-5"},
        {"/BAR(NEQ(+5))", "bar number==5"},
        {"/BAR(PGT(5))", "bar percent>5"},
        {"/BAR(PGE(5))", "bar percent>=5"},
        {"/BAR(PLT(5))", "bar percent<5"},
        {"/BAR(PLE(5))", "bar percent<=5"},
        {"/BAR(PEQ(0.5))", "bar percent==0.5"},
    });
    ExpectErrors({"/BAR(NGT)", "/BAR(NGE())", "/BAR(NLT(a))", "/BAR(NLE(1 2))", "/BAR(NEQ('1'))",
                  "/BAR(PGT)", "/BAR(PGE())", "/BAR(PLT(a))", "/BAR(PLE(1 2))", "/BAR(PEQ(1)"});
}

TEST(ParseSummary, CountsTheValuesBetweenTwoNumbers) {
    ExpectParsed({
        {"/BAR(NIN(1, 5))", "bar number[1,5]"},
        {"/BAR(NIN(-5 -1))", "bar number[-5,-1]"},
        {"/BAR(NIN(3 3))", "bar number[3,3]"},
        {"/BAR(PIN(1 5))", "bar percent[1,5]"},
    });
    ExpectErrors({"/BAR(NIN(5 1))", "/BAR(NIN(1))", "/BAR(NIN(1 2 3))", "/BAR(NIN)",
                  "/BAR(PIN(5, 1))", "/BAR(PIN(1))", "/BAR(PIN())"});
}

TEST(ParseSummary, StandsBehindBarAreaLineAndPie) {
    ExpectParsed({
        {"/BAR (SUM)", "bar sum"},
        {"/BAR=(SUM)", "bar sum"},
        {"/AREA(SUM)", "area sum"},
        {"/LINE(SUM)", "line sum"},
        {"/PIE(SUM)", "pie sum"},
        {"/BAR", "bar"},
        {"/AREA", "area"},
        {"/LINE", "line"},
        {"/PIE", "pie"},
    });
    ExpectErrors(
        {"/SCATTER(SUM)", "/BOX(SUM)", "/ERRORBAR(SUM)", "/HISTOGRAM(SUM)", "/FITLINE(SUM)"});
}

TEST(ParseSummary, StandsInFrontOfTheKeywords) {
    ExpectErrors({"/BAR LABEL=VAL (SUM)", "/LINE STYLE=DOT (SUM)", "/PIE CW (SUM)"});
}

TEST(ParseSummary, MayBeAbbreviated) {
    ExpectParsed({
        {"/BAR(mea)", "bar mean"},
        {"/BAR(Med)", "bar median"},
        {"/BAR(gme)", "bar median"},
        {"/BAR(sum)", "bar sum"},
        {"/BAR(suma)", "bar sumav"},
        {"/BAR(std)", "bar sd"},
        {"/BAR(sem)", "bar se"},
        {"/BAR(sek)", "bar sekurt"},
        {"/BAR(pti(5))", "bar ptile(5)"},
    });
    ExpectErrors({"/BAR(SU)", "/BAR(ME)", "/BAR(MEANS)"});
}

} // namespace

} // namespace recastor
