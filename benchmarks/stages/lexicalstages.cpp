#include "benchmarks/stages/stages.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/linereader.h"
#include "ctables/recastor/mbcharpointer.h"
#include "ctables/recastor/tokenscan.h"
#include "ctables/recastor/zelktokensequence.h"

#include <memory>
#include <sstream>

#include <benchmark/benchmark.h>

namespace recastor {

namespace {

std::size_t StepThroughCharacters(const Sample& sample, Stopwatch& watch) {
    watch.Start();
    MBCharPointer cursor(sample.text.c_str());
    while (cursor.Code() != 0) {
        cursor.Next();
    }
    benchmark::DoNotOptimize(cursor);
    watch.Stop();
    return sample.text.size();
}

std::size_t ReadLines(const Sample& sample, Stopwatch& watch) {
    std::istringstream input(sample.text);
    watch.Start();
    LineReader reader(input);
    std::string line;
    while (reader.ReadLine(line)) {
        benchmark::DoNotOptimize(line);
    }
    watch.Stop();
    return sample.text.size();
}

std::size_t CutIntoCommands(const Sample& sample, Stopwatch& watch) {
    std::istringstream input(sample.text);
    watch.Start();
    CommandStream commands(input, false);
    while (!commands.NextCommand()) {
        benchmark::DoNotOptimize(commands.CommandString());
    }
    watch.Stop();
    return sample.text.size();
}

/// Only the bodies of ordinary commands are made of tokens.
std::size_t LookForFaultyTokens(const Sample& sample, Stopwatch& watch) {
    std::size_t bytes = 0;
    for (const std::string& command : sample.commands) {
        if (ZELKTokenSequence(command, false, kTokensThatTellTheKind).TypeOfCommand() ==
            kOrdinaryCommand) {
            watch.Start();
            CheckTokens(command.c_str(), false);
            watch.Stop();
            bytes += command.size();
        }
    }
    return bytes;
}

std::size_t MakeTokens(const Sample& sample, Stopwatch& watch) {
    watch.Start();
    for (const std::string& command : sample.commands) {
        const ZELKTokenSequence tokens(command, false, 0);
        benchmark::DoNotOptimize(tokens.Size());
    }
    watch.Stop();
    return sample.text.size();
}

} // namespace

std::vector<Stage> LexicalStages() {
    return {
        {"lines", {"ordinary"}, ReadLines},
        {"cursor", {"ordinary"}, StepThroughCharacters},
        {"boundaries",
         {"ordinary", "tables-small", "tables-banner", "tables-wide", "igraph"},
         CutIntoCommands},
        {"check of tokens", {"ordinary"}, LookForFaultyTokens},
        {"tokenizer",
         {"ordinary", "tables-small", "tables-banner", "tables-wide", "igraph"},
         MakeTokens},
    };
}

} // namespace recastor
