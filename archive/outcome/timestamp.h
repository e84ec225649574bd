/// Moments as text: exact, readable and sortable.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace recastor {

/// "2026-11-21T22:26:37.123456789Z", of nanoseconds since 1970.
std::string Timestamp(std::int64_t nanoseconds);

/// The moment that Timestamp() made `text` of; nothing for another text.
std::optional<std::int64_t> ReadTimestamp(const std::string& text);

/// Nanoseconds of a moment that is `seconds` since 1970 and `fraction` nanoseconds; one before 1677
/// or behind 2262, which they cannot tell, is the first or the last that they can.
std::int64_t NanosecondsOf(std::int64_t seconds, std::int64_t fraction);

/// The present moment.
std::int64_t Now();

} // namespace recastor
