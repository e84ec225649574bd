/// The user's locale, for tests of text in several encodings.
#pragma once

#include "tests/support/run.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

/// While it lives the user's locale is another one, and the platform services follow it. Afterwards
/// they follow the locale from before again.
class TextLocale {
public:
    /// A locale that is installed everywhere, such as "C.UTF-8".
    explicit TextLocale(const std::string& name);
    /// The locale of a country ("de_DE") in an encoding ("ISO-8859-1"), generated for the test.
    TextLocale(const std::string& country, const std::string& encoding);
    ~TextLocale();
    TextLocale(const TextLocale&) = delete;
    TextLocale& operator=(const TextLocale&) = delete;

private:
    void Follow(const std::string& name);

    TemporaryFolder m_folder;
    std::optional<std::string> m_previousName;
    std::optional<std::string> m_previousFolder;
};

/// A test of text in UTF-8.
class Utf8Test : public testing::Test {
private:
    TextLocale m_locale{"C.UTF-8"};
};

} // namespace recastor
