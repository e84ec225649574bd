// The tables of the recorded cases: what each old command makes is what its new form makes.

#include "archive/picture/skeletonofctables.h"
#include "archive/picture/skeletonoftree.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/recastor.h"
#include "tests/support/goldencases.h"
#include "tests/support/run.h"
#include "tests/support/skeletondifferences.h"

#include <filesystem>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

/// Compares the skeletons of each TABLES command that is converted.
class Comparison : public ConversionListener {
public:
    void OnTree(const TbTrParseNode& root) override { m_old = SkeletonOfTree(root); }
    void OnConverted(std::string_view text, const std::vector<std::string>& /*warnings*/) override {
        if (m_old) {
            const std::string command = std::string(text) + ".\n";
            const CommandSkeleton written = SkeletonOfCtables(command);
            EXPECT_EQ(DifferencesOf(*m_old, written), std::vector<std::string>()) << command;
            EXPECT_TRUE(*m_old == written) << command;
            m_old.reset();
            ++m_count;
        }
    }
    void OnNotConverted(const ConversionError& /*error*/) override { m_old.reset(); }

    int Count() const { return m_count; }

private:
    std::optional<CommandSkeleton> m_old;
    int m_count = 0;
};

TEST(Skeletons, OfOldAndNewCommandsOfTheGoldenCasesAreTheSame) {
    int compared = 0;
    for (const fs::path& folder : GoldenCases(fs::path(RECASTOR_TESTS) / "golden")) {
        const fs::path input = folder / "input.syn";
        if (!fs::exists(input) || ReadFile(folder / "status") != "0\n") {
            continue;
        }
        SCOPED_TRACE(input);
        std::istringstream file(ReadFile(input));
        std::ostringstream output;
        const bool batch = IsBatchCase(folder);
        CommandStream commands(file, batch);
        Comparison comparison;
        const CapturedStreams streams;
        ConvertCommands(commands, batch, output, comparison);
        compared += comparison.Count();
    }
    EXPECT_GT(compared, 200);
}

} // namespace

} // namespace recastor
