/// Generators of the subcommands of TABLES that are neither tables nor declarations of names, and
/// of what declares names. Each text is less its slash.
#pragma once

#include "tests/support/generators/tablesmodel.h"

namespace recastor {

/// AUTOLABEL, BASE, GBASE, MISSING, FORMAT in all their forms.
rc::Gen<std::string> SettingSubcommands();

/// TITLE, CAPTION, CORNER of no, one and several texts, and SORT by the names.
rc::Gen<std::string> HeadingSubcommands(const Strings& names);

/// Subcommands that are left out with a warning.
rc::Gen<std::string> ObsoleteSubcommands();

rc::Gen<TablesGroup> Groups(const std::string& name);

rc::Gen<TablesTotal> Totals(const std::string& name);

} // namespace recastor
