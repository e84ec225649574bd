/// Which files of a tree are meant, told by patterns.
#pragma once

#include <string>
#include <vector>

namespace recastor {

/// Whether one of the patterns is meant by its user for `path`: one with a slash for the whole
/// relative path, any other for the last name in it. "*", "?" and "[...]" as in a shell, but that
/// they match slashes and leading periods too; bytes are compared.
bool MatchesAny(const std::vector<std::string>& patterns, const std::string& path);

/// `name` in small letters as UTF-8 has them, to find names that differ in case only.
std::string FoldedCase(const std::string& name);

} // namespace recastor
