/// Generators of the smallest parts of commands. Each shrinks towards the first of its choices and
/// the shortest of its lists.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <rapidcheck.h>

namespace recastor {

using Strings = std::vector<std::string>;

/// The size at which all choices of a generator are equally likely.
constexpr int kFullSize = 100;

/// A number below `end`.
rc::Gen<int> Below(int end);

/// True once in `odds` draws.
rc::Gen<bool> OnceIn(int odds);

/// One of the texts.
rc::Gen<std::string> OneOf(const Strings& texts);

/// A list of at most `most` items.
template <typename T>
rc::Gen<std::vector<T>> UpTo(int most, const rc::Gen<T>& item) {
    return rc::gen::resize(most,
                           rc::gen::container<std::vector<T>>(rc::gen::resize(kFullSize, item)));
}

/// A list of one to `most` items; it shrinks to one that `item` draws alone.
template <typename T>
rc::Gen<std::vector<T>> OneTo(int most, const rc::Gen<T>& item) {
    return rc::gen::apply(
        [](T first, std::vector<T> others) {
            others.insert(others.begin(), std::move(first));
            return others;
        },
        rc::gen::resize(kFullSize, item), UpTo(most - 1, item));
}

/// What one of the generators draws.
template <typename T>
rc::Gen<T> Either(const std::vector<rc::Gen<T>>& choices) {
    const auto shared = std::make_shared<const std::vector<rc::Gen<T>>>(choices);
    return rc::gen::mapcat(Below(static_cast<int>(choices.size())), [shared](int index) {
        return (*shared)[static_cast<std::size_t>(index)];
    });
}

/// What the generators draw, one behind the other.
rc::Gen<std::string> InTurn(const std::vector<rc::Gen<std::string>>& parts);

/// The texts with `between` between them.
std::string Join(const Strings& texts, const std::string& between);

/// A keyword in one of its spellings: any case, cut to three letters or with other letters behind
/// these, since only three count.
rc::Gen<std::string> Keyword(const std::string& keyword);

/// One of the names, as it stands or in capitals.
rc::Gen<std::string> NameOf(const Strings& names);

/// One to four of the names, separated by blanks or commas.
rc::Gen<std::string> NamesOf(const Strings& names);

/// A quoted text, of either quote, some with doubled quotes or periods, some empty or long.
rc::Gen<std::string> QuotedText();

/// A number with or without sign and decimals.
rc::Gen<std::string> NumberText();

/// What may stand between a keyword and its arguments: `=` or a blank.
rc::Gen<std::string> Equals();

} // namespace recastor
