#include "tests/support/gplgrammar.h"

#include "tests/support/phrasegrammar.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

namespace recastor {

namespace {

/// The command, its block, and the block's functions with what may stand in them.
const char* const kRules = R"rules(
command : 'GGRAPH' nl '  /GRAPHDATASET NAME="iGraphDataset" VARIABLES=' Variables nl
  '    MISSING=LISTWISE REPORTMISSING=NO' nl
  '  /GRAPHSPEC SOURCE=INLINE EDITABLE=YES' Label? Template? Inline? '.' nl
  'BEGIN GPL' nl block 'END GPL.' nl

block : ' PAGE: begin(scale(' number 'in,' number 'in))' nl lines ' PAGE: end()' nl | lines
lines : ' SOURCE: s=userSource(id("iGraphDataset"))' nl data* trans* coord? guides scale* element+

data : ' DATA: ' (CategoryName '=col(source(s), name(' DataName '), unit.category())'
  | ScaleName '=col(source(s), name(' DataName '))') nl
CategoryName : name
ScaleName : name
DataName : string

trans : ' TRANS: ' ComputedName '=eval(' (condition | 'abs(' Used ')' | Used '*' Used) ')' nl
condition : Used '>=' number ' && ' Used '<=' number
  | Used ('>=' | '<=' | '==' | '>' | '<') number
ComputedName : name
Used : name
UsedCategory : name

coord : ' COORD: ' (Three | Pie | plane) nl
Three : 'rect(dim(1,2,3))'
Pie : 'polar.theta(startAngle(' Angle '))'
  | 'rect(dim(2' ',3'? '), polar.theta(dim(1), startAngle(' Angle ')))'
Angle : number
plane : 'rect(dim(1,2)' (Cluster turned? Wrap? | turned Wrap? | Wrap) ')'
Cluster : ', cluster(3,0)'
turned : ', transpose()'
Wrap : ', wrap()'

guides : axis* panel* legend* title? subtitle? footnote? line*
axis : ' GUIDE: axis(dim(' AxisDimension '), ' (label | 'null()') ')' nl
panel : ' GUIDE: axis(dim(' PanelDimension '), ' label ', opposite())' nl
legend : ' GUIDE: legend(aesthetic(' Legend '), ' (label | 'null()') ')' nl
title : ' GUIDE: text.title(' label ')' nl
subtitle : ' GUIDE: text.subtitle(' label ')' nl
footnote : ' GUIDE: text.footnote(' label ')' nl
line : ' GUIDE: form.line(position(' ('*,' number | number ',*') ')' (', ' label)? ')' nl
label : 'label(' string ')'
AxisDimension : digit
PanelDimension : digit
ScaleDimension : digit
BaseDimension : digit
Legend : aesthetic
aesthetic : 'aesthetic.' ('color.interior' | 'texture.pattern.interior' | 'shape.interior' | 'size')

scale : ' SCALE: ' ('cat(' place ', ' sort ', reverse()'? | 'linear(' place ', ' ends) ')' nl
place : 'dim(' ScaleDimension ')' | 'aesthetic(' aesthetic ')'
sort : 'sort.natural()' | 'sort.data()' | 'sort.statistic(summary.count())'
ends : 'dataMinimum(), dataMaximum()' ', reverse()'? | (range | 'include(' number ')') origin?
range : 'min(' number ')' (', max(' number ')')? | 'max(' number ')'
origin : ', origin(' number ')'

element : ' ELEMENT: ' (scatter | bar | linelayer | linepoints | area | slices | box | errorbar
  | histogram | curve | fit) ')' nl
scatter : 'point' '.jitter'? '(position(' Algebra ')' color? shape? size? labels
bar : 'interval' '.stack'? '(position(' summary ')' color? pattern? labels
linelayer : 'line(position(' smoothed ')' color? shape? size? labels jump? missing
linepoints : 'point(position(' summary ')' color? shape? size? labels
area : 'area' '.stack'? '(position(' smoothed ')' color? pattern? labels jump? missing
slices : 'interval.stack(position(summary.percent(' (measured | 'summary.count(' Counts ')')
  (', ' base)? '))' color? pattern? labels
box : 'schema(position(bin.quantile.letter(' Algebra '))' color? pattern? labels
errorbar : 'interval(position('
  ('region.confi.mean(' Algebra ', alpha(' number '))'
  | 'region.spread.s' ('d' | 'e') '(' Algebra ', multiple(' number '))') ')' color? pattern? labels
  ', shape.interior(shape.' ('ibeam' | 'line') ')'
histogram : 'interval' '.stack'? '(position(summary.' ('percent.count' cumulative? '(' bins ', '
  across | 'count' cumulative? '(' bins) '))' color? pattern? ', shape.interior(shape.square)'
cumulative : '.cumulative'
bins : 'bin.rect(' Counts (', bin' ('Count' | 'Width') '(' number ')')? ')'
curve : 'line(position(density.normal(' Counts ')), color("Normal")'
fit : 'line(position('
  ('region.confi.smooth.' ('linear' | 'mean') '(' Algebra ', alpha(' number '))'
  | 'smooth.' ('linear' | 'mean' | 'loess') '(' Algebra ')') ')' (', split(' UsedCategory ')')?

smoothed : 'smooth.' ('step.center' | 'step.end' | 'step' | 'spline') '(' summary ')' | summary
summary : 'summary.percent(' measured ', ' base ')'
  | 'summary.percent.count(' Counts ', ' (base | across) ')'
  | 'summary.count(' Counts ')' | measured
measured : function '(' Algebra ')' | 'summary.percentile(' Algebra ', alpha(' number '))'
function : 'summary.' ('mean' | 'median' | 'mode' | 'min' | 'max' | 'first' | 'last' | 'sum' | 'sd'
  | 'variance' | 'se.kurtosis' | 'se.skewness' | 'se' | 'kurtosis' | 'skewness' | 'countTrue'
  | 'percentTrue')
base : 'base.coordinate(dim(' BaseDimension (',' BaseDimension)* '))'
across : 'base.all(acrossPanels())'
Algebra : factor ('*' factor)*
Counts : factor ('*' factor)*
factor : Used | '1'

color : ', color.interior(' shown ')'
size : ', size(' shown ')'
pattern : ', texture.pattern.interior(' UsedCategory ')'
shape : ', shape.interior(' UsedCategory ')'
shown : counted | 'summary.mean(' Used ')' | Used
counted : 'summary.count()' | 'summary.percent.count()'
labels : (', label(' (counted | function '(' Used ')'
  | 'summary.percentile(' Used ', alpha(' number '))' | Used) ')')*
jump : ', jump()'
missing : ', missing.wings()' | ', missing.interpolate()'

Variables : word (' ' word)*
word : byte+
Label : ' LABEL=' apostrophe (apostrophe apostrophe | byte | ' ' | '"' | '(' | ')')* apostrophe
Template : nl '      TEMPLATE=[' doubled ']'
Inline : nl '      INLINETEMPLATE=["<setWrapPanels/>"]'
doubled : '"' ('""' | byte | ' ' | '(' | ')' | apostrophe)* '"'
)rules";

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return Lower(c); });
    return text;
}

/// A GPL string without its quotes and escapes.
std::string Unquoted(const std::string& string) {
    std::string text;
    for (std::size_t i = 1; i + 1 < string.size(); ++i) {
        i += string[i] == '\\' ? 1U : 0U;
        text += string[i];
    }
    return text;
}

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

/// The phrases of a well-formed command, and what they must have to do with each other. Each check
/// returns what it found wrong, or nothing.
class Judge {
public:
    explicit Judge(const std::vector<Phrase>& phrases) : m_phrases(phrases) {}

    std::string Fault() const {
        for (const auto check :
             {&Judge::Names, &Judge::Uses, &Judge::Variables, &Judge::Algebras, &Judge::Dimensions,
              &Judge::Wrapping, &Judge::Legends, &Judge::Angles}) {
            std::string fault = (this->*check)();
            if (!fault.empty()) {
                return fault;
            }
        }
        return {};
    }

private:
    std::vector<std::string> All(std::string_view rule) const {
        std::vector<std::string> texts;
        for (const Phrase& phrase : m_phrases) {
            if (phrase.rule == rule) {
                texts.push_back(phrase.text);
            }
        }
        return texts;
    }

    bool Has(std::string_view rule) const { return !All(rule).empty(); }

    bool IsDeclared(std::string_view rule, const std::string& name) const {
        const auto names = All(rule);
        return std::find(names.begin(), names.end(), name) != names.end();
    }

    /// Names are told apart without regard to case; the source has one too.
    std::string Names() const {
        std::set<std::string> names{"s"};
        for (const char* rule : {"CategoryName", "ScaleName", "ComputedName"}) {
            for (const std::string& name : All(rule)) {
                if (!names.insert(Lower(name)).second) {
                    return "declared twice: " + name;
                }
            }
        }
        return {};
    }

    /// Every name that is used is declared, and the other way round.
    std::string Uses() const {
        std::set<std::string> used;
        for (const std::string& name : All("Used")) {
            used.insert(name);
            if (!IsDeclared("CategoryName", name) && !IsDeclared("ScaleName", name) &&
                !IsDeclared("ComputedName", name)) {
                return "not declared: " + name;
            }
        }
        for (const std::string& name : All("UsedCategory")) {
            used.insert(name);
            if (!IsDeclared("CategoryName", name)) {
                return "not declared as category: " + name;
            }
        }
        for (const char* rule : {"CategoryName", "ScaleName", "ComputedName"}) {
            for (const std::string& name : All(rule)) {
                if (used.count(name) == 0) {
                    return "not used: " + name;
                }
            }
        }
        return {};
    }

    /// The command lists the variables that are read, in their order, each once.
    std::string Variables() const {
        std::string read;
        std::set<std::string> seen{"$casenum"};
        for (const std::string& name : All("DataName")) {
            if (seen.insert(Lower(Unquoted(name))).second) {
                read += (read.empty() ? "" : " ") + Unquoted(name);
            }
        }
        const std::string listed = All("Variables").front();
        return listed == read ? "" : "VARIABLES=" + listed + " but these are read: " + read;
    }

    /// All layers lie in the same dimensions; counts may leave their measure out.
    std::string Algebras() const {
        std::set<std::size_t> sizes;
        for (const std::string& algebra : All("Algebra")) {
            sizes.insert(Split(algebra, '*').size());
        }
        for (const std::string& algebra : All("Counts")) {
            sizes.insert(CountDimensions(algebra));
        }
        if (sizes.size() != 1) {
            return "layers in different dimensions";
        }
        if (Has("Three") && *sizes.begin() != 3) {
            return "not three dimensions";
        }
        return {};
    }

    std::size_t CountDimensions(const std::string& algebra) const {
        const std::size_t factors = Split(algebra, '*').size();
        const std::size_t withoutMeasure = Has("Three") ? 2 : 1;
        return factors == withoutMeasure && !Has("Pie") ? factors + 1 : factors;
    }

    std::size_t DimensionCount() const {
        const auto algebras = All("Algebra");
        return algebras.empty() ? CountDimensions(All("Counts").front())
                                : Split(algebras.front(), '*').size();
    }

    /// Every dimension named is there; panels come behind the others and have one guide each.
    std::string Dimensions() const {
        const std::size_t count = DimensionCount();
        for (const char* rule :
             {"AxisDimension", "PanelDimension", "ScaleDimension", "BaseDimension"}) {
            for (const std::string& dimension : All(rule)) {
                if (std::stoul(dimension) > count) {
                    return std::string(rule) + " that is not there: " + dimension;
                }
            }
        }
        const std::size_t inner = Has("Pie") ? 1 : (Has("Three") || Has("Cluster") ? 3 : 2);
        std::size_t expected = inner;
        for (const std::string& dimension : All("PanelDimension")) {
            if (std::stoul(dimension) != ++expected) {
                return "a panel in dimension " + dimension;
            }
        }
        return expected == count ? "" : "panels without a guide";
    }

    std::string Wrapping() const {
        return Has("Wrap") == Has("Inline") ? ""
                                            : "panels wrapped without a template or not at all";
    }

    std::string Legends() const {
        auto legends = All("Legend");
        std::sort(legends.begin(), legends.end());
        const bool isTwice = std::adjacent_find(legends.begin(), legends.end()) != legends.end();
        return isTwice ? "two legends of one aesthetic" : "";
    }

    std::string Angles() const {
        for (const std::string& angle : All("Angle")) {
            if (angle.starts_with('-') || std::stod(angle) >= 360) {
                return "an angle beyond one turn: " + angle;
            }
        }
        return {};
    }

    const std::vector<Phrase>& m_phrases;
};

} // namespace

std::string GGraphFault(const std::string& command) {
    static const PhraseGrammar grammar(kRules);
    const PhraseReading reading = grammar.Read(command);
    if (!reading.isWhole) {
        const std::size_t lineBegin = command.rfind('\n', reading.farthest) + 1;
        return "not well formed: " + command.substr(lineBegin, reading.farthest - lineBegin) +
               " >>> " + command.substr(reading.farthest, 60);
    }
    return Judge(reading.phrases).Fault();
}

std::vector<std::string> GGraphFormsIn(const std::string& output) {
    const std::string begin = "COMMENT -- Begin GGRAPH command.\n";
    const std::string end = "COMMENT -- End GGRAPH command.\n";
    std::vector<std::string> forms;
    for (std::size_t at = output.find(begin); at != std::string::npos;
         at = output.find(begin, at)) {
        at += begin.size();
        forms.push_back(output.substr(at, output.find(end, at) - at));
    }
    return forms;
}

} // namespace recastor
