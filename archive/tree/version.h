/// The version that the programs tell.
#pragma once

namespace recastor {

inline constexpr const char* kVersion = RECASTOR_VERSION; // the build's, of the whole project

} // namespace recastor
