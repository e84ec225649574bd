// The classes around the chart: parser, spec, generator and post-processing.

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/dopostprocessing.h"
#include "platform/zelkwigr/gplgenerator.h"
#include "platform/zelkwigr/igraphspec.h"
#include "platform/zelkwigr/parser.h"
#include "tests/support/charts.h"

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> TemplatesOf(const ChartModel& chart) {
    doPostProcessing postProcessing(nullptr, nullptr, nullptr);
    postProcessing.process(iGraphSpec(std::make_unique<ChartModel>(chart)));
    return postProcessing.getImmediateTemplates();
}

ChartModel Panelled(ChartModel chart, std::vector<ChartVariable> panels) {
    chart.panels = std::move(panels);
    return chart;
}

} // namespace

TEST(IGraphSpec, TellsWhatTheChartSays) {
    ChartModel chart = ChartOf(MeanBar());
    chart.viewName = "Means";
    chart.chartLooks = {"one", "two"};
    iGraphSpec spec(std::make_unique<ChartModel>(chart));
    EXPECT_EQ(spec.getViewName(), "Means");
    EXPECT_THAT(spec.getChartLooks(), ElementsAre("one", "two"));
    EXPECT_EQ(spec.getUsedVarName(), "x y");
    EXPECT_EQ(spec.errorMessage(), "");
    EXPECT_EQ(gplGenerator(spec, nullptr, nullptr).getGPL(), GplText(chart));
}

TEST(IGraphSpec, AChartWithoutGplHasAMessageAndNoText) {
    ChartModel chart = PieChart();
    chart.elements.emplace_back(Pie());
    iGraphSpec spec(std::make_unique<ChartModel>(chart));
    EXPECT_EQ(spec.errorMessage(), "*IGRAPH command with PIE and another element cannot be "
                                   "converted: a pie has no axes to share.");
    EXPECT_EQ(gplGenerator(spec, nullptr, nullptr).getGPL(), "");
}

TEST(DoPostProcessing, PanelsOfOneVariableAreWrapped) {
    const ChartModel bars = ChartOf(MeanBar());
    EXPECT_THAT(TemplatesOf(bars), IsEmpty());
    EXPECT_THAT(TemplatesOf(Panelled(bars, {Named("p")})), ElementsAre("<setWrapPanels/>"));
    EXPECT_THAT(TemplatesOf(Panelled(bars, {Named("p"), Named("q")})), IsEmpty());
    EXPECT_THAT(TemplatesOf(Panelled(PieChart(), {Named("p")})), IsEmpty());
}

TEST(DoPostProcessing, ForgetsTheGraphBefore) {
    doPostProcessing postProcessing(nullptr, nullptr, nullptr);
    const ChartModel panelled = Panelled(ChartOf(MeanBar()), {Named("p")});
    postProcessing.process(iGraphSpec(std::make_unique<ChartModel>(panelled)));
    postProcessing.process(iGraphSpec(std::make_unique<ChartModel>(panelled)));
    EXPECT_THAT(postProcessing.getImmediateTemplates(), ElementsAre("<setWrapPanels/>"));
    postProcessing.process(iGraphSpec(std::make_unique<ChartModel>(ChartOf(MeanBar()))));
    EXPECT_THAT(postProcessing.getImmediateTemplates(), IsEmpty());
}

TEST(Parser, ReadsSeveralCommandsOneAfterTheOther) {
    parser chartParser(nullptr, nullptr);
    EXPECT_EQ(chartParser.GetSettings(), nullptr);
    ZELKTokenSequence first("IGRAPH /VIEWNAME='one' /X1=a /Y=b /SCATTER\n", false, 0);
    ASSERT_TRUE(chartParser.Parse(first));
    ASSERT_TRUE(chartParser.CompleteAndValidateSyntax());
    EXPECT_EQ(chartParser.GetSettings()->getUsedVarName(), "a b");

    ZELKTokenSequence second("IGRAPH /X1=c /BAR\n", false, 0);
    ASSERT_TRUE(chartParser.Parse(second));
    ASSERT_TRUE(chartParser.CompleteAndValidateSyntax());
    EXPECT_EQ(chartParser.GetSettings()->getUsedVarName(), "c");
    EXPECT_EQ(chartParser.GetSettings()->getViewName(), "");
}

TEST(Parser, RefusesWhatIsNotInTheLanguageAndWhatDoesNotFit) {
    parser chartParser(nullptr, nullptr);
    ZELKTokenSequence unknown("IGRAPH /NOSUCH\n", false, 0);
    EXPECT_FALSE(chartParser.Parse(unknown));
    ZELKTokenSequence unfit("IGRAPH /X1=$count /BAR\n", false, 0);
    EXPECT_TRUE(chartParser.Parse(unfit));
    EXPECT_FALSE(chartParser.CompleteAndValidateSyntax());
}

} // namespace recastor
