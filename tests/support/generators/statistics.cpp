#include "tests/support/generators/statistics.h"

namespace recastor {

namespace {

using Text = rc::Gen<std::string>;

Text FunctionName() {
    const auto name =
        rc::gen::mapcat(OneOf({"COUNT", "CPCT", "MEAN", "CASES", "CSPCT", "MAXIMUM", "MEDIAN",
                               "MODE", "RANGE", "RPCT", "RESPONSES", "SEMEAN", "SPCT", "STDDEV",
                               "SUM", "VALIDN", "VARIANCE", "VPCT", "MINIMUM"}),
                        Keyword);
    const auto percentile = rc::gen::mapcat(
        OneOf({"PTILE", "HPTILE", "WPTILE", "RPTILE", "EPTILE", "APTILE"}), Keyword);
    return Either<std::string>(
        {name, name, name, name, InTurn({percentile, OneOf({" "}), NumberText()})});
}

/// A label, a format in parentheses, or both in either order.
Text Display() {
    const Text label = QuotedText();
    const Text format = OneOf({"(F8.2)", "(f5)", "(DOLLAR10.2)", "(Pct8.1)", "(COMMA12)"});
    const Text between = OneOf({" ", "\n   ", ""});
    return Either<std::string>(
        {label, format, InTurn({label, between, format}), InTurn({format, between, label})});
}

/// With parentheses, nothing for no arguments.
Text FunctionArguments(const Strings& names) {
    const Text display = Display();
    const Text name = NameOf(names);
    const Text argument = Either<std::string>({name, InTurn({name, OneOf({" "}), display})});
    const Text named = rc::gen::apply(Join, OneTo(3, argument), OneOf({" ", ", "}));
    const Text bases = InTurn({OneOf({" : ", ":"}), NamesOf(names)});
    const Text none = OneOf({"", "", "()"});
    const auto inParentheses = [](const std::vector<Text>& parts) {
        return rc::gen::map(InTurn(parts), [](const auto& text) { return '(' + text + ')'; });
    };
    return Either<std::string>({none, none, inParentheses({display}), inParentheses({named}),
                                inParentheses({display, bases}), inParentheses({named, bases})});
}

} // namespace

Text StatisticsArguments(const Strings& names) {
    const Text weight = OneOf({"", "", "", "U ", "unweighted ", "UNW "});
    const Text function = InTurn({weight, FunctionName(), FunctionArguments(names)});
    return rc::gen::apply(Join, OneTo(4, function), OneOf({" ", ", ", "\n   "}));
}

Text SortArguments(const Strings& names) {
    const Text name = NameOf(names);
    const Text function = OneOf({"(COUNT", "(cpct", "(MEAN", "(val", "(PTILE"});
    const Text variable =
        Either<std::string>({name, InTurn({name, function, OneOf({")"})}),
                             InTurn({name, function, OneOf({"("}), name, OneOf({"))"})})});
    return InTurn({OneOf({"", "ASCENDING ", "desc ", "Asc "}),
                   rc::gen::apply(Join, OneTo(3, variable), OneOf({" "}))});
}

} // namespace recastor
