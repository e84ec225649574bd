// Laws of the language of charts.

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/chartmodel.h"
#include "platform/zelkwigr/completechart.h"
#include "platform/zelkwigr/parsechart.h"
#include "platform/zelkwigr/validchart.h"
#include "tests/support/checkedtokens.h"
#include "tests/support/dump.h"
#include "tests/support/dumpchart.h"
#include "tests/support/generators/igraph.h"
#include "tests/support/generators/igraphforms.h"
#include "tests/support/generators/words.h"
#include "tests/support/law.h"
#include "tests/support/textlocale.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

/// So many draws of each law.
constexpr int kDraws = 1000;

class ChartLaws : public Utf8Test {};

std::string UpperCased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    return text;
}

TEST_F(ChartLaws, CommandsOfEveryFormCanBeParsed) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const IgraphCommand command = *AnyIgraphs();
            RC_ASSERT(DumpParsedChart(IgraphText(command)) != "error");
        },
        kDraws));
}

TEST_F(ChartLaws, CommandsOfEveryFamilyAreValid) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const IgraphCommand command = *ValidIgraphs();
            const std::string dump = DumpCompleteChart(IgraphText(command));
            RC_ASSERT(dump != "error");
            RC_ASSERT(dump != "invalid");
        },
        kDraws));
}

TEST_F(ChartLaws, TheOrderOfSubcommandsAndKeywordsDoesNotMatter) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const IgraphCommand command = *ValidIgraphs();
            const IgraphCommand other = *ReorderedIgraphs(command);
            RC_ASSERT(DumpParsedChart(IgraphText(other)) == DumpParsedChart(IgraphText(command)));
        },
        kDraws));
}

TEST_F(ChartLaws, SpellingsOfACommandMeanTheSame) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const IgraphCommand command = *AnyIgraphs();
            const std::string other = *RespelledIgraphs(command);
            RC_ASSERT(UpperCased(DumpParsedChart(other)) ==
                      UpperCased(DumpParsedChart(IgraphText(command))));
        },
        kDraws));
}

TEST_F(ChartLaws, CompletingAChartAgainChangesNothing) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const IgraphCommand command = *AnyIgraphs();
            const std::unique_ptr<ZELKTokenSequence> tokens(TokensOf(IgraphText(command)));
            ChartModel chart;
            RC_ASSERT(ParseChart(*tokens, chart));
            CompleteChart(chart);
            const std::string once = DumpChart(chart);
            CompleteChart(chart);
            RC_ASSERT(DumpChart(chart) == once);
        },
        kDraws));
}

TEST_F(ChartLaws, WhatIsParsedIsReadOnceToItsEndAndNoFurther) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = *MangledIgraphs(*AnyIgraphs());
            const std::unique_ptr<ZELKTokenSequence> tokens(TokensOf(text));
            CheckedTokens checked(*tokens);
            ChartModel chart;
            const bool parsed = ParseChart(checked, chart);
            RC_ASSERT(checked.WasReadRightly());
            RC_ASSERT(checked.Steps() <= tokens->Size() + 1);
            if (parsed) {
                RC_ASSERT(checked.WasReadToTheEnd());
                CompleteChart(chart);
                IsValidChart(chart);
            }
        },
        kDraws));
}

/// The keywords of a form, less the tildes.
void AddKeywords(std::string_view form, std::set<std::string>& keywords) {
    std::istringstream items{std::string(form)};
    for (std::string item; items >> item;) {
        if (item.front() >= 'A' && item.front() <= 'Z') {
            std::erase(item, '~');
            keywords.insert(item);
        }
    }
}

std::set<std::string> AllKeywords() {
    std::set<std::string> keywords;
    for (const IgraphPart& part : IgraphParts()) {
        AddKeywords(part.form, keywords);
    }
    for (const IgraphForm& form : IgraphForms()) {
        AddKeywords(form.head, keywords);
        for (std::string_view option : form.options) {
            AddKeywords(option, keywords);
        }
    }
    return keywords;
}

TEST(ChartGenerators, DrawEveryFamilyAndEveryKeyword) {
    constexpr std::uint64_t kCommands = 2000;
    std::set<std::string> keywords = AllKeywords();
    std::set<std::string> families;
    for (const IgraphFamily& family : IgraphFamilies()) {
        families.emplace(family.name);
    }
    const rc::Gen<IgraphCommand> commands = ValidIgraphs();
    for (std::uint64_t seed = 0; seed < kCommands; ++seed) {
        const IgraphCommand command = commands(rc::Random(seed), kFullSize).value();
        families.erase(command.family);
        for (const std::string& word : IgraphWords(command)) {
            keywords.erase(word);
        }
    }
    EXPECT_THAT(families, testing::IsEmpty());
    EXPECT_THAT(keywords, testing::IsEmpty());
}

} // namespace

} // namespace recastor
