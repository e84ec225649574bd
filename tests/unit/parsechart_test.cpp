// What holds for a command as a whole: slashes, abbreviations, names, repetition.

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/chartmodel.h"
#include "platform/zelkwigr/parsechart.h"
#include "tests/support/dump.h"
#include "tests/support/textlocale.h"
#include "tests/unit/chart_rows.h"

#include <memory>

namespace recastor {

namespace {

TEST(ParseChart, SkipsTheFirstTokenWhateverItIs) {
    EXPECT_EQ(DumpParsedChart("IGR /X1=a"), "x1 a");
    EXPECT_EQ(DumpParsedChart("igraph x1=a"), "x1 a");
    EXPECT_EQ(DumpParsedChart("IGRAPH"), "");
    EXPECT_EQ(DumpParsedChart(""), "");
}

TEST(ParseChart, ReadsASequenceFromItsStartWhereverItStands) {
    const std::unique_ptr<ZELKTokenSequence> tokens(TokensOf("IGRAPH /X1=a /BAR"));
    ChartModel first;
    EXPECT_TRUE(ParseChart(*tokens, first));
    ChartModel second;
    EXPECT_TRUE(ParseChart(*tokens, second));
    EXPECT_EQ(DumpChart(second), "x1 a; bar");
}

TEST(ParseChart, TakesSlashesMissingInFrontDoubledAndAtTheEnd) {
    ExpectParsed({
        {"X1=a /BAR", "x1 a; bar"},
        {"/X1=a //BAR", "x1 a; bar"},
        {"// /X1=a / / /BAR //", "x1 a; bar"},
        {"/", ""},
        {"/X1=a /", "x1 a"},
    });
    ExpectErrors({"/X1=a BAR", "/BAR LINE", "/NORMALIZE BAR"});
}

TEST(ParseChart, TakesAnEqualsSignOrNoneEverywhere) {
    ExpectParsed({
        {"/X1 a TYPE SCALE (MIN 1 MAX 2) TITLE 't'", "x1 a scale(1..2) \"t\""},
        {"/X1=a TYPE=SCALE (MIN=1 MAX=2) TITLE='t'", "x1 a scale(1..2) \"t\""},
        {"/PANEL=a /CASELABEL=b /CATORDER=c (COUNT)", "panel a; caselabel b; catorder c count"},
        {"/BAR=LABEL=VAL", "bar labels(val)"},
        {"/HISTOGRAM X1INTERVAL=NUM=5", "histogram bins 5"},
        {"/NORMALIZE=", "normalize"},
    });
    ExpectErrors(
        {"/X1==a", "/X1 EQ a", "/X1=a TYPE EQ SCALE", "=X1 a", "/=X1 a", "/COORDINATE VERTICAL="});
}

TEST(ParseChart, FailsOnAWordThatIsNoSubcommand) {
    ExpectErrors({"/BUBBLE", "/X3=a", "/5", "/'BAR'", "/(BAR)", "/BARS", "/TYPE=SCALE", "/X1=a /Z",
                  "/ALL", "/BY a"});
}

TEST(ParseChart, TakesSubcommandsAbbreviatedToThreeCharacters) {
    ExpectParsed({
        {"/COL=a /STY=b /SIZ=c", "color a; style b; size c"},
        {"/SUM=a /PAN b /POI c /CAS d", "summaryvar a; panel b; pointlabel c; caselabel d"},
        {"/CAT a (COU) /SCALE b MIN=1 /REF c 1", "catorder a count; scalerange b(1..); "
                                                 "refline c 1"},
        {"/NOR", "normalize"},
        {"/VIE='v' /TIT='t' /SUB='s' /CAP='c'",
         "viewname \"v\"; title \"t\"; subtitle \"s\"; caption \"c\""},
        {"/X1L=1 /X2L=2 /YLE=3 /COO=HOR", "x1length 1; ylength 3; horizontal"},
        {"/EFF=THR /CHARTL='a' /CHARTS 5 /FOR x /SPI x", "looks \"a\""},
        {"/SCAT /BAR /ARE /LIN /PIE /BOXP /ERR /HIS /FIT",
         "scatter; bar; area; line; pie; box; errorbar ci 95; histogram; fitline regression total"},
    });
    ExpectErrors({"/CO=a", "/ST=b", "/X1LENGTHS=1", "/HI", "/NO"});
}

TEST(ParseChart, TakesAnAbbreviationOfTwoThingsForNone) {
    // SCALERANGE and SCATTER; CHARTLOOK and CHARTSIZE; START and STACK; X1START and X1INTERVAL.
    ExpectErrors({"/SCA", "/SCA a MIN=1", "/CHA 'a'", "/CHART 'a'", "/PIE STA=5", "/FITLINE X1",
                  "/AREA INTERPOLATE=LAG"});
}

TEST(ParseChart, TakesAnAbbreviationOfTwoSpellingsOfOneThing) {
    ExpectParsed({{"/SCATT", "scatter"}, {"/SCATTERP", "scatter"}, {"/BOXPL", "box"}});
}

TEST(ParseChart, TakesWordsOfAListBesideTheKeywordsThatMayFollow) {
    ExpectParsed({
        {"/AREA POINTLABEL=VAL INS INT=SPLINE", "area labels(val) spline"},
        {"/PIE SLICE=VAL OUT SLI=N", "pie labels(n)"},
        {"/BOX LABEL=OUT OUTL=ON", "box"},
        {"/BAR LABEL=VAL INS BAS=5 BAR=x", "bar labels(val) baseline 5"},
        {"/LINE LABEL=N LAB=VAL LINEL=CAT", "line labels(val)"},
        {"/FITLINE INTERVAL=MEA IND MET=MEA",
         "fitline mean mean-interval individual-interval total"},
    });
}

TEST(ParseChart, TakesAnAbbreviationOfAWordOfTheListAndAKeywordForNone) {
    // OUTSIDE and OUTLIERS.
    ExpectErrors({"/BOX LABEL=VAL OUT", "/BOX LABEL=VAL OUT=ON"});
}

TEST(ParseChart, LooksAtNoCaseInKeywords) {
    ExpectParsed({
        {"/x1=var(a) type=scale (min=1 Max=2) Title='t'", "x1 a scale(1..2) \"t\""},
        {"/Bar(mean) Label=val", "bar mean labels(val)"},
        {"/fitLine MeThOd=llr uniform", "fitline llr total"},
    });
}

TEST(ParseChart, WritesANameAsItWasFirstSpelled) {
    ExpectParsed({
        {"/Y=Salary /X1=SALARY", "x1 Salary; y Salary"},
        {"/X1=Foo /X1=foo", "x1 Foo"},
        {"/REFLINE SALE 5 /Y=sale /PANEL Sale", "y SALE; panel SALE; refline SALE 5"},
        {"/POINTLABEL a B NONE /X1=b", "x1 B"},
        {"/Y=$COUNT /SCALERANGE $count MIN=0", "y $COUNT{count}; scalerange $COUNT{count}(0..)"},
        {"/X1=VAR(Var) /Y=VAR", "x1 Var; y Var"},
    });
}

TEST(ParseChart, LooksAtTheCaseOfLettersBesideAscii) {
    const TextLocale locale("C.UTF-8");
    ExpectParsed({
        {"/PANEL \xc3\xa9t\xc3\xa9 \xc3\xa9T\xc3\xa9 \xc3\x89t\xc3\xa9",
         "panel \xc3\xa9t\xc3\xa9 \xc3\x89t\xc3\xa9"},
    });
}

TEST(ParseChart, KnowsTheBuiltInDimensionsInAnyCase) {
    ExpectParsed({
        {"/Y=$count", "y $count{count}"},
        {"/Y=VAR($Count)", "y $Count{count}"},
        {"/Y=$pct", "y $pct{pct}"},
        {"/COLOR=VAR($PCT)", "color $PCT{pct}"},
        {"/X1=$case", "x1 $case{case}"},
        {"/X1=VAR($CASE)", "x1 $CASE{case}"},
        {"/PANEL $COUNT $count", "panel $COUNT{count}"},
        {"/Y=$counts", "y $counts"},
        {"/Y=$cou", "y $cou"},
        {"/Y=count", "y count"},
    });
}

TEST(ParseChart, TakesNoReservedWordForAName) {
    for (const char* word :
         {"ALL", "AND", "BY", "EQ", "GE", "GT", "LE", "LT", "NE", "NOT", "OR", "TO", "WITH"}) {
        const std::string name = word;
        EXPECT_EQ(DumpParsedChart("IGRAPH /X1=" + name), "error");
        EXPECT_EQ(DumpParsedChart("IGRAPH /X1=VAR(" + name + ")"), "error");
        EXPECT_EQ(DumpParsedChart("IGRAPH /PANEL a " + name), "error");
        EXPECT_EQ(DumpParsedChart("IGRAPH /PANEL VAR(a " + name + ")"), "error");
        EXPECT_EQ(DumpParsedChart("IGRAPH /REFLINE " + name + " 5"), "error");
    }
    ExpectErrors({"/X1=by", "/X1=all", "/POINTLABEL all"});
}

TEST(ParseChart, TakesKeywordsForNamesWhereOnlyNamesMayStand) {
    ExpectParsed({
        {"/X1=TYPE TYPE=SCALE", "x1 TYPE scale"},
        {"/X1=VAR", "x1 VAR"},
        {"/COLOR=STACK STACK", "color STACK stack"},
        {"/PANEL panel x1 bar", "panel panel x1 bar"},
        {"/SCALERANGE min MIN=1", "scalerange min(1..)"},
    });
}

TEST(ParseChart, TakesTheLastOfASubcommandWhole) {
    ExpectParsed({
        {"/X1=a TYPE=SCALE (MIN=1) TITLE='t' /X1=b", "x1 b"},
        {"/COLOR=a LEGEND=OFF STACK /COLOR=b", "color b"},
        {"/SUMMARYVAR=a TITLE='t' /SUMMARYVAR=b", "summaryvar b"},
        {"/PANEL a b /PANEL c", "panel c"},
        {"/POINTLABEL a /POINTLABEL b", "pointlabel b"},
        {"/CASELABEL a /CASELABEL b", "caselabel b"},
    });
}

TEST(ParseChart, JoinsASignToItsNumber) {
    ExpectParsed({
        {"/REFLINE a - 5", "refline a -5"},
        {"/REFLINE a +5", "refline a 5"},
        {"/REFLINE a -.5e1", "refline a -5"},
        {"/BAR(NIN(1 -5))", "error"},
        {"/BAR(NIN(-1 -.5))", "bar number[-1,-0.5]"},
    });
    ExpectErrors({"/REFLINE a --5", "/REFLINE a +-5", "/REFLINE a 5-", "/REFLINE a *5"});
}

TEST(ParseChart, FailsOnParenthesesWithoutPartner) {
    ExpectErrors({"/X1=VAR(a", "/X1=a)", "/BAR(MEAN", "/BAR(MEAN))", "/BAR(PTILE(5)",
                  "/BAR BASELINE=(5", "/BAR BASELINE=5)", "/CATORDER a (VALUE", "/COLOR=a (STACK",
                  "/PANEL VAR(a b", "/X1=a TYPE=SCALE (MIN=1"});
}

TEST(ParseChart, FailsOnStrayTokens) {
    ExpectErrors({"/X1=a .", "/X1=a *", "/X1=a; /BAR", "/X1=a 5", "/BAR 'x'", "+ /BAR", "/BAR &",
                  "/X1=a | b", "/BAR [MEAN]", "/BAR ?"});
}

/// A command of `count` subcommands or names, which `item` gives.
template <class Item>
std::string Repeated(std::string text, int count, Item item) {
    for (int i = 0; i < count; ++i) {
        text += item(std::to_string(i));
    }
    return text;
}

TEST(ParseChart, ReadsAHundredThousandNames) {
    constexpr int kMany = 100000;
    ChartModel chart;
    const auto parse = [&chart](const std::string& command) {
        const std::unique_ptr<ZELKTokenSequence> tokens(TokensOf(command));
        chart = ChartModel();
        return ParseChart(*tokens, chart);
    };
    ASSERT_TRUE(parse(Repeated("IGRAPH /PANEL", kMany, [](const std::string& number) {
        return " v" + number + " V" + number;
    })));
    EXPECT_EQ(chart.panels.size(), kMany);
    EXPECT_EQ(chart.panels.back().name, "v99999");
    ASSERT_TRUE(parse(Repeated("IGRAPH", kMany, [](const std::string& number) {
        return "/CATORDER v" + number + "(COUNT)/SCALERANGE v" + number + " MIN=1/REFLINE v" +
               number + " 5";
    })));
    EXPECT_EQ(chart.categoryOrders.size(), kMany);
    EXPECT_EQ(chart.scaleRanges.size(), kMany);
    EXPECT_EQ(chart.referenceLines.size(), kMany);
}

} // namespace

} // namespace recastor
