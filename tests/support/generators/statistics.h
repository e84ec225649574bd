/// Generators of summary functions.
#pragma once

#include "tests/support/generators/words.h"

namespace recastor {

/// What follows the word STATISTICS: functions of every kind in all their forms, with arguments out
/// of the names.
rc::Gen<std::string> StatisticsArguments(const Strings& names);

/// What follows the word SORT.
rc::Gen<std::string> SortArguments(const Strings& names);

} // namespace recastor
