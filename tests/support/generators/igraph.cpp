#include "tests/support/generators/igraph.h"

#include "tests/support/generators/igraphforms.h"
#include "tests/support/generators/words.h"

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace recastor {

namespace {

/// So many choices are made for one command; behind them the first alternative is always taken.
constexpr int kChoices = 400;

/// What decides, drawn in advance, so that rapidcheck makes a command smaller by making numbers
/// smaller: the first alternative is the plainest.
class Choices {
public:
    explicit Choices(const std::vector<std::uint16_t>& numbers) : m_numbers(numbers) {}

    /// A number below `end`.
    std::size_t Below(std::size_t end) {
        return m_next < m_numbers.size() ? m_numbers[m_next++] % end : 0;
    }
    /// True once in `odds` choices.
    bool OnceIn(std::size_t odds) { return Below(odds) == odds - 1; }

    template <class Item>
    void Shuffle(std::vector<Item>& items) {
        for (std::size_t i = 0; i + 1 < items.size(); ++i) {
            std::swap(items[i], items[i + Below(items.size() - i)]);
        }
    }

private:
    const std::vector<std::uint16_t>& m_numbers;
    std::size_t m_next = 0;
};

/// What `make` makes of choices.
template <class Make>
auto ChosenBy(Make make) {
    const auto numbers =
        rc::gen::resize(kFullSize, rc::gen::container<std::vector<std::uint16_t>>(
                                       kChoices, rc::gen::arbitrary<std::uint16_t>()));
    return rc::gen::map(numbers, [make](const std::vector<std::uint16_t>& drawn) {
        Choices choices(drawn);
        return make(choices);
    });
}

std::vector<std::string> SplitAt(char separator, std::string_view text) {
    std::vector<std::string> pieces;
    std::istringstream stream{std::string(text)};
    for (std::string piece; std::getline(stream, piece, separator);) {
        pieces.push_back(piece);
    }
    return pieces;
}

IgraphToken TokenOf(const std::string& text) {
    if (text == "<left-bracket>" || text == "<right-bracket>") {
        return {IgraphToken::Kind::kOther, text == "<left-bracket>" ? "[" : "]"};
    }
    const char first = text.front();
    if (first >= 'A' && first <= 'Z') {
        const std::size_t tilde = text.find('~');
        std::string keyword = text;
        keyword.erase(std::remove(keyword.begin(), keyword.end(), '~'), keyword.end());
        return {IgraphToken::Kind::kKeyword, keyword, std::min(tilde, keyword.size())};
    }
    const bool symbol = std::string_view("'\"()=+-.0123456789").find(first) != std::string::npos;
    return {symbol ? IgraphToken::Kind::kOther : IgraphToken::Kind::kName, text};
}

/// Makes tokens of forms.
class Expander {
public:
    Expander(Choices& choices, IgraphTokens& tokens) : m_choices(choices), m_tokens(tokens) {}

    void Expand(std::string_view form) {
        const std::vector<std::string> items = SplitAt(' ', form);
        Expand(items, 0, items.size());
    }

private:
    using Items = std::vector<std::string>;

    void Expand(const Items& items, std::size_t from, std::size_t to) {
        while (from < to) {
            const std::string& item = items[from];
            if (item == "[" || item == "{") {
                const std::size_t close = Partner(items, from);
                if (item == "{") {
                    ExpandOneOf(items, from + 1, close);
                } else if (m_choices.OnceIn(2)) {
                    Expand(items, from + 1, close);
                }
                from = close + 1;
                continue;
            }
            ExpandItem(item);
            ++from;
        }
    }

    void ExpandItem(const std::string& item) {
        for (const IgraphPart& part : IgraphParts()) {
            if (item.front() == '<' && item.substr(1, item.size() - 2) == part.name) {
                Expand(part.form);
                return;
            }
        }
        m_tokens.push_back(TokenOf(item));
    }

    void ExpandOneOf(const Items& items, std::size_t from, std::size_t to) {
        std::vector<std::size_t> bounds = {from};
        int depth = 0;
        for (std::size_t i = from; i < to; ++i) {
            depth += Deepens(items[i]);
            if (depth == 0 && items[i] == "|") {
                bounds.push_back(i + 1);
            }
        }
        bounds.push_back(to + 1);
        const std::size_t taken = m_choices.Below(bounds.size() - 1);
        Expand(items, bounds[taken], bounds[taken + 1] - 1);
    }

    static std::size_t Partner(const Items& items, std::size_t open) {
        int depth = 0;
        for (std::size_t i = open;; ++i) {
            depth += Deepens(items.at(i));
            if (depth == 0) {
                return i;
            }
        }
    }

    static int Deepens(const std::string& item) {
        return item == "[" || item == "{" ? 1 : item == "]" || item == "}" ? -1 : 0;
    }

    Choices& m_choices;
    IgraphTokens& m_tokens;
};

IgraphTokens Expanded(Choices& choices, std::string_view form) {
    IgraphTokens tokens;
    Expander(choices, tokens).Expand(form);
    return tokens;
}

IgraphSubcommand SubcommandOf(Choices& choices, const IgraphForm& form) {
    IgraphSubcommand subcommand;
    subcommand.accumulates = form.accumulates;
    subcommand.head = Expanded(choices, form.head);
    for (std::string_view option : form.options) {
        if (choices.OnceIn(3)) {
            subcommand.options.push_back(Expanded(choices, option));
        }
    }
    choices.Shuffle(subcommand.options);
    return subcommand;
}

const IgraphForm& FormNamed(const std::string& name) {
    for (const IgraphForm& form : IgraphForms()) {
        if (form.name == name) {
            return form;
        }
    }
    throw std::invalid_argument("no such form: " + name);
}

/// How many a family takes of a slot: `a|b?`.
std::size_t CountOf(Choices& choices, char quantity) {
    switch (quantity) {
    case '?':
        return choices.OnceIn(3) ? 1 : 0;
    case '*':
        return choices.OnceIn(3) ? 1 + choices.Below(2) : 0;
    case '+':
        return 1 + choices.Below(2);
    default:
        return 1;
    }
}

void AddSubcommands(Choices& choices, std::string_view slots, IgraphCommand& command) {
    for (std::string slot : SplitAt(' ', slots)) {
        const char quantity = slot.back();
        if (quantity == '?' || quantity == '*' || quantity == '+') {
            slot.pop_back();
        }
        const std::vector<std::string> names = SplitAt('|', slot);
        for (std::size_t count = CountOf(choices, quantity); count > 0; --count) {
            const IgraphForm& form = FormNamed(names[choices.Below(names.size())]);
            command.subcommands.push_back(SubcommandOf(choices, form));
        }
    }
}

bool IsThreeDimensional(const IgraphFamily& family) {
    return family.subcommands.find("coordinate-three") != std::string_view::npos;
}

IgraphCommand ValidCommand(Choices& choices) {
    const auto families = IgraphFamilies();
    const IgraphFamily& family = families[choices.Below(families.size())];
    IgraphCommand command;
    command.family = family.name;
    AddSubcommands(choices, family.subcommands, command);
    constexpr std::string_view kCoordinate = "coordinate? ";
    AddSubcommands(choices,
                   IsThreeDimensional(family) ? IgraphFrame().substr(kCoordinate.size())
                                              : IgraphFrame(),
                   command);
    choices.Shuffle(command.subcommands);
    return command;
}

IgraphCommand AnyCommand(Choices& choices) {
    constexpr std::size_t kMost = 12;
    const std::vector<IgraphForm>& forms = IgraphForms();
    IgraphCommand command;
    command.family = "any";
    for (std::size_t count = choices.Below(kMost); count > 0; --count) {
        const IgraphForm& form = forms[choices.Below(forms.size())];
        command.subcommands.push_back(SubcommandOf(choices, form));
    }
    return command;
}

IgraphCommand Reordered(Choices& choices, const IgraphCommand& command) {
    IgraphCommand reordered = command;
    choices.Shuffle(reordered.subcommands);
    auto accumulating = reordered.subcommands.begin();
    for (const IgraphSubcommand& subcommand : command.subcommands) {
        if (subcommand.accumulates) {
            accumulating = std::find_if(accumulating, reordered.subcommands.end(),
                                        [](const auto& other) { return other.accumulates; });
            *accumulating++ = subcommand;
        }
    }
    for (IgraphSubcommand& subcommand : reordered.subcommands) {
        choices.Shuffle(subcommand.options);
    }
    return reordered;
}

std::string InAnyCase(Choices& choices, std::string text) {
    for (char& letter : text) {
        const char lower = static_cast<char>(letter | 0x20);
        if (lower >= 'a' && lower <= 'z' && choices.OnceIn(2)) {
            letter = static_cast<char>(letter ^ 0x20);
        }
    }
    return text;
}

std::string Respelled(Choices& choices, const IgraphToken& token) {
    if (token.kind == IgraphToken::Kind::kOther) {
        return token.text == "=" && choices.OnceIn(3) ? "" : token.text;
    }
    std::string text = token.text;
    if (token.kind == IgraphToken::Kind::kKeyword) {
        text.resize(text.size() - choices.Below(text.size() - token.shortest + 1));
    }
    return InAnyCase(choices, text);
}

std::string RespelledCommand(Choices& choices, const IgraphCommand& command) {
    std::string text = "igraph";
    for (const IgraphSubcommand& subcommand : command.subcommands) {
        const bool needsSlash = &subcommand != &command.subcommands.front();
        text += needsSlash || choices.OnceIn(2) ? " /" : " ";
        text += choices.OnceIn(4) && text.back() == '/' ? "/ " : "";
        for (const IgraphToken& token : subcommand.head) {
            text += Respelled(choices, token) + " ";
        }
        for (const IgraphTokens& option : subcommand.options) {
            for (const IgraphToken& token : option) {
                text += Respelled(choices, token) + " ";
            }
        }
    }
    return text + (choices.OnceIn(3) ? "//" : "");
}

constexpr const char* kGarbage[] = {"/",   "(",    ")",     "=",  "-",   "'x'",    "5",   "*",
                                    "by",  "ALL",  "$pct",  "[",  "]",   "LABEL",  "VAR", "x",
                                    "BAR", "TYPE", "SCALE", "EQ", "1e9", "&**",    "%",   "NONE",
                                    "MIN", "!a",   "N",     "..", "-1",  "METHOD", "//",  ":"};

void Mangle(Choices& choices, std::vector<std::string>& words) {
    const std::size_t place = choices.Below(words.size());
    const auto at = words.begin() + static_cast<std::ptrdiff_t>(place);
    switch (choices.Below(4)) {
    case 0:
        words.erase(at);
        break;
    case 1:
        words.insert(at, std::string(words[choices.Below(words.size())]));
        break;
    case 2:
        std::swap(*at, words[choices.Below(words.size())]);
        break;
    default:
        words.insert(at, kGarbage[choices.Below(std::size(kGarbage))]);
    }
}

} // namespace

std::vector<std::string> IgraphWords(const IgraphCommand& command) {
    std::vector<std::string> words = {"IGRAPH"};
    const auto add = [&words](const IgraphTokens& tokens) {
        for (const IgraphToken& token : tokens) {
            words.push_back(token.text);
        }
    };
    for (const IgraphSubcommand& subcommand : command.subcommands) {
        words.emplace_back("/");
        add(subcommand.head);
        std::for_each(subcommand.options.begin(), subcommand.options.end(), add);
    }
    return words;
}

std::string IgraphText(const IgraphCommand& command) {
    return Join(IgraphWords(command), " ");
}

std::ostream& operator<<(std::ostream& out, const IgraphCommand& command) {
    return out << command.family << ": " << IgraphText(command);
}

rc::Gen<IgraphCommand> ValidIgraphs() {
    return ChosenBy(ValidCommand);
}

rc::Gen<IgraphCommand> AnyIgraphs() {
    return ChosenBy(AnyCommand);
}

rc::Gen<IgraphCommand> ReorderedIgraphs(const IgraphCommand& command) {
    return ChosenBy([command](Choices& choices) { return Reordered(choices, command); });
}

rc::Gen<std::string> RespelledIgraphs(const IgraphCommand& command) {
    return ChosenBy([command](Choices& choices) { return RespelledCommand(choices, command); });
}

rc::Gen<std::string> MangledIgraphs(const IgraphCommand& command) {
    return ChosenBy([command](Choices& choices) {
        constexpr std::size_t kMost = 6;
        std::vector<std::string> words = IgraphWords(command);
        for (std::size_t count = 1 + choices.Below(kMost); count > 0 && !words.empty(); --count) {
            Mangle(choices, words);
        }
        return Join(words, " ");
    });
}

} // namespace recastor
