/// Whether a converted file still holds all that stood in its input.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace recastor {

/// The first line of `input` (not of white space only) that `output` does not hold behind the lines
/// before it, either copied or within a comment; nothing when all are there. The blanks around a
/// line do not count, nor does what stands behind a period in it, which the rules of command
/// ends may drop.
std::optional<std::string> FirstLostLine(std::string_view input, std::string_view output);

} // namespace recastor
