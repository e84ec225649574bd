#include "benchmarks/inputs/inputs.h"

#include <string>

namespace recastor {

namespace {

/// The parts of TABLES commands of every size. Totals stand where they can be converted: beside
/// what they total.
const std::vector<PhraseRule> kParts = {
    {"format",
     {"BLANK", "BLANK MISSING('-')", "ZERO MISSING('n.a.')", "BLANK CWIDTH([10-25],[6-9]) BOX",
      "ZERO"}},
    {"text", {"'[topic-quoted]'", "'Table [1-400]. [topic-quoted]'", "\"[topic]\""}},
    {"headings",
     {"\n  /TITLE=[text]", "\n  /TITLE=[text]", "\n  /TITLE=[text]\n  /CAPTION=[text]",
      "\n  /TITLE=[text] 'Wave [1-30]'\n  /CORNER='[answer]'", ""}},
    {"function",
     {"COUNT", "COUNT((F6.0) 'Persons')", "CPCT((PCT5.1) '%': [person])",
      "CPCT('Row %' (PCT5.1) : [question])", "CPCT", "COUNT('Customers')"}},
    {"scale-function",
     {"MEAN", "STDDEV", "MEDIAN", "MEAN('Mean' (F8.2))", "MINIMUM", "MAXIMUM", "SUM", "VALIDN",
      "SEMEAN", "HPTILE 90"}},
    {"banner-item",
     {"[person]", "[person]", "[person]", "[person] + tot", "[person] > [person]",
      "[person] > ([person] + tot)"}},
    {"row-item", {"[question]", "[question]", "[question]", "[question] + tot"}},
    {"groups",
     {"\n  /MRGROUP=worries 'Greatest worries' [questions]"
      "\n  /MDGROUP=paper 'Newspapers read' [questions] (1)"}},
    {"sort", {"", "", "", "\n  /SORT=[person]", "\n  /SORT=DESCENDING [question]"}},
    {"name-separator", {" ", " ", " ", " ", " ", "\n    "}},
};

const std::vector<PhraseRule> kSmall = {
    {"command", {"TABLES[small].\n"}},
    {"total", {"\n  /FTOTAL=tot 'Total'", "\n  /FTOTAL=tot 'Every level'", "\n  /FTOTAL=tot"}},
    {"counted", {"\n  /STATISTICS=[functions][headings]"}},
    {"measured", {"\n  /STATISTICS=[scale-functions][sort][headings]"}},
    {"answers",
     {"\n  /STATISTICS=RESPONSES('Answers') CPCT('%': [person])[headings]",
      "\n  /STATISTICS=COUNT CPCT((PCT5.1) '%')"}},
    {"small",
     {" /TABLE=[question] BY [person]\n  /STATISTICS=[functions]",
      "[total]\n  /TABLE=[rows] BY [banner] BY [person][headings]",
      "\n  /FORMAT=[format][total]\n  /TABLE=[question] + tot BY [banner][counted]",
      "\n  /PTOTAL=everyone 'All'\n  /TABLE=[question] BY everyone + [person][counted]",
      "\n  /OBSERVATION=income [measures]\n  /TABLE=[person] > income BY [person][measured]",
      "\n  /OBSERVATION=income[total]\n  /TABLE=income > ([person] + tot) BY [person][measured]",
      "[groups]\n  /GBASE=CASES\n  /TABLE=worries BY [person] + [person][answers]",
      "[groups][total]\n  /TABLE=paper + tot BY [person][answers]"}},
};

const std::vector<PhraseRule> kBanner = {
    {"command",
     {"TABLES\n  /FORMAT=[format]\n  /FTOTAL=tot 'All persons'[groups]\n"
      "  /GBASE=CASES[banner-tables].\n"}},
    {"banner-table",
     {"\n  /TABLE=[rows] BY [banner]\n  /STATISTICS=[functions][sort][headings]",
      "\n  /TABLE=[rows] BY [banner]\n  /STATISTICS=[functions][headings]",
      "\n  /TABLE=worries + paper BY [banner]\n  /STATISTICS=RESPONSES('Answers') "
      "CPCT((PCT5.1) '%': [persons])[headings]"}},
    {"nothing", {""}},
};

const std::vector<PhraseRule> kWide = {
    {"command",
     {"TABLES\n  /FORMAT=[format]\n  /FTOTAL=tot 'Total'\n  /TABLE=[rows] BY [banner]\n"
      "  /STATISTICS=[functions][headings].\n"}},
};

struct SizeOfTables {
    std::string_view name;
    const std::vector<PhraseRule>& rules;
    std::vector<PhraseList> lists;
};

std::vector<SizeOfTables> Sizes() {
    return {
        {"small",
         kSmall,
         {{"banner", "banner-item", "plus", 1, 3}, {"rows", "row-item", "plus", 1, 2}}},
        {"banner",
         kBanner,
         {{"banner", "banner-item", "plus", 5, 12},
          {"rows", "row-item", "plus", 1, 6},
          {"banner-tables", "banner-table", "nothing", 4, 12}}},
        {"wide",
         kWide,
         {{"banner", "banner-item", "plus", 300, 600}, {"rows", "row-item", "plus", 400, 800}}},
    };
}

} // namespace

PhraseGrammar TablesGrammar(std::string_view size) {
    PhraseGrammar grammar = SurveyWords();
    grammar.rules.insert(grammar.rules.end(), kParts.begin(), kParts.end());
    grammar.lists.push_back({"functions", "function", "name-separator", 1, 3});
    grammar.lists.push_back({"scale-functions", "scale-function", "name-separator", 1, 4});
    for (const SizeOfTables& form : Sizes()) {
        if (form.name == size) {
            grammar.rules.insert(grammar.rules.end(), form.rules.begin(), form.rules.end());
            grammar.lists.insert(grammar.lists.end(), form.lists.begin(), form.lists.end());
        }
    }
    return grammar;
}

} // namespace recastor
