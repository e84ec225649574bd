/// What IGRAPH commands are read as, as rows.
#pragma once

#include "tests/support/dumpchart.h"

#include <initializer_list>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

/// A command less its name, and what the dump of its chart must be.
struct ChartRow {
    const char* subcommands;
    const char* dump;
};

/// Expects the charts as they are written.
inline void ExpectParsed(std::initializer_list<ChartRow> rows) {
    for (const auto& [subcommands, dump] : rows) {
        SCOPED_TRACE(subcommands);
        EXPECT_EQ(DumpParsedChart(std::string("IGRAPH ") + subcommands), dump);
    }
}

/// Expects the commands not to be of the language.
inline void ExpectErrors(std::initializer_list<const char*> rows) {
    for (const char* subcommands : rows) {
        SCOPED_TRACE(subcommands);
        EXPECT_EQ(DumpParsedChart(std::string("IGRAPH ") + subcommands), "error");
    }
}

/// Expects the charts with their defaults, "invalid" where they are not valid.
inline void ExpectComplete(std::initializer_list<ChartRow> rows) {
    for (const auto& [subcommands, dump] : rows) {
        SCOPED_TRACE(subcommands);
        EXPECT_EQ(DumpCompleteChart(std::string("IGRAPH ") + subcommands), dump);
    }
}

/// Expects the charts to be valid, whatever they are.
inline void ExpectValid(std::initializer_list<const char*> rows) {
    for (const char* subcommands : rows) {
        SCOPED_TRACE(subcommands);
        const std::string dump = DumpCompleteChart(std::string("IGRAPH ") + subcommands);
        EXPECT_NE(dump, "error");
        EXPECT_NE(dump, "invalid");
    }
}

/// Expects the commands to be of the language but their charts not to be valid.
inline void ExpectInvalid(std::initializer_list<const char*> rows) {
    for (const char* subcommands : rows) {
        SCOPED_TRACE(subcommands);
        EXPECT_EQ(DumpCompleteChart(std::string("IGRAPH ") + subcommands), "invalid");
    }
}

} // namespace recastor
