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

/// The present moment.
std::int64_t Now();

} // namespace recastor
