#include "platform/zelkmb/encodingcheck.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/textlocale.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;

/// Whether the text is valid, which must not depend on how it is cut into pieces.
bool IsValid(const std::string& text) {
    EncodingCheck whole;
    whole.Feed(text);
    for (const std::size_t size : {1U, 2U, 3U, 5U}) {
        EncodingCheck pieces;
        for (std::size_t at = 0; at < text.size(); at += size) {
            pieces.Feed(std::string_view(text).substr(at, size));
            pieces.Feed("");
        }
        EXPECT_EQ(pieces.IsValid(), whole.IsValid()) << text << " in pieces of " << size;
    }
    return whole.IsValid();
}

class EncodingOfText : public Utf8Test {};

TEST_F(EncodingOfText, NothingAndAsciiAreValid) {
    EXPECT_TRUE(EncodingCheck().IsValid());
    EXPECT_TRUE(IsValid(""));
    EXPECT_TRUE(IsValid("FREQ x.\r\n\t\x7F"));
    EXPECT_TRUE(IsValid("a\0b\0"s));
}

TEST_F(EncodingOfText, Utf8IsValid) {
    EXPECT_TRUE(IsValid("gr\u00F6\u00DFe \u20AC \U0001F600."));
    EXPECT_TRUE(IsValid("\xEF\xBB\xBF\u00E9"));
    EXPECT_TRUE(IsValid("\u00E9\0\u00E9"s));
}

TEST_F(EncodingOfText, OtherBytesAreInvalidWhereverTheyStand) {
    const std::string filler(100, 'x');
    for (const char* bytes : {"\xE9", "\x80", "\xFF", "\xC3(", "\xE2\x82(", "\xC0\xAF",
                              "\xED\xA0\x80", "\xE2\x82\xC3\xA9"}) {
        EXPECT_FALSE(IsValid(bytes)) << bytes;
        EXPECT_FALSE(IsValid(filler + bytes + filler)) << bytes;
        EXPECT_FALSE(IsValid(std::string("\u00E9\u20AC") + bytes + "\u00E9")) << bytes;
        EXPECT_FALSE(IsValid(bytes + filler)) << bytes;
    }
}

TEST_F(EncodingOfText, IncompleteCharacterAtTheEndIsInvalid) {
    EXPECT_FALSE(IsValid("a\xC3"));
    EXPECT_FALSE(IsValid("a\xE2\x82"));
    EXPECT_FALSE(IsValid("a\xF0\x9F\x98"));
}

TEST_F(EncodingOfText, InvalidStaysInvalid) {
    EncodingCheck check;
    check.Feed("\xFF" + std::string(100, 'x'));
    EXPECT_FALSE(check.IsValid());
    check.Feed("fine \u00E9");
    EXPECT_FALSE(check.IsValid());
}

TEST_F(EncodingOfText, SplitCharacterIsInvalidUntilItsRestComes) {
    EncodingCheck check;
    check.Feed("a\xE2");
    EXPECT_FALSE(check.IsValid());
    check.Feed("\x82");
    EXPECT_FALSE(check.IsValid());
    check.Feed("\xAC.");
    EXPECT_TRUE(check.IsValid());
}

TEST_F(EncodingOfText, LocaleDecides) {
    const std::string latin = "gr\xF6\xDF"
                              "e";
    const std::string chinese = "\x81\x5C\xC4\xE3";
    {
        const TextLocale german("de_DE.ISO-8859-1");
        EXPECT_TRUE(IsValid(latin));
    }
    EXPECT_FALSE(IsValid(latin));
    EXPECT_FALSE(IsValid(chinese));
    const TextLocale gbk("zh_CN.GBK");
    EXPECT_TRUE(IsValid(chinese));
    EXPECT_FALSE(IsValid(chinese + '\x81'));
    EXPECT_FALSE(IsValid("\xC4\xE3\xFF\xFF"));
}

TEST_F(EncodingOfText, EveryByteIsValidWhenHighBytesAreCharacters) {
    TreatHighBytesAsCharacters();
    EXPECT_TRUE(IsValid("\x80\xE9\xFF\xC3"));
}

} // namespace

} // namespace recastor
