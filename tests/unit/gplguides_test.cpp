#include "tests/unit/gpl_rows.h"

namespace recastor {

namespace {

/// The label of Y's axis, which is the second axis of these commands.
void ExpectYLabels(std::initializer_list<std::pair<const char*, const char*>> rows) {
    for (const auto& [subcommands, label] : rows) {
        SCOPED_TRACE(subcommands);
        const auto lines = GplLinesOf(subcommands, "GUIDE");
        ASSERT_GE(lines.size(), 2U) << lines.front();
        EXPECT_EQ(lines[1], std::string("axis(dim(2), label(\"") + label + "\"))");
    }
}

/// The guides of X1 and Y, which the rows leave out.
void ExpectFurtherGuides(std::initializer_list<GplRow> rows) {
    for (const auto& [subcommands, expected] : rows) {
        SCOPED_TRACE(subcommands);
        auto lines = GplLinesOf(subcommands, "GUIDE");
        ASSERT_GE(lines.size(), 2U) << lines.front();
        lines.erase(lines.begin(), lines.begin() + 2);
        EXPECT_EQ(lines, expected);
    }
}

} // namespace

TEST(GplAxes, StandInTheOrderOfTheSubcommandsNames) {
    ExpectLines("GUIDE", {
                             {"/Y=b /X1=a /SCATTER",
                              {"axis(dim(1), label(\"a\"))", "axis(dim(2), label(\"b\"))"}},
                             {"/X2=c /Y=b /X1=a /COORDINATE=THREE /SCATTER",
                              {"axis(dim(1), label(\"a\"))", "axis(dim(2), label(\"c\"))",
                               "axis(dim(3), label(\"b\"))"}},
                             {"/Y=b /X1=a /COLOR=c LEGEND=OFF /BOX",
                              {"axis(dim(3), label(\"a\"))", "axis(dim(2), label(\"b\"))",
                               "legend(aesthetic(aesthetic.color.interior), null())"}},
                         });
}

TEST(GplAxes, AMissingX1HasNone) {
    ExpectLines("GUIDE",
                {
                    {"/Y=b /BOX", {"axis(dim(2), label(\"b\"))"}},
                    {"/PANEL=p /BAR",
                     {"axis(dim(2), label(\"Count\"))", "axis(dim(3), label(\"p\"), opposite())"}},
                });
}

TEST(GplAxes, TitlesTakeThePlaceOfNames) {
    ExpectLines("GUIDE", {
                             {"/X1=a TITLE='A' 'and more' /Y=b TITLE='The \"B\"' /BAR",
                              {"axis(dim(1), label(\"A\\nand more\"))",
                               "axis(dim(2), label(\"The \\\"B\\\"\"))"}},
                             {"/X1=a TITLE='' /Y=$count TITLE='n' /BAR",
                              {"axis(dim(1), label(\"\"))", "axis(dim(2), label(\"n\"))"}},
                         });
}

TEST(GplAxes, PanelsAreOpposite) {
    ExpectLines(
        "GUIDE",
        {
            {"/X1=a /Y=b /PANEL=p q /SCATTER",
             {"axis(dim(1), label(\"a\"))", "axis(dim(2), label(\"b\"))",
              "axis(dim(3), label(\"p\"), opposite())", "axis(dim(4), label(\"q\"), opposite())"}},
            {"/X1=a /Y=b /COLOR=c /PANEL=p q /BOX",
             {"axis(dim(3), label(\"a\"))", "axis(dim(2), label(\"b\"))",
              "axis(dim(4), label(\"p\"), opposite())", "axis(dim(5), label(\"q\"), opposite())",
              "legend(aesthetic(aesthetic.color.interior), label(\"c\"))"}},
            {"/COLOR=c /PANEL=p q /PIE",
             {"axis(dim(1), null())", "axis(dim(2), label(\"p\"), opposite())",
              "axis(dim(3), label(\"q\"), opposite())",
              "legend(aesthetic(aesthetic.color.interior), label(\"c\"))"}},
        });
}

TEST(GplAxes, YSaysWhatIsDrawnOfIt) {
    ExpectYLabels({
        {"/X1=a /BAR", "Count"},
        {"/X1=a /Y=$count /LINE", "Count"},
        {"/X1=a /Y=$pct /AREA", "Percent"},
        {"/X1=a /HISTOGRAM", "Count"},
        {"/X1=a /Y=$PCT /HISTOGRAM", "Percent"},
        {"/X1=a /Y=b /SCATTER", "b"},
        {"/X1=a /Y=b /ERRORBAR", "b"},
        {"/X1=a /Y=salary /BAR", "Mean salary"},
        {"/X1=a /Y=b TYPE=CATEGORICAL /LINE", "Mode b"},
        {"/X1=a /Y=b /AREA(PTILE(25))", "Percentile 25 of b"},
        {"/X1=a /Y=b /BAR(PIN(1,5))", "Percentage inside 1 to 5 of b"},
        {"/X1=a /Y=$case /BAR", "Mode $CASENUM"},
    });
}

TEST(GplAxes, TheFirstSummaryCounts) {
    ExpectYLabels({
        {"/X1=a /Y=b /ERRORBAR /LINE(SUM) /BAR(MEAN)", "Sum b"},
        {"/X1=a /Y=b /AREA(MEDIAN) /LINE(SUM)", "Median b"},
        {"/X1=a /Y=b /LINE(SUM) STYLE=NONE /BAR(MEAN)", "Mean b"},
        {"/X1=a /Y=b /LINE(SUM) STYLE=NONE /ERRORBAR", "b"},
    });
}

TEST(GplAxes, YIsAPercentageWhereTheFirstSummaryIsNormalized) {
    ExpectYLabels({
        {"/X1=a /Y=b /COLOR=c STACK /NORMALIZE /BAR", "Percent"},
        {"/X1=a /Y=$count /COLOR=c STACK /NORMALIZE /BAR", "Percent"},
        {"/X1=a /Y=b /COLOR=c /NORMALIZE /AREA", "Percent"},
        {"/X1=a /Y=b /STYLE=c /NORMALIZE /AREA", "Percent"},
        {"/X1=a /Y=b TITLE='t' /COLOR=c /NORMALIZE /AREA", "t"},
        {"/X1=a /Y=b /COLOR=c /NORMALIZE /LINE /AREA", "Mean b"},
        {"/X1=a /Y=b /COLOR=c /NORMALIZE /AREA /LINE", "Percent"},
        {"/X1=a /Y=b /COLOR=c TYPE=SCALE /NORMALIZE /AREA", "Mean b"},
        {"/X1=a /Y=b /COLOR=c TYPE=SCALE STACK /NORMALIZE /BAR", "Mean b"},
        {"/X1=a /Y=b /NORMALIZE /BAR", "Mean b"},
        {"/X1=a /Y=b /COLOR=c STACK /BAR", "Mean b"},
    });
}

TEST(GplLegends, StandInTheirOrderWithTitleOrName) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /SIZE=e /STYLE=d TITLE='D' /COLOR=c /SCATTER",
         {"legend(aesthetic(aesthetic.color.interior), label(\"c\"))",
          "legend(aesthetic(aesthetic.shape.interior), label(\"D\"))",
          "legend(aesthetic(aesthetic.size), label(\"e\"))"}},
        {"/X1=a /Y=b /COLOR=$count /SIZE=$pct /SCATTER",
         {"legend(aesthetic(aesthetic.color.interior), label(\"Count\"))",
          "legend(aesthetic(aesthetic.size), label(\"Percent\"))"}},
        {"/X1=a /Y=b /COLOR=$case /SCATTER",
         {"legend(aesthetic(aesthetic.color.interior), label(\"$CASENUM\"))"}},
    });
}

TEST(GplLegends, OffIsNull) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /COLOR=c LEGEND=OFF /STYLE=d LEGEND=ON /SIZE=e LEGEND=OFF TITLE='x' /SCATTER",
         {"legend(aesthetic(aesthetic.color.interior), null())",
          "legend(aesthetic(aesthetic.shape.interior), label(\"d\"))",
          "legend(aesthetic(aesthetic.size), null())"}},
        {"/X1=a /Y=b /STYLE=d LEGEND=OFF /AREA /LINE",
         {"legend(aesthetic(aesthetic.texture.pattern.interior), null())",
          "legend(aesthetic(aesthetic.shape.interior), null())"}},
    });
}

TEST(GplLegends, StyleIsAPatternOnFilledElementsAndAShapeOnPointsAndLines) {
    const std::string pattern =
        "legend(aesthetic(aesthetic.texture.pattern.interior), label(\"d\"))";
    const std::string shape = "legend(aesthetic(aesthetic.shape.interior), label(\"d\"))";
    ExpectFurtherGuides({
        {"/X1=a /Y=b /STYLE=d /BAR", {pattern}},
        {"/X1=a /Y=b /STYLE=d /AREA", {pattern}},
        {"/X1=a /Y=b /STYLE=d /BOX", {pattern}},
        {"/X1=a /Y=b /STYLE=d /ERRORBAR", {pattern}},
        {"/X1=a /STYLE=d /HISTOGRAM", {pattern}},
        {"/X1=a /Y=b /STYLE=d /SCATTER", {shape}},
        {"/X1=a /Y=b /STYLE=d /LINE", {shape}},
        {"/X1=a /Y=b /STYLE=d /LINE /AREA", {pattern, shape}},
        {"/X1=a /Y=b /STYLE=d /ERRORBAR /LINE STYLE=NONE", {pattern}},
    });
    ExpectLines("GUIDE", {{"/STYLE=d /PIE", {"axis(dim(1), null())", pattern}}});
}

TEST(GplLegends, SizeIsOfPointsAndLines) {
    const std::string size = "legend(aesthetic(aesthetic.size), label(\"e\"))";
    ExpectFurtherGuides({
        {"/X1=a /Y=b /SIZE=e /SCATTER", {size}},
        {"/X1=a /Y=b /SIZE=e /LINE", {size}},
        {"/X1=a /Y=b /SIZE=e /BAR", {}},
        {"/X1=a /Y=b /SIZE=e /ERRORBAR", {}},
        {"/X1=a /Y=b /SIZE=e TYPE=CATEGORICAL /FITLINE LINE=MEFFECT", {}},
    });
}

TEST(GplLegends, FitLinesAloneHaveNone) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /COLOR=c /STYLE=d /FITLINE LINE=MEFFECT", {}},
        {"/X1=a /Y=b /COLOR=c /FITLINE /SCATTER",
         {"legend(aesthetic(aesthetic.color.interior), label(\"c\"))"}},
    });
}

TEST(GplLegends, APieThatSlicesByX1ShowsItAsColor) {
    ExpectLines(
        "GUIDE",
        {
            {"/X1=a /PIE",
             {"axis(dim(1), null())", "legend(aesthetic(aesthetic.color.interior), label(\"a\"))"}},
            {"/X1=a TITLE='A' /Y=b /PIE",
             {"axis(dim(1), null())", "legend(aesthetic(aesthetic.color.interior), label(\"A\"))"}},
            {"/COLOR=c /STYLE=d /PIE",
             {"axis(dim(1), null())", "legend(aesthetic(aesthetic.color.interior), label(\"c\"))",
              "legend(aesthetic(aesthetic.texture.pattern.interior), label(\"d\"))"}},
        });
}

TEST(GplTexts, TitleSubtitleAndCaption) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /SCATTER /CAPTION='c' /SUBTITLE='s' /TITLE='t'",
         {"text.title(label(\"t\"))", "text.subtitle(label(\"s\"))",
          "text.footnote(label(\"c\"))"}},
        {"/X1=a /Y=b /SCATTER /TITLE='one' 'two \\ \"three\"' /CAPTION=\"it's\"",
         {"text.title(label(\"one\\ntwo \\\\ \\\"three\\\"\"))", "text.footnote(label(\"it's\"))"}},
        {"/X1=a /Y=b /COLOR=c /SCATTER /TITLE='t' /REFLINE a 1",
         {"legend(aesthetic(aesthetic.color.interior), label(\"c\"))", "text.title(label(\"t\"))",
          "form.line(position(1,*))"}},
    });
}

TEST(GplTexts, AnEmptyTextSaysNothing) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /SCATTER /TITLE='' /SUBTITLE='s'", {"text.subtitle(label(\"s\"))"}},
    });
}

TEST(GplReferenceLines, StandOnTheScaleThatTheyName) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /SCATTER /REFLINE b 25.5 /REFLINE a -3 /REFLINE B 1",
         {"form.line(position(*,25.5))", "form.line(position(-3,*))", "form.line(position(*,1))"}},
        {"/X1=a /Y=b /SCATTER /REFLINE b 2 LABEL=ON /REFLINE a 0.50 LABEL=ON SPIKE=ON",
         {"form.line(position(*,2), label(\"2\"))", "form.line(position(0.5,*), label(\"0.5\"))"}},
        {"/X1=a /Y=b /SCATTER /REFLINE b 2 LABEL=OFF COLOR=red STYLE='dash'",
         {"form.line(position(*,2))"}},
    });
}

TEST(GplReferenceLines, YComesBeforeX1) {
    ExpectFurtherGuides({
        {"/X1=a /Y=a /SCATTER /REFLINE a 1", {"form.line(position(*,1))"}},
        {"/X1=a /Y=a TYPE=CATEGORICAL /SCATTER /REFLINE a 1", {"form.line(position(1,*))"}},
    });
}

TEST(GplReferenceLines, CountsAreYAlsoWhenItIsMissing) {
    ExpectFurtherGuides({
        {"/X1=a /BAR /REFLINE $count 10", {"form.line(position(*,10))"}},
        {"/X1=a /Y=$COUNT /BAR /REFLINE $count 10", {"form.line(position(*,10))"}},
        {"/X1=a /Y=$pct /BAR /REFLINE $count 10 /REFLINE $pct 5", {"form.line(position(*,5))"}},
    });
}

TEST(GplReferenceLines, ACategoryHasNone) {
    ExpectFurtherGuides({
        {"/X1=a /Y=b /BAR /REFLINE a 1 /REFLINE nobody 2 /REFLINE b 3",
         {"form.line(position(*,3))"}},
        {"/X1=a /Y=b TYPE=CATEGORICAL /BAR /REFLINE b 3", {}},
    });
}

TEST(GplReferenceLines, PiesAndThreeDimensionsHaveNone) {
    ExpectLines(
        "GUIDE",
        {
            {"/Y=b /X1=a /PIE /REFLINE b 1",
             {"axis(dim(1), null())", "legend(aesthetic(aesthetic.color.interior), label(\"a\"))"}},
            {"/X1=a /X2=c /Y=b /COORDINATE=THREE /SCATTER /REFLINE b 1 /REFLINE a 1",
             {"axis(dim(1), label(\"a\"))", "axis(dim(2), label(\"c\"))",
              "axis(dim(3), label(\"b\"))"}},
        });
}

TEST(GplReferenceLines, ALabelledCaseNumber) {
    ExpectFurtherGuides({
        {"/X1=$case TYPE=SCALE /Y=b /SCATTER /REFLINE $case 7 LABEL=ON",
         {"form.line(position(7,*), label(\"7\"))"}},
    });
}

} // namespace recastor
