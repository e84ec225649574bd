// What all laws run in.

#include "platform/zelkmb/zelkmb.h"

#include <gtest/gtest.h>

/// The address sanitizer keeps the call stack of every allocation. A generator makes many, so that
/// most of the time of a law would go into that; the innermost calls tell enough.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the sanitizer's name
extern "C" const char* __asan_default_options() {
    return "malloc_context_size=6";
}

namespace recastor {

namespace {

/// Laws draw texts with characters of several bytes, as files have them.
class Locale : public testing::Environment {
public:
    void SetUp() override { EnableLocale(); }
};

const testing::Environment* const kLocale = testing::AddGlobalTestEnvironment(new Locale);

} // namespace

} // namespace recastor
