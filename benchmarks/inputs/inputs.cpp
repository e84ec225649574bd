#include "benchmarks/inputs/inputs.h"

#include <algorithm>
#include <stdexcept>

namespace recastor {

namespace {

struct InputKind {
    std::string_view name;
    PhraseGrammar (*grammar)();
};

constexpr InputKind kKinds[] = {
    {"ordinary", OrdinaryGrammar},
    {"tables-small", [] { return TablesGrammar("small"); }},
    {"tables-banner", [] { return TablesGrammar("banner"); }},
    {"tables-wide", [] { return TablesGrammar("wide"); }},
    {"igraph", IgraphGrammar},
    {"cplusplus", CPlusPlusGrammar},
};

PhraseGrammar GrammarOf(std::string_view name) {
    for (const InputKind& kind : kKinds) {
        if (kind.name == name) {
            return kind.grammar();
        }
    }
    throw std::invalid_argument("no kind of input is called " + std::string(name));
}

/// `(prefix1 + prefix2 + ...)`
std::string Stack(const std::string& prefix, std::size_t count) {
    constexpr std::size_t kNamesALine = 10;
    std::string text = "(";
    for (std::size_t i = 1; i <= count; ++i) {
        const char* const separator = i % kNamesALine == 1 ? "\n    + " : " + ";
        text += i == 1 ? "" : separator;
        text += prefix + std::to_string(i);
    }
    return text + ')';
}

} // namespace

std::vector<std::string_view> InputKinds() {
    std::vector<std::string_view> names;
    for (const InputKind& kind : kKinds) {
        names.push_back(kind.name);
    }
    return names;
}

InputGenerator::InputGenerator(std::string_view kind, std::uint64_t seed) :
    m_phrases(GrammarOf(kind), seed) {}

std::string GenerateInput(std::string_view kind, std::size_t bytes, std::uint64_t seed) {
    InputGenerator generator(kind, seed);
    std::string text;
    while (text.size() < bytes) {
        generator.AppendCommand(text);
    }
    return text;
}

std::string GenerateProduct(std::size_t terms) {
    constexpr std::size_t kLongestStack = 100;
    std::string text = "TABLES\n  /TABLE=satisf BY ";
    for (char prefix = 'a'; terms > 1; ++prefix) {
        const std::size_t count = std::min(terms, kLongestStack);
        text += (prefix == 'a' ? "" : "\n    > ") + Stack(std::string(3, prefix), count);
        terms /= count;
    }
    return text + "\n  /STATISTICS=COUNT.\n";
}

} // namespace recastor
