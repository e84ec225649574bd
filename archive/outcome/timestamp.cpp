#include "archive/outcome/timestamp.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <limits>
#include <string_view>

namespace recastor {

namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
constexpr std::ptrdiff_t kFractionDigits = 9;

} // namespace

std::string Timestamp(std::int64_t nanoseconds) {
    std::int64_t fraction = nanoseconds % kNanosecondsPerSecond;
    if (fraction < 0) {
        fraction += kNanosecondsPerSecond;
    }
    const std::time_t seconds =
        nanoseconds / kNanosecondsPerSecond - (nanoseconds % kNanosecondsPerSecond < 0 ? 1 : 0);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 64> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(),
                                    "%04d-%02d-%02dT%02d:%02d:%02d.%09ldZ", parts.tm_year + 1900,
                                    parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min,
                                    parts.tm_sec, static_cast<long>(fraction)));
    return text.data();
}

std::optional<std::int64_t> ReadTimestamp(const std::string& text) {
    std::tm parts{};
    const char* const rest = strptime(text.c_str(), "%Y-%m-%dT%H:%M:%S", &parts);
    if (rest == nullptr || *rest != '.') {
        return std::nullopt;
    }
    const char* const digits = rest + 1;
    const char* const end = digits + std::strlen(digits);
    std::uint32_t fraction = 0;
    const char* const zone = std::from_chars(digits, end, fraction).ptr;
    if (zone - digits != kFractionDigits || std::string_view(zone, end) != "Z") {
        return std::nullopt;
    }
    return NanosecondsOf(timegm(&parts), fraction);
}

std::int64_t NanosecondsOf(std::int64_t seconds, std::int64_t fraction) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (seconds < 0) { // both parts below 0
        seconds += 1;
        fraction -= kNanosecondsPerSecond;
        return seconds < (Limits::min() - fraction) / kNanosecondsPerSecond
                   ? Limits::min()
                   : seconds * kNanosecondsPerSecond + fraction;
    }
    return seconds > (Limits::max() - fraction) / kNanosecondsPerSecond
               ? Limits::max()
               : seconds * kNanosecondsPerSecond + fraction;
}

std::int64_t Now() {
    using std::chrono::system_clock;
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               system_clock::now().time_since_epoch())
        .count();
}

} // namespace recastor
