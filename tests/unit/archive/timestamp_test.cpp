// Moments as text.

#include "archive/outcome/timestamp.h"

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

} // namespace

} // namespace recastor
