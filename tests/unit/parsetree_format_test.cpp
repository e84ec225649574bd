#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

struct FormatRow {
    const char* globals;
    const char* written; ///< behind "/FORMAT EMPTY="
};

void ExpectFormats(const std::vector<FormatRow>& rows) {
    for (const FormatRow& row : rows) {
        SCOPED_TRACE(row.globals);
        EXPECT_EQ(
            TranslatedSubcommands(std::string("TABLES ") + row.globals + "/TABLE=a", "/FORMAT"),
            std::string("/FORMAT EMPTY=") + row.written);
    }
}

TEST(Format, EmptyCellsAndMissingTextAreWritten) {
    ExpectFormats({{"/FORMAT=ZERO MISSING('-')", "ZERO MISSING='-'"}});
}

TEST(Format, LastSubcommandCounts) {
    ExpectFormats({
        {"/FORMAT=ZERO MISSING('-') /FORMAT=BLANK", "BLANK"},
        {"/FORMAT=BLANK /FORMAT=ZERO", "ZERO"},
        {"/FORMAT=ZERO /FORMAT=MISSING('x')", "BLANK MISSING='x'"},
        {"/FORMAT=ZERO /BASE=ALL /OBSERVATION=x", "ZERO"},
    });
}

TEST(Format, LastTextOfASubcommandCounts) {
    ExpectFormats({
        {"/FORMAT=MISSING('a') MISSING('b')", "BLANK MISSING='b'"},
        {"/FORMAT=MISSING('a') ZERO MISSING('b')", "ZERO MISSING='b'"},
        {"/FORMAT=ZERO ZERO", "ZERO"},
    });
}

TEST(Format, BlankIsTheDefault) {
    ExpectFormats({
        {"", "BLANK"},
        {"/FORMAT=BLANK ", "BLANK"},
        {"/FORMAT=MISSING('none')", "BLANK MISSING='none'"},
    });
}

TEST(Format, SubcommandWithoutSettingsChangesNothing) {
    ExpectFormats({
        {"/FORMAT ", "BLANK"},
        {"/FORMAT=ZERO /FORMAT ", "ZERO"},
        {"/FORMAT=ZERO /FORMAT=CWIDTH(20,5) NBOX ", "ZERO"},
        {"/FORMAT=ZERO MISSING='-'", "BLANK"}, // the text stands in no parentheses
    });
}

TEST(Format, SettingsAreChecked) {
    TbTrParseNode& root = ParseCommand("TABLES /FORMAT=ZERO /TABLE=a");
    OutputSequence output;
    root.GetChild(0)->GetChild(0)->GetChild(0)->SetNodeType(TB_ON);
    EXPECT_DEATH(ParseTree::TranslateFormat(root, output),
                 HasSubstr("type == TB_ZERO || type == TB_BLANK || type == SP_SLITERAL"));
}

TEST(Format, LastChoiceOfATreeCounts) {
    TbTrParseNode& root = ParseCommand("TABLES /FORMAT=ZERO /TABLE=a");
    TbTrParseNode& format = *root.GetChild(0)->GetChild(0);
    format.AppendChild(TbTrParseNode::MakeAttrNode(TB_BLANK, nullptr));
    OutputSequence output;
    output.PushBack("old", false);
    EXPECT_TRUE(ParseTree::TranslateFormat(root, output));
    EXPECT_EQ(Pieces(output), "/FORMAT EMPTY=\nBLANK");
    format.AppendChild(TbTrParseNode::MakeAttrNode(TB_ZERO, nullptr));
    EXPECT_TRUE(ParseTree::TranslateFormat(root, output));
    EXPECT_EQ(Pieces(output), "/FORMAT EMPTY=\nZERO");
}

TEST(Format, CommandMayHaveNoGlobalList) {
    TbTrParseNode& root = ParseCommand("TABLES /FORMAT=ZERO /TABLE=a");
    root.SetChild(0, nullptr);
    OutputSequence output;
    EXPECT_TRUE(ParseTree::TranslateFormat(root, output));
    EXPECT_EQ(output.Print(80, 2), "/FORMAT EMPTY=BLANK");
    EXPECT_DEATH(ParseTree::TranslateFormat(*TreeFromDump("(LIST)"), output),
                 HasSubstr("root.GetChildCount() > 0"));
}

struct HeadingsRow {
    const char* headings;
    const char* written;
};

void ExpectHeadings(const std::vector<HeadingsRow>& rows, const std::string& globals = "") {
    for (const HeadingsRow& row : rows) {
        SCOPED_TRACE(row.headings);
        EXPECT_EQ(TranslatedSubcommands("TABLES " + globals + "/TABLE=a" + row.headings +
                                            "/STATISTICS=count",
                                        "/TITLE"),
                  row.written);
    }
}

TEST(Headings, CornerAloneBeginsWithTitle) {
    ExpectHeadings({{"/CORNER='Corner'", "/TITLE CORNER='Corner'"},
                    {"/CORNER='a''b''c'", "/TITLE CORNER='a''b''c'"}});
}

TEST(Headings, AutolabelGivesATitleWhenThereIsNone) {
    ExpectHeadings({{"", "/TITLES TITLE=')TABLE'"},
                    {"/CAPTION='c'", "/TITLES TITLE=')TABLE' CAPTION='c'"},
                    {"/CORNER='c'", "/TITLES TITLE=')TABLE' CORNER='c'"},
                    {"/TITLE='t'", "/TITLES TITLE='t'"}},
                   "/AUTOLABEL=ON");
}

TEST(Headings, WithoutAutolabelThereIsNoTitle) {
    for (const char* globals : {"", "/AUTOLABEL=OFF", "/AUTOLABEL=DEFAULT", "/AUTOLABEL",
                                "/AUTOLABEL=ON /AUTOLABEL=OFF"}) {
        ExpectHeadings({{"", ""}, {"/CAPTION='c'", "/TITLES CAPTION='c'"}}, globals);
    }
}

TEST(Headings, TitleWithoutTextKeepsAutolabelAway) {
    ExpectHeadings({{"/TITLE", ""}, {"/TITLE/CORNER='c'", "/TITLE CORNER='c'"}}, "/AUTOLABEL=ON");
}

TEST(Headings, ShareOneLine) {
    ExpectHeadings({
        {"/TITLE='One' 'Two'/CAPTION='Note'/CORNER='Corner'",
         "/TITLES TITLE='One'  'Two' CAPTION='Note' CORNER='Corner'"}, // with the literal's blank
        {"/TITLE='One',\"Two\"/CAPTION='Note'/CORNER='Corner'",
         "/TITLES TITLE='One' \"Two\" CAPTION='Note' CORNER='Corner'"},
        {"/CORNER='c'/CAPTION='n'/TITLE='t'", "/TITLES TITLE='t' CAPTION='n' CORNER='c'"},
        {"/TITLE='t'/CORNER='c'", "/TITLES TITLE='t' CORNER='c'"},
        {"/CAPTION='n'/CORNER='c'", "/TITLES CAPTION='n' CORNER='c'"},
        {"/CAPTION='1','2','3'", "/TITLES CAPTION='1' '2' '3'"},
        {"/CORNER='1','2'", "/TITLE CORNER='1' '2'"},
    });
}

TEST(Headings, LastSubcommandOfItsKindCounts) {
    ExpectHeadings({
        {"/TITLE='a'/TITLE='b'", "/TITLES TITLE='b'"},
        {"/TITLE='a'/TITLE", ""},
        {"/CAPTION='a'/CORNER='x'/CAPTION='b'/CORNER='y'", "/TITLES CAPTION='b' CORNER='y'"},
        {"/CAPTION='a'/CAPTION", ""},
    });
}

TEST(Headings, OfEveryTableAreItsOwn) {
    EXPECT_EQ(TranslatedSubcommands("TABLES /TABLE=a /TITLE='1'/TABLE=b /TABLE=c /CORNER='3'/TITLE",
                                    "/TITLE"),
              "/TITLES TITLE='1' | /TITLE CORNER='3'");
}

TEST(Headings, NullTextsArePassed) {
    TbTrParseNode& table = ParseTable("TABLES /TABLE=a /TITLE='1','2'/CAPTION='3','4'");
    TbTrParseNode& group = *table.GetParent();
    group.GetChild(1)->SetChild(0, nullptr);
    group.GetChild(2)->SetChild(0, nullptr);
    OutputSequence output;
    output.PushBack("old", false);
    EXPECT_TRUE(ParseTree::TranslateHeadings(table, output));
    EXPECT_THAT(output.Print(80, 2), testing::StartsWith("/TITLES TITLE='2' CAPTION='4'"));
}

TEST(Headings, EveryTextIsAPiece) {
    OutputSequence output;
    EXPECT_TRUE(ParseTree::TranslateHeadings(
        ParseTable("TABLES /TABLE=a /TITLE='1','2'/CAPTION='3'/CORNER='4'/SORT=a"), output));
    EXPECT_EQ(Pieces(output), "/TITLES TITLE=\n'1'\n'2'\nCAPTION=\n'3'\nCORNER=\n'4'");
    EXPECT_TRUE(ParseTree::TranslateHeadings(ParseTable("TABLES /AUTOLABEL=ON /TABLE=a"), output));
    EXPECT_EQ(Pieces(output), "/TITLES TITLE=')TABLE'");
    EXPECT_TRUE(
        ParseTree::TranslateHeadings(ParseTable("TABLES /TABLE=a /CORNER='4'/SORT=a"), output));
    EXPECT_EQ(Pieces(output), "/TITLE\nCORNER=\n'4'");
}

} // namespace

} // namespace recastor
