/// How words are matched with the keywords of the place that they stand at.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace recastor {

/// One row of a vocabulary. Two rows of one meaning are two spellings of one thing.
template <class Meaning>
struct Keyword {
    std::string_view text; ///< upper-cased
    Meaning meaning;
};

inline constexpr std::size_t kShortestAbbreviation = 3;

/// Whether `word` may stand for the keyword that it begins. Both are upper-cased.
inline bool Abbreviates(std::string_view word, std::string_view keyword) {
    return word.size() >= kShortestAbbreviation && keyword.substr(0, word.size()) == word;
}

/// What `word` (upper-cased) means in the table: it is the keyword that it spells out, else the
/// only one that it abbreviates; null when it is none. `rivals` are the keywords that the same
/// place allows besides the table: what may mean one of them means nothing.
template <class Meaning>
const Meaning* FindKeyword(std::string_view word, std::span<const Keyword<Meaning>> table,
                           std::span<const std::string_view> rivals) {
    for (const Keyword<Meaning>& row : table) {
        if (row.text == word) {
            return &row.meaning;
        }
    }
    const auto isMeant = [word](std::string_view rival) {
        return rival == word || Abbreviates(word, rival);
    };
    if (std::any_of(rivals.begin(), rivals.end(), isMeant)) {
        return nullptr;
    }
    const Meaning* found = nullptr;
    for (const Keyword<Meaning>& row : table) {
        if (Abbreviates(word, row.text)) {
            if (found && !(*found == row.meaning)) {
                return nullptr;
            }
            found = &row.meaning;
        }
    }
    return found;
}

} // namespace recastor
