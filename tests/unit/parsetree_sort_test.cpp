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

struct SortRow {
    const char* table;
    const char* sort;    ///< behind "/SORT="
    const char* written; ///< each line less "/CATEGORIES VAR=", separated by " | "
};

/// Scale variables x and y, groups g (of categories), long (ditto) and d (of dichotomies).
std::string Sorted(const std::string& table, const std::string& sort) {
    return TranslatedCategories(
        "TABLES /OBSERVATION=x y /MRGROUP=g m1 /MRGROUP=languages m2 /MDGROUP=d m3 (1) /TABLE=" +
        table + "/SORT=" + sort);
}

void ExpectSorted(const std::vector<SortRow>& rows) {
    for (const SortRow& row : rows) {
        SCOPED_TRACE(std::string(row.table) + "/SORT=" + row.sort);
        EXPECT_EQ(Sorted(row.table, row.sort), row.written);
    }
}

TEST(Sort, NoDirectionIsDescendingAndNoFunctionCounts) {
    ExpectSorted({{"a", "a", "a ORDER=D KEY=COUNT"}});
}

TEST(Sort, VariableOutsideTheStatisticsDimensionIsCountedAtTheFirstMagnet) {
    ExpectSorted({{"a BY b", "a", "a ORDER=D KEY=COUNT(b)"}});
}

TEST(Sort, DirectionHoldsForEveryVariable) {
    ExpectSorted({
        {"a + b", "a b", "a ORDER=D KEY=COUNT | b ORDER=D KEY=COUNT"},
        {"a + b", "ASCENDING a b", "a ORDER=A KEY=COUNT | b ORDER=A KEY=COUNT"},
        {"a + b", "DESCENDING a b", "a ORDER=D KEY=COUNT | b ORDER=D KEY=COUNT"},
        {"a + b", "ASC a (mean(x)) b", "a ORDER=A KEY=MEAN(x) | b ORDER=A KEY=COUNT"},
    });
}

TEST(Sort, FunctionGivesTheKey) {
    ExpectSorted({
        {"a", "a (count)", "a ORDER=D KEY=COUNT"},
        {"a", "a (cases)", "a ORDER=D KEY=RESPONSES"},
        {"a", "a (responses)", "a ORDER=D KEY=RESPONSES"},
        {"a", "a (mean(x))", "a ORDER=D KEY=MEAN(x)"},
        {"a", "a (maxi(x))", "a ORDER=D KEY=MAXIMUM(x)"},
        {"a", "a (hptile(x))", "a ORDER=D KEY=PTILE(x)"},
        {"a", "a (validn(x))", "a ORDER=D KEY=VALIDN(x)"},
        {"a", "a (mean)", "a ORDER=D KEY=MEAN"},
    });
}

TEST(Sort, PercentageSortsByTheCount) {
    ExpectSorted({
        {"a", "a (cpct)", "a ORDER=D KEY=COUNT"},
        {"a", "a (cspct)", "a ORDER=D KEY=COUNT"},
        {"a", "a (rpct)", "a ORDER=D KEY=COUNT"},
        {"a", "a (spct(x))", "a ORDER=D KEY=COUNT(x)"},
        {"a", "a (vpct(x))", "a ORDER=D KEY=COUNT(x)"},
    });
}

TEST(Sort, BareCountOfAVariableElsewhereNamesTheFirstMagnet) {
    ExpectSorted({
        {"a BY b", "a (count)", "a ORDER=D KEY=COUNT(b)"},
        {"a BY b", "a (cpct)", "a ORDER=D KEY=COUNT(b)"},
        {"a BY b", "b", "b ORDER=D KEY=COUNT"},
        {"a BY b", "a b", "a ORDER=D KEY=COUNT(b) | b ORDER=D KEY=COUNT"},
        {"a BY b + c", "a", "a ORDER=D KEY=COUNT(b)"},
        {"a BY b > c", "a", "a ORDER=D KEY=COUNT(c)"},
        {"a BY x > b", "a", "a ORDER=D KEY=COUNT(x)"},
        {"a BY b > c + x", "a", "a ORDER=D KEY=COUNT(c)"},
        {"a BY g", "a", "a ORDER=D KEY=COUNT($g)"},
        {"a BY languages", "a", "a ORDER=D KEY=COUNT($languag)"},
        {"a BY Bee", "a", "a ORDER=D KEY=COUNT(Bee)"},
        {"a", "z", "z ORDER=D KEY=COUNT(a)"}, // nowhere in the table
        {"a > b BY c", "b", "b ORDER=D KEY=COUNT(c)"},
        {"(a + b) > c", "b c", "b ORDER=D KEY=COUNT | c ORDER=D KEY=COUNT"},
    });
}

TEST(Sort, OtherKeysAreLeftAlone) {
    ExpectSorted({
        {"a BY b", "a (cases)", "a ORDER=D KEY=RESPONSES"},
        {"a BY b", "a (mean)", "a ORDER=D KEY=MEAN"},
        {"a BY b", "a (count(c))", "a ORDER=D KEY=COUNT(c)"},
        {"a BY b", "a (cpct(c))", "a ORDER=D KEY=COUNT(c)"},
        {"a BY b", "a (mean(x))", "a ORDER=D KEY=MEAN(x)"},
    });
}

TEST(Sort, GroupsHaveTheirWrittenNames) {
    ExpectSorted({
        {"g", "g", "$g ORDER=D KEY=COUNT"},
        {"languages", "Languages", "$Languag ORDER=D KEY=COUNT"},
        {"a", "a (count(g))", "a ORDER=D KEY=COUNT($g)"},
        {"a", "a (cases(d))", "a ORDER=D KEY=RESPONSES($d)"},
        {"d BY a", "d", "$d ORDER=D KEY=COUNT(a)"},
        {"g", "g (rpct(languages))", "$g ORDER=D KEY=COUNT($languag)"},
    });
}

TEST(Sort, NamesAreComparedWithoutCaseAndKeepTheirSpelling) {
    ExpectSorted({
        {"a BY Bee", "bEE", "bEE ORDER=D KEY=COUNT"},
        {"a", "a (MEAN(X))", "a ORDER=D KEY=MEAN(X)"},
    });
}

TEST(Sort, FirstSortOfATableCounts) {
    ExpectSorted({{"a + b", "a /SORT=ASCENDING b", "a ORDER=D KEY=COUNT"}});
}

TEST(Sort, EveryTableHasItsOwn) {
    EXPECT_EQ(TranslatedSubcommands("TABLES /TABLE=a /TABLE=b /SORT=b /TABLE=c /SORT=ASC c",
                                    "/CATEGORIES VAR=b"),
              "/CATEGORIES VAR=b ORDER=D KEY=COUNT");
}

TEST(Sort, UnknownFunctionIsAnErrorThatNamesIt) {
    const std::string place = "***** Error while parsing or translating input syntax file. ";
    const std::string message = " on SORT subcommand.\n";
    EXPECT_EQ(ConvertTables("TABLES\n/TABLE=a\n/SORT=a (Foo)"),
              place + "Line 3, column 10.\n***** Unrecognized function Foo" + message);
    EXPECT_EQ(ConvertTables("TABLES\n/TABLE=a /SORT=b a (me(x))"),
              place + "Line 2, column 21.\n***** Unrecognized function me" + message);
}

TEST(Sort, TableWithoutSortHasNone) {
    const TbTrParseNode& table = ParseTable("TABLES /TABLE=a /TITLE");
    OutputSequence output;
    output.PushBack("old", false);
    EXPECT_TRUE(ParseTree::TranslateSort(table, *table.GetChild(0), nullptr, output));
    EXPECT_TRUE(output.IsEmpty());
}

TEST(Sort, EveryPartIsAPiece) {
    const TbTrParseNode& table = ParseTable("TABLES /TABLE=a BY b /SORT=a b");
    OutputSequence output;
    EXPECT_TRUE(ParseTree::TranslateSort(table, *table.GetChild(1), table.GetChild(1), output));
    EXPECT_EQ(Pieces(output), "/CATEGORIES VAR=\na\nORDER=\nD\nKEY=\nCOUNT(b)\n"
                              "/CATEGORIES VAR=\nb\nORDER=\nD\nKEY=\nCOUNT");
}

/// The parsed table `a` with a SORT subcommand that a test spoils.
class SpoiltSort : public testing::Test {
protected:
    TbTrParseNode& m_table = ParseTable("TABLES /TABLE=a /SORT=b (count)");
    TbTrParseNode& m_sort = *m_table.GetParent()->GetChild(1);
    OutputSequence m_output;

    void Translate(const TbTrParseNode* magnet) {
        ParseTree::TranslateSort(m_table, *m_table.GetChild(0), magnet, m_output);
    }
};

TEST_F(SpoiltSort, MagnetMustExist) {
    EXPECT_DEATH(Translate(nullptr), HasSubstr("firstMagnet != nullptr"));
}

TEST_F(SpoiltSort, ChildrenAreSortVariables) {
    m_sort.GetChild(1)->SetNodeType(SP_VARNAME);
    EXPECT_DEATH(Translate(m_table.GetChild(0)), HasSubstr("TBI_SORTVAR"));
    m_sort.SetChild(1, nullptr);
    EXPECT_DEATH(Translate(m_table.GetChild(0)), HasSubstr("sortVariable != nullptr"));
}

TEST_F(SpoiltSort, ListHoldsTheDirectionAtLeast) {
    m_sort.RemoveChild(1);
    Translate(m_table.GetChild(0));
    EXPECT_TRUE(m_output.IsEmpty());
    m_sort.RemoveChild(0);
    EXPECT_DEATH(Translate(m_table.GetChild(0)), HasSubstr("sort->GetChildCount() > 0"));
}

TEST_F(SpoiltSort, EveryNameHasAToken) {
    delete m_sort.GetChild(1)->GetChild(0)->SetToken(nullptr);
    EXPECT_DEATH(Translate(m_table.GetChild(0)), HasSubstr("GetToken() != nullptr"));
}

} // namespace

} // namespace recastor
