// The subcommands that say what is drawn.

#include "tests/unit/chart_rows.h"

namespace recastor {

namespace {

TEST(ParseAxis, TakesAVariable) {
    ExpectParsed({
        {"/X1=VAR(a)", "x1 a"},
        {"/X1=a", "x1 a"},
        {"/X2=VAR(b)", "x2 b"},
        {"/Y=VAR(c)", "y c"},
        {"/Y c", "y c"},
    });
    ExpectErrors({"/X1", "/X1=", "/X1=VAR()", "/X1=VAR(a", "/X1=VAR(a b)", "/X1=5", "/X1='a'",
                  "/X1=a b", "/X2", "/Y", "/X1=(a)", "/X1=VAR(VAR(a))"});
}

TEST(ParseAxis, TakesAType) {
    ExpectParsed({
        {"/X1=a TYPE=SCALE", "x1 a scale"},
        {"/X1=a TYPE=CATEGORICAL", "x1 a cat"},
        {"/X2=a TYPE=CATEGORICAL", "x2 a cat"},
        {"/Y=a TYPE=SCALE", "y a scale"},
    });
    ExpectErrors(
        {"/X1=a TYPE", "/X1=a TYPE=", "/X1=a TYPE=ORDINAL", "/X1=a TYPE=1", "/X1=a SCALE"});
}

TEST(ParseAxis, TakesARangeBehindScale) {
    ExpectParsed({
        {"/Y=a TYPE=SCALE (MIN=1 MAX=9)", "y a scale(1..9)"},
        {"/Y=a TYPE=SCALE (MAX=9, MIN=1)", "y a scale(1..9)"},
        {"/Y=a TYPE=SCALE (MIN=-1.5)", "y a scale(-1.5..)"},
        {"/Y=a TYPE=SCALE(MAX +2)", "y a scale(..2)"},
        {"/Y=a TYPE=SCALE (MIN=1 MIN=2)", "y a scale(2..)"},
    });
    ExpectErrors({"/Y=a TYPE=SCALE ()", "/Y=a TYPE=SCALE (MIN)", "/Y=a TYPE=SCALE (MIN=)",
                  "/Y=a TYPE=SCALE (MIN=a)", "/Y=a TYPE=SCALE (MIN=1", "/Y=a TYPE=SCALE MIN=1",
                  "/Y=a TYPE=CATEGORICAL (MIN=1)", "/Y=a (MIN=1)", "/Y=a TYPE=SCALE (MEAN=1)",
                  "/Y=a TYPE=SCALE (MIN=1) (MAX=2)"});
}

TEST(ParseAxis, TakesATitleOfSeveralLines) {
    ExpectParsed({
        {"/X1=a TITLE='one'", "x1 a \"one\""},
        {"/X1=a TITLE='one' \"two\"", "x1 a \"one\" \"two\""},
        {"/X1=a TITLE='one' TYPE=SCALE", "x1 a scale \"one\""},
        {"/X1=a TITLE=''", "x1 a \"\""},
        {"/X1=a TITLE='It''s'", "x1 a \"It's\""},
    });
    ExpectErrors(
        {"/X1=a TITLE", "/X1=a TITLE=", "/X1=a TITLE=one", "/X1=a TITLE=1", "/X1=a 'one'"});
}

TEST(ParseAxis, KnowsNothingOfLegendsAndGroups) {
    ExpectErrors({"/X1=a LEGEND=ON", "/X1=a CLUSTER", "/Y=a STACK", "/X2=a (STACK)",
                  "/X1=a TYPE=SCALE (STACK)"});
}

TEST(ParseAxis, TakesTheLastOfAKeywordWhole) {
    ExpectParsed({
        {"/Y=a TYPE=SCALE (MIN=1) TYPE=SCALE", "y a scale"},
        {"/Y=a TYPE=SCALE (MIN=1) TYPE=CATEGORICAL", "y a cat"},
        {"/Y=a TITLE='one' 'two' TITLE='three'", "y a \"three\""},
    });
}

TEST(ParseAesthetic, TakesWhatAnAxisTakes) {
    ExpectParsed({
        {"/COLOR=VAR(a)", "color a"},
        {"/SIZE=VAR(a) TYPE=SCALE (MIN=1 MAX=9) TITLE='t'", "size a scale(1..9) \"t\""},
        {"/STYLE=a TYPE=CATEGORICAL TITLE='t' 'u'", "style a cat \"t\" \"u\""},
    });
    ExpectErrors({"/COLOR", "/SIZE=", "/STYLE=VAR(", "/COLOR=a b", "/COLOR=a TYPE=X",
                  "/SIZE=a TYPE=SCALE ()", "/SIZE=a TITLE"});
}

TEST(ParseAesthetic, TakesALegendSwitch) {
    ExpectParsed({
        {"/COLOR=a LEGEND=OFF", "color a nolegend"},
        {"/SIZE=a LEGEND=ON", "size a"},
        {"/STYLE=a LEGEND OFF", "style a nolegend"},
        {"/STYLE=a LEGEND OFF LEGEND=ON", "style a"},
    });
    ExpectErrors({"/COLOR=a LEGEND", "/COLOR=a LEGEND=NONE", "/COLOR=a OFF"});
}

TEST(ParseAesthetic, TakesAGroupingBareOrInParentheses) {
    ExpectParsed({
        {"/COLOR=a CLUSTER", "color a cluster"},
        {"/STYLE=a STACK", "style a stack"},
        {"/SIZE=a (STACK)", "size a stack"},
        {"/COLOR=a (CLUSTER) LEGEND=OFF", "color a nolegend cluster"},
        {"/COLOR=a TYPE=CATEGORICAL (STACK)", "color a cat stack"},
        {"/COLOR=a TYPE=SCALE (STACK)", "color a scale stack"},
        {"/COLOR=a TYPE=SCALE (MIN=1) (STACK)", "color a scale(1..) stack"},
        {"/COLOR=a CLUSTER STACK", "color a stack"},
        {"/COLOR=a (STACK) CLUSTER", "color a cluster"},
    });
    ExpectErrors({"/COLOR=a ()", "/COLOR=a (STACK", "/COLOR=a STACK)", "/COLOR=a (LEGEND)",
                  "/COLOR=a (STACK CLUSTER)", "/COLOR=a (MIN=1)", "/COLOR=a (STACK) (MIN=1)"});
}

TEST(ParseSummaryVariable, TakesAVariableAndATitle) {
    ExpectParsed({
        {"/SUMMARYVAR=VAR(a)", "summaryvar a"},
        {"/SUMMARYVAR=a TITLE='one' 'two'", "summaryvar a \"one\" \"two\""},
        {"/SUMMARYVAR=a TITLE='one' TITLE='two'", "summaryvar a \"two\""},
    });
    ExpectErrors(
        {"/SUMMARYVAR", "/SUMMARYVAR=a b", "/SUMMARYVAR=a TYPE=SCALE", "/SUMMARYVAR=a TITLE"});
}

TEST(ParsePanels, TakesVariablesBareOrTogether) {
    ExpectParsed({
        {"/PANEL a", "panel a"},
        {"/PANEL=a b c", "panel a b c"},
        {"/PANEL VAR(a)", "panel a"},
        {"/PANEL VAR(a b, c)", "panel a b c"},
        {"/PANEL=VAR(a) VAR(b) c", "panel a b c"},
        {"/PANEL a VAR(b)", "panel a b"},
    });
    ExpectErrors({"/PANEL", "/PANEL VAR()", "/PANEL VAR(a", "/PANEL VAR(a b) c", "/PANEL 1",
                  "/PANEL a 1", "/PANEL 'a'", "/PANEL (a)", "/PANEL a VAR(b c)", "/PANEL a)",
                  "/PANEL VAR(a 1)"});
}

TEST(ParsePanels, CountAVariableNamedTwiceOnce) {
    ExpectParsed({
        {"/PANEL a b a", "panel a b"},
        {"/PANEL VAR(a A b B a)", "panel a b"},
        {"/PANEL a a a", "panel a"},
    });
}

TEST(ParsePointLabel, IsTheFirstVariable) {
    ExpectParsed({
        {"/POINTLABEL=VAR(a)", "pointlabel a"},
        {"/POINTLABEL a b c", "pointlabel a"},
        {"/POINTLABEL VAR(a b)", "pointlabel a"},
        {"/POINTLABEL a ALL", "pointlabel a"},
        {"/POINTLABEL VAR(a b) ALL", "pointlabel a"},
        {"/POINTLABEL a b all", "pointlabel a"},
    });
    ExpectErrors({"/POINTLABEL", "/POINTLABEL ALL", "/POINTLABEL a ALL b", "/POINTLABEL a ALL NONE",
                  "/POINTLABEL VAR(a b) c", "/POINTLABEL a 'b'", "/POINTLABEL VAR(a ALL)"});
}

TEST(ParsePointLabel, IsNotThereWithNone) {
    ExpectParsed({
        {"/POINTLABEL a NONE", ""},
        {"/POINTLABEL=VAR(a b) NONE", ""},
        {"/POINTLABEL a b non", ""},
        {"/POINTLABEL a /POINTLABEL b NONE", ""},
        {"/POINTLABEL a NONE /POINTLABEL b", "pointlabel b"},
    });
}

TEST(ParsePointLabel, IsAVariableNamedNoneInTheFirstPlace) {
    ExpectParsed(
        {{"/POINTLABEL none", "pointlabel none"}, {"/POINTLABEL VAR(none)", "pointlabel none"}});
}

TEST(ParseCaseLabel, TakesOneVariable) {
    ExpectParsed({{"/CASELABEL VAR(id)", "caselabel id"}, {"/CASELABEL=id", "caselabel id"}});
    ExpectErrors({"/CASELABEL", "/CASELABEL a b", "/CASELABEL VAR(a b)", "/CASELABEL a ALL"});
}

TEST(ParseCategoryOrder, KnowsItsWords) {
    ExpectParsed({
        {"/CATORDER VAR(a) (ASCENDING)", "catorder a value"},
        {"/CATORDER VAR(a) (DESCENDING)", "catorder a value desc"},
        {"/CATORDER a (VALUE)", "catorder a value"},
        {"/CATORDER a (VALUES)", "catorder a value"},
        {"/CATORDER a (LABEL)", "catorder a label"},
        {"/CATORDER a (LABELS)", "catorder a label"},
        {"/CATORDER a (COUNT)", "catorder a count"},
        {"/CATORDER a (OCCURRENCE)", "catorder a occurrence"},
        {"/CATORDER a (OMITEMPTY)", "catorder a value"},
        {"/CATORDER a (SHOWEMPTY)", "catorder a value"},
        {"/CATORDER=a (DESCENDING LABELS OMITEMPTY)", "catorder a label desc"},
    });
    ExpectErrors({"/CATORDER", "/CATORDER a", "/CATORDER a ()", "/CATORDER a (UP)",
                  "/CATORDER a (VALUES", "/CATORDER a VALUES", "/CATORDER (VALUES)",
                  "/CATORDER a (VALUES) b", "/CATORDER a (VALUES) (DESCENDING)",
                  "/CATORDER a (1)"});
}

TEST(ParseCategoryOrder, TakesTheLastOfDirectionAndKey) {
    ExpectParsed({
        {"/CATORDER a (ASCENDING DESCENDING LABEL COUNT)", "catorder a count desc"},
        {"/CATORDER a (DESCENDING COUNT ASCENDING LABEL)", "catorder a label"},
    });
}

TEST(ParseCategoryOrder, TakesTheTwoSpellingsOfAWordForOne) {
    ExpectParsed({
        {"/CATORDER a (VAL)", "catorder a value"},
        {"/CATORDER a (LAB DESC)", "catorder a label desc"},
        {"/CATORDER a (OCC)", "catorder a occurrence"},
    });
    ExpectErrors({"/CATORDER a (VALUESS)", "/CATORDER a (VA)"});
}

TEST(ParseCategoryOrder, IsKeptOnceAVariable) {
    ExpectParsed({
        {"/CATORDER a (LABEL) /CATORDER A (DESCENDING)", "catorder a value desc"},
        {"/CATORDER a (LABEL) /CATORDER b (COUNT) /CATORDER a (VALUE)",
         "catorder b count; catorder a value"},
    });
}

TEST(ParseScaleRange, TakesOneOrBothEnds) {
    ExpectParsed({
        {"/SCALERANGE = VAR(a) MIN = -1.1 MAX = 1.1", "scalerange a(-1.1..1.1)"},
        {"/SCALERANGE a MAX 3", "scalerange a(..3)"},
        {"/SCALERANGE a MIN=+3", "scalerange a(3..)"},
        {"/SCALERANGE a MIN=3 MIN=4", "scalerange a(4..)"},
        {"/SCALERANGE = $count MIN = 0.0 MAX = 600", "scalerange $count{count}(0..600)"},
    });
    ExpectErrors({"/SCALERANGE", "/SCALERANGE a", "/SCALERANGE MIN=1", "/SCALERANGE a MIN",
                  "/SCALERANGE a (MIN=1)", "/SCALERANGE a MIN=x", "/SCALERANGE a MIN=1 b",
                  "/SCALERANGE a MIN=--1"});
}

TEST(ParseScaleRange, IsKeptOnceAVariable) {
    ExpectParsed({
        {"/SCALERANGE a MIN=1 /SCALERANGE A MAX=2", "scalerange a(..2)"},
        {"/SCALERANGE a MIN=1 /SCALERANGE b MAX=2", "scalerange a(1..); scalerange b(..2)"},
    });
}

TEST(ParseReferenceLine, TakesAVariableAndANumber) {
    ExpectParsed({
        {"/REFLINE a 25.5", "refline a 25.5"},
        {"/REFLINE=VAR(a) -3", "refline a -3"},
        {"/REFLINE $count +3", "refline $count{count} 3"},
    });
    ExpectErrors({"/REFLINE", "/REFLINE a", "/REFLINE 5", "/REFLINE a b", "/REFLINE a = 5",
                  "/REFLINE a 5 6", "/REFLINE a (5)", "/REFLINE a -"});
}

TEST(ParseReferenceLine, DrawsOnlyItsLabel) {
    ExpectParsed({
        {"/REFLINE a 5 LABEL=ON", "refline a 5 label"},
        {"/REFLINE a 5 LABEL=OFF", "refline a 5"},
        {"/REFLINE a 5 LABEL ON LABEL OFF", "refline a 5"},
        {"/REFLINE a 5 SPIKE=ON", "refline a 5"},
        {"/REFLINE a 5 SPIKE=OFF COLOR=red STYLE=dash", "refline a 5"},
        {"/REFLINE a 5 COLOR='red' STYLE=3 LABEL=ON", "refline a 5 label"},
        {"/REFLINE a 5 COLOR=-1", "refline a 5"},
    });
    ExpectErrors({"/REFLINE a 5 LABEL", "/REFLINE a 5 LABEL='x'", "/REFLINE a 5 SPIKE",
                  "/REFLINE a 5 SPIKE=UP", "/REFLINE a 5 COLOR",
                  "/REFLINE a 5 STYLE=", "/REFLINE a 5 COLOR=(1)", "/REFLINE a 5 WIDTH=2"});
}

TEST(ParseReferenceLine, AddsUp) {
    ExpectParsed(
        {{"/REFLINE a 5 /REFLINE b 6 /REFLINE a 5", "refline a 5; refline b 6; refline a 5"}});
}

TEST(ParseNormalize, TakesNoArgument) {
    ExpectParsed({{"/NORMALIZE", "normalize"}, {"/NORMALIZE /NORMALIZE", "normalize"}});
    ExpectErrors({"/NORMALIZE=ON", "/NORMALIZE x", "/NORMALIZE 1"});
}

} // namespace

} // namespace recastor
