#include "tests/support/generators/subcommands.h"

#include "tests/support/generators/statistics.h"

namespace recastor {

namespace {

using Text = rc::Gen<std::string>;

Text Subcommand(const std::string& name, const Text& arguments) {
    return InTurn({Keyword(name), Equals(), arguments});
}

/// The subcommand with one of the words or without any.
Text Setting(const std::string& name, const Strings& words) {
    std::vector<Text> settings;
    for (const std::string& word : words) {
        settings.push_back(Keyword(word));
    }
    return Either<std::string>({Keyword(name), Subcommand(name, Either(settings))});
}

Text Formats() {
    const Text empty = OneOf({"ZERO", "BLANK", "zero zero"});
    const Text missing = InTurn({OneOf({" MISSING (", " mis("}), QuotedText(), OneOf({")"})});
    const Text obsolete = OneOf({"", "CWIDTH(12,8) BOX", "NBOX", "ZERO LENGTH(10)"});
    return Either<std::string>({empty, missing, InTurn({empty, missing}),
                                InTurn({missing, OneOf({" "}), empty}), obsolete});
}

Text Variables() {
    return rc::gen::apply(Join, OneTo(5, OneOf({"q1", "q2", "Q_3", "q4 TO q9", "a.b to a.c"})),
                          OneOf({" ", ", "}));
}

} // namespace

Text SettingSubcommands() {
    const Text missing = Either<std::string>(
        {Subcommand("MISSING", Keyword("INCLUDE")), Subcommand("MISSING", Keyword("EXCLUDE"))});
    return Either<std::string>({Setting("AUTOLABEL", {"ON", "OFF", "DEFAULT"}),
                                Setting("BASE", {"ANSWERING", "QUALIFIED", "ALL"}),
                                Setting("GBASE", {"CASES", "RESPONSES"}), missing,
                                Subcommand("FORMAT", Formats())});
}

Text HeadingSubcommands(const Strings& names) {
    const Text texts = rc::gen::apply(Join, UpTo(3, QuotedText()), OneOf({" ", "\n   ", ", "}));
    return Either<std::string>({Subcommand("TITLE", texts), Subcommand("CAPTION", texts),
                                Subcommand("CORNER", texts),
                                Subcommand("SORT", SortArguments(names))});
}

Text ObsoleteSubcommands() {
    const auto arguments = OneTo(3, OneOf({"yes", "'a text'", "12", "(1,2)", "a.b BY c", "*"}));
    return InTurn({OneOf({"BOXCHARS ", "CONTINUED ", "FONTCHARS=", "FOOTNOTE ", "INDEX ",
                          "PFOOTNOTE ", "PTITLE ", "TFOOTNOTE ", "WRITE ", "PRETTY=", "xyz "}),
                   rc::gen::apply(Join, arguments, OneOf({" "}))});
}

rc::Gen<TablesGroup> Groups(const std::string& name) {
    const Text blank = OneOf({" "});
    const Text variables =
        Either<std::string>({Variables(), InTurn({QuotedText(), blank, Variables()})});
    const Text value = Either<std::string>({NumberText(), QuotedText()});
    const Text valued = InTurn({variables, OneOf({" ("}), value, OneOf({")"})});
    return rc::gen::mapcat(OnceIn(2), [name, variables, valued](bool isDichotomy) {
        return rc::gen::map(isDichotomy ? valued : variables, [name, isDichotomy](auto arguments) {
            return TablesGroup{name, arguments, isDichotomy};
        });
    });
}

rc::Gen<TablesTotal> Totals(const std::string& name) {
    return rc::gen::apply(
        [name](bool isFollowing, auto label, bool isLabelled) {
            return TablesTotal{name, isFollowing, isLabelled ? label : std::string()};
        },
        OnceIn(2), QuotedText(), OnceIn(2));
}

} // namespace recastor
