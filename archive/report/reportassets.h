/// The report's style sheet and scripts, which are built into the program.
#pragma once

#include <array>
#include <string_view>

namespace recastor {

/// What lies in the report's folder `assets` for the pages of files to load.
inline constexpr std::array<std::string_view, 2> kReportAssets{"file.js", "report.css"};

/// The content of `file.js`, `index.js` or `report.css`.
std::string_view ReportAsset(std::string_view name);

} // namespace recastor
