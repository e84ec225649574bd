/// Internal checks: what must hold unless the program itself is wrong.
///
/// A failed check names the condition, the function and the source unit on standard error and
/// aborts. The checks stay on in release builds: a converter that goes on after its own mistake
/// would write a wrong file. Input errors are reported, not checked this way; one is, on purpose:
/// FORMAT with both BLANK and ZERO, which has always stopped the program.
#pragma once

#include <functional>

/// Stops the program when `condition` is false, naming the condition as it is written.
#define ZELK_ASSERT(condition) ZELK_ASSERT_AS(condition, #condition)

/// The same, with a text of its own in place of the condition's spelling.
#define ZELK_ASSERT_AS(condition, text)                                                            \
    (static_cast<bool>(condition) ? static_cast<void>(0)                                           \
                                  : ::recastor::AssertionFailed(text, __func__, __FILE__))

namespace recastor {

/// Tells standard error which check failed where, runs the pending OnFatalStop action, aborts.
/// `file` is a source file's name; its ending is left off to name the unit.
[[noreturn]] void AssertionFailed(const char* condition, const char* function, const char* file);

/// While it lives, `action` runs before a failed check aborts the program, so that output that
/// is still buffered reaches its file. The last one made is the one that runs.
class OnFatalStop {
public:
    explicit OnFatalStop(std::function<void()> action);
    ~OnFatalStop();
    OnFatalStop(const OnFatalStop&) = delete;
    OnFatalStop& operator=(const OnFatalStop&) = delete;

private:
    std::function<void()> m_previous;
};

} // namespace recastor
