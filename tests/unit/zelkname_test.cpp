#include "ctables/recastor/zelkname.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/textlocale.h"

#include <array>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_literals;

std::string Repeated(const std::string& text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

struct Row {
    std::string name;
    int result;
};

void ExpectResults(const std::vector<Row>& rows, int (*validate)(const char*)) {
    for (const auto& [name, result] : rows) {
        EXPECT_EQ(validate(name.c_str()), result) << testing::PrintToString(name);
    }
}

class Names : public Utf8Test {};

TEST_F(Names, OrdinaryNamesAreValid) {
    ExpectResults({{"AGE", 0},
                   {"age", 0},
                   {"@1", 0},
                   {"a.b_c#d$e@5", 0},
                   {"gr\u00F6\u00DFe", 0},
                   {"\u20AC", 0},
                   {"x.", 0},
                   {"x_", 0},
                   {std::string(64, 'x'), 0},
                   {Repeated("\u00E9", 32), 0}},
                  ValidateZELKName);
}

TEST_F(Names, FirstSignTellsScratchAndSystemNames) {
    ExpectResults({{"#tmp", 1}, {"#", 1}, {"$sysmis", 2}, {"$", 2}, {"#$", 1}, {"#1", 1}},
                  ValidateZELKName);
}

TEST_F(Names, LengthIsThatWithoutTrailingBlanks) {
    ExpectResults({{"", 3},
                   {"   ", 3},
                   {std::string(65, 'x'), 3},
                   {Repeated("\u00E9", 33), 3},
                   {std::string(64, 'x') + "  ", 0},
                   {"AGE  ", 0},
                   {"AGE\t", 4},
                   {" AGE", 4}},
                  ValidateZELKName);
}

TEST_F(Names, OtherCharactersAreInvalid) {
    for (const char c : "!\"%&'()*+,-/:;<=>?[\\]^`{|}~ \t\n\x01\x7F"s) {
        EXPECT_EQ(ValidateZELKName(("a"s + c + 'b').c_str()), 4) << c;
    }
    ExpectResults({{"a b", 4}, {"a\xFF", 4}, {"a\xC3", 4}, {"\xE2\x82", 4}, {"1-", 4}},
                  ValidateZELKName);
}

TEST_F(Names, ReservedWordsInAnyCaseAreNoNames) {
    for (const char* word :
         {"ALL", "AND", "BY", "EQ", "GE", "GT", "LE", "LT", "NE", "NOT", "OR", "TO", "WITH"}) {
        std::string lower = word;
        for (char& letter : lower) {
            letter = static_cast<char>(letter - 'A' + 'a');
        }
        ExpectResults(
            {{word, 5}, {lower, 5}, {lower + "  ", 5}, {lower + 'x', 0}, {lower + '.', 0}},
            ValidateZELKName);
    }
    ExpectResults({{"and", 5}, {"an", 0}, {"wit", 0}, {"#or", 1}}, ValidateZELKName);
}

TEST_F(Names, DigitUnderscoreAndPointDoNotBeginAName) {
    ExpectResults({{"1abc", 6}, {"9", 6}, {"0", 6}, {"_x", 6}, {".x", 6}, {".", 6}},
                  ValidateZELKName);
}

TEST_F(Names, HighBytesThatAreCharactersAreValid) {
    TreatHighBytesAsCharacters();
    ExpectResults({{"gr\xF6\xDF", 0}, {"\x80", 0}, {"\xFF", 0}}, ValidateZELKName);
}

TEST_F(Names, LegacyCharactersAreValidWhateverTheirSecondByte) {
    const TextLocale chinese("zh_CN.GBK");
    ExpectResults({{"\x81\x5C", 0}, {"a\x81\x7C", 0}, {"a\\", 4}}, ValidateZELKName);
    ExpectResults({{"a\x81\x5F", 0}, {"a\x81\x5F_", 100}}, ValidateZELKNameCheckLastChar);
}

TEST_F(Names, LastPointOrUnderscoreIsToldApart) {
    ExpectResults({{"abc", 0},
                   {"abc.", 7},
                   {"abc_", 100},
                   {"a.b", 0},
                   {"a_b", 0},
                   {"a.b.", 7},
                   {"a_.", 7},
                   {"a._", 100},
                   {"abc.  ", 7},
                   {"abc_  ", 100}},
                  ValidateZELKNameCheckLastChar);
}

TEST_F(Names, LastCharacterIsLookedAtInOrdinaryNamesOnly) {
    ExpectResults({{"#a.", 1}, {"$a_", 2}, {"", 3}, {"a b.", 4}, {"by", 5}, {"_", 6}, {"5.", 6}},
                  ValidateZELKNameCheckLastChar);
}

TEST_F(Names, CharactersThatANameMayHold) {
    const std::string valid = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789@#$_.";
    for (int code = 0; code < 128; ++code) {
        const std::string text(1, static_cast<char>(code));
        const bool expected = code != 0 && valid.find(text) != std::string::npos;
        EXPECT_EQ(IsValidZelkNameChar(text.c_str()), expected) << code;
    }
    EXPECT_TRUE(IsValidZelkNameChar("\u00E9 "));
    EXPECT_TRUE(IsValidZelkNameChar("\U0001F600"));
    for (const char* invalid : {"\xE9", "\xE2\x82", "\xFF", "\x80"}) {
        EXPECT_FALSE(IsValidZelkNameChar(invalid)) << invalid;
    }
    TreatHighBytesAsCharacters();
    EXPECT_TRUE(IsValidZelkNameChar("\x80"));
    EXPECT_TRUE(IsValidZelkNameChar("\xFF"));
}

/// The name made of a number; "none" when there is none, and then nothing may be written.
std::string NumericName(const std::string& source) {
    std::array<char, 100> destination{"old"};
    if (FormNumericZELKName(destination.data(), source.c_str())) {
        return destination.data();
    }
    EXPECT_STREQ(destination.data(), "old");
    return "none";
}

TEST_F(Names, NumberOfOneToSevenDigitsBecomesAName) {
    EXPECT_EQ(NumericName("1999"), "@1999");
    EXPECT_EQ(NumericName("0"), "@0");
    EXPECT_EQ(NumericName("1234567"), "@1234567");
    EXPECT_EQ(NumericName("12  "), "@12");
    EXPECT_EQ(NumericName("1234567    "), "@1234567");
    for (const char* other : {"", " ", "12345678", "1a", "a1", "1.5", " 1", "1 2", "-1"}) {
        EXPECT_EQ(NumericName(other), "none") << other;
    }
}

TEST_F(Names, NumericNameMayBeMadeInPlace) {
    std::array<char, 10> name{"1234567"};
    EXPECT_TRUE(FormNumericZELKName(name.data(), name.data()));
    EXPECT_STREQ(name.data(), "@1234567");
}

/// The name with its suffix; on failure "failed " and what the destination holds.
std::string Suffixed(const std::string& base, int index, int maximumLength = 64) {
    std::array<char, 200> destination{"old"};
    const int result = addNameSuffix(destination.data(), base.c_str(), index, maximumLength);
    return (result != 0 ? "failed " : "") + std::string(destination.data());
}

TEST_F(Names, SuffixesAreLettersAsOfSpreadsheetColumns) {
    for (const auto& [index, letters] : std::vector<std::pair<int, std::string>>{{0, "A"},
                                                                                 {1, "B"},
                                                                                 {25, "Z"},
                                                                                 {26, "AA"},
                                                                                 {27, "AB"},
                                                                                 {51, "AZ"},
                                                                                 {52, "BA"},
                                                                                 {701, "ZZ"},
                                                                                 {702, "AAA"},
                                                                                 {703, "AAB"},
                                                                                 {18277, "ZZZ"},
                                                                                 {18278, "AAAA"}}) {
        EXPECT_EQ(Suffixed("AGE", index), "AGE_" + letters) << index;
    }
}

TEST_F(Names, BaseIsShortenedToMakeRoomForTheSuffix) {
    EXPECT_EQ(Suffixed(std::string(64, 'x'), 0), std::string(62, 'x') + "_A");
    EXPECT_EQ(Suffixed(std::string(64, 'x'), 26), std::string(61, 'x') + "_AA");
    EXPECT_EQ(Suffixed("abcdef", 0, 4), "ab_A");
    EXPECT_EQ(Suffixed("abc", 0, 5), "abc_A");
    EXPECT_EQ(Suffixed("a\u00E9\u00E9", 0, 6), "a\u00E9_A");
    EXPECT_EQ(Suffixed("a\u00E9\u00E9", 0, 7), "a\u00E9\u00E9_A");
}

TEST_F(Names, SuffixThatLeavesNoRoomFails) {
    EXPECT_EQ(Suffixed("abcdef", 0, 3), "failed abcdef");
    EXPECT_EQ(Suffixed("abcdef", 26, 4), "failed abcdef");
    EXPECT_EQ(Suffixed("abcdef", 0, 0), "failed abcdef");
    EXPECT_EQ(Suffixed("", 0), "failed ");
    EXPECT_EQ(Suffixed("\u20AC\u20AC", 0, 4), "failed \u20AC\u20AC");
}

std::string Generated(const std::string& text, long number = 7) {
    std::array<char, 300> name{};
    std::memcpy(name.data(), text.data(), text.size());
    GenerateZELKName(name.data(), number, nullptr, nullptr, nullptr);
    return name.data();
}

TEST_F(Names, GeneratedNameIsTheValidPartOfTheText) {
    EXPECT_EQ(Generated("AGE"), "AGE");
    EXPECT_EQ(Generated("my var!"), "myvar");
    EXPECT_EQ(Generated(" a-b (c) "), "abc");
    EXPECT_EQ(Generated("gr\u00F6\u00DFe in \u20AC"), "gr\u00F6\u00DFein\u20AC");
    EXPECT_EQ(Generated("a\xFF\xC3"
                        "b"),
              "ab");
    EXPECT_EQ(Generated("1999"), "@1999");
    EXPECT_EQ(Generated("19 99"), "@1999");
    EXPECT_EQ(Generated("12345678"), "@12345678");
}

TEST_F(Names, GeneratedNameIsAnOrdinaryOne) {
    EXPECT_EQ(Generated("#x"), "@#x");
    EXPECT_EQ(Generated("$x"), "@$x");
    EXPECT_EQ(Generated("BY"), "@BY");
    EXPECT_EQ(Generated("to"), "@to");
    EXPECT_EQ(Generated("1a"), "@1a");
    EXPECT_EQ(Generated("_x"), "@_x");
    EXPECT_EQ(Generated(".x"), "@.x");
    EXPECT_EQ(Generated("x_"), "x");
    EXPECT_EQ(Generated("x._."), "x");
    EXPECT_EQ(Generated("#x_"), "@#x");
    EXPECT_EQ(Generated("by_"), "@by");
    EXPECT_EQ(Generated("_"), "@");
    EXPECT_EQ(Generated("\u00E9."), "\u00E9");
}

TEST_F(Names, GeneratedNameOfNothingIsTheNumber) {
    EXPECT_EQ(Generated("!!!"), "V7");
    EXPECT_EQ(Generated("", 123456), "V123456");
    EXPECT_EQ(Generated("   "), "V7");
    EXPECT_EQ(Generated("!", -5), "V-5");
}

TEST_F(Names, GeneratedNameHasSixtyFourBytesAtMost) {
    const std::string x63(63, 'x');
    EXPECT_EQ(Generated(std::string(64, 'x')), x63 + 'x');
    EXPECT_EQ(Generated(std::string(100, 'x')), x63 + 'x');
    EXPECT_EQ(Generated(x63 + "\u00E9"), x63);
    EXPECT_EQ(Generated(x63 + "-\u20AC"), x63);
    EXPECT_EQ(Generated(x63 + "__"), x63);
}

TEST_F(Names, SignInFrontOfALongNameSplitsNoCharacter) {
    EXPECT_EQ(Generated('#' + std::string(63, 'x')), "@#" + std::string(62, 'x'));
    EXPECT_EQ(Generated("#" + std::string(61, 'x') + "\u00E9"), "@#" + std::string(61, 'x'));
    EXPECT_EQ(Generated("#" + std::string(60, 'x') + "\u00E9"),
              "@#" + std::string(60, 'x') + "\u00E9");
}

/// Names that are taken, and what was asked.
struct Register {
    int taken;
    std::vector<std::string> asked;
    const void* second;
};

int IsTaken(void* first, void* second, const char* candidate) {
    auto& names = *static_cast<Register*>(first);
    names.asked.emplace_back(candidate);
    names.second = second;
    return names.taken-- > 0 ? 1 : 0;
}

TEST_F(Names, TakenNameGetsSuffixesUntilOneIsFree) {
    std::array<char, 65> name{"AGE"};
    Register names{28, {}, nullptr};
    GenerateZELKName(name.data(), 7, IsTaken, &names, &name);
    EXPECT_STREQ(name.data(), "AGE_AB");
    EXPECT_EQ(names.second, &name);
    ASSERT_EQ(names.asked.size(), 29U);
    EXPECT_EQ(names.asked[0], "AGE");
    EXPECT_EQ(names.asked[1], "AGE_A");
    EXPECT_EQ(names.asked[2], "AGE_B");
    EXPECT_EQ(names.asked[26], "AGE_Z");
    EXPECT_EQ(names.asked[27], "AGE_AA");
}

TEST_F(Names, FreeNameStays) {
    std::array<char, 65> name{"my age"};
    Register names{0, {}, nullptr};
    GenerateZELKName(name.data(), 7, IsTaken, &names, nullptr);
    EXPECT_STREQ(name.data(), "myage");
    EXPECT_EQ(names.asked, std::vector{"myage"s});
}

TEST_F(Names, TakenLongNameIsShortenedForItsSuffix) {
    std::array<char, 65> name{};
    std::memset(name.data(), 'x', 64);
    Register names{1, {}, nullptr};
    GenerateZELKName(name.data(), 7, IsTaken, &names, nullptr);
    EXPECT_EQ(std::string(name.data()), std::string(62, 'x') + "_A");
}

} // namespace

} // namespace recastor
