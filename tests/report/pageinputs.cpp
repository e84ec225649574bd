#include "tests/report/pageinputs.h"

namespace recastor {

namespace {

/// `(b1 + b2 + b3)`
std::string Stacked(const std::string& name, int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) {
        text += (i == 1 ? "(" : " + ") + name + std::to_string(i);
    }
    return text + ")";
}

/// Rows of 2048 terms, more than are kept of a dimension.
std::string TooLargeToCompare() {
    std::string rows = "(a + b)";
    for (int i = 1; i < 11; ++i) {
        rows += " > (a + b)";
    }
    return "TABLES /TABLE " + rows + " BY c.\n";
}

/// 200 rows of cells in 200 columns, all of them within one header.
std::string TooLargeToDraw() {
    constexpr int kMany = 200;
    return "TABLES /TABLE a > " + Stacked("b", kMany) + " BY c > " + Stacked("d", kMany) + ".\n";
}

/// One statistic for each shape of numbers.
constexpr const char* kFormats = R"(TABLES
  /OBSERVATION=income
  /TABLE=region BY sex > income
  /STATISTICS=MEAN(income (F8.0)) MEDIAN(income (dollar8.2)) MINIMUM(income (COMMA9.3)) STDDEV
    VALIDN SUM(income (F40.999999999)).
TABLES
  /TABLE=sex BY region
  /STATISTICS=COUNT((F6.1)) CPCT((PCT5.2) : sex) CPCT((PCT4) : region) CPCT((F5.2)).
TABLES
  /TABLE=sex BY region
  /STATISTICS=COUNT CPCT.
)";

/// In the new command the number's period ends the line.
constexpr const char* kUnread = R"(TABLES
  /MDGROUP=a x y (1.)
  /MDGROUP=b x z (1)
  /TABLE=a + b.
)";

/// A comment without its period, and all that it swallows.
std::string Swallowed() {
    constexpr int kLines = 150'000;
    std::string text = "* no period here\nTABLES /TABLE=sex BY region\n";
    for (int line = 3; line <= kLines; ++line) {
        text += "COMPUTE x" + std::to_string(line) + " = " + std::to_string(line) + "\n";
    }
    return text;
}

/// What would be markup in every place that takes a text.
constexpr const char* kMarkup = R"(TABLES
  /OBSERVATION=income
  /FTOTAL=all1 '<b>&"''1'
  /MDGROUP=papers '<b>&"''2' news1 TO news3 ('<b>&"''')
  /MRGROUP=worries '<b>&"''7' worry1 worry2
  /FORMAT=BLANK MISSING('<b>&"''8')
  /TABLE=sex + all1 BY papers BY worries
  /STATISTICS=COUNT((F6.0) '<b>&"''3')
  /TITLE='<b>&"''4'
  /CORNER='<b>&"''5'
  /CAPTION='<b>&"''6'.
IGRAPH
  /X1=VAR(educ) TITLE='<b>&"''1' /Y=VAR(income) TITLE='<b>&"''2' /COLOR=VAR(sex) TITLE='<b>&"''3'
  /TITLE='<b>&"''4' '<b>&"''5' /CAPTION='<b>&"''6'
  /BAR(MEAN).
)";

} // namespace

std::vector<PageInput> PageInputs() {
    return {
        {"pictures/toolarge.syn", TooLargeToCompare()},
        {"pictures/wide.syn", TooLargeToDraw()},
        {"pictures/formats.syn", kFormats},
        {"pictures/unread.syn", kUnread},
        {"pages/long.syn", Swallowed()},
        {"texts/markup.syn", kMarkup},
        {"charts/control.syn", "IGRAPH /X1=VAR(a) /Y=VAR(b) /TITLE='bell\a' /SCATTER.\n"},
    };
}

} // namespace recastor
