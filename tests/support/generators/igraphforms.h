/// The IGRAPH language as its generators know it: written down a second time, as forms.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// A form is written in tokens with blanks between them: `[ x ]` may be left out, `{ x | y }` is
/// one of its alternatives, `<x>` is what the part x makes. A token that begins with a capital is
/// a keyword, and a tilde stands behind its shortest abbreviation.
struct IgraphPart {
    std::string_view name;
    std::string_view form;
};

/// A subcommand: what it begins with, and the options that may follow it in any order.
struct IgraphForm {
    std::string_view name; ///< in families
    bool accumulates;      ///< several of them mean something else in another order
    std::string_view head;
    std::vector<std::string_view> options;
};

/// Subcommands that make a valid chart together, by their names: `a|b` is one of them, and `?`, `*`
/// and `+` behind them take none or one, none to two, one or two.
struct IgraphFamily {
    std::string_view name;
    std::string_view subcommands;
};

std::span<const IgraphPart> IgraphParts();
const std::vector<IgraphForm>& IgraphForms();
std::span<const IgraphFamily> IgraphFamilies();

/// What every family may have besides.
std::string_view IgraphFrame();

} // namespace recastor
