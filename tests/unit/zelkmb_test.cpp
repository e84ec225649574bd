#include "platform/zelkmb/zelkmb.h"
#include "tests/support/textlocale.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

class Multibyte : public Utf8Test {};

int LengthOf(const std::string& text) {
    return ZELKMBmblen_A(text.c_str(), text.size());
}

TEST_F(Multibyte, LengthOfACharacterIsItsBytes) {
    EXPECT_EQ(LengthOf("abc"), 1);
    EXPECT_EQ(LengthOf("\x7F"), 1);
    EXPECT_EQ(LengthOf("\u0080x"), 2);
    EXPECT_EQ(LengthOf("\u07FFx"), 2);
    EXPECT_EQ(LengthOf("\u0800x"), 3);
    EXPECT_EQ(LengthOf("\uD7FFx"), 3);
    EXPECT_EQ(LengthOf("\uE000x"), 3);
    EXPECT_EQ(LengthOf("\uFFFFx"), 3);
    EXPECT_EQ(LengthOf("\U00010000x"), 4);
    EXPECT_EQ(LengthOf("\U0010FFFFx"), 4);
}

TEST_F(Multibyte, NulHasNoLength) {
    EXPECT_EQ(ZELKMBmblen_A("", 1), 0);
    EXPECT_EQ(ZELKMBmblen_A("\0a", 2), 0);
}

TEST_F(Multibyte, InvalidOrIncompleteSequenceIsBelowNought) {
    for (const char* bytes :
         {"\x80", "\xBF", "\xC3", "\xC3(", "\xC0\x80", "\xC1\xBF", "\xE2\x82", "\xE2(\xAC",
          "\xE2\x82(", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF0\x9F\x98", "\xF0\x8F\xBF\xBF", "\xFE", "\xFF"}) {
        EXPECT_LT(LengthOf(bytes), 0) << testing::PrintToString(bytes);
    }
}

TEST_F(Multibyte, NoMoreBytesAreReadThanAllowed) {
    EXPECT_LT(ZELKMBmblen_A("\u20AC", 2), 0);
    EXPECT_EQ(ZELKMBmblen_A("\u20AC", 3), 3);
    EXPECT_LT(ZELKMBmblen_A("\u00E9", 1), 0);
    EXPECT_LT(ZELKMBmblen_A("a", 0), 0);
    EXPECT_EQ(ZELKMBmblen_A("a", 1), 1);
}

TEST_F(Multibyte, HighBytesAreCharactersUntilALocaleIsEnabled) {
    TreatHighBytesAsCharacters();
    EXPECT_EQ(LengthOf("\u00E9"), 1);
    EXPECT_EQ(LengthOf("\xFF"), 1);
    EXPECT_EQ(ZELKMBmblen_A("", 1), 0);
    EnableLocale();
    EXPECT_EQ(LengthOf("\u00E9"), 2);
}

TEST_F(Multibyte, LengthsOfALegacyEncoding) {
    const TextLocale chinese("zh_CN.GBK");
    EXPECT_EQ(LengthOf("\x81\x5C"), 2);
    EXPECT_EQ(LengthOf("\xC4\xE3x"), 2);
    EXPECT_EQ(LengthOf("\xE4\xBD\xA0"), 2) << "looks like UTF-8";
    EXPECT_EQ(LengthOf("\\"), 1);
    EXPECT_LT(LengthOf("\x81"), 0);
    EXPECT_LT(LengthOf("\x81\x20"), 0);
}

std::string Upper(std::string text) {
    ZELKMBstrupr_A(text.data());
    return text;
}

TEST_F(Multibyte, UpperCasingChangesAsciiLettersOnly) {
    EXPECT_EQ(Upper("aZ9_.z{`@["), "AZ9_.Z{`@[");
    EXPECT_EQ(Upper("gr\u00F6\u00DFe \u0131\u01C6\uFB01"), "GR\u00F6\u00DFE \u0131\u01C6\uFB01");
    EXPECT_EQ(Upper(""), "");
}

TEST_F(Multibyte, UpperCasingGoesOnBehindInvalidBytes) {
    EXPECT_EQ(Upper("a\xFF"
                    "b\xC3"
                    "c\xE2\x82"),
              "A\xFF"
              "B\xC3"
              "C\xE2\x82");
}

TEST_F(Multibyte, UpperCasingOfLegacyText) {
    {
        const TextLocale chinese("zh_CN.GBK");
        EXPECT_EQ(Upper("a\x81\x61\x81\x7Az"), "A\x81\x61\x81\x7AZ");
    }
    const TextLocale latin("de_DE.ISO-8859-1");
    EXPECT_EQ(Upper("gr\xF6\xDF"
                    "e"),
              "GR\xF6\xDF"
              "E");
}

TEST_F(Multibyte, ComparisonIgnoresTheCaseOfAsciiLetters) {
    EXPECT_NE(ZELKMBqstricmp_A("with", 4, "WITH"), 0);
    EXPECT_NE(ZELKMBqstricmp_A("WiTh no", 4, "wItH"), 0);
    EXPECT_NE(ZELKMBqstricmp_A("", 0, ""), 0);
    EXPECT_NE(ZELKMBqstricmp_A("\u00E9", 2, "\u00E9"), 0);
    EXPECT_EQ(ZELKMBqstricmp_A("\u00E9", 2, "\u00C9"), 0);
    EXPECT_EQ(ZELKMBqstricmp_A("with", 3, "WITH"), 0);
    EXPECT_EQ(ZELKMBqstricmp_A("with", 4, "WIT"), 0);
    EXPECT_EQ(ZELKMBqstricmp_A("wath", 4, "WITH"), 0);
    EXPECT_EQ(ZELKMBqstricmp_A("@", 1, "`"), 0);
    EXPECT_EQ(ZELKMBqstricmp_A("[", 1, "{"), 0);
}

/// The offset of the last `byte`; -1 when there is none.
int LastPlace(const std::string& text, char byte) {
    const char* const found = ZELKMBstrrchr_A(text.c_str(), byte);
    return found != nullptr ? static_cast<int>(found - text.c_str()) : -1;
}

TEST_F(Multibyte, LastPlaceOfAByte) {
    EXPECT_EQ(LastPlace("a.b.c", '.'), 3);
    EXPECT_EQ(LastPlace(".", '.'), 0);
    EXPECT_EQ(LastPlace("abc", '.'), -1);
    EXPECT_EQ(LastPlace("", '.'), -1);
    EXPECT_EQ(LastPlace("\u00E9.\u20AC", '.'), 2);
    EXPECT_EQ(LastPlace("a\xFF.", '.'), 2);
}

TEST_F(Multibyte, ByteInsideACharacterIsNotItsPlace) {
    EXPECT_EQ(LastPlace("\u00E9", '\xA9'), -1);
    EXPECT_EQ(LastPlace("\u00E9", '\xC3'), -1);
    const TextLocale chinese("zh_CN.GBK");
    EXPECT_EQ(LastPlace("_a\x81\x5F", '_'), 0);
    EXPECT_EQ(LastPlace("\x81\x5F_", '_'), 2);
}

std::string Truncated(std::string text, std::size_t n) {
    ZELKMBStringTruncate_A(text, n);
    return text;
}

TEST_F(Multibyte, TruncationCutsToSoManyBytes) {
    EXPECT_EQ(Truncated("abcdef", 3), "abc");
    EXPECT_EQ(Truncated("abc", 3), "abc");
    EXPECT_EQ(Truncated("abc", 100), "abc");
    EXPECT_EQ(Truncated("abc", 0), "");
    EXPECT_EQ(Truncated("", 0), "");
}

TEST_F(Multibyte, TruncationSplitsNoCharacter) {
    EXPECT_EQ(Truncated("ab\u00E9", 3), "ab");
    EXPECT_EQ(Truncated("ab\u00E9", 4), "ab\u00E9");
    EXPECT_EQ(Truncated("\u20AC\u20AC", 5), "\u20AC");
    EXPECT_EQ(Truncated("\u20AC\u20AC", 3), "\u20AC");
    EXPECT_EQ(Truncated("\u20AC", 2), "");
    EXPECT_EQ(Truncated("\U0001F600x", 3), "");
}

TEST_F(Multibyte, TruncationTakesInvalidBytesOneByOne) {
    EXPECT_EQ(Truncated("\xFF\xFF\xFF", 2), "\xFF\xFF");
}

TEST_F(Multibyte, TruncationOfLegacyText) {
    const TextLocale chinese("zh_CN.GBK");
    EXPECT_EQ(Truncated("a\x81\x61\x81\x61", 4), "a\x81\x61");
    EXPECT_EQ(Truncated("a\x81\x61\x81\x61", 2), "a");
}

/// The encoding that is followed when the user's locale is `name`.
std::string LocaleFollowed(const char* name) {
    const char* const previous = std::getenv("LC_ALL");
    const std::string restored = previous != nullptr ? previous : "";
    setenv("LC_ALL", name, 1);
    EnableLocale();
    const std::string followed = std::setlocale(LC_CTYPE, nullptr);
    setenv("LC_ALL", restored.c_str(), 1);
    EnableLocale();
    return followed;
}

TEST_F(Multibyte, LocaleWithoutAnEncodingIsTakenForUtf8) {
    EXPECT_EQ(LocaleFollowed("C"), "C.UTF-8");
    EXPECT_EQ(LocaleFollowed("POSIX"), "C.UTF-8");
    EXPECT_EQ(LocaleFollowed("xx_XX.none"), "C.UTF-8");
}

TEST_F(Multibyte, LocaleOfTheUserIsFollowed) {
    const TextLocale latin("de_DE.ISO-8859-1");
    EXPECT_EQ(LengthOf("\xE9"), 1);
    EXPECT_EQ(LengthOf("\xC3\xA9"), 1);
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "de_DE.ISO-8859-1");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

} // namespace

} // namespace recastor
