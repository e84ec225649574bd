/// The keywords behind a subcommand, which come in any order.
#pragma once

#include "platform/zelkwigr/charttokenreader.h"

#include <cstddef>

namespace recastor {

/// What a keyword says is read into what the subcommand describes. The equals sign behind the
/// keyword has been skipped.
template <class Target>
using Option = Keyword<void (*)(ChartTokenReader&, Target&)>;

/// Reads one keyword with what follows it.
template <class Target, std::size_t n>
void ReadOption(ChartTokenReader& reader, const Option<Target> (&options)[n], Target& target) {
    const auto read = reader.Choice(options);
    if (read) {
        reader.SkipEquals();
        read(reader, target);
    }
}

/// Reads all that is left of a subcommand. A keyword given twice overwrites what it said before.
template <class Target, std::size_t n>
void ReadOptions(ChartTokenReader& reader, const Option<Target> (&options)[n], Target& target) {
    reader.OpenOptions(options);
    while (!reader.AtSubcommandEnd()) {
        ReadOption(reader, options, target);
    }
}

inline constexpr Keyword<bool> kSwitch[] = {{"ON", true}, {"OFF", false}};

/// Reads one or more words of a table, and gives the meaning of each to `take`.
template <class Meaning, std::size_t n, class Take>
void ReadWords(ChartTokenReader& reader, const Keyword<Meaning> (&table)[n], Take take) {
    take(reader.Choice(table));
    while (const Meaning* next = reader.TakeKeywordBesideOptions(table)) {
        take(*next);
    }
}

/// Words that say something by being there; null for one that is read and ignored.
template <class Target>
using Flag = Keyword<bool Target::*>;

/// Reads one or more such words.
template <class Target, std::size_t n>
void ReadFlags(ChartTokenReader& reader, const Flag<Target> (&table)[n], Target& target) {
    ReadWords(reader, table, [&target](bool Target::*flag) {
        if (flag) {
            target.*flag = true;
        }
    });
}

// What is read and ignored.

template <class Target>
void IgnoreNothing(ChartTokenReader&, Target&) {}

template <class Target>
void IgnoreSwitch(ChartTokenReader& reader, Target&) {
    reader.Choice(kSwitch);
}

template <class Target>
void IgnoreNumber(ChartTokenReader& reader, Target&) {
    reader.Number();
}

template <class Target>
void IgnoreNumberOrInParentheses(ChartTokenReader& reader, Target&) {
    reader.NumberOrInParentheses();
}

template <class Target>
void IgnoreWord(ChartTokenReader& reader, Target&) {
    reader.Require(reader.AtWord());
    reader.Skip();
}

} // namespace recastor
