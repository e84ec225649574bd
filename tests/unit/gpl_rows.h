/// What IGRAPH commands become in GPL, as rows.
#pragma once

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/parser.h"
#include "tests/support/charts.h"

#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

/// A command less its name, and its lines of one keyword.
struct GplRow {
    const char* subcommands;
    std::vector<std::string> lines;
};

/// The lines of a command that begin with `keyword`, without it; what it must be is told when it
/// has no GPL.
inline std::vector<std::string> GplLinesOf(const std::string& subcommands,
                                           const std::string& keyword) {
    ZELKTokenSequence tokens("IGRAPH " + subcommands + "\n", false, 0);
    parser chartParser(nullptr, nullptr);
    if (!chartParser.Parse(tokens) || !chartParser.CompleteAndValidateSyntax()) {
        return {"not valid"};
    }
    const iGraphSpec& spec = *chartParser.GetSettings();
    return spec.errorMessage().empty() ? GplLines(spec.Chart(), keyword)
                                       : std::vector<std::string>{spec.errorMessage()};
}

/// Expects these lines of `keyword` and no others.
inline void ExpectLines(const std::string& keyword, std::initializer_list<GplRow> rows) {
    for (const auto& [subcommands, lines] : rows) {
        SCOPED_TRACE(subcommands);
        EXPECT_EQ(GplLinesOf(subcommands, keyword), lines);
    }
}

} // namespace recastor
