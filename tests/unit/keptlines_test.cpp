// What the fuzz targets ask of an output: that it still holds each line of the input.

#include "tests/fuzz/keptlines.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {
namespace {

const std::string kMark = "\xEF\xBB\xBF"; // a byte-order mark

TEST(FirstLostLine, FindsCopiedAndCommentedLinesInTheirOrder) {
    EXPECT_EQ(FirstLostLine("a\n\n  b.\n", "a\nnew\n *b\n *.\n"), std::nullopt);
    EXPECT_EQ(FirstLostLine("a\nb\n", "b\na\n"), "b");
}

TEST(FirstLostLine, TellsALineThatIsGone) {
    EXPECT_EQ(FirstLostLine("a\nb\nc\n", "a\nc\n"), "b");
}

TEST(FirstLostLine, LetsWhatStandsBehindAPeriodGo) {
    EXPECT_EQ(FirstLostLine("a. b\n", "a\n"), std::nullopt);
    EXPECT_EQ(FirstLostLine("a b.\n", "a\n"), "a b.");
}

TEST(FirstLostLine, KnowsThatTheMarkGoesToTheFront) {
    EXPECT_EQ(FirstLostLine(kMark + "a\n", kMark + "new\n *a\n"), std::nullopt);
}

TEST(FirstLostLine, KnowsThatTheMarkGoesToTheFrontFromBehindBlankLines) {
    // The second of two equal commands would be found for the first one otherwise.
    EXPECT_EQ(FirstLostLine("\n \n" + kMark + "a.\nb\n" + kMark + "a.\n",
                            kMark + "new\n *a\n *.\nb\n" + kMark + "a.\n"),
              std::nullopt);
}

TEST(FirstLostLine, KeepsAMarkFurtherDown) {
    EXPECT_EQ(FirstLostLine("a\n" + kMark + "b\n", "a\nb\n"), kMark + "b");
}

} // namespace
} // namespace recastor
