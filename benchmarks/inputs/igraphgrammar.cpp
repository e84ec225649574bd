#include "benchmarks/inputs/inputs.h"

namespace recastor {

namespace {

const std::vector<PhraseRule> kCharts = {
    {"command",
     {"[bars]", "[bars]", "[counts]", "[counts]", "[lines]", "[points]", "[points]", "[pie]",
      "[boxes]", "[errors]", "[histogram]"}},
    {"bars",
     {"IGRAPH[view][category][y][color][frame][catorder]\n  /BAR([function])[bar-options]"
      "[titles].\n"}},
    {"counts",
     {"IGRAPH[view][category]\n  /Y=$count[color][frame][catorder]\n  /BAR[bar-options]"
      "[titles].\n"}},
    {"lines",
     {"IGRAPH[view][category][y][plain-color][frame]\n  /LINE([function]) STYLE=[line-style] "
      "INTERPOLATE=[steps] BREAK=MISSING[titles].\n",
      "IGRAPH[view][category][y][plain-color][frame]\n  /AREA([function]) INTERPOLATE=STRAIGHT "
      "BREAK=MISSING[titles].\n"}},
    {"points",
     {"IGRAPH[view][scale][y][plain-color][frame]\n  /SCATTER COINCIDENT=[coincident][titles].\n",
      "IGRAPH[view][scale][y][plain-color][frame]\n  /FITLINE METHOD=REGRESSION LINEAR "
      "INTERVAL([90-99])=MEAN LINE=TOTAL\n  /SCATTER COINCIDENT=[coincident][titles].\n"}},
    {"pie",
     {"IGRAPH[view]\n  /SUMMARYVAR=VAR([measure])\n  /COLOR=VAR([person]) TYPE=CATEGORICAL\n"
      "  /PIE(SUM) KEY=ON START [0-180] CW SLICE=INSIDE LABEL PCT[titles].\n",
      "IGRAPH[view]\n  /SUMMARYVAR=$count\n  /COLOR=VAR([question])\n  /PANEL VAR([person])\n"
      "  /PIE KEY=ON START 90 CW SLICE=OUTSIDE LABEL PCT[titles].\n"}},
    {"boxes",
     {"IGRAPH[view][category][y][plain-color][frame]\n  /BOX OUTLIERS=ON EXTREME=ON MEDIAN=ON "
      "WHISKER=T[titles].\n"}},
    {"errors",
     {"IGRAPH[view][category][y][frame]\n  /ERRORBAR CI([90-99]) CAPWIDTH([20-60]) CAPSTYLE=T "
      "SYMBOL=ON[titles].\n"}},
    {"histogram",
     {"IGRAPH[view][scale]\n  /Y=$count[frame]\n  /HISTOGRAM SHAPE=HISTOGRAM CURVE=[switch] "
      "X1INTERVAL NUM=[5-30][titles].\n"}},
};

const std::vector<PhraseRule> kParts = {
    {"view", {"\n  /VIEWNAME='[topic-quoted]'", "\n  /VIEWNAME='Chart [1-400]'", ""}},
    {"category",
     {"\n  /X1=VAR([person]) TYPE=CATEGORICAL", "\n  /X1=VAR([question]) TYPE=CATEGORICAL",
      "\n  /X1 = VAR([person]) TYPE = CATEGORICAL TITLE='[answer]'"}},
    {"scale",
     {"\n  /X1=VAR([measure]) TYPE=SCALE", "\n  /X1 = VAR([measure]) TYPE = SCALE (MIN=0)"}},
    {"y",
     {"\n  /Y=VAR([measure]) TYPE=SCALE TITLE='[topic-quoted]'",
      "\n  /Y = VAR([measure]) TYPE = SCALE"}},
    {"color",
     {"", "\n  /COLOR=VAR([person]) TYPE=CATEGORICAL CLUSTER",
      "\n  /COLOR=VAR([person]) TYPE=CATEGORICAL STACK",
      "\n  /COLOR = VAR([person]) TITLE='[answer]' STACK"}},
    {"plain-color",
     {"", "\n  /COLOR=VAR([person]) TYPE=CATEGORICAL", "\n  /COLOR = VAR([question])"}},
    {"frame",
     {"", "\n  /X1LENGTH=[3-6].0 /YLENGTH=[3-6].0 /X2LENGTH=3.0", "\n  /COORDINATE=VERTICAL",
      "\n  /COORDINATE = HORIZONTAL\n  /X1LENGTH=3.0 /YLENGTH=[3-6].5", "\n  /CHARTLOOK='report'",
      "\n  /PANEL VAR([person])"}},
    {"catorder",
     {"", "\n  /CATORDER VAR([person]) (ASCENDING VALUES OMITEMPTY)",
      "\n  /CATORDER VAR([person]) (DESCENDING COUNT OMITEMPTY)"}},
    {"bar-options",
     {" KEY=ON SHAPE=RECTANGLE BASELINE=AUTO", " KEY=OFF SHAPE=RECTANGLE LABEL INSIDE VAL",
      " BASELINE=[0-10]"}},
    {"titles",
     {"", "\n  /TITLE='[topic-quoted]'",
      "\n  /TITLE='[topic-quoted]' 'Wave [1-30]'\n  /CAPTION=\"[topic]\"",
      "\n  /SUBTITLE='[answer]'"}},
    {"function", {"MEAN", "MEAN", "SUM", "MEDIAN", "MAXIMUM", "STDDEV", "PGT([10-9000])"}},
    {"line-style", {"DOTLINE", "LINE", "DOT"}},
    {"steps", {"STRAIGHT", "LSTEP", "SPLINE"}},
    {"coincident", {"NONE", "JITTER"}},
    {"switch", {"ON", "OFF"}},
};

} // namespace

PhraseGrammar IgraphGrammar() {
    PhraseGrammar grammar = SurveyWords();
    grammar.rules.insert(grammar.rules.end(), kCharts.begin(), kCharts.end());
    grammar.rules.insert(grammar.rules.end(), kParts.begin(), kParts.end());
    return grammar;
}

} // namespace recastor
