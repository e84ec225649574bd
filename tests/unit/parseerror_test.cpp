#include "ctables/recastor/parseerror.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(ParseErrorRecord, KeepsPlaceAndReason) {
    const ParseError error(12, 34, ParseError::kInvalidNumber);
    long line = 0;
    int column = 0;
    error.GetLineAndCol(line, column);
    EXPECT_EQ(line, 12);
    EXPECT_EQ(column, 34);
    EXPECT_EQ(error.GetErrorID(), 3);
}

TEST(ParseErrorRecord, ReasonsAreNumbered) {
    EXPECT_EQ(ParseError::kNoError, 0);
    EXPECT_EQ(ParseError::kUnclosedLiteral, 1);
    EXPECT_EQ(ParseError::kBadExponent, 2);
    EXPECT_EQ(ParseError::kInvalidNumber, 3);
    EXPECT_EQ(ParseError::kInvalidCharacter, 4);
}

TEST(ParseErrorRecord, LinesInFrontOfItsTextAreAdded) {
    ParseError error(1, 5, ParseError::kBadExponent);
    error.IncrementLine(6);
    error.IncrementLine(0);
    long line = 0;
    int column = 0;
    error.GetLineAndCol(line, column);
    EXPECT_EQ(line, 7);
    EXPECT_EQ(column, 5);
    EXPECT_EQ(error.GetErrorID(), ParseError::kBadExponent);
}

} // namespace

} // namespace recastor
