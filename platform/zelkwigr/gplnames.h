/// The names that a GPL block declares: its variables and its computed variables.
#pragma once

#include "platform/zelkwigr/chartfacts.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace recastor {

/// Gives out names that GPL can hold, each once without regard to case. The source's own name is
/// taken from the beginning.
class GplNames {
public:
    /// `base` made a GPL name, with `suffix` behind it, and `_2`, `_3`, ... when that is taken.
    std::string Take(std::string_view base, std::string_view suffix = {});

private:
    std::unordered_set<std::string> m_taken{"s"}; ///< in lower case
};

/// The variables that the lines of a block name, each by its GPL names.
class GplVariables {
public:
    /// One variable of the data. It may be meant as scale, as category or as both.
    struct Entry {
        std::string dataName;
        std::string scaleName;    ///< empty when it is not meant so
        std::string categoryName; ///< empty when it is not meant so
    };

    /// The variables of a chart that has a GPL form.
    explicit GplVariables(const ChartFacts& facts);

    /// In the order of their lines.
    const std::vector<Entry>& Entries() const { return m_entries; }

    /// The GPL name of a variable where it is meant in that way; it must be one that is named so.
    const std::string& ScaleName(const ChartVariable& variable) const;
    const std::string& CategoryName(const ChartVariable& variable) const;
    const std::string& LabelName(const ChartVariable& variable) const;
    const std::string& NameOf(const ChartDimension& dimension) const;

    /// The variables that the data must hold, in their own spelling, one blank between.
    std::string DataNames() const;

    /// The names taken, for those who add to them.
    const GplNames& Names() const { return m_names; }

private:
    const Entry& EntryOf(const ChartVariable& variable) const;

    std::vector<Entry> m_entries;
    std::unordered_map<std::string, std::size_t> m_places; ///< by name in lower case
    GplNames m_names;
};

} // namespace recastor
