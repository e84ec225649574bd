#include "ctables/recastor/printcommand.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;

std::string Printed(const std::string& text, unsigned indent = 0) {
    std::ostringstream out;
    PrintCommand(text, out, indent);
    return out.str();
}

TEST(PrintCommand, CommandWithoutAFinalPeriodGainsOne) {
    EXPECT_EQ(Printed("FREQ x\n"), "FREQ x.\n");
    EXPECT_EQ(Printed("FREQ x"), "FREQ x.\n");
    EXPECT_EQ(Printed("FREQ\n  x\n"), "FREQ\n  x.\n");
}

TEST(PrintCommand, CommandThatEndsInAPeriodGainsNone) {
    EXPECT_EQ(Printed("FREQ x.\n"), "FREQ x.\n");
    EXPECT_EQ(Printed("FREQ x."), "FREQ x.\n");
    EXPECT_EQ(Printed("."), ".\n");
}

TEST(PrintCommand, PeriodStandsBehindTrailingBlanks) {
    EXPECT_EQ(Printed("x \n"), "x .\n");
    EXPECT_EQ(Printed("x. \n"), "x. .\n");
}

TEST(PrintCommand, OnlyTheLastLineFeedIsLeftOff) {
    EXPECT_EQ(Printed("x\n\n"), "x\n.\n");
    EXPECT_EQ(Printed("\n"), ".\n");
}

TEST(PrintCommand, EmptyTextWritesNothing) {
    EXPECT_EQ(Printed(""), "");
    EXPECT_EQ(Printed("", 5), "");
}

TEST(PrintCommand, PeriodGoesBeforeACarriageReturn) {
    EXPECT_EQ(Printed("END DATA\r\n"), "END DATA.\r\n");
    EXPECT_EQ(Printed("END DATA.\r\n"), "END DATA.\r\n");
    EXPECT_EQ(Printed("a\r\nb\r\n"), "a\r\nb.\r\n");
    EXPECT_EQ(Printed("a\r\r\n"), "a\r.\r\n");
    EXPECT_EQ(Printed("\r\n"), ".\r\n");
}

TEST(PrintCommand, FirstLineIsIndented) {
    EXPECT_EQ(Printed("a\nb\n", 1), " a\nb.\n");
    EXPECT_EQ(Printed("a", 20), std::string(20, ' ') + "a.\n");
}

TEST(PrintCommand, IndentAboveTwentyIsOneBlank) {
    EXPECT_EQ(Printed("a", 21), " a.\n");
    EXPECT_EQ(Printed("a", 25), " a.\n");
    EXPECT_EQ(Printed("a", 4'000'000'000), " a.\n");
}

TEST(PrintCommand, NulBytesAreText) {
    EXPECT_EQ(Printed("a\0b\n"s), "a\0b.\n"s);
}

/// Counts its flushes.
class CountingBuffer : public std::stringbuf {
public:
    int flushes = 0;

protected:
    int sync() override {
        ++flushes;
        return 0;
    }
};

TEST(PrintCommand, StreamIsFlushed) {
    CountingBuffer buffer;
    std::ostream out(&buffer);
    PrintCommand("a", out, 0);
    EXPECT_EQ(buffer.flushes, 1);
}

TEST(CommentCommand, EveryLineBeginsWithAnAsterisk) {
    EXPECT_EQ(CommentCommand("TABLES A BY B\n"), "*TABLES A BY B\n *");
    EXPECT_EQ(CommentCommand("TABLES\n  A\n"), "*TABLES\n *  A\n *");
    EXPECT_EQ(CommentCommand("TABLES"), "*TABLES");
    EXPECT_EQ(CommentCommand(""), "*");
    EXPECT_EQ(CommentCommand("\n\n"), "*\n *\n *");
    EXPECT_EQ(CommentCommand("a\r\nb\r\n"), "*a\r\n *b\r\n *");
}

TEST(CommentCommand, PrintedCommandOfOneLineTakesTwo) {
    EXPECT_EQ(Printed(CommentCommand("TABLES A BY B\n"), 1), " *TABLES A BY B\n *.\n");
}

TEST(WhitespaceOnly, IsTextOfBlanksTabsAndLineEnds) {
    for (const std::string& text : {""s, " "s, "\t"s, "\n"s, "\r"s, " \t\r\n \n"s}) {
        EXPECT_TRUE(IsWSOnly(text)) << testing::PrintToString(text);
    }
    for (const std::string& text : {"a"s, " ."s, "\v"s, "\f"s, "\0"s, " \n\0"s, "\xC2\xA0"s}) {
        EXPECT_FALSE(IsWSOnly(text)) << testing::PrintToString(text);
    }
}

} // namespace

} // namespace recastor
