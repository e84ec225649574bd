// Laws of characters, encodings and lines.

#include "ctables/recastor/charset.h"
#include "ctables/recastor/linereader.h"
#include "ctables/recastor/mbcharpointer.h"
#include "ctables/recastor/outputfile.h"
#include "ctables/recastor/zelkname.h"
#include "platform/zelkmb/encodingcheck.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/generators/anyencoding.h"
#include "tests/support/generators/syntaxtext.h"
#include "tests/support/law.h"
#include "tests/support/run.h"
#include "tests/support/textlocale.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

class CharacterLaws : public Utf8Test {};

std::string AnyBytes() {
    return *rc::gen::oneOf(AnySyntax(), rc::gen::arbitrary<std::string>());
}

TEST_F(CharacterLaws, CursorTakesEveryByteUpToItsEndOnce) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyBytes();
            int characters = 0;
            const char* expected = text.c_str();
            MBCharPointer cursor(text.c_str());
            for (; cursor.Code() != 0; cursor.Next()) {
                RC_ASSERT(cursor.Pointer() == expected);
                RC_ASSERT(cursor.CharacterNumber() == ++characters);
                const int length = ZELKMBmblen_A(expected, text.size());
                RC_ASSERT(length >= 1);
                const int byte = static_cast<unsigned char>(*expected);
                RC_ASSERT(cursor.Code() == (length > 1 ? 4096 : byte < 128 ? byte : byte - 256));
                expected += length;
            }
            RC_ASSERT(cursor.Pointer() == expected);
            RC_ASSERT(cursor.CharacterNumber() == characters + 1);
        },
        1000));
}

TEST_F(CharacterLaws, SkippingIsSteppingWhileTheSetLasts) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyBytes();
            const std::string members = *AnySyntax();
            const CharSet set =
                *rc::gen::arbitrary<bool>() ? CharSet::Of(members) : CharSet::AllBut(members);
            MBCharPointer skipping(text.c_str());
            MBCharPointer stepping(text.c_str());
            while (stepping.Code() != 0) {
                skipping.SkipWhile(set);
                while (set.Has(stepping.Code())) {
                    stepping.Next();
                }
                RC_ASSERT(skipping.Code() == stepping.Code());
                RC_ASSERT(skipping.Pointer() == stepping.Pointer());
                RC_ASSERT(skipping.CharacterNumber() == stepping.CharacterNumber());
                skipping.Next();
                stepping.Next();
            }
        },
        1000));
}

/// Hands `take` the text in pieces of random sizes.
template <typename Take>
void ForRandomPieces(std::string_view text, const Take& take) {
    while (!text.empty()) {
        const auto size = *rc::gen::inRange<std::size_t>(1, 6);
        take(text.substr(0, size));
        text.remove_prefix(std::min(size, text.size()));
    }
}

TEST_F(CharacterLaws, TextIsValidHoweverItIsCutIntoPieces) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyBytes();
            EncodingCheck pieces;
            ForRandomPieces(text, [&](std::string_view piece) { pieces.Feed(piece); });
            EncodingCheck whole;
            whole.Feed(text);
            RC_ASSERT(pieces.IsValid() == whole.IsValid());
        },
        1000));
}

TEST_F(CharacterLaws, ValidTextIsReadByTheCursorUpToItsFirstNul) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyBytes();
            EncodingCheck check;
            check.Feed(text);
            RC_PRE(check.IsValid());
            MBCharPointer cursor(text.c_str());
            while (cursor.Next() != 0) {
            }
            RC_ASSERT(*cursor.Pointer() == '\0');
        },
        1000));
}

TEST_F(CharacterLaws, LinesMakeUpTheText) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            std::string text = AnyBytes();
            if (*rc::gen::arbitrary<bool>()) { // over the end of a block
                text.insert(0, *rc::gen::inRange<std::size_t>(65530, 65540), 'x');
            }
            std::istringstream input(text);
            LineReader reader(input);
            std::string_view rest = text;
            for (std::string line; reader.ReadLine(line);) {
                RC_ASSERT(rest.starts_with(line));
                RC_ASSERT(line.find('\n') == std::string::npos);
                RC_ASSERT(line.find('\r') >= line.size() - 1 || line.empty());
                rest.remove_prefix(line.size());
                const bool ended = rest.starts_with('\n') || rest.starts_with('\r');
                RC_ASSERT(ended || rest.empty());
                rest.remove_prefix(ended ? 1 : 0);
            }
            RC_ASSERT(rest.empty());
        },
        1000));
}

TEST_F(CharacterLaws, OutputIsTheSameHoweverItIsWritten) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const std::string text = AnyBytes();
            const bool crLf = *rc::gen::arbitrary<bool>();
            const TemporaryFolder folder;
            const auto written = [&](const std::string& name, const auto& write) {
                const std::string path = (folder.Path() / name).string();
                FileDescriptor file = FileDescriptor::Open(path, O_WRONLY | O_CREAT);
                LineWriteBuffer buffer(file);
                if (crLf) {
                    buffer.UseCrLf();
                }
                write(buffer);
                buffer.Finish();
                return ReadFile(path);
            };
            const auto put = [](LineWriteBuffer& buffer, std::string_view piece) {
                buffer.sputn(piece.data(), static_cast<std::streamsize>(piece.size()));
            };
            RC_ASSERT(written("pieces", [&](LineWriteBuffer& buffer) {
                          ForRandomPieces(text,
                                          [&](std::string_view piece) { put(buffer, piece); });
                      }) == written("whole", [&](LineWriteBuffer& buffer) { put(buffer, text); }));
        },
        100));
}

/// What a buffer of names holds behind the generated name must not matter.
std::string GeneratedName(const std::string& text) {
    std::vector<char> buffer(text.size() + kLongestZELKName + 1, 'x');
    text.copy(buffer.data(), text.size());
    buffer[text.size()] = '\0';
    GenerateZELKName(buffer.data(), 7, nullptr, nullptr, nullptr);
    return buffer.data();
}

TEST_F(CharacterLaws, GeneratedNameIsAValidOrdinaryName) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string name = GeneratedName(AnyBytes());
            RC_ASSERT(ValidateZELKNameCheckLastChar(name.c_str()) == kOrdinaryName);
            RC_ASSERT(GeneratedName(name) == name);
        },
        1000));
}

TEST_F(CharacterLaws, SuffixedNamesOfOneBaseDiffer) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string base = GeneratedName(AnyBytes());
            const int first = *rc::gen::inRange(0, 20000);
            const int second = *rc::gen::inRange(0, 20000);
            const auto suffixed = [&](int index) {
                std::array<char, 200> name{};
                RC_ASSERT(addNameSuffix(name.data(), base.c_str(), index, 64) == 0);
                RC_ASSERT(ValidateZELKName(name.data()) == kOrdinaryName);
                return std::string(name.data());
            };
            RC_ASSERT((suffixed(first) == suffixed(second)) == (first == second));
        },
        1000));
}

TEST_F(CharacterLaws, TruncatedTextIsTheLongestPartOfWholeCharacters) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyBytes();
            const auto limit = *rc::gen::inRange<std::size_t>(0, text.size() + 2);
            std::string cut = text;
            ZELKMBStringTruncate_A(cut, limit);
            RC_ASSERT(text.starts_with(cut));
            RC_ASSERT(cut.size() <= limit);
            if (cut.size() < std::min(limit, text.size())) {
                const int length =
                    ZELKMBmblen_A(text.c_str() + cut.size(), text.size() - cut.size());
                RC_ASSERT(cut.size() + static_cast<std::size_t>(length) > limit);
            }
        },
        1000));
}

TEST_F(CharacterLaws, UpperCasingKeepsLengthsAndIsDoneOnce) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyBytes();
            std::string upper = text;
            ZELKMBstrupr_A(upper.data());
            std::string again = upper;
            ZELKMBstrupr_A(again.data());
            RC_ASSERT(again == upper);
            for (std::size_t i = 0; i < text.size(); ++i) {
                RC_ASSERT(upper[i] == text[i] ||
                          (text[i] >= 'a' && text[i] <= 'z' && upper[i] == text[i] - 'a' + 'A'));
            }
        },
        1000));
}

} // namespace

} // namespace recastor
