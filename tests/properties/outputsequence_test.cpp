// Laws of the layout of pieces in lines.

#include "ctables/recastor/outputsequence.h"
#include "tests/support/generators/words.h"
#include "tests/support/law.h"
#include "tests/support/plain/plainlayout.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

/// A piece of text, with a blank in front or not; an empty text stands for a line break.
struct Piece {
    std::string text;
    bool leadingBlank = false;
};

std::ostream& operator<<(std::ostream& out, const Piece& piece) {
    return out << (piece.leadingBlank ? " " : "") << (piece.text.empty() ? "\\n" : piece.text);
}

/// Texts without blanks, among them lone commas, but none behind another nor behind a piece of a
/// comma and one character more, which the layout takes for one.
std::vector<Piece> SomePieces() {
    const auto text =
        rc::gen::weightedOneOf<std::string>({{8, rc::gen::nonEmpty(rc::gen::container<std::string>(
                                                     rc::gen::elementOf(std::string("abc,./'="))))},
                                             {2, rc::gen::just(std::string(","))},
                                             {1, rc::gen::just(std::string())}});
    auto pieces = *rc::gen::container<std::vector<Piece>>(rc::gen::build<Piece>(
        rc::gen::set(&Piece::text, rc::gen::resize(12, text)), rc::gen::set(&Piece::leadingBlank)));
    const auto twoCommas = [](const Piece& left, const Piece& right) {
        return left.text.starts_with(',') && left.text.size() <= 2 && right.text == ",";
    };
    pieces.erase(std::unique(pieces.begin(), pieces.end(), twoCommas), pieces.end());
    return pieces;
}

OutputSequence SequenceOf(const std::vector<Piece>& pieces) {
    OutputSequence sequence;
    for (const Piece& piece : pieces) {
        if (piece.text.empty()) {
            sequence.PushBackNewline();
        } else {
            sequence.PushBack(piece.text, piece.leadingBlank);
        }
    }
    return sequence;
}

/// The line less its indentation, and less the comma that a piece may have taken along.
std::string Contents(const std::string& line) {
    std::string contents = OutputSequence::TrimStringLeft(line);
    if (contents.size() > 1 && contents.back() == ',') {
        contents.pop_back();
    }
    return contents;
}

TEST(LayoutLaws, NoLineExceedsTheWidthButForOneLongPiece) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::vector<Piece> pieces = SomePieces();
            const auto width = *rc::gen::inRange(2U, 40U);
            const auto indent = *rc::gen::inRange(0U, std::min(width, 5U));
            const std::string laidOut = SequenceOf(pieces).Print(width, indent);
            RC_LOG(laidOut);
            std::istringstream text(laidOut);
            for (std::string line; std::getline(text, line);) {
                const bool isPiece =
                    std::any_of(pieces.begin(), pieces.end(), [&](const Piece& piece) {
                        return piece.text == Contents(line) || piece.text + ' ' == Contents(line) ||
                               piece.text == OutputSequence::TrimStringLeft(line);
                    });
                RC_ASSERT(line.size() <= width || isPiece);
            }
        },
        1000));
}

TEST(LayoutLaws, EveryPieceIsThereInItsOrder) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::vector<Piece> pieces = SomePieces();
            const auto width = *rc::gen::inRange(2U, 40U);
            std::string text = SequenceOf(pieces).Print(width, *rc::gen::inRange(0U, 2U));
            std::string expected;
            for (const Piece& piece : pieces) {
                expected += piece.text;
            }
            const auto isSpace = [](char c) { return c == ' ' || c == '\n'; };
            text.erase(std::remove_if(text.begin(), text.end(), isSpace), text.end());
            RC_ASSERT(text == expected);
        },
        1000));
}

TEST(LayoutLaws, EveryLineButTheFirstIsIndented) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const auto indent = *rc::gen::inRange(0U, 5U);
            std::istringstream text(SequenceOf(SomePieces()).Print(20, indent));
            std::string line;
            std::getline(text, line);
            RC_ASSERT(!line.starts_with(' '));
            while (std::getline(text, line)) {
                RC_ASSERT(line.empty() || line.find_first_not_of(' ') == indent ||
                          line == std::string(indent, ' '));
            }
        },
        1000));
}

TEST(LayoutLaws, WhatFitsOnALineStaysOnIt) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            std::vector<Piece> pieces = SomePieces();
            pieces.erase(std::remove_if(pieces.begin(), pieces.end(),
                                        [](const Piece& piece) { return piece.text.empty(); }),
                         pieces.end());
            const OutputSequence sequence = SequenceOf(pieces);
            const std::string text =
                sequence.Print(static_cast<unsigned>(sequence.Length()) + 1, 0);
            RC_ASSERT(text.find('\n') == std::string::npos);
        },
        1000));
}

TEST(LayoutLaws, FusedLineIsNeverBroken) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            OutputSequence sequence = SequenceOf(SomePieces());
            const std::size_t length = sequence.Length();
            sequence.Fuse();
            RC_ASSERT(sequence.Length() == length);
            const std::string before = sequence.Print(1, 0);
            sequence.Fuse();
            RC_ASSERT(sequence.Print(1, 0) == before);
        },
        1000));
}

/// Puts the same pieces into both: texts of every sort, line breaks, sequences put together before,
/// and lines that are fused.
void PutTogether(OutputSequence& sequence, PlainPieces& plain, int depth) {
    static const Strings texts{",",     "a",      "name", "[COUNT",  "'a text' ",     "+",
                               " ,",    ",b",     "ab,",  "[ROWPCT", "'two\n lines'", "",
                               "     ", "longer", "]",    "VAR=q1"};
    while (!*OnceIn(depth == 0 ? 20 : 6)) {
        switch (*Below(10)) {
        case 0:
            sequence.PushBackNewline();
            plain.PushBackNewline();
            break;
        case 1:
            sequence.Fuse();
            plain.Fuse();
            break;
        case 2:
            if (depth < 3) {
                OutputSequence part;
                PlainPieces plainPart;
                PutTogether(part, plainPart, depth + 1);
                sequence.PushBack(part);
                plain.PushBack(plainPart);
            }
            break;
        default: {
            const std::string text = *OneOf(texts);
            const bool leadingBlank = *OnceIn(2);
            sequence.PushBack(text, leadingBlank);
            plain.PushBack(text, leadingBlank);
        }
        }
    }
}

TEST(LayoutLaws, TextIsThatOfAPlainLayout) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            OutputSequence sequence;
            PlainPieces plain;
            PutTogether(sequence, plain, 0);
            const auto width = *rc::gen::inRange(2U, 60U);
            const auto indent = *rc::gen::inRange(0U, std::min(width, 5U));
            RC_ASSERT(sequence.Length() == plain.Length());
            RC_ASSERT(sequence.Print(width, indent) == plain.Print(width, indent));
        },
        5000));
}

} // namespace

} // namespace recastor
