// Moments as text.

#include "archive/outcome/timestamp.h"

#include <limits>

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(Timestamp, IsUtcToTheNanosecond) {
    EXPECT_EQ(Timestamp(0), "1970-01-01T00:00:00.000000000Z");
    EXPECT_EQ(Timestamp(951782400000000001), "2000-02-29T00:00:00.000000001Z");
    EXPECT_EQ(Timestamp(-1), "1969-12-31T23:59:59.999999999Z");
}

TEST(Timestamp, IsReadBack) {
    for (const std::int64_t moment : {0L, -1L, 951782400000000001L, 1763764000123456789L}) {
        EXPECT_EQ(ReadTimestamp(Timestamp(moment)), moment);
    }
    EXPECT_EQ(ReadTimestamp("yesterday"), std::nullopt);
    EXPECT_EQ(ReadTimestamp("2000-02-29T00:00:00Z"), std::nullopt);
    EXPECT_EQ(ReadTimestamp("2000-02-29T00:00:00.5Z"), std::nullopt);
    EXPECT_EQ(ReadTimestamp("2000-02-29T00:00:00.000000001Z "), std::nullopt);
    EXPECT_EQ(ReadTimestamp(""), std::nullopt);
}

TEST(Timestamp, MomentsTooFarAwayAreTheLastOnes) {
    constexpr std::int64_t kFirst = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t kLast = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(NanosecondsOf(9223372036, 854775806), kLast - 1);
    EXPECT_EQ(NanosecondsOf(9223372036, 854775808), kLast);
    EXPECT_EQ(NanosecondsOf(1LL << 40, 0), kLast);
    EXPECT_EQ(NanosecondsOf(-9223372037, 145224193), kFirst + 1);
    EXPECT_EQ(NanosecondsOf(-9223372037, 145224191), kFirst);
    EXPECT_EQ(NanosecondsOf(-(1LL << 40), 999999999), kFirst);
    EXPECT_EQ(NanosecondsOf(-1, 999999999), -1);
    EXPECT_EQ(Timestamp(kLast), "2262-04-11T23:47:16.854775807Z");
    EXPECT_EQ(Timestamp(kFirst), "1677-09-21T00:12:43.145224192Z");
    EXPECT_EQ(ReadTimestamp(Timestamp(kFirst)), kFirst);
    EXPECT_EQ(ReadTimestamp("9999-12-31T23:59:59.999999999Z"), kLast);
}

} // namespace

} // namespace recastor
