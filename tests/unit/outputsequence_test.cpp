#include "ctables/recastor/outputsequence.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// A sequence of these pieces; "\n" stands for a line break.
OutputSequence MakeSequence(const std::vector<std::string>& pieces) {
    OutputSequence sequence;
    for (const std::string& piece : pieces) {
        if (piece == "\n") {
            sequence.PushBackNewline();
        } else {
            sequence.PushBack(piece, false);
        }
    }
    return sequence;
}

TEST(OutputSequence, FirstPieceIsNeitherIndentedNorBroken) {
    EXPECT_EQ(MakeSequence({"abcdefg"}).Print(5, 3), "abcdefg");
}

/// One sequence that grows.
class GrowingSequence : public testing::Test {
protected:
    OutputSequence Lines(int count) {
        OutputSequence sequence = MakeSequence({"\n", "123456789"});
        for (int i = 0; i < count; ++i) {
            sequence.PushBack("ab", true);
        }
        return sequence;
    }
};

TEST_F(GrowingSequence, LongPieceBehindALineBreakIsIndented) {
    EXPECT_EQ(Lines(0).Print(5, 3), "\n   123456789");
}

TEST_F(GrowingSequence, PieceBehindALongLineBeginsANewOneWithoutItsBlank) {
    EXPECT_EQ(Lines(1).Print(5, 3), "\n   123456789\n   ab");
}

TEST_F(GrowingSequence, LineMayReachTheWidth) {
    EXPECT_EQ(Lines(2).Print(8, 3), "\n   123456789\n   ab ab");
}

TEST_F(GrowingSequence, CommaThatOverflowsTakesThePieceBeforeItAlong) {
    OutputSequence sequence = Lines(2);
    sequence.PushBack(",", false);
    sequence.PushBack("cd", true);
    EXPECT_EQ(sequence.Print(8, 3), "\n   123456789\n   ab\n   ab,\n   cd");
}

TEST_F(GrowingSequence, FusedPieceIsPlacedWhole) {
    OutputSequence sequence = Lines(2);
    sequence.PushBack(",", false);
    sequence.PushBack("cd", true);
    sequence.Fuse();
    EXPECT_EQ(sequence.Print(8, 3), "\n   123456789 ab ab, cd");
}

TEST(OutputSequence, EmptySequencePrintsAsNothing) {
    EXPECT_EQ(OutputSequence().Print(80, 2), "");
    EXPECT_EQ(OutputSequence().Print(2, 2), "");
    EXPECT_TRUE(OutputSequence().IsEmpty());
}

TEST(OutputSequence, LengthBehindALineBreakIsNought) {
    EXPECT_EQ(MakeSequence({"abc", "\n"}).Length(), 0U);
}

struct LayoutRow {
    std::vector<std::string> pieces;
    unsigned width;
    unsigned indent;
    const char* expected;
};

void ExpectLayouts(const std::vector<LayoutRow>& rows) {
    for (const LayoutRow& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.pieces));
        EXPECT_EQ(MakeSequence(row.pieces).Print(row.width, row.indent), row.expected);
    }
}

TEST(OutputSequence, LinesAreBrokenBetweenPiecesOnly) {
    ExpectLayouts({
        {{"aa", "bb"}, 4, 0, "aabb"},
        {{"aa", "bb"}, 3, 0, "aa\nbb"},
        {{"aa", "bb", "cc", "dd"}, 5, 1, "aabb\n ccdd"},
        {{"a b c", "d"}, 3, 0, "a b c\nd"},
        {{"a", "bcdefgh", "c"}, 5, 2, "a\n  bcdefgh\n  c"},
        {{"abcdefgh", "b"}, 5, 1, "abcdefgh\n b"},
        {{"aa", "", "b"}, 2, 1, "aa\n b"}, // an empty piece always fits
    });
}

TEST(OutputSequence, LineBreaksStartAnIndentedLine) {
    ExpectLayouts({
        {{"aa", "\n", "bb"}, 9, 2, "aa\n  bb"},
        {{"\n", "aa"}, 9, 2, "\n  aa"},
        {{"aa", "\n", "\n", "bb"}, 9, 2, "aa\n\n  bb"},
        {{"aa", "\n"}, 9, 2, "aa\n"},
        {{"", "a"}, 9, 1, " a"}, // the first line too, once an empty piece was the first
    });
}

TEST(OutputSequence, BlanksAtTheStartOfALineAreDropped) {
    ExpectLayouts({
        {{"  aa"}, 9, 1, "aa"},
        {{"aa", "\n", "  bb"}, 9, 1, "aa\n bb"},
        {{"aa", " bb"}, 5, 1, "aa bb"},
        {{"aa", " bb"}, 4, 1, "aa\n bb"},
        {{"aa", "  "}, 3, 1, "aa\n "},
        {{"aa ", "b"}, 3, 1, "aa \n b"},
        {{"a", "\tb"}, 2, 0, "a\n\tb"}, // a tab is no blank
    });
}

TEST(OutputSequence, WidthAndIndentationCountBytes) {
    ExpectLayouts({
        {{"\xC3\xA9", "b"},
         3,
         0,
         "\xC3\xA9"
         "b"},
        {{"\xC3\xA9", "b"}, 2, 0, "\xC3\xA9\nb"},
        {{"a", "\n", "bb", "cc"}, 6, 2, "a\n  bbcc"},
        {{"a", "\n", "bb", "cc"}, 5, 2, "a\n  bb\n  cc"},
    });
}

TEST(OutputSequence, LoneCommaBringsThePieceBeforeItAlong) {
    ExpectLayouts({
        {{"aa", ","}, 3, 1, "aa,"},
        {{"aa", "bb", ","}, 4, 1, "aa\n bb,"},
        {{"aa", " bb", ","}, 5, 1, "aa\n bb,"},
        {{"aa", "bb", ",", "c"}, 4, 0, "aa\nbb,c"},
        {{"aa", "bb", ",", "c"}, 4, 1, "aa\n bb,\n c"},
        {{"aaaa", ","}, 4, 1, "\n aaaa,"},
        {{"aa", "\n", ","}, 3, 1, "aa\n ,"},
        // A carried piece that had a line of its own leaves the indentation of that line.
        {{"a", "bcdefg", ","}, 4, 1, "a\n \n bcdefg,"},
        // A comma is carried by the comma behind it.
        {{"aa", ",", ","}, 3, 1, "aa\n ,,"},
    });
}

TEST(OutputSequence, OnlyAPieceThatIsExactlyACommaIsKeptFromTheLineStart) {
    ExpectLayouts({
        {{"aa", ",b"}, 3, 1, "aa\n ,b"},
        {{"aa", " ,"}, 3, 1, "aa\n ,"},
    });
}

TEST(OutputSequence, PieceOfACommaAndOneMoreCharacterIsNotCarried) {
    ExpectLayouts({
        {{"aa", ",x", ",", "b"}, 4, 1, "aa,x,\n b"},
        {{"aa", " ,x", ",", "b"}, 5, 1, "aa ,x,\n b"},
        {{"aa", ",xy", ",", "b"}, 5, 1, "aa\n ,xy,\n b"},
    });
}

TEST(OutputSequence, IndentMustBeBelowTheWidth) {
    const OutputSequence sequence = MakeSequence({"a", "b"});
    EXPECT_EQ(sequence.Print(1, 0), "a\nb");
    EXPECT_EQ(sequence.Print(3, 2), "ab");
    const char* const warning = R"(0 && "WARNING: Indentation has been forced to size 1.")";
    EXPECT_DEATH(sequence.Print(3, 3), HasSubstr(warning));
    EXPECT_DEATH(sequence.Print(1, 1), HasSubstr(warning));
}

TEST(OutputSequence, WidthOfNoughtTakesAnyIndent) {
    EXPECT_EQ(MakeSequence({"a", "b"}).Print(0, 5), "a\n     b");
}

TEST(OutputSequence, PiecesMayGetALeadingBlank) {
    OutputSequence sequence;
    sequence.PushBack("a", true);
    sequence.PushBack(" b", true);
    EXPECT_EQ(sequence.Length(), 5U);
    EXPECT_EQ(sequence.Print(9, 0), "a  b");
}

TEST(OutputSequence, ClearForgetsPiecesAndLineBreaks) {
    OutputSequence sequence = MakeSequence({"aaa", "\n", "b"});
    sequence.Clear();
    EXPECT_TRUE(sequence.IsEmpty());
    sequence.PushBack("cc", false);
    sequence.PushBack("d", false);
    EXPECT_EQ(sequence.Length(), 3U);
}

struct FuseRow {
    std::vector<std::string> pieces;
    std::size_t length; ///< of the current line
    const char* fused;  ///< the pieces after Fuse(), each on its line
};

TEST(OutputSequence, FuseJoinsTheCurrentLine) {
    const std::vector<FuseRow> rows{
        {{}, 0, ""},
        {{"a"}, 1, "a"},
        {{"a", "bb", "ccc"}, 6, "abbccc"},
        {{"a", "b", "\n", "cc", "d"}, 3, "a\nb\nccd"},
        {{"a", "\n", "b", "\n", "c", "d"}, 2, "a\nb\ncd"},
        {{"a", "b", "\n"}, 0, "a\nb\n"},
    };
    for (const FuseRow& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.pieces));
        OutputSequence sequence = MakeSequence(row.pieces);
        EXPECT_EQ(sequence.Length(), row.length);
        sequence.Fuse();
        EXPECT_EQ(Pieces(sequence), row.fused);
        EXPECT_EQ(sequence.Length(), row.length);
    }
}

struct AppendRow {
    std::vector<std::string> first;
    std::vector<std::string> second;
    std::size_t length;
    const char* fused;
};

TEST(OutputSequence, AppendedSequenceStartsTheCurrentLine) {
    const std::vector<AppendRow> rows{
        {{"aa"}, {"b", "c"}, 2, "aa\nbc"},
        {{}, {"b", "c"}, 2, "bc"},
        {{"a", "\n", "bb"}, {"c", "d"}, 2, "a\nbb\ncd"},
        {{"aa"}, {"b", "\n", "c", "dd"}, 3, "aa\nb\ncdd"},
        {{"aa"}, {"b", "\n"}, 0, "aa\nb\n"},
        {{"a", "b"}, {}, 0, "a\nb"}, // nothing is left to fuse
        {{}, {}, 0, ""},
    };
    for (const AppendRow& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.first) + testing::PrintToString(row.second));
        OutputSequence sequence = MakeSequence(row.first);
        sequence.PushBack(MakeSequence(row.second));
        EXPECT_EQ(sequence.Length(), row.length);
        sequence.Fuse();
        EXPECT_EQ(Pieces(sequence), row.fused);
    }
}

TEST(OutputSequence, PiecesBehindAnAppendedSequenceBelongToItsLine) {
    OutputSequence sequence = MakeSequence({"a"});
    sequence.PushBack(MakeSequence({"b"}));
    sequence.PushBack("c", false);
    EXPECT_EQ(sequence.Length(), 2U);
    sequence.Fuse();
    EXPECT_EQ(Pieces(sequence), "a\nbc");
    sequence.PushBackNewline();
    EXPECT_EQ(sequence.Length(), 0U);
}

TEST(OutputSequence, AppendedToItselfItStandsTwice) {
    // More pieces than there is room for at first: they move while they are read.
    OutputSequence sequence = MakeSequence({"a", "\n", "b", "c", "d", "e", "f", "g"});
    const OutputSequence& itself = sequence;
    sequence.PushBack(itself);
    EXPECT_EQ(Pieces(sequence), "a\nb\nc\nd\ne\nf\ng\na\nb\nc\nd\ne\nf\ng");
    EXPECT_EQ(sequence.Length(), 6U);
}

TEST(OutputSequence, AppendingAppendedSequencesKeepsTheLastStart) {
    OutputSequence inner = MakeSequence({"a"});
    inner.PushBack(MakeSequence({"b"}));
    OutputSequence outer = MakeSequence({"x", "y"});
    outer.PushBack(inner);
    EXPECT_EQ(outer.Length(), 1U); // "b"
    outer.PushBack("c", false);
    outer.Fuse();
    EXPECT_EQ(Pieces(outer), "x\ny\na\nbc");
}

TEST(OutputSequence, AddWithIndentationTrimsTheTextAndCountsBoth) {
    OutputSequence target;
    unsigned long column = 3;
    OutputSequence::AddWithIndentation(&target, &column, "  ", "  ab ");
    EXPECT_EQ(column, 8U);
    EXPECT_EQ(target.Length(), 5U);
    OutputSequence::AddWithIndentation(&target, &column, "", "   ");
    EXPECT_EQ(column, 8U);
    EXPECT_EQ(target.Length(), 5U);
}

struct TrimRow {
    const char* text;
    const char* left;
    const char* right;
    const char* both;
};

TEST(OutputSequence, TrimmingOnTheRightDropsTheLastCharacterToo) {
    const std::vector<TrimRow> rows{
        {"", "", "", ""},
        {"   ", "", "", ""},
        {"abc", "abc", "ab", "ab"},
        {"ab", "ab", "a", "a"},
        {",", ",", "", ""},
        {" , ", ", ", " ", ""},
        {"  a b  ", "a b  ", "  a ", "a "},
        {"\ta\t", "\ta\t", "\ta", "\ta"}, // only the blank is a blank
    };
    for (const TrimRow& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(OutputSequence::TrimStringLeft(row.text), row.left);
        EXPECT_EQ(OutputSequence::TrimStringRight(row.text), row.right);
        EXPECT_EQ(OutputSequence::TrimString(row.text), row.both);
    }
}

} // namespace

} // namespace recastor
