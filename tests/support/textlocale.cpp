#include "tests/support/textlocale.h"

#include "platform/zelkmb/zelkmb.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace recastor {

namespace {

constexpr const char* kNameVariable = "LC_ALL";
constexpr const char* kFolderVariable = "LOCPATH";

std::optional<std::string> Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

void SetVariable(const char* name, const std::optional<std::string>& value) {
    if (value) {
        setenv(name, value->c_str(), 1);
    } else {
        unsetenv(name);
    }
}

/// The folder of the locale when the build made it; nothing for one that is installed.
std::optional<std::string> FolderOf(const std::string& locale) {
    const std::filesystem::path folder = RECASTOR_TEST_LOCALES;
    return exists(folder / locale) ? std::optional(folder.string()) : std::nullopt;
}

} // namespace

TextLocale::TextLocale(const std::string& name) :
    m_previousName(Variable(kNameVariable)), m_previousFolder(Variable(kFolderVariable)) {
    SetVariable(kFolderVariable, FolderOf(name));
    SetVariable(kNameVariable, name);
    EnableLocale();
    if (std::setlocale(LC_CTYPE, nullptr) != name) {
        throw std::runtime_error("there is no locale " + name);
    }
}

TextLocale::~TextLocale() {
    SetVariable(kNameVariable, m_previousName);
    SetVariable(kFolderVariable, m_previousFolder);
    EnableLocale();
}

} // namespace recastor
