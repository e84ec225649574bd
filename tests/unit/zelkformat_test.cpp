#include "ctables/recastor/zelkformat.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(Format, KeepsTypeWidthAndDecimals) {
    const ZELK_Format format(ZELK_Format::kNumericFormat, 12, 3);
    EXPECT_EQ(format.Type(), 5);
    EXPECT_EQ(format.Width(), 12);
    EXPECT_EQ(format.Decimals(), 3);
}

TEST(Format, TypesOneAndTwoAreTheStringFormats) {
    for (int type = 0; type < 40; ++type) {
        const ZELK_Format format(static_cast<ZELK_Format::FormatType>(type), 8, 0);
        EXPECT_EQ(format.IsString(), type == 1 || type == 2) << type;
    }
}

TEST(Format, WidthOfFortyIsTheLargestOfANumber) {
    EXPECT_EQ(ZELK_Format(ZELK_Format::kNumericFormat, 39, 0).Width(), 39);
    EXPECT_EQ(ZELK_Format(ZELK_Format::kNumericFormat, 40, 0).Width(), 40);
    EXPECT_EQ(ZELK_Format(ZELK_Format::kNumericFormat, 41, 0).Width(), 40);
    EXPECT_EQ(ZELK_Format(ZELK_Format::kStringFormat, 41, 0).Width(), 41);
    EXPECT_EQ(ZELK_Format(ZELK_Format::kHexStringFormat, 65535, 0).Width(), 65535);
}

TEST(Format, WidthIsCappedByTheTypeOfTheMoment) {
    ZELK_Format format(ZELK_Format::kStringFormat, 60, 0);
    format.Type(ZELK_Format::kNumericFormat);
    EXPECT_EQ(format.Width(), 60);
    format.Width(60);
    EXPECT_EQ(format.Width(), 40);
    format.Type(ZELK_Format::kStringFormat);
    format.Width(60);
    EXPECT_EQ(format.Width(), 60);
}

TEST(Format, DefaultIsNumericEightWideWithTwoDecimals) {
    EXPECT_EQ(kDefaultFormat.Type(), ZELK_Format::kNumericFormat);
    EXPECT_EQ(kDefaultFormat.Width(), 8);
    EXPECT_EQ(kDefaultFormat.Decimals(), 2);
    EXPECT_FALSE(kDefaultFormat.IsString());
}

TEST(Format, DecimalsCanBeSet) {
    ZELK_Format format(ZELK_Format::kNumericFormat, 8, 2);
    format.Decimals(16);
    EXPECT_EQ(format.Decimals(), 16);
}

} // namespace

} // namespace recastor
