/// The folders of a run: do they fit together?
#pragma once

#include "archive/tree/treeoptions.h"

#include <string>

namespace recastor {

/// Makes the folder and those above it where they are missing. Throws FileError.
void MakeFolders(const std::string& path);

/// The same for a folder inside of one that the user named: a link in its place is refused, since
/// nothing is to be written outside.
void MakeFolderInside(const std::string& path);

/// Makes the target and report folders, so far as the run writes to them. Throws FileError when one
/// cannot be used, and when the target is the source or holds it: sources would be written over.
void PrepareFolders(const TreeOptions& options);

} // namespace recastor
