#include "ctables/recastor/parseigraph.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/igraphspec.h"

#include <sstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct Conversion {
    std::string output;
    std::string told;
};

Conversion Convert(const std::string& command) {
    std::ostringstream output;
    testing::internal::CaptureStdout();
    ParseIgraph(new ZELKTokenSequence(command, false, 0), output, 0);
    return {output.str(), testing::internal::GetCapturedStdout()};
}

std::string Framed(const std::string& text) {
    return "COMMENT -- Begin GGRAPH command.\n" + text + "COMMENT -- End GGRAPH command.\n";
}

const std::string kFailed = "Igraph conversion failed!\n";

} // namespace

TEST(ParseIgraph, AValidCommandBecomesAGGraphCommand) {
    const Conversion conversion =
        Convert("IGRAPH /VIEWNAME='It''s' /X1=a /Y=b /PANEL=p /CHARTLOOK='x\"y' /SCATTER\n");
    EXPECT_EQ(conversion.told, "Igraph conversion was successful!\n");
    EXPECT_EQ(conversion.output, Framed(R"ggraph(GGRAPH
  /GRAPHDATASET NAME="iGraphDataset" VARIABLES=a b p
    MISSING=LISTWISE REPORTMISSING=NO
  /GRAPHSPEC SOURCE=INLINE EDITABLE=YES LABEL='It''s'
      TEMPLATE=["x""y"]
      INLINETEMPLATE=["<setWrapPanels/>"].
BEGIN GPL
 SOURCE: s=userSource(id("iGraphDataset"))
 DATA: a=col(source(s), name("a"))
 DATA: b=col(source(s), name("b"))
 DATA: p=col(source(s), name("p"), unit.category())
 COORD: rect(dim(1,2), wrap())
 GUIDE: axis(dim(1), label("a"))
 GUIDE: axis(dim(2), label("b"))
 GUIDE: axis(dim(3), label("p"), opposite())
 ELEMENT: point(position(a*b*p))
END GPL.
)ggraph"));
}

TEST(ParseIgraph, ACommandThatIsNotInTheLanguageIsNotValid) {
    const Conversion conversion = Convert("IGRAPH /NOSUCH=1\n");
    EXPECT_EQ(conversion.output, Framed("*IGRAPH syntax is not valid, and can't be converted!.\n"));
    EXPECT_EQ(conversion.told, kFailed);
}

TEST(ParseIgraph, ACommandWhosePartsDoNotFitIsNotValid) {
    const Conversion conversion = Convert("IGRAPH /X1=a /Y=b /COORDINATE=THREE /SCATTER\n");
    EXPECT_EQ(conversion.output, Framed("*IGRAPH syntax is not valid, and can't be converted!.\n"));
    EXPECT_EQ(conversion.told, kFailed);
}

TEST(ParseIgraph, AChartWithoutGplSaysWhy) {
    const Conversion conversion = Convert("IGRAPH /X1=a /Y=b /FITLINE METHOD=ORIGIN\n");
    EXPECT_EQ(conversion.output,
              Framed("*IGRAPH command with FITLINE METHOD=ORIGIN cannot be converted: "
                     "fit lines through the origin have no GPL form.\n"));
    EXPECT_EQ(conversion.told, kFailed);
}

TEST(ParseIgraph, AGraphWithoutAViewNameIsListedAsInteractive) {
    ChartModel chart;
    iGraphSpec unnamed(std::make_unique<ChartModel>(chart));
    LabelOutput(unnamed);
    EXPECT_EQ(unnamed.getGGraphSpec()->OutputLabel(), "Interactive Graph");
    chart.viewName = "Heights";
    iGraphSpec named(std::make_unique<ChartModel>(chart));
    LabelOutput(named);
    EXPECT_EQ(named.getGGraphSpec()->OutputLabel(), "Heights");
    EXPECT_EQ(named.getViewName(), "Heights");
}

} // namespace recastor
