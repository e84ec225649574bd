#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/tbtrnamelistnode.h"
#include "tests/support/commandtree.h"

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// A list of variables that may bear one name several times.
std::unique_ptr<TbTrNameListNode> ListOf(const std::string& letters) {
    auto list = std::make_unique<TbTrNameListNode>(TBI_VARLIST);
    for (const char& letter : letters) {
        list->AppendChild(TbTrParseNode::MakeVarNameNode(
            new ZELKStringToken(PaddedText(std::string_view(&letter, 1)), 1, 1, PaddedText(""),
                                TokenSequenceBase::kNotOperator)));
    }
    return list;
}

/// The same with every class of list: one that knows its names and one that is searched.
void ExpectFound(const std::string& letters, const char* name, unsigned index) {
    SCOPED_TRACE(letters + ' ' + name);
    const auto list = ListOf(letters);
    const std::unique_ptr<TbTrParseNode> copy(list->Clone());
    EXPECT_EQ(copy->AsNameList(), nullptr);
    EXPECT_EQ(list->FindChild(name), list->GetChild(index));
    EXPECT_EQ(FindInNameList(*list, name), list->GetChild(index));
    EXPECT_EQ(FindInNameList(*copy, name), copy->GetChild(index));
}

constexpr unsigned kNowhere = 1000;

} // namespace

TEST(NameListNode, FindsTheFirstChildOfTheName) {
    for (const char* letters : {"ABA", "ABACDEFGHIJKLB"}) {
        ExpectFound(letters, "A", 0);
        ExpectFound(letters, "B", 1);
        ExpectFound(letters, "X", kNowhere);
        ExpectFound(letters, "AB", kNowhere);
    }
    ExpectFound("ABACDEFGHIJKLB", "L", 12);
    ExpectFound("", "A", kNowhere);
}

TEST(NameListNode, ArgumentsOfAFunctionAreFoundByTheirVariables) {
    const TbTrParseNode& root =
        ParseCommand("TABLES /TABLE a /STATISTICS MEAN(a b 'B' c d e f g h i j (F5.2) 'J')");
    const TbTrParseNode* const statistics = ParseTree::FindNodeByType(&root, TB_STATISTICS);
    ASSERT_NE(statistics, nullptr);
    const TbTrParseNode* const arguments = statistics->GetChild(0)->GetChild(2);
    ASSERT_NE(arguments->AsNameList(), nullptr);
    EXPECT_EQ(arguments->AsNameList()->FindChild("J"), arguments->GetChild(9));
    EXPECT_EQ(arguments->AsNameList()->FindChild("B"), arguments->GetChild(1));
    EXPECT_EQ(arguments->AsNameList()->FindChild("K"), nullptr);
}

TEST(NameListNode, AnArgumentWithoutAVariableHasNoName) {
    const TbTrParseNode& root = ParseCommand("TABLES /TABLE a /STATISTICS MEAN((F5.2) 'M')");
    const TbTrParseNode* const statistics = ParseTree::FindNodeByType(&root, TB_STATISTICS);
    ASSERT_NE(statistics, nullptr);
    EXPECT_EQ(FindInNameList(*statistics->GetChild(0)->GetChild(2), "A"), nullptr);
}

} // namespace recastor
