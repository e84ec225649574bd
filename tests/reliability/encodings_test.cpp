// Files in the encodings that survey departments used, under their own locale and under another.

#include "tests/fuzz/keptlines.h"
#include "tests/support/run.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <iconv.h>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

/// An encoding, a locale that uses it, and text (in UTF-8) that it can hold, short enough not to be
/// laid out in another way for its number of bytes. Where the encoding has
/// such characters, one of them ends in a byte that is a backslash, a bar or a letter.
struct Encoding {
    const char* charset;
    const char* language;
    const char* word;
    const char* sentence;
};

const std::array<Encoding, 5> kEncodings{{
    {"ISO-8859-1", "de_DE", "größe", "ß ½ Übersicht"},
    {"CP949", "ko_KR", "지역", "똠방각하 뷁"},
    {"SHIFT_JIS", "ja_JP", "地域", "ソ能表ポ"},
    {"GB18030", "zh_CN", "地区", "㐀‰镕"},
    {"BIG5", "zh_TW", "地區", "功許蓋"},
}};

std::string FromUtf8(const std::string& text, const char* charset) {
    const iconv_t converter = iconv_open(charset, "UTF-8");
    if (converter == iconv_t(-1)) {
        throw std::runtime_error(std::string("no converter to ") + charset);
    }
    std::string source = text;
    std::string result(text.size() * 4, '\0');
    char* from = source.data();
    std::size_t left = source.size();
    char* to = result.data();
    std::size_t space = result.size();
    const bool complete =
        iconv(converter, &from, &left, &to, &space) != static_cast<std::size_t>(-1);
    iconv_close(converter);
    if (!complete) {
        throw std::runtime_error(std::string(charset) + " cannot hold " + text);
    }
    result.resize(result.size() - space);
    return result;
}

class Encodings : public testing::TestWithParam<Encoding> {
protected:
    /// The output for `input` (in UTF-8) that is converted as a file in the encoding `charset`
    /// under the locale `locale`.
    static std::string Convert(const std::string& input, const char* charset,
                               const std::string& locale) {
        const TemporaryFolder folder;
        WriteFile(folder.Path() / "input.syn", FromUtf8(input, charset));
        const RunResult result =
            RunProgram(RECASTOR_PROGRAM, {"input.syn", "output.syn"}, folder.Path(),
                       {"LOCPATH=" RECASTOR_TEST_LOCALES, "LC_ALL=" + locale});
        EXPECT_EQ(0, result.status) << result.errors;
        return ReadFile(folder.Path() / "output.syn");
    }

    static std::string OwnLocale(const Encoding& encoding) {
        return std::string(encoding.language) + '.' + encoding.charset;
    }
};

/// A file with the encoding's characters wherever its own locale allows them.
std::string FileWithNames(const Encoding& encoding) {
    const std::string word = encoding.word;
    const std::string sentence = encoding.sentence;
    return "* " + sentence + ".\nFREQUENCIES " + word + ".\nTABLES /FTOTAL t '" + sentence +
           "'\n  /TABLE " + word + " + t BY sex\n  /STATISTICS COUNT('" + word + "')\n  /TITLE '" +
           sentence + "'.\nTITLE \"" + sentence + "\".\n";
}

/// A file with them in comments and literals only.
std::string FileWithTexts(const Encoding& encoding) {
    const std::string sentence = encoding.sentence;
    return "* " + sentence + ".\nTABLES /FTOTAL t '" + sentence +
           "'\n  /TABLE region + t BY sex\n  /TITLE '" + sentence + "'.\nTITLE \"" + sentence +
           "\".\n";
}

TEST_P(Encodings, UnderItsOwnLocaleAFileConvertsAsItDoesInUtf8) {
    const Encoding& encoding = GetParam();
    const std::string input = FileWithNames(encoding);
    const std::string inUtf8 = Convert(input, "UTF-8", "C.UTF-8");
    EXPECT_NE(std::string::npos, inUtf8.find("CTABLES\n"));
    EXPECT_EQ(FromUtf8(inUtf8, encoding.charset),
              Convert(input, encoding.charset, OwnLocale(encoding)));
}

TEST_P(Encodings, UnderUtf8ItsTextsComeThroughByteByByte) {
    const Encoding& encoding = GetParam();
    const std::string input = FileWithTexts(encoding);
    EXPECT_EQ(FromUtf8(Convert(input, "UTF-8", "C.UTF-8"), encoding.charset),
              Convert(input, encoding.charset, "C.UTF-8"));
}

INSTANTIATE_TEST_SUITE_P(Charsets, Encodings, testing::ValuesIn(kEncodings),
                         [](const testing::TestParamInfo<Encoding>& row) {
                             std::string name = row.param.charset;
                             std::erase_if(name, [](char c) { return c == '-' || c == '_'; });
                             return name;
                         });

class Utf8 : public testing::Test {
protected:
    static std::string Converted(const std::string& text) { return ConvertText(text); }
};

TEST_F(Utf8, CharactersOfEveryPlaneAreKept) {
    for (const char* const character :
         {"\u00E9", "\u0905", "\uFFFD", "\U00010348", "\U0001F600", "\U00020000", "\U0002F81D",
          "\U000E0041", "\U000F0000", "\U0010FFFD", "e\u0301\u0323", "\uFEFF", "\u200B"}) {
        SCOPED_TRACE(character);
        const std::string literal = std::string("'x") + character + "y'";
        const std::string output =
            Converted("TITLE " + literal + ".\nTABLES /TABLE a /TITLE " + literal + ".\n");
        EXPECT_EQ(0U, output.find("TITLE " + literal + ".\n"));
        EXPECT_NE(std::string::npos, output.find("/TITLES TITLE=" + literal)) << output;
    }
}

TEST_F(Utf8, AnInvalidSequenceAnywhereIsKept) {
    const std::string text = "TITLE 'ab'.\nTABLES /TABLE a /TITLE 'cd'.\nLAST 'ef'.\n";
    for (const char* const invalid : {"\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xFF",
                                      "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        for (const char* const place : {"ab", "cd", "ef"}) {
            std::string damaged = text;
            damaged.insert(damaged.find(place) + 1, invalid);
            const std::string output = Converted(damaged);
            EXPECT_EQ(std::nullopt, FirstLostLine(damaged, output)) << output;
            EXPECT_NE(std::string::npos, output.find("CTABLES\n")) << output;
        }
    }
}

TEST_F(Utf8, AnInvalidSequenceAtAnyByteNeitherStopsNorLosesTheRest) {
    const std::string text = "A 'ä'.\nB b.\n";
    for (std::size_t place = 0; place + 1 < text.size(); ++place) {
        std::string damaged = text;
        damaged.insert(place, "\xFF");
        EXPECT_EQ(damaged, Converted(damaged)) << place;
    }
    // Behind the last period it is the command's last word, which gets a period of its own.
    EXPECT_EQ("A 'ä'.\nB b.\xFF.\n", Converted("A 'ä'.\nB b.\xFF\n"));
    EXPECT_EQ(text + "\xFF.\n", Converted(text + "\xFF"));
}

} // namespace

} // namespace recastor
