/// The installed locale that has an encoding.
#pragma once

#include <string>

namespace recastor {

/// The name of a locale whose text is in `encoding`, which is the name of a locale or of an
/// encoding, in any spelling of letters and signs; empty when none is installed.
std::string FindLocale(const std::string& encoding);

} // namespace recastor
