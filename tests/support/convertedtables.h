/// The converted commands of an output file.
#pragma once

#include <string>
#include <vector>

namespace recastor {

/// What stands between the comment that begins a CTABLES command and the one that ends it.
struct ConvertedTables {
    std::vector<std::string> messages; ///< each less its "***** "
    std::string commands;              ///< empty when the command could not be converted
};

/// All of them, in the order of the output file.
std::vector<ConvertedTables> ConvertedTablesIn(const std::string& output);

} // namespace recastor
