#include "platform/zelkbase/zelkassert.h"

#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

namespace recastor {

namespace {

/// The action of the innermost OnFatalStop; empty when there is none.
std::function<void()>& PendingAction() {
    static std::function<void()> action;
    return action;
}

std::string_view SourceUnit(std::string_view file) {
    return file.substr(0, file.rfind('.'));
}

} // namespace

void AssertionFailed(const char* condition, const char* function, const char* file) {
    std::cerr << "Assertion failed: " << condition << ", function " << function << ", source unit "
              << SourceUnit(file) << '\n';
    // Taken out first: a check that fails inside the action must not run it again.
    if (const auto action = std::exchange(PendingAction(), nullptr)) {
        action();
    }
    std::cout.flush();
    std::abort();
}

OnFatalStop::OnFatalStop(std::function<void()> action) :
    m_previous(std::exchange(PendingAction(), std::move(action))) {}

OnFatalStop::~OnFatalStop() {
    PendingAction() = std::move(m_previous);
}

} // namespace recastor
