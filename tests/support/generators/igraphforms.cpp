#include "tests/support/generators/igraphforms.h"

namespace recastor {

namespace {

constexpr IgraphPart kParts[] = {
    // names
    {"name",
     "{ sales | v.96 | region | saleX | @id | #tmp | type | x1 | a_b$ | \xc3\xa9t\xc3\xa9 }"},
    {"v", "{ <name> | VAR ( <name> ) }"},
    {"dim", "{ <v> | <v> | <v> | $case | VAR ( $case ) }"},
    {"count", "{ $count | $pct | VAR ( $count ) | VAR ( $pct ) }"},
    {"named", "{ <dim> | <count> }"},
    // numbers and texts
    {"n", "[ { - | + } ] { 5 | 0 | 2.5 | 600 | .25 | 1e3 | 25.50 }"},
    {"above-0", "{ 5.0 | 3 | .5 }"},
    {"low", "{ 0 | - 1.1 | - 5 }"},
    {"high", "{ 1 | 1.1 | + 600 }"},
    {"range", "{ MIN = <low> MAX = <high> | MAX = <high> MIN = <low> | MIN = <low> | "
              "MAX = <high> }"},
    {"line", "{ 'a' | \"b\" | 'It''s' | '\"' | '' | '\\\\' | '/BAR' | '\xc3\x84rger' }"},
    {"text", "<line> [ <line> ] [ <line> ]"},
    {"word", "{ rectangle | t | bar | all }"},
    {"look", "{ 'new.sgt' | 'NONE' | 'old.clo' | '' | \"two\" }"},
    {"number-or-enclosed", "{ <n> | ( <n> ) }"},
    // options of several subcommands
    {"scale", "TYP~E = SCA~LE [ ( <range> ) ]"},
    {"categorical", "TYP~E = CAT~EGORICAL"},
    {"type", "{ <scale> | <categorical> }"},
    {"title", "TIT~LE = <text>"},
    {"switch", "{ ON | OFF }"},
    {"legend", "LEG~END = <switch>"},
    {"grouping", "{ CLU~STER | STA~CK | ( CLU~STER ) | ( STA~CK ) }"},
    {"key", "KEY = <switch>"},
    {"order", "{ ASC~ENDING | DES~CENDING | VAL~UE | VAL~UES | LAB~EL | LAB~ELS | COU~NT | "
              "OCC~URRENCE | OMI~TEMPTY | SHO~WEMPTY }"},
    {"label-word", "{ INS~IDE | OUTS~IDE | VAL | N | PCT }"},
    {"labels", "<label-word> [ <label-word> ] [ <label-word> ]"},
    {"side-word", "{ CAT | N | PCT }"},
    {"side-labels", "<side-word> [ <side-word> ]"},
    {"slice-word", "{ LAB~EL | VAL | N | PCT | INS~IDE | OUT~SIDE | TEX~TIN | NUM~IN | "
                   "URI~GHT | LRI~GHT | ULE~FT | LLE~FT }"},
    {"slice", "<slice-word> [ <slice-word> ] [ <slice-word> ]"},
    {"baseline", "BAS~ELINE = { <number-or-enclosed> | AUT~O }"},
    {"interpolate", "INT~ERPOLATE = { STR~AIGHT | LST~EP | CST~EP | RST~EP | LJU~MP | CJU~MP | "
                    "RJU~MP | SPL~INE | LAGRANGE3 | LAGRANGE5 }"},
    {"break", "BRE~AK = { MIS~SING | NON~E }"},
    {"interval", "{ AUT~O | NUM = { 20 | 1 | 250.0 } | WID~TH = <above-0> }"},
    {"start", "{ 0 | 50.5 | 99 }"},
    // summary functions
    {"one", "( <n> )"},
    {"two", "( <low> <high> )"},
    {"adding-function", "{ SUM | SUMA~V | SUMS~Q | NGT <one> | NGE <one> | NLT <one> | NLE <one> | "
                        "NEQ <one> | NIN <two> }"},
    {"other-function",
     "{ MEA~N | MED~IAN | GME~DIAN | MOD~E | MIN~IMUM | MAX~IMUM | FIR~ST | LAS~T | STD~DEV | SD | "
     "VAR~IANCE | SEM~EAN | SE | KUR~TOSIS | SKE~WNESS | SEK~URT | SES~KEW | "
     "PTI~LE ( { 25 | .5 | 99.9 } ) | PGT <one> | PGE <one> | PLT <one> | PLE <one> | PEQ <one> | "
     "PIN <two> }"},
    {"function", "{ <other-function> | <adding-function> }"},
};

const std::vector<std::string_view> kBarOptions = {"LAB~EL = <labels>", "<baseline>",
                                                   "SHA~PE = <word>", "BAR~BASE = <word>", "<key>"};
const std::vector<std::string_view> kAreaOptions = {
    "POI~NTLABEL = <labels>",     "<interpolate>", "<break>", "<baseline>",
    "ARE~ALABEL = <side-labels>", "<key>"};
const std::vector<std::string_view> kLineOptions = {"STY~LE = { DOTL~INE | LIN~E | DOT | NON~E }",
                                                    "LAB~EL = <labels>",
                                                    "<interpolate>",
                                                    "<break>",
                                                    "DRO~PLINE = <switch>",
                                                    "LIN~ELABEL = <side-labels>",
                                                    "<key>"};
const std::vector<std::string_view> kPieOptions = {"STAR~T = <n>",       "{ CW | CCW }",
                                                   "SLI~CE = <slice>",   "STAC~K = <slice>",
                                                   "CLU~STER = <slice>", "<key>"};
const std::vector<std::string_view> kBoxOptions = {"OUTL~IERS = <switch>",
                                                   "EXT~REME = <switch>",
                                                   "MED~IAN = <switch>",
                                                   "LAB~EL = <labels>",
                                                   "BOX~BASE = <word>",
                                                   "WHI~SKER = <word>",
                                                   "CAP~WIDTH = <number-or-enclosed>",
                                                   "<key>"};
const std::vector<std::string_view> kErrorBarOptions = {
    "{ CI = { 90 | ( 99.5 ) } | SD = { 2 | ( 0 ) } | SE = { 6 | ( 1.5 ) } }",
    "LAB~EL = <labels>",
    "CAPS~TYLE = { T | NON~E | FAN~CY }",
    "SYM~BOL = <switch>",
    "DIR~ECTION = <word>",
    "<baseline>",
    "CAPW~IDTH = <number-or-enclosed>",
    "<key>"};
const std::vector<std::string_view> kHistogramOptions = {"CUM",
                                                         "CUR~VE = <switch>",
                                                         "X1I~NTERVAL = <interval>",
                                                         "SHA~PE = HIS~TOGRAM",
                                                         "SUR~FACE = <switch>",
                                                         "X2I~NTERVAL = <interval>",
                                                         "X1S~TART = <start>",
                                                         "X2S~TART = <start>",
                                                         "<key>"};
// LINE is not abbreviated, since it may follow REGRESSION, where LIN could begin LINEAR.
const std::vector<std::string_view> kFitLineOptions = {
    "MET~HOD = { REG~RESSION [ LINEA~R ] | ORI~GIN [ LINEA~R ] | MEA~N | "
    "LLR [ { NOR~MAL | EPA~NECHNIKOV | UNI~FORM } ] | NON~E }",
    "INT~ERVAL [ ( { 90 | 50 | 100 } ) ] = { MEA~N | IND~IVIDUAL } [ { MEA~N | IND~IVIDUAL } ]",
    "LINE = { TOT~AL | MEF~FECT } [ { TOT~AL | MEF~FECT } ]",
    "BAN~DWIDTH = { FAS~T | CON~STRAINED }",
    "X1M~ULTIPLIER = <n>",
    "X2M~ULTIPLIER = <n>",
    "SPI~KE = <switch>",
    "<key>"};

constexpr IgraphFamily kFamilies[] = {
    {"axes only", "x1 y"},
    {"one axis only", "x1|y"},
    {"summaries", "x1? y bar|area|line+ color|color-count? style? size|size-count?"},
    {"counts", "x1? y-count? bar-count|area-count|line-count+ color|color-count? style? size?"},
    {"modes", "x1? y-categorical bar-mode|area-mode|line-mode+ color? style? size?"},
    {"points", "x1-scale y scatter|fitline+ color? style? size|size-count? pointlabel?"},
    {"points and summaries", "x1 y scatter bar|area|line* color? style? size? pointlabel?"},
    {"boxes", "x1? y box|errorbar+ bar|line? color? style? size? caselabel?"},
    {"histograms", "x1-scale y-count? histogram+ color? style? size?"},
    {"pies by color", "color-categorical style? x1? y|summaryvar pie"},
    {"pies by style", "style x1? y|summaryvar pie"},
    {"pies by axis", "x1-categorical y|summaryvar pie"},
    {"pies of counts", "color-categorical y-count|summaryvar-count? pie-count"},
    {"three dimensions", "x1 x2 y scatter|bar+ coordinate-three color? style? size? pointlabel?"},
    {"counts in three dimensions", "x1 x2 y-count? bar-count coordinate-three color? style?"},
    {"what has no third dimension", "x1 x2 y area|line|box|errorbar coordinate-three"},
    {"many layers", "x1 y scatter* bar* area* line* box* errorbar* color? style? size?"},
};

constexpr std::string_view kFrame =
    "coordinate? panel? catorder* scalerange* refline* normalize? viewname? title? subtitle? "
    "caption? x1length? x2length? ylength? effect? chartlook? key? spike? format? chartsize?";

std::vector<IgraphForm> MakeForms() {
    const std::vector<std::string_view> axis = {"<type>", "<title>"};
    const std::vector<std::string_view> scaleAxis = {"<scale>", "<title>"};
    const std::vector<std::string_view> aesthetic = {"<type>", "<title>", "<legend>", "<grouping>"};
    const std::vector<std::string_view> scaleAesthetic = {"<scale>", "<title>", "<legend>",
                                                          "<grouping>"};
    const std::vector<std::string_view> categories = {"<categorical>", "<title>", "<legend>",
                                                      "<grouping>"};
    return {
        {"x1", false, "X1 = <dim>", axis},
        {"x1-scale", false, "X1 = <v>", scaleAxis},
        {"x1-categorical", false, "X1 = <dim>", {"<categorical>", "<title>"}},
        {"x2", false, "X2 = <dim>", axis},
        {"y", false, "Y = <v>", scaleAxis},
        {"y-categorical", false, "Y = <dim> <categorical>", {"<title>"}},
        {"y-count", false, "Y = <count>", scaleAxis},
        {"color", false, "COL~OR = <dim>", aesthetic},
        {"color-categorical", false, "COL~OR = <dim>", categories},
        {"color-count", false, "COL~OR = <count>", scaleAesthetic},
        {"style", false, "STY~LE = <dim>", categories},
        {"size", false, "SIZ~E = <dim>", aesthetic},
        {"size-count", false, "SIZ~E = <count>", scaleAesthetic},
        {"summaryvar", false, "SUM~MARYVAR = <v>", {"<title>"}},
        {"summaryvar-count", false, "SUM~MARYVAR = <count>", {"<title>"}},
        {"panel",
         false,
         "PAN~EL = { <dim> [ <dim> ] [ <dim> ] | VAR ( <name> <name> [ <name> ] ) }",
         {}},
        {"pointlabel",
         false,
         "POI~NTLABEL = { <dim> [ <dim> ] | VAR ( <name> <name> ) } [ { ALL | NON~E } ]",
         {}},
        {"caselabel", false, "CAS~ELABEL = <dim>", {}},
        {"catorder", true, "CAT~ORDER = <dim> ( <order> [ <order> ] [ <order> ] )", {}},
        {"scalerange", true, "SCAL~ERANGE = <named> <range>", {}},
        {"refline",
         true,
         "REF~LINE = <named> <n>",
         {"LAB~EL = <switch>", "SPI~KE = <switch>", "COL~OR = { <word> | <line> | <n> }",
          "STY~LE = { <word> | <line> | <n> }"}},
        {"normalize", false, "NOR~MALIZE", {}},
        {"viewname", false, "VIE~WNAME = <text>", {}},
        {"title", false, "TIT~LE = <text>", {}},
        {"subtitle", false, "SUB~TITLE = <text>", {}},
        {"caption", false, "CAP~TION = <text>", {}},
        {"x1length", false, "X1L~ENGTH = <above-0>", {}},
        {"x2length", false, "X2L~ENGTH = <above-0>", {}},
        {"ylength", false, "YLE~NGTH = <above-0>", {}},
        {"coordinate", false, "COO~RDINATE = { VER~TICAL | HOR~IZONTAL }", {}},
        {"coordinate-three", false, "COO~RDINATE = THR~EE", {}},
        {"effect", false, "EFF~ECT = { NON~E | THR~EE }", {}},
        {"chartlook",
         false,
         "CHARTL~OOK = { <look> [ <look> ] | <left-bracket> <look> [ <look> ] <right-bracket> }",
         {}},
        {"key", false, "KEY = ON", {}},
        {"spike", false, "SPI~KE <word> ( 5", {}},
        {"format", false, "FOR~MAT <word> <line>", {}},
        {"chartsize", false, "CHARTS~IZE 5 <word>", {}},
        {"scatter",
         true,
         "{ SCAT~TER | SCATTERP~LOT }",
         {"COI~NCIDENT = { NON~E | JIT~TER [ ( 5 ) ] }", "<key>"}},
        {"bar", true, "BAR [ ( <function> ) ]", kBarOptions},
        {"bar-count", true, "BAR", kBarOptions},
        {"bar-mode", true, "BAR [ ( MOD~E ) ]", kBarOptions},
        {"area", true, "ARE~A [ ( <function> ) ]", kAreaOptions},
        {"area-count", true, "ARE~A", kAreaOptions},
        {"area-mode", true, "ARE~A [ ( MOD~E ) ]", kAreaOptions},
        {"line", true, "LIN~E [ ( <function> ) ]", kLineOptions},
        {"line-count", true, "LIN~E", kLineOptions},
        {"line-mode", true, "LIN~E [ ( MOD~E ) ]", kLineOptions},
        {"pie", true, "PIE [ ( <adding-function> ) ]", kPieOptions},
        {"pie-count", true, "PIE", kPieOptions},
        {"box", true, "{ BOX | BOXP~LOT }", kBoxOptions},
        {"errorbar", true, "ERR~ORBAR", kErrorBarOptions},
        {"histogram", true, "HIS~TOGRAM", kHistogramOptions},
        {"fitline", true, "FIT~LINE", kFitLineOptions},
    };
}

} // namespace

std::span<const IgraphPart> IgraphParts() {
    return kParts;
}

const std::vector<IgraphForm>& IgraphForms() {
    static const std::vector<IgraphForm> forms = MakeForms();
    return forms;
}

std::span<const IgraphFamily> IgraphFamilies() {
    return kFamilies;
}

std::string_view IgraphFrame() {
    return kFrame;
}

} // namespace recastor
