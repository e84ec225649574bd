/// The stages of a conversion as benchmarks, each on inputs of the kinds that mean work for it.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// What a stage is run on.
struct Sample {
    std::string text;
    std::vector<std::string> commands; ///< the text as the command stream cuts it
};

/// Commands of the kind, enough that one run takes some milliseconds.
Sample MakeSample(std::string_view kind);

/// Adds up the time between Start() and Stop(), so that a stage can prepare what it works on
/// without being charged for it.
class Stopwatch {
public:
    void Start() { m_start = Clock::now(); }
    void Stop() { m_total += Clock::now() - m_start; }
    double Seconds() const { return std::chrono::duration<double>(m_total).count(); }

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point m_start;
    Clock::duration m_total{};
};

struct Stage {
    std::string_view name;
    std::vector<std::string_view> kinds; ///< those of InputKinds()
    /// Runs the stage once over the sample, the watch going while it does; the number of bytes that
    /// it read.
    std::size_t (*run)(const Sample& sample, Stopwatch& watch);
};

/// From bytes to commands and tokens.
std::vector<Stage> LexicalStages();
/// From the tokens of TABLES commands to text.
std::vector<Stage> TablesStages();
/// From the tokens of IGRAPH commands to text.
std::vector<Stage> ChartStages();
/// Files: what is read, what is written, and the whole.
std::vector<Stage> FileStages();

} // namespace recastor
