#include "archive/tree/findlocale.h"

#include <cctype>
#include <clocale>
#include <cstdio>
#include <langinfo.h>
#include <memory>

namespace recastor {

namespace {

/// "UTF-8" and "utf8" are one name.
std::string Plain(const std::string& name) {
    std::string plain;
    for (const char c : name) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return plain;
}

/// The encoding of an installed locale; empty when it is not installed. The process's locale is C
/// again behind it.
std::string EncodingOf(const std::string& name) {
    std::string encoding;
    if (std::setlocale(LC_CTYPE, name.c_str()) != nullptr) {
        encoding = ::nl_langinfo(CODESET);
        static_cast<void>(std::setlocale(LC_CTYPE, "C"));
    }
    return encoding;
}

/// The next name that `locale -a` lists; false behind the last.
bool ReadName(std::FILE* list, std::string& name) {
    name.clear();
    int c = std::fgetc(list);
    for (; c != EOF && c != '\n'; c = std::fgetc(list)) {
        name += static_cast<char>(c);
    }
    return c != EOF;
}

} // namespace

std::string FindLocale(const std::string& encoding) {
    if (Plain(encoding) == Plain("UTF-8")) {
        return "C.UTF-8";
    }
    if (!encoding.empty() && !EncodingOf(encoding).empty()) {
        return encoding;
    }
    // NOLINTNEXTLINE(cert-env33-c): the command is a constant
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> list(::popen("locale -a", "r"),
                                                               &::pclose);
    std::string name;
    while (list != nullptr && ReadName(list.get(), name)) {
        if (Plain(EncodingOf(name)) == Plain(encoding)) {
            return name;
        }
    }
    return "";
}

} // namespace recastor
