// The grammar that judges what the converter writes must be able to say no.

#include "archive/picture/ctablesgrammar.h"

#include <array>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

const std::string kText =
    "MRSETS\n"
    "  /MCGROUP NAME=$worries LABEL='Greatest ''worry'''  VARIABLES=w1 w2 TO w4\n"
    "  w5\n"
    "  /MDGROUP NAME=$papers VARIABLES=p1 VALUE=-1.5.\n"
    "CTABLES\n"
    "  /MRSETS COUNTDUPLICATES=YES\n"
    "  /FORMAT EMPTY=ZERO MISSING='n.a.'\n"
    "  /TABLE (sex[C]+$papers)>age[C] BY\n"
    "  x[S][MEAN,'Mean',F8.2,UPTILE 90,TOTALS[MEAN]]+region[C][TABLEPCT.VALIDN]\n"
    "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=INCLUDE\n"
    "  /CATEGORIES VAR=$papers sex TOTAL=YES POSITION=AFTER LABEL=\"ALL1\"\n"
    "  /CLABELS ROW=OPPOSITE\n"
    "  /SLABELS POSITION=COLUMN\n"
    "  /CATEGORIES VAR=sex ORDER=A KEY=MEAN(x)\n"
    "  /TITLES TITLE='One'  'Two' CAPTION='C' CORNER='D'\n"
    "  /TABLE\n"
    "  /TABLE  BY b[C] BY c[C]\n"
    "  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=EXCLUDE\n"
    "  /SLABELS VISIBLE=NO\n"
    "  /TITLE CORNER='x' + \"y\".\n";

TEST(CtablesGrammar, ReadsWhatTheCommandsSay) {
    const CtablesText text = ReadCtables(kText);
    ASSERT_EQ(text.groups.size(), 2U);
    EXPECT_EQ(text.groups[0].variables, (std::vector<std::string>{"w1", "w2 TO w4", "w5"}));
    EXPECT_EQ(text.groups[1].value, "-1.5");
    EXPECT_EQ(text.missingText, "'n.a.'");
    ASSERT_EQ(text.tables.size(), 3U);
    const CtablesTable& table = text.tables[0];
    ASSERT_EQ(table.dimensions.size(), 2U);
    EXPECT_EQ(table.dimensions[0]->operation, '>');
    const auto columns = VariablesOf(table.dimensions[1]);
    ASSERT_EQ(columns.size(), 2U);
    EXPECT_EQ(columns[0].statistics.at(0).label, "'Mean'");
    EXPECT_EQ(columns[0].statistics.at(0).format, "F8.2");
    EXPECT_EQ(columns[0].statistics.at(1).function, "UPTILE 90");
    EXPECT_EQ(columns[0].totals.at(0).function, "MEAN");
    EXPECT_EQ(table.totals.at(0).variables, (std::vector<std::string>{"$papers", "sex"}));
    EXPECT_EQ(table.sorts.at(0).key, "MEAN(x)");
    EXPECT_EQ(table.headings.at("TITLE").size(), 2U);
    EXPECT_TRUE(text.tables[1].dimensions.empty());
    EXPECT_FALSE(text.tables[2].dimensions.at(0).has_value());
}

/// A change that spoils the text above, and what is then expected where.
struct Spoiled {
    const char* what;
    const char* with;
    const char* message;
};

const std::array kSpoiled{
    Spoiled{"MRSETS\n", "MRSETS x\n", "line 1: expected /MCGROUP or /MDGROUP, found: x"},
    Spoiled{"NAME=$worries", "NAME=worries", "line 2: expected a name with $ in front"},
    Spoiled{"''worry'''", "'worry'''", "line 2: expected VARIABLES="},
    Spoiled{"w2 TO w4", "w2 TO TO", "line 2: expected a name"},
    Spoiled{"w2 TO w4", "w2 4", "line 2: expected a name"},
    Spoiled{" VALUE=-1.5", "", "line 4: expected a number, found: ."},
    Spoiled{"VALUE=-1.5.\n", "VALUE=-1.5\n", "line 5: expected ., found: CTABLES"},
    Spoiled{"CTABLES\n", "  CTABLES\n", "line 5: expected CTABLES at the start of a line"},
    Spoiled{"CTABLES\n  /MRSETS", "CTABLES /MRSETS", "line 5: expected /MRSETS at the start"},
    Spoiled{"COUNTDUPLICATES=YES", "COUNTDUPLICATES=NO", "line 6: expected COUNTDUPLICATES=YES"},
    Spoiled{"  /FORMAT EMPTY=ZERO MISSING='n.a.'\n", "", "line 7: expected /FORMAT"},
    Spoiled{"EMPTY=ZERO", "EMPTY=NONE", "line 7: expected BLANK or ZERO"},
    Spoiled{"'n.a.'", "'n.a.", "line 7: expected a closing '"},
    Spoiled{"(sex[C]+$papers)", "(sex[C])", "line 8: expected two operands inside parentheses"},
    Spoiled{"(sex[C]+$papers)", "(sex[C]+$papers", "line 8: expected ), found: BY"},
    Spoiled{"sex[C]+", "sex+", "line 8: expected [C] or [S], found: +"},
    Spoiled{"sex[C]+", "[C]+", "line 8: expected a name"},
    Spoiled{"sex[C]+", "sex[X]+", "line 8: expected [C] or [S]"},
    Spoiled{"age[C] BY\n", "age[C]\n", "line 9: expected BY"},
    Spoiled{"age[C] BY\n", "age[C][COUNT] BY\n", "line 10: expected statistics in one dimension"},
    Spoiled{"age[C] BY\n", "age[C] BY BY BY\n", "line 10: expected at most three dimensions"},
    Spoiled{"x[S][MEAN", "x[S][", "line 9: expected TOTALS"},
    Spoiled{"x[S][MEAN", "x[C][MEAN", "line 9: expected a function that suits"},
    Spoiled{"[MEAN,'Mean',F8.2", "[MEAN,F8.2,'Mean'", "line 9: expected one label"},
    Spoiled{"F8.2", "F8.2,F8", "line 9: expected a function that suits"},
    Spoiled{"F8.2", "8F", "line 9: expected a name"},
    Spoiled{"UPTILE", "UUPTILE", "line 9: expected a function that suits"},
    Spoiled{"UPTILE 90", "UPTILE 90 95", "line 9: expected ]"},
    Spoiled{",TOTALS[MEAN]", ",TOTALS[]", "line 9: expected a name"},
    Spoiled{",TOTALS[MEAN]", ",TOTALS[MEAN,TOTALS[MEAN]]", "line 9: expected ]"},
    Spoiled{",TOTALS[MEAN]", ",TOTALS[MEAN],COUNT", "line 9: expected ]"},
    Spoiled{"TABLEPCT.VALIDN", "TABLEPCT.MEAN", "line 9: expected a function that suits"},
    Spoiled{"TABLEPCT.VALIDN", "VALIDN", "line 9: expected a function that suits"},
    Spoiled{"TABLEPCT.VALIDN", "TABLEPCT", "line 9: expected a function that suits"},
    Spoiled{"TABLEPCT.VALIDN]", "COUNT][COUNT]", "line 9: expected BY"},
    Spoiled{"  /CATEGORIES VAR=ALL EMPTY=EXCLUDE MISSING=INCLUDE\n", "",
            "line 10: expected VAR=ALL"},
    Spoiled{"MISSING=INCLUDE", "MISSING=YES", "line 10: expected EXCLUDE or INCLUDE"},
    Spoiled{"VAR=$papers sex", "VAR=", "line 11: expected a name, found: =YES"},
    Spoiled{"POSITION=AFTER", "POSITION=BEHIND", "line 11: expected AFTER or BEFORE"},
    Spoiled{"LABEL=\"ALL1\"", "LABEL=ALL1", "line 11: expected a literal"},
    Spoiled{"ROW=OPPOSITE", "LAYER=OPPOSITE", "line 12: expected COL or ROW"},
    Spoiled{"  /SLABELS POSITION=COLUMN\n", "", "line 13: expected /SLABELS"},
    Spoiled{"POSITION=COLUMN", "", "line 14: expected POSITION= or VISIBLE=NO"},
    Spoiled{"ORDER=A", "ORDER=UP", "line 14: expected A or D"},
    Spoiled{"KEY=MEAN(x)", "KEY=TABLEPCT.COUNT", "line 14: expected a function to sort by"},
    Spoiled{"KEY=MEAN(x)", "KEY=MEAN(x", "line 15: expected )"},
    Spoiled{"/TITLES TITLE", "/TITLE TITLE", "line 15: expected a heading"},
    Spoiled{"'C' CORNER='D'", "'C' CORNER=", "line 16: expected a literal"},
    Spoiled{"'C' CORNER='D'", "'C' TITLE='D'", "line 15: expected ., found: TITLE"},
    Spoiled{"  /TABLE\n", "  /CORNER\n", "line 16: expected ., found: /CORNER"},
    Spoiled{"c[C]\n", "c[C] BY\n", "line 18: expected a name"},
    Spoiled{"+ \"y\".\n", "+ \"y\"\n", "line 21: expected ."},
    Spoiled{"+ \"y\".\n", "+ \"y\". x\n", "line 20: expected the end"},
};

TEST(CtablesGrammar, RejectsBrokenText) {
    for (const Spoiled& row : kSpoiled) {
        std::string text = kText;
        const std::size_t at = text.find(row.what);
        ASSERT_NE(at, std::string::npos) << row.what;
        text.replace(at, std::string(row.what).size(), row.with);
        try {
            ReadCtables(text);
            ADD_FAILURE() << row.what << " -> " << row.with << " is accepted";
        } catch (const std::invalid_argument& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(row.message))
                << row.what << " -> " << row.with << '\n'
                << error.what();
        }
    }
}

TEST(CtablesGrammar, RejectsAnEmptyText) {
    EXPECT_THROW(ReadCtables(""), std::invalid_argument);
    EXPECT_THROW(ReadCtables("CTABLES."), std::invalid_argument);
}

} // namespace

} // namespace recastor
