// What the benchmarks are run on: a benchmark of commands that fail would measure nothing.

#include "benchmarks/inputs/inputs.h"
#include "tests/support/run.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr std::size_t kBytes = 200'000;
constexpr std::uint64_t kSeed = 1;

TEST(BenchmarkInputs, SameSeedGivesTheSameText) {
    for (const std::string_view kind : InputKinds()) {
        EXPECT_EQ(GenerateInput(kind, kBytes, 7), GenerateInput(kind, kBytes, 7)) << kind;
    }
}

TEST(BenchmarkInputs, OtherSeedGivesAnotherText) {
    for (const std::string_view kind : InputKinds()) {
        EXPECT_NE(GenerateInput(kind, kBytes, 7), GenerateInput(kind, kBytes, 8)) << kind;
    }
}

TEST(BenchmarkInputs, LongerTextBeginsWithTheShorterOne) {
    for (const std::string_view kind : InputKinds()) {
        const std::string text = GenerateInput(kind, kBytes / 2, kSeed);
        EXPECT_TRUE(GenerateInput(kind, kBytes, kSeed).starts_with(text)) << kind;
        EXPECT_GE(text.size(), kBytes / 2) << kind;
    }
}

TEST(BenchmarkInputs, UnknownKindIsRefused) {
    EXPECT_THROW(GenerateInput("tables", 1, kSeed), std::invalid_argument);
}

TEST(BenchmarkInputs, EveryTablesCommandIsConverted) {
    for (const std::string kind : {"tables-small", "tables-banner", "tables-wide"}) {
        const std::string output = ConvertText(GenerateInput(kind, kBytes, kSeed));
        EXPECT_THAT(output, HasSubstr("\nCTABLES\n")) << kind;
        EXPECT_EQ(std::string::npos, output.find("***** Error")) << kind;
    }
}

TEST(BenchmarkInputs, EveryIgraphCommandIsConverted) {
    const std::string output = ConvertText(GenerateInput("igraph", kBytes, kSeed));
    EXPECT_THAT(output, HasSubstr("\nGGRAPH\n"));
    EXPECT_EQ(std::string::npos, output.find("\n*IGRAPH ")); // why there is none
}

TEST(BenchmarkInputs, OrdinaryCommandsAreCopied) {
    const std::string input = GenerateInput("ordinary", kBytes, kSeed);
    std::string expected = input;
    for (std::size_t at = 0; (at = expected.find("\n\n", at)) != std::string::npos;) {
        expected.erase(at, 1);
    }
    const std::string output = ConvertText(input);
    EXPECT_EQ(expected.size(), output.size());
    EXPECT_TRUE(expected == output);
}

TEST(BenchmarkInputs, ProductMultipliesOutToItsTerms) {
    const std::string output = ConvertText(GenerateProduct(1000));
    EXPECT_THAT(output, AllOf(HasSubstr("/TABLE satisf[C] BY aaa1[C]>bbb1[C][COUNT]+"),
                              HasSubstr("aaa100[C]>bbb10[C][COUNT]"), Not(HasSubstr("*****"))));
}

} // namespace

} // namespace recastor
