// The subcommands around the chart.

#include "tests/unit/chart_rows.h"

namespace recastor {

namespace {

TEST(ParseViewName, JoinsItsLinesByOneBlank) {
    ExpectParsed({
        {"/VIEWNAME='Plot'", "viewname \"Plot\""},
        {"/VIEWNAME 'Plot' 'two'", "viewname \"Plot two\""},
        {"/VIEWNAME=''", ""},
        {"/VIEWNAME='' 'two'", "viewname \" two\""},
        {"/VIEWNAME='old' 'one' /VIEWNAME='new'", "viewname \"new\""},
    });
    ExpectErrors({"/VIEWNAME", "/VIEWNAME=", "/VIEWNAME=Plot", "/VIEWNAME='a' b", "/VIEWNAME=1"});
}

TEST(ParseText, IsOneOrMoreLines) {
    ExpectParsed({
        {"/TITLE='a'", "title \"a\""},
        {"/TITLE 'a' \"b\" 'c'", "title \"a\" \"b\" \"c\""},
        {"/SUBTITLE='a' 'b'", "subtitle \"a\" \"b\""},
        {"/CAPTION='a' 'b'", "caption \"a\" \"b\""},
        {"/TITLE='a' 'b' /TITLE='c'", "title \"c\""},
        {"/CAPTION='c' /SUBTITLE='s' /TITLE='t'", "title \"t\"; subtitle \"s\"; caption \"c\""},
    });
    ExpectErrors({"/TITLE", "/TITLE=a", "/SUBTITLE", "/SUBTITLE=1", "/CAPTION", "/CAPTION='a' a"});
}

TEST(ParseLength, IsAboveZero) {
    ExpectParsed({
        {"/X1LENGTH=5.0", "x1length 5"},
        {"/YLENGTH 3.5", "ylength 3.5"},
        {"/YLENGTH=0.001", "ylength 0.001"},
        {"/X1LENGTH=+5 /X1LENGTH=6", "x1length 6"},
    });
    ExpectErrors({"/X1LENGTH", "/X1LENGTH=0", "/X1LENGTH=-5", "/X1LENGTH=5 in", "/X1LENGTH='5'",
                  "/YLENGTH", "/YLENGTH=0", "/YLENGTH=-0.5", "/YLENGTH=(3)"});
}

TEST(ParseLength, OfX2IsReadAndIgnored) {
    ExpectParsed({{"/X2LENGTH=3.0", ""}});
    ExpectErrors({"/X2LENGTH", "/X2LENGTH=0", "/X2LENGTH=-1", "/X2LENGTH=a"});
}

TEST(ParseCoordinate, IsOneOfThree) {
    ExpectParsed({
        {"/COORDINATE=VERTICAL", ""},
        {"/COORDINATE=HORIZONTAL", "horizontal"},
        {"/COORDINATE THREE", "three"},
        {"/COORDINATE=THREE /COORDINATE=VERTICAL", ""},
    });
    ExpectErrors({"/COORDINATE", "/COORDINATE=TWO", "/COORDINATE=3", "/COORDINATE=THREE THREE"});
}

TEST(ParseEffect, IsReadAndIgnored) {
    ExpectParsed({{"/EFFECT=NONE", ""}, {"/EFFECT=THREE", ""}, {"/EFFECT THREE", ""}});
    ExpectErrors({"/EFFECT", "/EFFECT=TWO", "/EFFECT=THREE NONE"});
}

TEST(ParseChartLook, IsALiteralEach) {
    ExpectParsed({
        {"/CHARTLOOK='a.sgt'", "looks \"a.sgt\""},
        {"/CHARTLOOK='a' 'b'", "looks \"a\" \"b\""},
        {"/CHARTLOOK['a' 'b']", "looks \"a\" \"b\""},
        {"/CHARTLOOK=['a', \"b\"]", "looks \"a\" \"b\""},
        {"/CHARTLOOK='a' 'b' /CHARTLOOK='c'", "looks \"c\""},
    });
    ExpectErrors({"/CHARTLOOK", "/CHARTLOOK=", "/CHARTLOOK=NONE", "/CHARTLOOK[]", "/CHARTLOOK['a'",
                  "/CHARTLOOK 'a']", "/CHARTLOOK['a'] 'b'", "/CHARTLOOK('a')"});
}

TEST(ParseChartLook, LeavesOutWhatIsNoLook) {
    ExpectParsed({
        {"/CHARTLOOK='NONE'", ""},
        {"/CHARTLOOK='none'", ""},
        {"/CHARTLOOK=''", ""},
        {"/CHARTLOOK='old.clo'", ""},
        {"/CHARTLOOK='Old.CLO' 'new.sgt' '.Clo'", "looks \"new.sgt\""},
        {"/CHARTLOOK='a' /CHARTLOOK='NONE'", ""},
        {"/CHARTLOOK='clo' 'a.clo.sgt' 'NONE.sgt'", "looks \"clo\" \"a.clo.sgt\" \"NONE.sgt\""},
    });
}

TEST(ParseIgnoredSubcommands, ReachUpToTheNextSlash) {
    ExpectParsed({
        {"/KEY=ON /TITLE='a'", "title \"a\""},
        {"/SPIKE a (b 'c/d' 5 = /TITLE='a'", "title \"a\""},
        {"/FORMAT SPIKE COLOR=1 STYLE=(1 2)", ""},
        {"/CHARTSIZE 5 BY 3 /X1=a", "x1 a"},
        {"/KEY /SPIKE /FORMAT /CHARTSIZE", ""},
    });
}

} // namespace

} // namespace recastor
