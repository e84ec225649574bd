#include "ctables/recastor/messages.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(Messages, LoadStringFetchesTheText) {
    std::string text = "old";
    EXPECT_TRUE(SCLoadString(text, IDS_PTERROR_YYERROR));
    EXPECT_EQ(text, "Invalid TABLES command syntax");
}

TEST(Messages, LoadStringOfAnEmptyMessageLeavesTheTextAlone) {
    std::string text = "old";
    EXPECT_FALSE(SCLoadString(text, ""));
    EXPECT_EQ(text, "old");
}

TEST(Messages, FormatStringPutsInOneArgument) {
    std::string text;
    SCFormatString(text, "a %s b", "1");
    EXPECT_EQ(text, "a 1 b");
    SCFormatString(text, "%s", "");
    EXPECT_EQ(text, "");
    SCFormatString(text, "no field", "1");
    EXPECT_EQ(text, "no field");
    SCFormatString(text, "<%s>", "%s %d");
    EXPECT_EQ(text, "<%s %d>");
    SCFormatString(text, "<%s>", std::string(100'000, 'x'));
    EXPECT_EQ(text.size(), 100'002U);
}

TEST(Messages, LineAndColumnTakeTheirPlaces) {
    EXPECT_EQ(FormatLineAndColumn(IDS_TOKERR_MAIN, 7, 0),
              "Error while tokenizing input syntax file. Line 7, column 0.");
    EXPECT_EQ(FormatLineAndColumn("%d before %ld", 10'000'000'000, -1), "-1 before 10000000000");
}

TEST(Messages, TextsThatNothingWritesAreKept) {
    EXPECT_EQ(IDS_STRING_PARSE_ERROR, "A parsing error has occured.");
    EXPECT_EQ(IDS_GEEKY_ERROR_MESSAGE, "Detailed error message");
}

} // namespace

} // namespace recastor
