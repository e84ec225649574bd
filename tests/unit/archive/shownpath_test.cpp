// Paths of any bytes in forms that can be shown and written down.

#include "archive/outcome/shownpath.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(ShownPath, IsValidUtf8OnOneLine) {
    EXPECT_EQ(ShownPath("a/b c.syn"), "a/b c.syn");
    EXPECT_EQ(ShownPath("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"),
              "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(ShownPath("a\nb\x7F\x1B"), "a\\x0Ab\\x7F\\x1B");
    EXPECT_EQ(ShownPath("\xC2\x9B"), "\\xC2\\x9B") << "a control character of two bytes";
    EXPECT_EQ(ShownPath("\xE9t\xE9"), "\\xE9t\\xE9");
    EXPECT_EQ(ShownPath("\xED\xA0\x80"), "\\xED\\xA0\\x80") << "a surrogate";
    EXPECT_EQ(ShownPath("\xC0\xAF"), "\\xC0\\xAF") << "an overlong slash";
    EXPECT_EQ(ShownPath("\xE2\x82"), "\\xE2\\x82") << "a character cut off";
    EXPECT_EQ(ShownPath(""), "");
}

TEST(UriOfPath, KeepsWhatStandsForItself) {
    EXPECT_EQ(UriOfPath("a/B-c_1.syn"), "a/B-c_1.syn");
    EXPECT_EQ(UriOfPath("a b:%?#.syn"), "a%20b%3A%25%3F%23.syn");
    EXPECT_EQ(UriOfPath("\"<\xFF\n"), "%22%3C%FF%0A");
}

TEST(UriOfPath, GivesEveryPathBack) {
    std::string path;
    for (int byte = 1; byte < 256; ++byte) {
        path += static_cast<char>(byte);
    }
    EXPECT_EQ(PathOfUri(UriOfPath(path)), path);
    EXPECT_EQ(PathOfUri("%4"), "%4") << "no escape";
    EXPECT_EQ(PathOfUri("%zz"), "%zz");
}

TEST(IsBeforeInWalk, EntersFoldersWhereTheirNamesStand) {
    const std::vector<std::string> walk{"a",     "a/a",   "a/b/c", "a/c", "a b",
                                        "a-b/c", "a.syn", "aa",    "b",   "\xC3\xA9"};
    EXPECT_TRUE(std::is_sorted(walk.begin(), walk.end(), IsBeforeInWalk));
    for (const std::string& path : walk) {
        EXPECT_FALSE(IsBeforeInWalk(path, path)) << path;
    }
}

} // namespace

} // namespace recastor
