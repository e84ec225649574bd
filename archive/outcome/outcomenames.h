/// The names by which reports call what the outcomes tell apart.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <string>
#include <string_view>

namespace recastor {

std::string NameOf(FileStatus status);
std::string NameOf(ReportedKind kind);

/// The status or kind that has the name; std::out_of_range when none has.
FileStatus StatusOfName(std::string_view name);
ReportedKind KindOfName(std::string_view name);

} // namespace recastor
