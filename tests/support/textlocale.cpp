#include "tests/support/textlocale.h"

#include "platform/zelkmb/zelkmb.h"

#include <clocale>
#include <cstdlib>
#include <stdexcept>

namespace recastor {

namespace {

constexpr const char* kNameVariable = "LC_ALL";
constexpr const char* kFolderVariable = "LOCPATH";

std::optional<std::string> Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

void Restore(const char* name, const std::optional<std::string>& value) {
    if (value) {
        setenv(name, value->c_str(), 1);
    } else {
        unsetenv(name);
    }
}

} // namespace

TextLocale::TextLocale(const std::string& name) :
    m_previousName(Variable(kNameVariable)), m_previousFolder(Variable(kFolderVariable)) {
    Follow(name);
}

TextLocale::TextLocale(const std::string& country, const std::string& encoding) :
    m_previousName(Variable(kNameVariable)), m_previousFolder(Variable(kFolderVariable)) {
    const std::string name = country + '.' + encoding;
    const RunResult made = RunProgram(
        "/usr/bin/localedef",
        {"--no-warnings=ascii", "-i", country, "-f", encoding, (m_folder.Path() / name).string()},
        m_folder.Path());
    if (made.status != 0) {
        throw std::runtime_error("cannot make the locale " + name + ": " + made.errors);
    }
    setenv(kFolderVariable, m_folder.Path().c_str(), 1);
    Follow(name);
}

TextLocale::~TextLocale() {
    Restore(kNameVariable, m_previousName);
    Restore(kFolderVariable, m_previousFolder);
    EnableLocale();
}

void TextLocale::Follow(const std::string& name) {
    setenv(kNameVariable, name.c_str(), 1);
    EnableLocale();
    if (std::setlocale(LC_CTYPE, nullptr) != name) {
        throw std::runtime_error("there is no locale " + name);
    }
}

} // namespace recastor
