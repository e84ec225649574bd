#include "archive/picture/ctablesgrammar.h"

#include "archive/picture/ctablesreader.h"

#include <algorithm>
#include <array>

namespace recastor {

namespace {

using Words = std::vector<std::string_view>;

const Words kCounts{"COUNT"};
const Words kResponses{"RESPONSES"};
const Words kScaleFunctions{"MAXIMUM", "MEAN",   "MEDIAN", "MODE", "MINIMUM", "PTILE",
                            "RANGE",   "SEMEAN", "STDDEV", "SUM",  "VALIDN",  "VARIANCE"};

const Words kPercentageBases{"ROWPCT.", "COLPCT.", "LAYERPCT.", "TABLEPCT."};
const Words kCategoryPercentages{"VALIDN", "COUNT", "TOTALN"};
const Words kGroupPercentages{"COUNT", "COUNT.RESPONSES", "RESPONSES", "RESPONSES.COUNT"};
const Words kScalePercentages{"SUM"};

/// The functions that may stand behind a variable of each kind. A scale variable also shows what
/// suits the variables that it is nested with.
struct Suited {
    char kind;
    std::vector<const Words*> functions;
    std::vector<const Words*> percentages;
};
const std::array<Suited, 3> kSuited{{
    {'C', {&kCounts}, {&kCategoryPercentages}},
    {'G', {&kCounts, &kResponses}, {&kGroupPercentages}},
    {'S',
     {&kCounts, &kResponses, &kScaleFunctions},
     {&kCategoryPercentages, &kGroupPercentages, &kScalePercentages}},
}};

bool Holds(const std::vector<const Words*>& lists, std::string_view word) {
    return std::any_of(lists.begin(), lists.end(), [word](const Words* words) {
        return std::find(words->begin(), words->end(), word) != words->end();
    });
}

/// Whether a function's name, less the prefix U, may stand behind a variable of the kind.
bool IsFunctionFor(std::string_view name, char kind) {
    const Suited& suited = *std::find_if(kSuited.begin(), kSuited.end(),
                                         [kind](auto& row) { return row.kind == kind; });
    for (const std::string_view base : kPercentageBases) {
        if (name.starts_with(base)) {
            return Holds(suited.percentages, name.substr(base.size()));
        }
    }
    return Holds(suited.functions, name);
}

/// Whether the word is such a function, with or without the prefix.
bool IsFunction(std::string_view word, char kind) {
    return IsFunctionFor(word, kind) ||
           (word.starts_with('U') && IsFunctionFor(word.substr(1), kind));
}

/// `F8.2`, `DOLLAR10`, `F8.`: letters, a width, perhaps decimals.
bool IsFormat(std::string_view word) {
    const auto isLetter = [](char c) { return c >= 'A' && c <= 'Z'; };
    const auto* const width = std::find_if_not(word.begin(), word.end(), isLetter);
    const auto* const point = std::find_if_not(width, word.end(), IsDigit);
    const bool hasPoint = point != word.end() && *point == '.';
    return width != word.begin() && width != point &&
           std::all_of(hasPoint ? point + 1 : point, word.end(), IsDigit);
}

/// The commands, read rule by rule; a rule fails by CtablesReader::Fail().
class Grammar {
public:
    explicit Grammar(std::string_view text) : m_reader(text) {}

    CtablesText Text();

private:
    CtablesGroup Group(bool isDichotomy);
    CtablesTable Table();
    void Dimensions(CtablesTable& table);
    CtablesExpression Expression();
    CtablesExpression Chain(char operation);
    CtablesExpression Operand();
    CtablesVariable Variable();
    void Statistics(CtablesVariable& variable);
    std::vector<CtablesStatistic> List(char kind);
    CtablesStatistic Statistic(char kind);
    CtablesTotal Total();
    void Labels(CtablesTable& table);
    CtablesSort Sort();
    void Headings(CtablesTable& table);

    bool Subcommand(std::string_view name) { return m_reader.AcceptAtLineStart(name, 2); }
    void RequireSubcommand(std::string_view name);

    CtablesReader m_reader;
    int m_depth = 0; ///< of parentheses
};

void Grammar::RequireSubcommand(std::string_view name) {
    if (!Subcommand(name)) {
        m_reader.Fail(std::string(name));
    }
}

CtablesText Grammar::Text() {
    CtablesText text;
    if (m_reader.AcceptAtLineStart("MRSETS", 0)) {
        for (bool isDichotomy = false;
             (isDichotomy = Subcommand("/MDGROUP")) || Subcommand("/MCGROUP");) {
            text.groups.push_back(Group(isDichotomy));
        }
        if (text.groups.empty()) {
            m_reader.Fail("/MCGROUP or /MDGROUP");
        }
        m_reader.Expect(".");
    }
    if (!m_reader.AcceptAtLineStart("CTABLES", 0)) {
        m_reader.Fail("CTABLES");
    }
    RequireSubcommand("/MRSETS");
    m_reader.Expect("COUNTDUPLICATES=YES");
    RequireSubcommand("/FORMAT");
    m_reader.Expect("EMPTY=");
    text.emptyCells = m_reader.OneOf({"BLANK", "ZERO"});
    if (m_reader.Accept("MISSING=")) {
        text.missingText = m_reader.Literal();
    }
    RequireSubcommand("/TABLE");
    do {
        text.tables.push_back(Table());
    } while (Subcommand("/TABLE"));
    m_reader.Expect(".");
    if (!m_reader.IsAtEnd()) {
        m_reader.Fail("the end");
    }
    return text;
}

CtablesGroup Grammar::Group(bool isDichotomy) {
    CtablesGroup group;
    group.isDichotomy = isDichotomy;
    m_reader.Expect("NAME=");
    group.name = m_reader.Name();
    if (group.name.front() != '$') {
        m_reader.Fail("a name with $ in front");
    }
    if (m_reader.Accept("LABEL=")) {
        group.label = m_reader.Literal();
    }
    m_reader.Expect("VARIABLES=");
    do {
        group.variables.push_back(m_reader.Name());
        if (m_reader.Accept("TO")) {
            group.variables.back() += " TO " + m_reader.Name();
        }
    } while (m_reader.Next() != '.' && m_reader.Next() != '/' && !m_reader.Accept("VALUE="));
    if (isDichotomy) {
        group.value = m_reader.IsAtQuote() ? m_reader.Literal() : m_reader.Number();
    }
    return group;
}

CtablesTable Grammar::Table() {
    CtablesTable table;
    if (m_reader.Next() == '/' || m_reader.Next() == '.') {
        return table; // nothing was left of the table's dimensions
    }
    Dimensions(table);
    RequireSubcommand("/CATEGORIES");
    m_reader.Expect("VAR=ALL");
    m_reader.Expect("EMPTY=EXCLUDE");
    m_reader.Expect("MISSING=");
    table.isMissingIncluded = m_reader.OneOf({"EXCLUDE", "INCLUDE"}) == "INCLUDE";
    while (Subcommand("/CATEGORIES")) {
        table.totals.push_back(Total());
    }
    Labels(table);
    while (Subcommand("/CATEGORIES")) {
        table.sorts.push_back(Sort());
    }
    Headings(table);
    return table;
}

void Grammar::Dimensions(CtablesTable& table) {
    do {
        if (m_reader.Accept("BY")) { // nothing in front of it: the dimension is not there
            table.dimensions.emplace_back();
            continue;
        }
        table.dimensions.emplace_back(Expression());
        if (m_reader.Next() == '/') {
            break;
        }
        m_reader.Expect("BY");
    } while (true);
    if (table.dimensions.size() > 3) {
        m_reader.Fail("at most three dimensions");
    }
    const auto hasStatistics = [](const std::optional<CtablesExpression>& dimension) {
        const auto variables = VariablesOf(dimension);
        return std::any_of(variables.begin(), variables.end(),
                           [](const CtablesVariable& one) { return one.hasStatistics; });
    };
    if (std::count_if(table.dimensions.begin(), table.dimensions.end(), hasStatistics) > 1) {
        m_reader.Fail("statistics in one dimension only");
    }
}

CtablesExpression Grammar::Expression() {
    return Chain('+');
}

CtablesExpression Grammar::Chain(char operation) {
    CtablesExpression chain{operation, {}, {}};
    const std::string_view sign(&operation, 1);
    do {
        chain.operands.push_back(operation == '+' ? Chain('>') : Operand());
    } while (m_reader.Accept(sign));
    return chain.operands.size() > 1 ? chain : CtablesExpression(chain.operands.front());
}

CtablesExpression Grammar::Operand() {
    if (!m_reader.Accept("(")) {
        return {0, Variable(), {}};
    }
    constexpr int kDeepest = 500; // the call stack's sake
    if (++m_depth > kDeepest) {
        m_reader.Fail("fewer parentheses inside each other");
    }
    CtablesExpression inner = Expression();
    if (inner.operation == 0) {
        m_reader.Fail("two operands inside parentheses");
    }
    m_reader.Expect(")");
    --m_depth;
    return inner;
}

CtablesVariable Grammar::Variable() {
    CtablesVariable variable;
    variable.name = m_reader.Name();
    if (m_reader.Accept("[C]")) {
        variable.kind = 'C';
    } else if (m_reader.Accept("[S]")) {
        variable.kind = 'S';
    } else if (variable.name.front() != '$') {
        m_reader.Fail("[C] or [S]");
    }
    if (m_reader.Accept("[")) {
        Statistics(variable);
        m_reader.Expect("]");
    }
    return variable;
}

void Grammar::Statistics(CtablesVariable& variable) {
    variable.hasStatistics = true;
    if (m_reader.Next() != ',') { // a comma stands before TOTALS also when nothing else does
        variable.statistics = List(variable.kind);
    }
    if (m_reader.Accept(",")) {
        m_reader.Expect("TOTALS");
        m_reader.Expect("[");
        variable.totals = List(variable.kind);
        m_reader.Expect("]");
    }
}

std::vector<CtablesStatistic> Grammar::List(char kind) {
    std::vector<CtablesStatistic> list;
    list.push_back(Statistic(kind));
    for (CtablesReader place = m_reader; m_reader.Accept(","); place = m_reader) {
        CtablesStatistic& last = list.back();
        if (m_reader.IsAtQuote()) {
            if (last.label || last.format) {
                m_reader.Fail("one label, in front of the format");
            }
            last.label = m_reader.Literal();
            continue;
        }
        const CtablesReader word = m_reader;
        const std::string name = m_reader.Name();
        if (IsFormat(name) && !last.format) {
            last.format = name;
        } else if (name == "TOTALS") {
            m_reader = place;
            break;
        } else {
            m_reader = word;
            list.push_back(Statistic(kind));
        }
    }
    return list;
}

CtablesStatistic Grammar::Statistic(char kind) {
    const CtablesReader word = m_reader;
    CtablesStatistic statistic{m_reader.Name(), {}, {}};
    if (!IsFunction(statistic.function, kind)) {
        m_reader = word;
        m_reader.Fail(std::string("a function that suits a variable of the kind ") + kind);
    }
    if (m_reader.IsAtNumber()) {
        statistic.function += ' ' + m_reader.Number();
    }
    return statistic;
}

CtablesTotal Grammar::Total() {
    CtablesTotal total;
    m_reader.Expect("VAR=");
    do {
        total.variables.push_back(m_reader.Name());
    } while (!m_reader.Accept("TOTAL="));
    m_reader.Expect("YES");
    m_reader.Expect("POSITION=");
    total.isAfter = m_reader.OneOf({"AFTER", "BEFORE"}) == "AFTER";
    m_reader.Expect("LABEL=");
    total.label = m_reader.Literal();
    return total;
}

void Grammar::Labels(CtablesTable& table) {
    if (Subcommand("/CLABELS")) {
        table.oppositeLabels = m_reader.OneOf({"COL", "ROW"});
        m_reader.Expect("=OPPOSITE");
    }
    RequireSubcommand("/SLABELS");
    if (m_reader.Accept("POSITION=")) {
        table.labelPosition = m_reader.OneOf({"ROW", "COLUMN", "LAYER"});
    }
    table.areLabelsHidden = m_reader.Accept("VISIBLE=NO");
    if (!table.labelPosition && !table.areLabelsHidden) {
        m_reader.Fail("POSITION= or VISIBLE=NO");
    }
}

CtablesSort Grammar::Sort() {
    CtablesSort sort;
    m_reader.Expect("VAR=");
    sort.variable = m_reader.Name();
    m_reader.Expect("ORDER=");
    sort.order = m_reader.OneOf({"A", "D"}).front();
    m_reader.Expect("KEY=");
    const CtablesReader word = m_reader;
    sort.key = m_reader.Name();
    if (!Holds({&kCounts, &kResponses, &kScaleFunctions}, sort.key)) {
        m_reader = word;
        m_reader.Fail("a function to sort by");
    }
    if (m_reader.Accept("(")) {
        sort.key += '(' + m_reader.Name() + ')';
        m_reader.Expect(")");
    }
    return sort;
}

void Grammar::Headings(CtablesTable& table) {
    const bool isTitles = Subcommand("/TITLES");
    if (!isTitles && !Subcommand("/TITLE")) { // a corner alone stands behind /TITLE
        return;
    }
    const Words kinds = isTitles ? Words{"TITLE", "CAPTION", "CORNER"} : Words{"CORNER"};
    for (const std::string_view kind : kinds) {
        if (m_reader.Accept(std::string(kind) + '=')) {
            do {
                table.headings[std::string(kind)].push_back(m_reader.Literal());
            } while (m_reader.IsAtQuote());
        }
    }
    if (table.headings.empty()) {
        m_reader.Fail("a heading");
    }
}

} // namespace

CtablesText ReadCtables(std::string_view text) {
    return Grammar(text).Text();
}

std::vector<CtablesVariable> VariablesOf(const std::optional<CtablesExpression>& expression) {
    std::vector<CtablesVariable> variables;
    if (!expression) {
        return variables;
    }
    if (expression->operation == 0) {
        variables.push_back(expression->variable);
    }
    for (const CtablesExpression& operand : expression->operands) {
        const auto inner = VariablesOf(operand);
        variables.insert(variables.end(), inner.begin(), inner.end());
    }
    return variables;
}

} // namespace recastor
