// Laws of the whole conversion.

#include "tests/support/run.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

TEST(ConversionLaws, OrdinaryCommandsComeOutAsTheyWentIn) {
    EXPECT_TRUE(rc::check([] {
        const auto words = *rc::gen::container<std::string>(rc::gen::inRange('a', 'f'));
        RC_ASSERT(ConvertText("FREQUENCIES " + words + ".\n") == "FREQUENCIES " + words + ".\n");
    }));
}

} // namespace

} // namespace recastor
