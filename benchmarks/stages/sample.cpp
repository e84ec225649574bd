#include "benchmarks/inputs/inputs.h"
#include "benchmarks/stages/stages.h"
#include "ctables/recastor/commandstream.h"

#include <sstream>

namespace recastor {

Sample MakeSample(std::string_view kind) {
    constexpr std::size_t kBytes = 300'000;
    constexpr std::uint64_t kSeed = 1;
    Sample sample{GenerateInput(kind, kBytes, kSeed), {}};
    std::istringstream input(sample.text);
    CommandStream commands(input, false);
    while (!commands.NextCommand()) {
        sample.commands.push_back(commands.CommandString());
    }
    return sample;
}

} // namespace recastor
