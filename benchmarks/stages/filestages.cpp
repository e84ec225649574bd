#include "benchmarks/stages/stages.h"
#include "ctables/recastor/commandline.h"
#include "ctables/recastor/inputfile.h"
#include "ctables/recastor/outputfile.h"
#include "ctables/recastor/printcommand.h"
#include "tests/support/memoryfile.h"

#include <stdexcept>

namespace recastor {

namespace {

void Require(bool holds) {
    if (!holds) {
        throw std::runtime_error("a file in memory failed");
    }
}

std::size_t InspectInput(const Sample& sample, Stopwatch& watch) {
    const MemoryFile file(sample.text);
    InputFile input;
    Require(input.Open(file.Name()));
    watch.Start();
    Require(input.Inspect() && input.IsValidText());
    watch.Stop();
    return sample.text.size();
}

std::size_t CopyCommands(const Sample& sample, Stopwatch& watch) {
    const MemoryFile source("");
    const MemoryFile target("");
    InputFile input;
    OutputFile output;
    Require(input.Open(source.Name()) && output.Open(target.Name(), input.File()));
    watch.Start();
    for (const std::string& command : sample.commands) {
        PrintCommand(command, output.Stream(), 0);
    }
    Require(output.Close());
    watch.Stop();
    return sample.text.size();
}

std::size_t ConvertFile(const Sample& sample, Stopwatch& watch) {
    const MemoryFile source(sample.text);
    const MemoryFile target("");
    watch.Start();
    Require(RunConversion({false, source.Name(), target.Name()}) == 0);
    watch.Stop();
    return sample.text.size();
}

} // namespace

std::vector<Stage> FileStages() {
    return {
        {"inspection of the input", {"ordinary"}, InspectInput},
        {"output of copied commands", {"ordinary"}, CopyCommands},
        {"whole file in memory",
         {"ordinary", "tables-small", "tables-banner", "tables-wide", "igraph"},
         ConvertFile},
    };
}

} // namespace recastor
