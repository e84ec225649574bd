#include "archive/tree/patterns.h"

#include "archive/outcome/showntext.h"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cwchar>
#include <cwctype>
#include <fnmatch.h>
#include <memory>
#include <string_view>
#include <type_traits>

namespace recastor {

namespace {

/// The calling thread's locale for as long as this lives.
class LocaleOfUtf8 {
public:
    LocaleOfUtf8() : m_previous(::uselocale(Utf8())) {}
    ~LocaleOfUtf8() { ::uselocale(m_previous); }
    LocaleOfUtf8(const LocaleOfUtf8&) = delete;
    LocaleOfUtf8& operator=(const LocaleOfUtf8&) = delete;

private:
    struct FreeLocale {
        void operator()(locale_t locale) const { ::freelocale(locale); }
    };

    static locale_t Utf8() {
        static const std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale> locale(
            ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr));
        return locale.get(); // null, where there is none, leaves the locale as it is
    }

    locale_t m_previous;
};

} // namespace

bool MatchesAny(const std::vector<std::string>& patterns, const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1); // npos + 1 is 0
    return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
        const bool whole = pattern.find('/') != std::string::npos;
        return ::fnmatch(pattern.c_str(), whole ? path.c_str() : name.c_str(), 0) == 0;
    });
}

std::string FoldedCase(const std::string& name) {
    const LocaleOfUtf8 locale;
    std::string folded;
    std::string_view rest(name);
    while (!rest.empty()) {
        const std::size_t length = std::max<std::size_t>(Utf8Length(rest), 1);
        wchar_t wide = 0;
        std::mbstate_t state{};
        char bytes[MB_LEN_MAX];
        std::mbstate_t back{};
        const std::size_t read = std::mbrtowc(&wide, rest.data(), length, &state);
        const std::size_t written =
            read == length
                ? std::wcrtomb(bytes,
                               static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(wide))),
                               &back)
                : static_cast<std::size_t>(-1);
        folded.append(written <= MB_LEN_MAX ? std::string_view(bytes, written)
                                            : rest.substr(0, length));
        rest.remove_prefix(length);
    }
    return folded;
}

} // namespace recastor
