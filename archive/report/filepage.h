/// The pages of single files in the HTML report.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <string>
#include <string_view>

namespace recastor {

/// Whether the report has a page for the file: there is something to show on it.
bool HasFilePage(const FileOutcome& outcome);

/// Where the file's page lies in the report folder: `files/` and a name of 16 digits made of the
/// path alone, so that later runs and merged reports find it.
std::string FilePageName(std::string_view path);

/// The page: an HTML document with the outcome as data, which the report's script shows. Whatever
/// stands in paths and texts is text there.
std::string FilePage(const FileOutcome& outcome);

} // namespace recastor
