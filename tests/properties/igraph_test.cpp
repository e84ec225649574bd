// Laws of the conversion of charts.

#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/parseigraph.h"
#include "ctables/recastor/zelktokensequence.h"
#include "tests/support/dump.h"
#include "tests/support/generators/igraph.h"
#include "tests/support/gplgrammar.h"
#include "tests/support/law.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// What an IGRAPH command becomes: a GGRAPH command or a comment that says why there is none.
std::string NewForm(const std::string& command) {
    std::ostringstream output;
    testing::internal::CaptureStdout();
    ParseIgraph(new ZELKTokenSequence(command + '\n', false, 0), output, 0);
    testing::internal::GetCapturedStdout();
    return GGraphFormsIn(output.str()).front();
}

bool IsGraph(const std::string& form) {
    return form.starts_with("GGRAPH\n");
}

std::string LowerCased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

} // namespace

TEST(IgraphLaws, EveryGraphIsWellFormed) {
    std::map<std::string, int> graphs;
    EXPECT_TRUE(HoldsAlways(
        [&] {
            const IgraphCommand command = *ValidIgraphs();
            const std::string form = NewForm(IgraphText(command));
            if (IsGraph(form)) {
                RC_ASSERT(GGraphFault(form) == "");
                ++graphs[command.family];
            } else {
                RC_ASSERT(form.starts_with("*IGRAPH command with"));
                RC_ASSERT(form.ends_with(".\n"));
            }
        },
        10'000));
    for (const auto& [family, count] : graphs) {
        EXPECT_GE(count, 100) << family;
    }
    EXPECT_GE(graphs.size(), 9U);
}

TEST(IgraphLaws, TheOrderOfSubcommandsDoesNotMatter) {
    EXPECT_TRUE(HoldsAlways([] {
        const IgraphCommand command = *ValidIgraphs();
        const IgraphCommand other = *ReorderedIgraphs(command);
        RC_ASSERT(NewForm(IgraphText(other)) == NewForm(IgraphText(command)));
    }));
}

TEST(IgraphLaws, SpellingsOfACommandGiveTheSameGraph) {
    EXPECT_TRUE(HoldsAlways([] {
        const IgraphCommand command = *ValidIgraphs();
        const std::string other = *RespelledIgraphs(command);
        RC_ASSERT(LowerCased(NewForm(other)) == LowerCased(NewForm(IgraphText(command))));
    }));
}

TEST(IgraphLaws, AMangledCommandBecomesAGraphOrIsToldNotToBeOne) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string form = NewForm(*MangledIgraphs(*AnyIgraphs()));
            RC_ASSERT((IsGraph(form) ? GGraphFault(form).empty() : form.starts_with("*IGRAPH ")));
        },
        1'000));
}

/// The command in front of the block; the block's own language is not ours to read.
TEST(IgraphLaws, TheWrittenCommandReadsBackWhole) {
    EXPECT_TRUE(HoldsAlways([] {
        const std::string form = NewForm(IgraphText(*ValidIgraphs()));
        RC_PRE(IsGraph(form));
        const std::string command = form.substr(0, form.find(".\nBEGIN GPL"));
        for (const bool batch : {false, true}) {
            std::istringstream file(form);
            CommandStream commands(file, batch);
            RC_ASSERT(!commands.NextCommand());
            RC_ASSERT(commands.CommandString() == command + '\n');
            RC_ASSERT(commands.TypeOfCommand() == kOrdinaryCommand);
        }
        RC_ASSERT(DumpTokens(command).starts_with("GGRAPH"));
    }));
}

} // namespace recastor
