// stage-benchmarks: the speed of each stage of a conversion, in bytes of what the stage reads.

#include "benchmarks/stages/stages.h"
#include "platform/zelkmb/zelkmb.h"

#include <iostream>
#include <map>

#include <benchmark/benchmark.h>

namespace recastor {

namespace {

void Run(benchmark::State& state, const Stage& stage, const Sample& sample) {
    std::size_t bytes = 0;
    for ([[maybe_unused]] auto iteration : state) {
        Stopwatch watch;
        bytes += stage.run(sample, watch);
        state.SetIterationTime(watch.Seconds());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

void Register() {
    static std::map<std::string_view, Sample> samples;
    for (const auto stages : {LexicalStages, TablesStages, ChartStages, FileStages}) {
        for (const Stage& stage : stages()) {
            for (const std::string_view kind : stage.kinds) {
                if (!samples.contains(kind)) {
                    samples[kind] = MakeSample(kind);
                }
                const std::string name = std::string(stage.name) + '/' + std::string(kind);
                benchmark::RegisterBenchmark(name.c_str(), [stage, kind](benchmark::State& state) {
                    Run(state, stage, samples.at(kind));
                })->UseManualTime();
            }
        }
    }
}

} // namespace

} // namespace recastor

int main(int argc, char** argv) {
    recastor::EnableLocale();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    recastor::Register();
    std::ostream report(std::cout.rdbuf());
    std::cout.setstate(std::ios::badbit); // conversions write a line for each command there
    benchmark::JSONReporter json;
    json.SetOutputStream(&report);
    benchmark::RunSpecifiedBenchmarks(&json);
    return 0;
}
