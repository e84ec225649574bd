#include "ctables/recastor/linereader.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

Lines LinesOf(std::istream& input) {
    LineReader reader(input);
    Lines lines;
    for (std::string line = "old"; reader.ReadLine(line);) {
        lines.push_back(line);
    }
    return lines;
}

Lines LinesOf(const std::string& text) {
    std::istringstream input(text);
    return LinesOf(input);
}

TEST(LineReader, NoTextHasNoLine) {
    EXPECT_EQ(LinesOf(""), Lines{});
}

TEST(LineReader, LineFeedEndsALine) {
    EXPECT_EQ(LinesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("\n\na\n"), (Lines{"", "", "a"}));
}

TEST(LineReader, LastLineNeedsNoLineFeed) {
    EXPECT_EQ(LinesOf("a\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a"), (Lines{"a"}));
}

TEST(LineReader, CarriageReturnBeforeALineFeedStays) {
    EXPECT_EQ(LinesOf("a\r\nb\r\n"), (Lines{"a\r", "b\r"}));
    EXPECT_EQ(LinesOf("\r\n"), (Lines{"\r"}));
}

TEST(LineReader, CarriageReturnAloneEndsALine) {
    EXPECT_EQ(LinesOf("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("\r\ra"), (Lines{"", "", "a"}));
    EXPECT_EQ(LinesOf("a\r\r\nb"), (Lines{"a", "\r", "b"}));
    EXPECT_EQ(LinesOf("a\n\rb"), (Lines{"a", "", "b"}));
}

TEST(LineReader, EveryKindOfLineEndMayBeMixed) {
    EXPECT_EQ(LinesOf("a\rb\nc\r\nd\re\n"), (Lines{"a", "b", "c\r", "d", "e"}));
}

TEST(LineReader, NulAndHighBytesAreText) {
    EXPECT_EQ(LinesOf("a\0b\n\xFF\0"s), (Lines{"a\0b"s, "\xFF\0"s}));
}

TEST(LineReader, LinesGoOnOverTheEndsOfBlocks) {
    // The reader's blocks have 65536 bytes.
    for (const std::size_t length : {65533U, 65534U, 65535U, 65536U, 65537U, 131071U, 131072U}) {
        SCOPED_TRACE(length);
        const std::string text(length, 'x');
        EXPECT_EQ(LinesOf(text), (Lines{text}));
        EXPECT_EQ(LinesOf(text + "\nb"), (Lines{text, "b"}));
        EXPECT_EQ(LinesOf(text + "\rb"), (Lines{text, "b"}));
        EXPECT_EQ(LinesOf(text + "\r\nb"), (Lines{text + "\r", "b"}));
        EXPECT_EQ(LinesOf(text + "\r\r\nb"), (Lines{text, "\r", "b"}));
        EXPECT_EQ(LinesOf(text + "\r"), (Lines{text}));
        EXPECT_EQ(LinesOf(text + "\n\nb"), (Lines{text, "", "b"}));
    }
}

/// A stream buffer that breaks after its text.
class BreakingBuffer : public std::stringbuf {
public:
    using std::stringbuf::stringbuf;

protected:
    std::streamsize xsgetn(char* target, std::streamsize count) override {
        const std::streamsize read = std::stringbuf::xsgetn(target, count);
        return read > 0 ? read : -1;
    }
};

TEST(LineReader, ReadFailureIsTheEnd) {
    BreakingBuffer buffer("a\nb");
    std::istream input(&buffer);
    EXPECT_EQ(LinesOf(input), (Lines{"a", "b"}));
}

TEST(LineReader, EndStaysTheEnd) {
    std::istringstream input("a");
    LineReader reader(input);
    std::string line;
    EXPECT_TRUE(reader.ReadLine(line));
    EXPECT_FALSE(reader.ReadLine(line));
    EXPECT_EQ(line, "");
    EXPECT_FALSE(reader.ReadLine(line));
}

} // namespace

} // namespace recastor
