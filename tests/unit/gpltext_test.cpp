#include "platform/zelkwigr/gpltext.h"
#include "tests/support/law.h"

#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct NumberRow {
    double value;
    const char* text;
};

constexpr NumberRow kNumbers[] = {
    {5, "5"},
    {-1.1, "-1.1"},
    {0.95, "0.95"},
    {0, "0"},
    {-0.0, "0"},
    {600.0, "600"},
    {25.5, "25.5"},
    {0.1 + 0.2, "0.30000000000000004"},
    {1.0 / 3, "0.3333333333333333"},
    {1e6, "1000000"},
    {-999'999'999'999'999.0, "-999999999999999"},
    {1e15, "1000000000000000"},
    {1e-7, "0.0000001"},
    {-2.5e-10, "-0.00000000025"},
    {99.9 / 100, "0.9990000000000001"}, // one division of doubles, whatever it gives
    {90.0 / 100, "0.9"},
};

} // namespace

TEST(GplNumber, HasTheFewestDigitsThatReadBackInFixedNotation) {
    for (const NumberRow& row : kNumbers) {
        EXPECT_EQ(GplNumber(row.value), row.text);
    }
}

TEST(GplNumber, TheLargestAndTheSmallestHaveNoExponent) {
    for (const double value :
         {DBL_MAX, -DBL_MAX, DBL_MIN, -DBL_MIN, std::numeric_limits<double>::denorm_min(),
          2.2250738585072011e-308}) {
        const std::string text = GplNumber(value);
        EXPECT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
        EXPECT_EQ(std::strtod(text.c_str(), nullptr), value);
    }
}

TEST(GplNumber, ReadsBackAndBeginsAndEndsInADigit) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const auto mantissa = *rc::gen::arbitrary<long>();
            const auto exponent = *rc::gen::inRange(-300, 280);
            const double value = std::ldexp(static_cast<double>(mantissa), exponent);
            const std::string text = GplNumber(value);
            RC_LOG(text);
            const std::string_view digits =
                std::string_view(text).substr(text.starts_with('-') ? 1 : 0);
            const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
            RC_ASSERT(std::strtod(text.c_str(), nullptr) == value);
            RC_ASSERT(isDigit(digits.front()) && isDigit(digits.back()));
            RC_ASSERT(digits.find_first_not_of(".0123456789") == std::string_view::npos);
        },
        1000));
}

TEST(GplString, QuotesAndBackslashesAreEscaped) {
    EXPECT_EQ(GplString("income"), "\"income\"");
    EXPECT_EQ(GplString(""), "\"\"");
    EXPECT_EQ(GplString("Say \"yes\""), "\"Say \\\"yes\\\"\"");
    EXPECT_EQ(GplString("a\\b"), "\"a\\\\b\"");
    EXPECT_EQ(GplString("\\\""), "\"\\\\\\\"\"");
    EXPECT_EQ(GplString("it's"), "\"it's\"");
    EXPECT_EQ(GplString("\xC3\xA4\xE4"), "\"\xC3\xA4\xE4\"");
}

TEST(GplString, LinesAreJoinedByABackslashAndN) {
    struct Row {
        std::vector<std::string> lines;
        const char* text;
    };
    for (const Row& row : {
             Row{{"Sales", "region"}, "x\"Sales\\nregion\""},
             Row{{"one"}, "x\"one\""},
             Row{{"a\"", "", "\\n"}, "x\"a\\\"\\n\\n\\\\n\""},
             Row{{}, "x\"\""},
         }) {
        std::string text = "x";
        AppendGplString(row.lines, text);
        EXPECT_EQ(text, row.text);
    }
}

TEST(GplCall, ArgumentsThatAreEmptyAreLeftOut) {
    EXPECT_EQ(GplCall("axis", {"dim(1)", "label(\"x\")"}), "axis(dim(1), label(\"x\"))");
    EXPECT_EQ(GplCall("axis", {"dim(1)", "", "opposite()"}), "axis(dim(1), opposite())");
    EXPECT_EQ(GplCall("axis", {"", "null()"}), "axis(null())");
    EXPECT_EQ(GplCall("end", {}), "end()");
}

TEST(GplDimensions, StandWithoutBlanks) {
    EXPECT_EQ(GplDimensions({1}), "dim(1)");
    EXPECT_EQ(GplDimensions({1, 3, 4}), "dim(1,3,4)");
}

TEST(GplLine, HasOneBlankInFront) {
    std::string text = "\n";
    AppendGplLine(text, "PAGE", {"end()"});
    EXPECT_EQ(text, "\n PAGE: end()\n");
}

} // namespace recastor
