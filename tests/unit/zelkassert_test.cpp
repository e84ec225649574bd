#include "platform/zelkbase/zelkassert.h"

#include <csignal>
#include <iostream>

#include <gtest/gtest.h>

namespace recastor {

namespace {

void CheckBelow(int value, int bound) {
    ZELK_ASSERT(value < bound);
}

void CheckNamed(bool holds) {
    ZELK_ASSERT_AS(holds, "what must hold");
}

TEST(AssertDeathTest, FailureNamesConditionFunctionAndUnit) {
    EXPECT_DEATH(CheckBelow(2, 1), "^Assertion failed: value < bound, function CheckBelow, source "
                                   "unit .*tests/unit/zelkassert_test\n$");
    EXPECT_DEATH(CheckNamed(false), "^Assertion failed: what must hold, function CheckNamed, "
                                    "source unit .*tests/unit/zelkassert_test\n$");
}

TEST(AssertDeathTest, FailureAborts) {
    EXPECT_EXIT(CheckNamed(false), testing::KilledBySignal(SIGABRT), "");
}

TEST(Assert, WhatHoldsGoesOn) {
    CheckBelow(1, 2);
    CheckNamed(true);
}

TEST(AssertDeathTest, PendingActionRunsBeforeTheAbort) {
    const OnFatalStop outer([] { std::cerr << "outer\n"; });
    EXPECT_DEATH(
        {
            const OnFatalStop inner([] { std::cerr << "inner\n"; });
            CheckNamed(false);
        },
        "zelkassert_test\ninner\n$");
    EXPECT_DEATH(CheckNamed(false), "zelkassert_test\nouter\n$");
}

TEST(AssertDeathTest, ActionThatFailsItselfRunsOnce) {
    const OnFatalStop action([] {
        std::cerr << "action\n";
        CheckBelow(1, 0);
    });
    EXPECT_DEATH(CheckNamed(false),
                 "what must hold.*\naction\nAssertion failed: value < bound, [^\n]*\n$");
}

TEST(AssertDeathTest, ActionThatIsGoneGivesWayToTheOneBefore) {
    {
        const OnFatalStop gone([] { std::cerr << "gone\n"; });
    }
    EXPECT_DEATH(CheckNamed(false), "zelkassert_test\n$");
    const OnFatalStop outer([] { std::cerr << "outer\n"; });
    {
        const OnFatalStop gone([] { std::cerr << "gone\n"; });
    }
    EXPECT_DEATH(CheckNamed(false), "zelkassert_test\nouter\n$");
}

} // namespace

} // namespace recastor
