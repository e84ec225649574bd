#include "tests/support/generators/words.h"

namespace recastor {

namespace {

std::string Lowered(std::string text) {
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return text;
}

std::string Raised(std::string text) {
    for (char& letter : text) {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return text;
}

} // namespace

rc::Gen<int> Below(int end) {
    return rc::gen::resize(kFullSize, rc::gen::inRange(0, end));
}

rc::Gen<bool> OnceIn(int odds) {
    return rc::gen::map(Below(odds), [odds](int drawn) { return drawn == odds - 1; });
}

rc::Gen<std::string> OneOf(const Strings& texts) {
    // The draw and all that it may shrink to share the texts.
    const auto shared = std::make_shared<const Strings>(texts);
    return rc::gen::map(Below(static_cast<int>(texts.size())),
                        [shared](int index) { return (*shared)[static_cast<std::size_t>(index)]; });
}

rc::Gen<std::string> InTurn(const std::vector<rc::Gen<std::string>>& parts) {
    rc::Gen<std::string> all = parts.front();
    for (std::size_t i = 1; i < parts.size(); ++i) {
        all = rc::gen::apply(
            [](const std::string& one, const std::string& next) { return one + next; }, all,
            parts[i]);
    }
    return all;
}

std::string Join(const Strings& texts, const std::string& between) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : between) + text;
    }
    return joined;
}

rc::Gen<std::string> Keyword(const std::string& keyword) {
    const std::string three = keyword.substr(0, 3);
    Strings spellings{keyword, Lowered(keyword), three, Lowered(three)};
    if (keyword.size() > 3) {
        spellings.push_back(three.substr(0, 1) + Lowered(keyword.substr(1)));
        spellings.push_back(three + "x_1");
    }
    return OneOf(spellings);
}

rc::Gen<std::string> NameOf(const Strings& names) {
    Strings forms;
    for (const std::string& name : names) {
        forms.insert(forms.end(), 4, name);
        forms.push_back(Raised(name));
    }
    return OneOf(forms);
}

rc::Gen<std::string> NamesOf(const Strings& names) {
    return rc::gen::apply(Join, OneTo(4, NameOf(names)), OneOf({" ", ", ", ","}));
}

rc::Gen<std::string> QuotedText() {
    return OneOf({"'x'", "'All of them'", "\"Sex of person\"", "'It''s'", "\"say \"\"so\"\"\"",
                  "'ends.'", "''", "'a/b (c) + [d]'", "\"it's\"", "'TABLES /TABLE x'",
                  "'A label that is long enough to need a line of its own, since it goes on'",
                  "'one '+'and two'",
                  "'Stra\xC3\x9F"
                  "e'"});
}

rc::Gen<std::string> NumberText() {
    return OneOf({"1", "0", "25", "97.5", "-1", "- 2", ".5", "+3", "1e1"});
}

rc::Gen<std::string> Equals() {
    return OneOf({"=", " ", " = ", " eq "});
}

} // namespace recastor
