#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "tests/support/commandtree.h"
#include "tests/support/run.h"
#include "tests/support/translatedtext.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// The MRSETS command less its first line.
std::string Groups(const std::string& globals) {
    OutputSequence output;
    output.PushBack("old", false);
    EXPECT_TRUE(ParseTree::TranslateAllMultiresponseGroups(
        ParseCommand("TABLES " + globals + "/TABLE=a"), output));
    const std::string text = output.Print(80, 2);
    EXPECT_TRUE(text.empty() || text.starts_with("MRSETS\n  ")) << text;
    return text.empty() ? text : text.substr(9);
}

struct GroupRow {
    const char* globals;
    const char* written;
};

void ExpectGroups(const std::vector<GroupRow>& rows) {
    for (const GroupRow& row : rows) {
        SCOPED_TRACE(row.globals);
        EXPECT_EQ(Groups(row.globals), row.written);
    }
}

TEST(Groups, NameOfEightBytesOrMoreIsCut) {
    ExpectGroups({
        {"/MRGROUP=g234567 q", "/MCGROUP NAME=$g234567 VARIABLES=q"},
        {"/MRGROUP=g2345678 q", "/MCGROUP NAME=$g234567 VARIABLES=q"},
        {"/MRGROUP=languages q", "/MCGROUP NAME=$languag VARIABLES=q"},
        {"/MDGROUP=languages q (1)", "/MDGROUP NAME=$languag VARIABLES=q VALUE=1"},
    });
}

TEST(Groups, MultibyteNameIsCutBetweenCharacters) {
    EXPECT_THAT(ConvertTables("TABLES /MRGROUP=langu\xC3\xA9s q /TABLE=langu\xC3\xA9s"),
                testing::AllOf(HasSubstr("NAME=$langu\xC3\xA9 VARIABLES=q"),
                               HasSubstr("/TABLE $langu\xC3\xA9[RESPONSES]")));
    EXPECT_THAT(ConvertTables("TABLES /MRGROUP=langue\xC3\xA9 q /TABLE=langue\xC3\xA9"),
                testing::AllOf(HasSubstr("NAME=$langue VARIABLES=q"),
                               HasSubstr("/TABLE $langue[RESPONSES]")));
}

TEST(Groups, DeclarationsKeepTheirOrderInOneCommand) {
    ExpectGroups({{"/MDGROUP=b q1 (1) /OBSERVATION=x /MRGROUP=c q2 /MDGROUP=a q3 (2)",
                   "/MDGROUP NAME=$b VARIABLES=q1 VALUE=1\n"
                   "  /MCGROUP NAME=$c VARIABLES=q2\n"
                   "  /MDGROUP NAME=$a VARIABLES=q3 VALUE=2"}});
}

TEST(Groups, ShortNameGetsADollarSign) {
    ExpectGroups({
        {"/MRGROUP=g q1 q2 q3", "/MCGROUP NAME=$g VARIABLES=q1 q2 q3"},
        {"/MRGROUP=Grp Q1", "/MCGROUP NAME=$Grp VARIABLES=Q1"},
    });
}

TEST(Groups, NameWithADollarSignStays) {
    ExpectGroups({{"/MRGROUP=$languages q", "/MCGROUP NAME=$languages VARIABLES=q"}});
}

TEST(Groups, LabelStandsBehindTheName) {
    ExpectGroups({
        {"/MRGROUP=g 'Label'q", "/MCGROUP NAME=$g LABEL='Label' VARIABLES=q"},
        {"/MDGROUP=g \"It's\"q(1)", "/MDGROUP NAME=$g LABEL=\"It's\" VARIABLES=q VALUE=1"},
    });
}

TEST(Groups, ValueIsANumberOrALiteral) {
    ExpectGroups({
        {"/MDGROUP=g q (1)", "/MDGROUP NAME=$g VARIABLES=q VALUE=1"},
        {"/MDGROUP=g q (01.50)", "/MDGROUP NAME=$g VARIABLES=q VALUE=01.50"},
        {"/MDGROUP=g q (-1)", "/MDGROUP NAME=$g VARIABLES=q VALUE=-1"},
        {"/MDGROUP=g q ('yes')", "/MDGROUP NAME=$g VARIABLES=q VALUE='yes'"},
    });
}

TEST(Groups, RangesArePassedThrough) {
    ExpectGroups({
        {"/MDGROUP=g x TO y (1)", "/MDGROUP NAME=$g VARIABLES=x TO y VALUE=1"},
        {"/MRGROUP=g a b to c D", "/MCGROUP NAME=$g VARIABLES=a b TO c D"},
        {"/MRGROUP=g a to b c to d", "/MCGROUP NAME=$g VARIABLES=a TO b c TO d"},
    });
}

TEST(Groups, FullCommandHasALineForEachGroup) {
    EXPECT_THAT(
        TranslatedText("TABLES /MRGROUP=grp 'Label'q1 q2 q3 /MDGROUP=grp2 x TO y (1) /TABLE=a"),
        testing::StartsWith("MRSETS\n"
                            "  /MCGROUP NAME=$grp LABEL='Label' VARIABLES=q1 q2 q3\n"
                            "  /MDGROUP NAME=$grp2 VARIABLES=x TO y VALUE=1.\n"
                            "CTABLES\n"));
}

TEST(Groups, CommandWithoutGroupsHasNone) {
    ExpectGroups({{"", ""}, {"/OBSERVATION=x /FORMAT /BOXCHARS 'x' ", ""}});
    TbTrParseNode& root = ParseCommand("TABLES /MRGROUP=g q /TABLE=a");
    root.SetChild(0, nullptr);
    OutputSequence output;
    EXPECT_TRUE(ParseTree::TranslateAllMultiresponseGroups(root, output));
    EXPECT_TRUE(output.IsEmpty());
}

TEST(Groups, LongListOfMembersIsBrokenBetweenThem) {
    const std::string member(20, 'q');
    ExpectGroups(
        {{("/MRGROUP=g " + member + " a TO b " + member + " " + member + " a TO b").c_str(),
          // 24 bytes to VARIABLES=, then 20, 7 and 21: 72, and indentation
          ("/MCGROUP NAME=$g VARIABLES=" + member + " a TO b " + member + "\n  " + member +
           " a TO b")
              .c_str()}});
}

/// The parsed groups g (of categories) and d (of dichotomies), which a test spoils.
class SpoiltGroup : public testing::Test {
protected:
    TbTrParseNode& m_list =
        *ParseCommand("TABLES /MRGROUP=g q /MDGROUP=d q (1) /TABLE=a").GetChild(0);
    TbTrParseNode& m_categories = *m_list.GetChild(0);
    TbTrParseNode& m_dichotomies = *m_list.GetChild(1);
    OutputSequence m_output;
};

TEST_F(SpoiltGroup, NumberOfPartsIsChecked) {
    EXPECT_DEATH(ParseTree::TranslateMRGroup(m_dichotomies, m_output),
                 HasSubstr("group.GetChildCount() == 2"));
    EXPECT_DEATH(ParseTree::TranslateMDGroup(m_categories, m_output),
                 HasSubstr("group.GetChildCount() == 3"));
}

TEST_F(SpoiltGroup, NameAndLabelAreChecked) {
    m_categories.GetChild(0)->SetChild(0, TreeFromDump("a").release());
    EXPECT_DEATH(ParseTree::TranslateMRGroup(m_categories, m_output), HasSubstr("SP_SLITERAL"));
    m_categories.GetChild(0)->RemoveChild(0);
    m_categories.GetChild(0)->RemoveChild(0);
    EXPECT_DEATH(ParseTree::TranslateMRGroup(m_categories, m_output),
                 HasSubstr("name->GetChildCount() > 0"));
    m_categories.GetChild(0)->SetNodeType(SP_SLITERAL);
    EXPECT_DEATH(ParseTree::TranslateMRGroup(m_categories, m_output), HasSubstr("SP_VARNAME"));
}

TEST_F(SpoiltGroup, ValueIsChecked) {
    m_dichotomies.GetChild(2)->SetNodeType(SP_VARNAME);
    EXPECT_DEATH(ParseTree::TranslateMDGroup(m_dichotomies, m_output), HasSubstr("SP_NUMBER"));
}

TEST_F(SpoiltGroup, MembersAreChecked) {
    m_categories.SetChild(1, nullptr);
    EXPECT_DEATH(ParseTree::TranslateMRGroup(m_categories, m_output),
                 HasSubstr("varlist != nullptr"));
    EXPECT_DEATH(ParseTree::PrintVarlist(*TreeFromDump("(LIST a)"), m_output),
                 HasSubstr("TBI_VARLIST"));
    EXPECT_DEATH(ParseTree::PrintVarlist(*TreeFromDump("(VARLIST (LIST))"), m_output),
                 HasSubstr("SP_VARNAME"));
}

TEST_F(SpoiltGroup, LabelsOfMembersAreNotWritten) {
    TbTrParseNode& list = *ParseCommand("TABLES /FTOTAL=t 'T'u /TABLE=a").GetChild(0)->GetChild(0);
    list.SetNodeType(TBI_VARLIST);
    ParseTree::PrintVarlist(list, m_output);
    EXPECT_EQ(m_output.Print(80, 2), "t u");
}

TEST_F(SpoiltGroup, VarlistReplacesTheOutput) {
    m_output.PushBack("old", false);
    ParseTree::PrintVarlist(*TreeFromDump("(VARLIST a b)"), m_output);
    EXPECT_EQ(m_output.Print(80, 2), "a b");
}

} // namespace

} // namespace recastor
