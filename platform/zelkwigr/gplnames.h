/// The names that a GPL block declares: its variables and its computed variables.
#pragma once

#include "platform/zelkwigr/chartfacts.h"

#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// The few names that the variables of one chart have. They differ without regard to case, and the
/// source's own name is one of them.
class GplNames {
public:
    GplNames();

    /// `base` made a GPL name, with `suffix` behind it, and `_2`, `_3`, ... when that is taken.
    std::string Free(std::string_view base, std::string_view suffix = {}) const;

    /// The same; the name is taken from then on.
    std::string Take(std::string_view base, std::string_view suffix = {});

private:
    SmallVector<std::string> m_taken;
};

/// True when a chart's lines name a variable that the data must hold.
bool NamesVariables(const ChartFacts& facts);

/// The variables that the lines of a block name, each by its GPL names; a chart that has a GPL form
/// has few.
class GplVariables {
public:
    /// One variable of the data. It may be meant as scale, as category or as both.
    struct Entry {
        std::string dataName;
        std::string scaleName;    ///< empty when it is not meant so
        std::string categoryName; ///< empty when it is not meant so
    };

    GplVariables() = default;
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

    /// The names taken.
    const GplNames& Names() const { return m_names; }

private:
    const Entry& EntryOf(const ChartVariable& variable) const;

    std::vector<Entry> m_entries;
    GplNames m_names;
};

} // namespace recastor
