// Text of any encoding as UTF-8.

#include "archive/outcome/showntext.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

const std::string kUnknown = "\xEF\xBF\xBD";

TEST(TextShower, TurnsEncodingsIntoUtf8) {
    EXPECT_EQ(TextShower("ISO-8859-1").Shown("caf\xE9"), "caf\xC3\xA9");
    EXPECT_EQ(TextShower("SHIFT_JIS").Shown("\x83\x60"), "\xE3\x83\x81");
    EXPECT_EQ(TextShower(TextShower::kLikeliest8Bit).Shown("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(TextShower("UTF-8").Shown("\xE2\x82\xAC"), "\xE2\x82\xAC");
}

TEST(TextShower, MarksWhatHasNoMeaning) {
    EXPECT_EQ(TextShower("UTF-8").Shown("a\xFFz"), "a" + kUnknown + "z");
    EXPECT_EQ(TextShower("UTF-8").Shown("a\xE2\x82"), "a" + kUnknown + kUnknown);
    EXPECT_EQ(TextShower(TextShower::kLikeliest8Bit).Shown("\x81"), kUnknown);
}

TEST(TextShower, ShowsAsciiOfAnUnknownEncoding) {
    EXPECT_EQ(TextShower("no-such-encoding").Shown("a\xE9z"), "a" + kUnknown + "z");
}

TEST(TextShower, ShowsTextLongerThanABlock) {
    std::string text;
    std::string shown;
    for (int i = 0; i < 10000; ++i) {
        text += "\xE9";
        shown += "\xC3\xA9";
    }
    EXPECT_EQ(TextShower("ISO-8859-1").Shown(text), shown);
}

TEST(TextShower, KeepsNulBytes) {
    EXPECT_EQ(TextShower("ISO-8859-1").Shown(std::string("\0\xE9", 2)),
              std::string("\0\xC3\xA9", 3));
}

TEST(Utf8Length, IsThatOfWellFormedCharacters) {
    EXPECT_EQ(Utf8Length(""), 0U);
    EXPECT_EQ(Utf8Length("ab"), 1U);
    EXPECT_EQ(Utf8Length("\xC2\x80"), 2U);
    EXPECT_EQ(Utf8Length("\xE0\xA0\x80"), 3U);
    EXPECT_EQ(Utf8Length("\xF4\x8F\xBF\xBF"), 4U);
    EXPECT_EQ(Utf8Length("\xC1\x80"), 0U);
    EXPECT_EQ(Utf8Length("\xE0\x9F\xBF"), 0U);
    EXPECT_EQ(Utf8Length("\xF4\x90\x80\x80"), 0U);
    EXPECT_EQ(Utf8Length("\xF0\x90\x80"), 0U);
    EXPECT_EQ(Utf8Length("\x80"), 0U);
}

} // namespace

} // namespace recastor
