#include "archive/picture/picturejson.h"
#include "archive/picture/skeletonoftree.h"
#include "tests/support/commandtree.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string AsItIs(std::string_view text) {
    return std::string(text);
}

std::string Picture(const std::string& subcommands, const TextDecoder& decode = AsItIs) {
    return PictureOfTables(SkeletonOfTree(ParseCommand("TABLES " + subcommands)), decode);
}

TEST(PictureOfTables, SaysAllOfATable) {
    EXPECT_EQ(Picture("/FORMAT ZERO MISSING('-') /FTOTAL t 'All' /TABLE a BY b + t "
                      "/STATISTICS COUNT('n') /SORT b /TITLE 'T' /CORNER 'C'"),
              R"({"emptyCells":"zero","missingText":"-","tables":[{)"
              R"("rows":[{"name":"a","kind":"category","label":null,"total":null,)"
              R"("statistics":[],"totalStatistics":[],"inside":[]}],)"
              R"("columns":[{"name":"b","kind":"category","label":null,)"
              R"("total":{"after":true,"label":"All"},)"
              R"("statistics":[{"function":"COUNT","label":"n","format":null}],)"
              R"("totalStatistics":[{"function":"COUNT","label":"n","format":null}],)"
              R"("inside":[]}],"layers":[],"statisticsSide":"columns",)"
              R"("statisticsNamed":true,"movedLabels":null,"missingIncluded":false,)"
              R"("sorts":[{"variable":"b","ascending":false,"key":"COUNT"}],)"
              R"("title":["T"],"caption":[],"corner":["C"]}]})");
}

/// The headers of the rows: names, with what they nest in parentheses.
std::string Nesting(const std::string& rows) {
    std::string nesting;
    const std::string picture = Picture("/TABLE " + rows + " BY z");
    const std::string ends = picture.substr(0, picture.find(R"("columns")"));
    for (std::size_t i = 0; i < ends.size(); ++i) {
        if (ends.compare(i, 8, R"("name":")") == 0) {
            nesting += ends[i + 8];
        } else if (ends.compare(i, 11, R"("inside":[{)") == 0) {
            nesting += '(';
        } else if (ends.compare(i, 4, "}]},") == 0 || ends.compare(i, 4, "}]}]") == 0) {
            nesting += ')';
        }
    }
    return nesting;
}

TEST(PictureOfTables, TermsSideBySideShareTheHeaderThatTheyBeginWith) {
    EXPECT_EQ(Nesting("a > (b + c > d)"), "a(bc(d))");
    EXPECT_EQ(Nesting("a > b + a > c"), "a(bc)");
}

TEST(PictureOfTables, VariablesThatNestNothingShareNoHeader) {
    EXPECT_EQ(Nesting("a + a"), "aa");
    EXPECT_EQ(Nesting("a + a > b"), "aa(b)");
}

TEST(PictureOfTables, DimensionThatIsTooLargeIsNull) {
    std::string rows = "a";
    for (int i = 0; i < 70; ++i) {
        rows += " > a";
    }
    EXPECT_NE(Picture("/TABLE " + rows).find(R"("rows":null)"), std::string::npos);
}

TEST(PictureOfTables, TextsAreDecodedAndAlwaysValid) {
    const auto fromLatin1 = [](std::string_view text) {
        return text == "\xE4" ? std::string("\xC3\xA4") : std::string(text);
    };
    CommandSkeleton skeleton;
    skeleton.missingText = "\xE4";
    EXPECT_NE(PictureOfTables(skeleton, fromLatin1).find("\xC3\xA4"), std::string::npos);
    EXPECT_NE(PictureOfTables(skeleton, AsItIs).find("\xEF\xBF\xBD"), std::string::npos);
    EXPECT_NE(Picture("/TABLE a /TITLE '<\"\\'").find(R"("\u003c\"\\")"), std::string::npos);
}

} // namespace

} // namespace recastor
