/// What TABLES commands parse to, as rows. Adding a case is adding a row to a group, or a group.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace recastor {

/// A command and what DumpParse must say about it.
struct ParseRow {
    std::string command;
    std::string dump;
};

/// The rows about one thing; each group is a test of that name.
struct RowGroup {
    std::string name;
    std::vector<ParseRow> rows;

    /// What the test framework shows of a group.
    friend std::ostream& operator<<(std::ostream& out, const RowGroup& group) {
        return out << group.rows.size() << " rows";
    }
};

/// Commands that parse, with their trees and warnings.
std::vector<RowGroup> TreeRows();

/// Commands that do not, with their errors.
std::vector<RowGroup> ErrorRows();

/// The warnings as DumpParse shows them.
std::string ObsoleteWarning(const std::string& keyword);
std::string UnknownWarning(const std::string& word);
std::string FormatWarning();

} // namespace recastor
