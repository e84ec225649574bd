/// The pages of the HTML report, as files in the report folder.
#pragma once

#include "archive/outcome/fileoutcome.h"

#include <string>

namespace recastor {

/// Makes what pages need: their folders, and the scripts and the style sheet that they share.
/// Throws FileError.
void PreparePages(const std::string& reportFolder);

/// Writes the file's page, if there is something to show on it. Throws FileError.
void WritePage(const std::string& reportFolder, const FileOutcome& outcome);

/// Whether the file's page is there, or needs not be.
bool HasItsPage(const std::string& reportFolder, const FileOutcome& outcome);

/// Copies the file's page from another report, if it has one. Throws FileError.
void CopyPage(const std::string& from, const std::string& to, const FileOutcome& outcome);

} // namespace recastor
