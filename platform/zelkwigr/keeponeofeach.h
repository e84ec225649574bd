/// Lists in which one of several entries for the same thing counts.
#pragma once

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

namespace recastor {

/// Drops every entry whose name an earlier one has. `nameOf` gives an entry's name.
template <class Entry, class NameOf>
void KeepFirstOfEach(std::vector<Entry>& entries, NameOf nameOf) {
    if (entries.size() < 2) { // as in most charts
        return;
    }
    std::unordered_set<std::string> seen;
    std::erase_if(entries, [&](const Entry& entry) { return !seen.insert(nameOf(entry)).second; });
}

/// Drops every entry whose name a later one has.
template <class Entry, class NameOf>
void KeepLastOfEach(std::vector<Entry>& entries, NameOf nameOf) {
    std::reverse(entries.begin(), entries.end());
    KeepFirstOfEach(entries, nameOf);
    std::reverse(entries.begin(), entries.end());
}

} // namespace recastor
