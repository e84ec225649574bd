// The grammar that judges graphs must be able to say no.

#include "tests/support/gplgrammar.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

const std::string kGraph = R"graph(GGRAPH
  /GRAPHDATASET NAME="iGraphDataset" VARIABLES=region income sex year
    MISSING=LISTWISE REPORTMISSING=NO
  /GRAPHSPEC SOURCE=INLINE EDITABLE=YES LABEL='It''s'
      TEMPLATE=["a ""look"""]
      INLINETEMPLATE=["<setWrapPanels/>"].
BEGIN GPL
 PAGE: begin(scale(5in,3.5in))
 SOURCE: s=userSource(id("iGraphDataset"))
 DATA: region=col(source(s), name("region"), unit.category())
 DATA: income=col(source(s), name("income"))
 DATA: income_c=col(source(s), name("income"), unit.category())
 DATA: sex=col(source(s), name("sex"), unit.category())
 DATA: casenum=col(source(s), name("$CASENUM"), unit.category())
 DATA: year=col(source(s), name("year"), unit.category())
 TRANS: t1=eval(income>=1 && income<=-2.5)
 COORD: rect(dim(1,2), cluster(3,0), wrap())
 GUIDE: axis(dim(3), label("A \"region\"\n\\"))
 GUIDE: axis(dim(2), label("Number"))
 GUIDE: axis(dim(4), label("year"), opposite())
 GUIDE: legend(aesthetic(aesthetic.color.interior), label("sex"))
 GUIDE: legend(aesthetic(aesthetic.texture.pattern.interior), null())
 GUIDE: text.title(label("t"))
 GUIDE: form.line(position(*,0.5), label("0.5"))
 SCALE: cat(dim(1), sort.natural(), reverse())
 SCALE: linear(dim(2), include(5), origin(5))
 ELEMENT: interval(position(summary.countTrue(sex*t1*region*year)), color.interior(sex))graph"
                           R"graph(, texture.pattern.interior(income_c), label(summary.count()))
 ELEMENT: schema(position(bin.quantile.letter(sex*income*region*year)), color.interior(sex))graph"
                           R"graph(, label(casenum))
 PAGE: end()
END GPL.
)graph";

struct SpoiledGraph {
    const char* what;
    const char* with;
    const char* fault; ///< how it begins
};

const SpoiledGraph kSpoiledGraphs[] = {
    {"GGRAPH\n", "GGRAPH \n", "not well formed"},
    {"'It''s'", "'It's'", "not well formed"},
    {"\"a \"\"look\"\"\"", "\"a \"look\"\"", "not well formed"},
    {"].\n", "]\n", "not well formed"},
    {"in,3.5in", "in,3.50in", "not well formed"},
    {" PAGE: end()\n", "", "not well formed"},
    {" PAGE: begin(scale(5in,3.5in))\n", "", "not well formed"},
    {"(5in", "(5.0in", "not well formed"},
    {"<=-2.5", "<=-2.5e1", "not well formed"},
    {"<=-2.5", "<=-0", "not well formed"},
    {"<=-2.5", "<=.5", "not well formed"},
    {"<=-2.5", "<=01", "not well formed"},
    {"\\\"region\\\"", "\"region\"", "not well formed"},
    {"\\n\\\\", "\\t", "not well formed"},
    {" COORD", "COORD", "not well formed"},
    {"rect(dim(1,2), cluster(3,0), wrap())", "rect(dim(1,2))", "not well formed"},
    {"cluster(3,0), wrap()", "wrap(), cluster(3,0)", "not well formed"},
    {"sort.natural()", "sort.natural", "not well formed"},
    {"include(5), origin(5)", "origin(5), include(5)", "not well formed"},
    {"color.interior(sex), texture", "shape.interior(sex), texture", "not well formed"},
    {"label(casenum))", "label(casenum)))", "not well formed"},
    {"bin.quantile.letter(sex*", "bin.quantile.letter(*", "not well formed"},
    {" DATA: year=", " DATA: Region=", "declared twice: Region"},
    {" DATA: year=", " DATA: S=", "declared twice: S"},
    {"*region*year)), color.interior(sex), label", "*where*year)), color.interior(sex), label",
     "not declared: where"},
    {"pattern.interior(income_c)", "pattern.interior(income)", "not declared as category: income"},
    {", label(casenum)", "", "not used: casenum"},
    {"VARIABLES=region income sex year", "VARIABLES=region sex income year",
     "VARIABLES=region sex"},
    {"VARIABLES=region income sex year", "VARIABLES=region income sex year id",
     "VARIABLES=region income sex year id"},
    {"bin.quantile.letter(sex*income*region*year)", "bin.quantile.letter(sex*income*region)",
     "layers in different dimensions"},
    {"cat(dim(1)", "cat(dim(5)", "ScaleDimension that is not there: 5"},
    {"axis(dim(3)", "axis(dim(6)", "AxisDimension that is not there: 6"},
    {"axis(dim(4)", "axis(dim(3)", "a panel in dimension 3"},
    {" GUIDE: axis(dim(4), label(\"year\"), opposite())\n", "", "panels without a guide"},
    {"\n      INLINETEMPLATE=[\"<setWrapPanels/>\"]", "", "panels wrapped without"},
    {", wrap()", "", "panels wrapped without"},
    {"aesthetic.texture.pattern.interior)", "aesthetic.color.interior)", "two legends"},
};

} // namespace

TEST(GGraphGrammar, TakesAGraphOfEveryKindOfLine) {
    EXPECT_EQ(GGraphFault(kGraph), "");
}

TEST(GGraphGrammar, TakesNoGraphThatIsSpoiled) {
    for (const SpoiledGraph& row : kSpoiledGraphs) {
        SCOPED_TRACE(std::string(row.what) + " becomes " + row.with);
        std::string graph = kGraph;
        const std::size_t at = graph.find(row.what);
        if (at == std::string::npos) {
            ADD_FAILURE() << "not there";
            continue;
        }
        graph.replace(at, std::string(row.what).size(), row.with);
        EXPECT_EQ(GGraphFault(graph).rfind(row.fault, 0), 0U) << GGraphFault(graph);
    }
}

TEST(GGraphGrammar, FindsTheFormsOfAFile) {
    const std::string begin = "COMMENT -- Begin GGRAPH command.\n";
    const std::string end = "COMMENT -- End GGRAPH command.\n";
    EXPECT_EQ(
        GGraphFormsIn("x.\n" + begin + "one.\n" + end + "y.\n" + begin + "two\nthree.\n" + end),
        (std::vector<std::string>{"one.\n", "two\nthree.\n"}));
}

} // namespace recastor
