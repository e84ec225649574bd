#include "ctables/recastor/ggraphcommand.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// A command that draws nothing but has every part that must be there.
GGraphParts BareParts() {
    return {"", "height weight", {}, {}, "\n SOURCE: s\n"};
}

std::string Command(const std::string& graphSpecTail) {
    return "GGRAPH\n"
           "  /GRAPHDATASET NAME=\"iGraphDataset\" VARIABLES=height weight\n"
           "    MISSING=LISTWISE REPORTMISSING=NO\n"
           "  /GRAPHSPEC SOURCE=INLINE EDITABLE=YES" +
           graphSpecTail +
           ".\n"
           "BEGIN GPL\n"
           " SOURCE: s\n"
           "END GPL.";
}

} // namespace

TEST(GGraphCommand, WithoutLabelLookAndTemplateTheSubcommandEndsBehindEditable) {
    EXPECT_EQ(GGraphCommand(BareParts()), Command(""));
}

TEST(GGraphCommand, WithALabelAloneTheSubcommandEndsBehindIt) {
    GGraphParts parts = BareParts();
    parts.viewName = "Heights";
    EXPECT_EQ(GGraphCommand(parts), Command(" LABEL='Heights'"));
}

TEST(GGraphCommand, TwoInlineTemplatesAreTwoStringsWithABlankBetween) {
    GGraphParts parts = BareParts();
    parts.inlineTemplates = {"<one/>", "<two/>"};
    EXPECT_EQ(GGraphCommand(parts), Command("\n      INLINETEMPLATE=[\"<one/>\" \"<two/>\"]"));
}

TEST(GGraphCommand, OneInlineTemplateIsOneString) {
    GGraphParts parts = BareParts();
    parts.inlineTemplates = {"<one/>"};
    EXPECT_EQ(GGraphCommand(parts), Command("\n      INLINETEMPLATE=[\"<one/>\"]"));
}

TEST(GGraphCommand, TwoLooksAreOneStringWithNothingBetween) {
    GGraphParts parts = BareParts();
    parts.looks = {"grey", "large"};
    EXPECT_EQ(GGraphCommand(parts), Command("\n      TEMPLATE=[\"greylarge\"]"));
}

TEST(GGraphCommand, LabelLooksAndTemplatesStandInThisOrder) {
    const GGraphParts parts{"Heights", "height weight", {"grey"}, {"<one/>"}, "\n SOURCE: s\n"};
    EXPECT_EQ(GGraphCommand(parts), Command(" LABEL='Heights'\n"
                                            "      TEMPLATE=[\"grey\"]\n"
                                            "      INLINETEMPLATE=[\"<one/>\"]"));
}

TEST(GGraphCommand, ApostrophesInTheLabelAreDoubled) {
    GGraphParts parts = BareParts();
    parts.viewName = "Women's \"own\" choice: '";
    EXPECT_EQ(GGraphCommand(parts), Command(" LABEL='Women''s \"own\" choice: '''"));
}

TEST(GGraphCommand, DoubleQuotesInALookAreDoubled) {
    GGraphParts parts = BareParts();
    parts.looks = {"the \"grey\" one's"};
    EXPECT_EQ(GGraphCommand(parts), Command("\n      TEMPLATE=[\"the \"\"grey\"\" one's\"]"));
}

TEST(GGraphCommand, DoubleQuotesInATemplateAreDoubled) {
    GGraphParts parts = BareParts();
    parts.inlineTemplates = {"<set name=\"wrap\"/>", "\""};
    EXPECT_EQ(GGraphCommand(parts),
              Command("\n      INLINETEMPLATE=[\"<set name=\"\"wrap\"\"/>\" \"\"\"\"]"));
}

TEST(GGraphCommand, AnEmptyTemplateIsAnEmptyString) {
    GGraphParts parts = BareParts();
    parts.inlineTemplates = {"", "<two/>"};
    EXPECT_EQ(GGraphCommand(parts), Command("\n      INLINETEMPLATE=[\"\" \"<two/>\"]"));
}

TEST(GGraphCommand, TheBlockStandsAsItIs) {
    GGraphParts parts = BareParts();
    parts.gpl = "\n GUIDE: text.title(label(\"It's \\\"here\\\"\"))\n PAGE: end()\n";
    EXPECT_NE(GGraphCommand(parts).find("EDITABLE=YES.\nBEGIN GPL" + parts.gpl + "END GPL."),
              std::string::npos);
}

} // namespace recastor
