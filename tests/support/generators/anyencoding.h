/// Encodings of text, drawn by a law.
#pragma once

#include "platform/zelkmb/zelkmb.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <rapidcheck.h>

namespace recastor {

/// While it lives text is in one of several encodings: of one byte a character, of one to four, and
/// now and then of unknown bytes.
class AnyEncoding {
public:
    AnyEncoding() :
        m_locale(*rc::gen::elementOf(
            std::vector<std::string>{"C.UTF-8", "zh_CN.GBK", "de_DE.ISO-8859-1"})) {
        if (*rc::gen::weightedElement<bool>({{4, false}, {1, true}})) {
            TreatHighBytesAsCharacters();
        }
    }

private:
    TextLocale m_locale;
};

} // namespace recastor
