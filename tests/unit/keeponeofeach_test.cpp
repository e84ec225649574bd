#include "platform/zelkwigr/keeponeofeach.h"

#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using Entries = std::vector<std::pair<std::string, int>>;

const auto kNameOf = [](const auto& entry) { return entry.first; };

TEST(KeepOneOfEach, KeepsTheFirst) {
    Entries entries = {{"a", 1}, {"b", 2}, {"a", 3}, {"b", 4}, {"c", 5}};
    KeepFirstOfEach(entries, kNameOf);
    EXPECT_EQ(entries, (Entries{{"a", 1}, {"b", 2}, {"c", 5}}));
}

TEST(KeepOneOfEach, KeepsTheLast) {
    Entries entries = {{"a", 1}, {"b", 2}, {"a", 3}, {"c", 5}};
    KeepLastOfEach(entries, kNameOf);
    EXPECT_EQ(entries, (Entries{{"b", 2}, {"a", 3}, {"c", 5}}));
}

TEST(KeepOneOfEach, LeavesNothingOfNothing) {
    Entries entries;
    KeepFirstOfEach(entries, kNameOf);
    KeepLastOfEach(entries, kNameOf);
    EXPECT_TRUE(entries.empty());
}

} // namespace

} // namespace recastor
