/// The user's locale, for tests of text in several encodings.
#pragma once

#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

/// While it lives the user's locale is another one, and the platform services follow it. Afterwards
/// they follow the locale from before again.
class TextLocale {
public:
    /// An installed locale, or one of those that the tests' build makes.
    explicit TextLocale(const std::string& name);
    ~TextLocale();
    TextLocale(const TextLocale&) = delete;
    TextLocale& operator=(const TextLocale&) = delete;

private:
    std::optional<std::string> m_previousName;
    std::optional<std::string> m_previousFolder;
};

/// A test of text in UTF-8.
class Utf8Test : public testing::Test {
private:
    TextLocale m_locale{"C.UTF-8"};
};

} // namespace recastor
