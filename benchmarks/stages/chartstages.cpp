#include "benchmarks/stages/stages.h"
#include "ctables/recastor/ggraphcommand.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/gplgenerator.h"
#include "platform/zelkwigr/parser.h"

#include <benchmark/benchmark.h>

namespace recastor {

namespace {

std::size_t ParseCharts(const Sample& sample, Stopwatch& watch) {
    for (const std::string& text : sample.commands) {
        ZELKTokenSequence tokens(text, false, 0);
        watch.Start();
        parser chartParser(nullptr, nullptr);
        benchmark::DoNotOptimize(chartParser.Parse(tokens) &&
                                 chartParser.CompleteAndValidateSyntax());
        watch.Stop();
    }
    return sample.text.size();
}

std::size_t WriteCharts(const Sample& sample, Stopwatch& watch) {
    for (const std::string& text : sample.commands) {
        ZELKTokenSequence tokens(text, false, 0);
        parser chartParser(nullptr, nullptr);
        benchmark::DoNotOptimize(chartParser.Parse(tokens) &&
                                 chartParser.CompleteAndValidateSyntax());
        iGraphSpec* const spec = chartParser.GetSettings();
        if (spec == nullptr) {
            continue; // no valid chart
        }
        watch.Start();
        benchmark::DoNotOptimize(GGraphCommand({spec->getViewName(),
                                                spec->getUsedVarName(),
                                                spec->getChartLooks(),
                                                {},
                                                gplGenerator(*spec, nullptr, nullptr).getGPL()}));
        watch.Stop();
    }
    return sample.text.size();
}

} // namespace

std::vector<Stage> ChartStages() {
    return {
        {"chart parser", {"igraph"}, ParseCharts},
        {"chart generator", {"igraph"}, WriteCharts},
    };
}

} // namespace recastor
