/// Laws: properties that hold for everything that a generator makes.
#pragma once

#include <cstdlib>
#include <sstream>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

/// Tries a property (a function that draws values with `*generator` and asserts with RC_ASSERT) on
/// `cases` draws and shrinks the one that breaks it. The draws are the same in every run; others
/// are made with a seed in the environment: RC_PARAMS="seed=7 max_success=1000".
template <typename Property>
testing::AssertionResult HoldsAlways(Property&& property, int cases = 100) {
    rc::detail::TestParams params = rc::detail::configuration().testParams;
    if (std::getenv("RC_PARAMS") == nullptr) {
        params.seed = 1;
        params.maxSuccess = cases;
    }
    const rc::detail::TestResult result = rc::detail::checkTestable(
        std::forward<Property>(property), rc::detail::TestMetadata(), params);
    if (result.is<rc::detail::SuccessResult>()) {
        return testing::AssertionSuccess();
    }
    std::ostringstream message;
    rc::detail::printResultMessage(result, message);
    return testing::AssertionFailure() << message.str();
}

} // namespace recastor
