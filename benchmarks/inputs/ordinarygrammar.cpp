#include "benchmarks/inputs/inputs.h"

namespace recastor {

namespace {

/// The commands of a survey's file: what prepares the data, what describes it, what is counted.
const std::vector<PhraseRule> kCommands = {
    {"command",
     {"[comment]\n",
      "[comment]\n",
      "[files].\n",
      "[labels].\n",
      "[labels].\n",
      "[labels].\n",
      "[recode].\n",
      "[recode].\n",
      "[compute].\n",
      "[compute].\n",
      "[if].\n",
      "[if].\n",
      "[frequencies].\n",
      "[frequencies].\n",
      "[crosstabs].\n",
      "[crosstabs].\n",
      "[describe].\n",
      "[select].\n",
      "[do-if]",
      "[do-repeat]",
      "[macro]",
      "[data]",
      "\n",
      "TITLE '[topic-quoted]'.\n",
      "SUBTITLE \"[topic]\".\n",
      "EXECUTE.\n"}},
    {"comment",
     {"* [phrase].", "* [phrase]\n  [phrase].", "/* [phrase]", "COMMENT [phrase]; [phrase].",
      "* ------------------------------------------------------------------.",
      "*** Wave [1-30]: [phrase] ***."}},
    {"files",
     {"GET FILE='survey[1-40].dat'\n  /KEEP=[variables] [questions]",
      "SAVE OUTFILE='wave[1-30].dat'\n  /DROP=[variables]",
      "MATCH FILES FILE=*\n  /TABLE='weights[1-30].dat'\n  /BY [persons]",
      "SORT CASES BY [persons]", "AGGREGATE OUTFILE='sums[1-30].dat'[aggregated]"}},
};

const std::vector<PhraseRule> kTransformations = {
    {"aggregated", {"\n  /BREAK=[persons]\n  /n[1-9]=N\n  /total[1-9]=SUM([measure])"}},
    {"labels",
     {"VARIABLE LABELS [label-list]", "VALUE LABELS [value-label-list]",
      "MISSING VALUES [variables] (9, 99)", "FORMATS [measures] (F8.2)"}},
    {"label", {"[variable] '[topic-quoted]'", "[variable] \"[topic]\"", "[question] [literal]"}},
    {"value-label", {"[question] [answers]", "[question] TO [question]\n    [answers]"}},
    {"numbered-answer", {"[0-9] '[answer]'", "[1-99] '[answer]'"}},
    {"recode",
     {"RECODE [variables] ([recode-pairs])", "RECODE [measure] ([recode-pairs]) INTO [question]",
      "RECODE [measure] (LOWEST THRU [100-999]=1) ([1000-2999] THRU HIGHEST=2)\n  INTO "
      "[question]"}},
    {"recode-pair", {"[0-9]=[0-9]", "[1-5] THRU [6-99]=[1-9]", "[1-9], [10-19]=[0-1]"}},
    {"between-pairs", {") (", ") (", ")\n    ("}},
    {"compute",
     {"COMPUTE [measure] = [arithmetic]", "COMPUTE [question] = [arithmetic] [operator] [number]",
      "COMPUTE mean[1-9] = MEAN([question], [question], [question])"}},
    {"arithmetic",
     {"[measure] [operator] [number]", "([measure] [operator] [measure]) [operator] [number]",
      "TRUNC([measure] / [number])", "SUM([question] TO [question])"}},
    {"operator", {"+", "-", "*", "/"}},
    {"if",
     {"IF ([condition]) [question] = [number]",
      "IF ([condition] [and] [condition])\n  [question] = [number]"}},
    {"and", {"AND", "OR", "&"}},
    {"condition",
     {"[variable] [comparison] [number]", "[variable] [comparison] [number]", "MISSING([question])",
      "NOT ([person] = [0-9])", "RANGE([measure], [1-9], [10-99])"}},
    {"comparison", {"=", "<>", ">=", "<=", "GT", "EQ", "<"}},
    {"select",
     {"SELECT IF ([condition])", "TEMPORARY.\nSELECT IF ([condition] AND [condition])",
      "WEIGHT BY weight[1-3]", "FILTER BY [question]", "SPLIT FILE BY [persons]"}},
    {"do-if",
     {"DO IF ([condition]).\n  [compute].\n  [recode].\nELSE IF ([condition]).\n  [compute].\n"
      "END IF.\n",
      "DO IF ([condition] [and] [condition]).\n  [recode].\nELSE.\n  [compute].\nEND IF.\n"}},
    {"do-repeat",
     {"DO REPEAT item=[question] TO [question] / flag=f[1-9]01 TO f[1-9]12.\n"
      "  COMPUTE flag = (item = [0-9]).\n  IF (MISSING(item)) flag = 0.\nEND REPEAT.\n"}},
};

const std::vector<PhraseRule> kProcedures = {
    {"frequencies",
     {"FREQUENCIES VARIABLES=[variables]\n  /FORMAT=[sorting]\n  /STATISTICS=[statistics]",
      "FREQUENCIES VARIABLES=[questions]\n  /ORDER=ANALYSIS", "FREQUENCIES [questions]"}},
    {"sorting", {"NOTABLE", "AVALUE", "DFREQ LIMIT([10-50])"}},
    {"statistic", {"MEAN", "STDDEV", "MINIMUM", "MAXIMUM", "MEDIAN", "MODE", "SEMEAN", "RANGE"}},
    {"crosstabs",
     {"CROSSTABS\n  /TABLES=[question] BY [person] BY [person]\n  /CELLS=COUNT ROW COLUMN\n"
      "  /STATISTICS=CHISQ PHI",
      "CROSSTABS TABLES=[questions] BY [persons]\n  /MISSING=INCLUDE\n  /FORMAT=AVALUE "
      "TABLES"}},
    {"describe",
     {"DESCRIPTIVES VARIABLES=[measures]\n  /STATISTICS=[statistics]",
      "MEANS TABLES=[measures] BY [person]\n  /CELLS=[statistics]",
      "ONEWAY [measure] BY [person]\n  /MISSING ANALYSIS /* [phrase] */",
      "CORRELATIONS\n  /VARIABLES=[measures] WITH [measure]\n  /PRINT=TWOTAIL NOSIG"}},
    {"macro",
     {"DEFINE !tab[1-99] (vars = !CMDEND)\nFREQUENCIES VARIABLES=!vars\n  /FORMAT=NOTABLE\n"
      "  /STATISTICS=[statistics].\n!ENDDEFINE.\n!tab[1-99] vars = [questions].\n"}},
    {"data",
     {"DATA LIST FREE / [persons] [measures].\nBEGIN DATA\n[data-lines]\nEND DATA.\n",
      "DATA LIST FILE='wave[1-30].txt' FIXED\n  / [person] 1-[2-9] [question] [10-19]-[20-29] "
      "[measure] 31-[32-40].\n"}},
    {"data-line", {"[1-9] [number] [number]", "[10-99] [number] [number] [number]"}},
    {"line-break", {"\n"}},
};

} // namespace

PhraseGrammar OrdinaryGrammar() {
    PhraseGrammar grammar = SurveyWords();
    for (const auto& rules : {kCommands, kTransformations, kProcedures}) {
        grammar.rules.insert(grammar.rules.end(), rules.begin(), rules.end());
    }
    for (const PhraseList& list : std::initializer_list<PhraseList>{
             {"label-list", "label", "next-line", 1, 6},
             {"value-label-list", "value-label", "next-line", 1, 3},
             {"answers", "numbered-answer", "blank", 2, 6},
             {"recode-pairs", "recode-pair", "between-pairs", 1, 5},
             {"statistics", "statistic", "blank", 1, 4},
             {"data-lines", "data-line", "line-break", 3, 20},
         }) {
        grammar.lists.push_back(list);
    }
    return grammar;
}

} // namespace recastor
