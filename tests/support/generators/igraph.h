/// Generators of IGRAPH commands, as tokens that know how they may be spelled.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include <rapidcheck.h>

namespace recastor {

struct IgraphToken {
    enum class Kind { kKeyword, kName, kOther };

    Kind kind = Kind::kOther;
    std::string text;
    std::size_t shortest = 0; ///< so many letters of a keyword must be there
};

using IgraphTokens = std::vector<IgraphToken>;

struct IgraphSubcommand {
    bool accumulates = false; ///< its order among others that accumulate has a meaning
    IgraphTokens head;
    std::vector<IgraphTokens> options; ///< in any order, each another one
};

struct IgraphCommand {
    std::string family; ///< what kind of chart it is
    std::vector<IgraphSubcommand> subcommands;
};

/// The command's tokens as they are first written, IGRAPH, slashes and all; without a period.
std::vector<std::string> IgraphWords(const IgraphCommand& command);

/// The same as text, a blank between the tokens.
std::string IgraphText(const IgraphCommand& command);

/// How rapidcheck shows it.
std::ostream& operator<<(std::ostream& out, const IgraphCommand& command);

/// Commands whose charts are valid, of every family of charts; not all of them can be converted.
/// A subcommand that does not add to a list is there once at most.
rc::Gen<IgraphCommand> ValidIgraphs();

/// Commands of any subcommands, several times or not at all, in any order; few are valid charts.
rc::Gen<IgraphCommand> AnyIgraphs();

/// The command in another order that means the same: of its subcommands, but for those that
/// accumulate, and of the options of each.
rc::Gen<IgraphCommand> ReorderedIgraphs(const IgraphCommand& command);

/// Texts that mean the same but for the case of names: keywords cut and in any case, equals signs
/// left out, slashes doubled.
rc::Gen<std::string> RespelledIgraphs(const IgraphCommand& command);

/// What may be left of the command when its tokens are dropped, doubled, swapped and replaced.
rc::Gen<std::string> MangledIgraphs(const IgraphCommand& command);

} // namespace recastor
