/// The inputs that benchmarks are run on.
#pragma once

#include "benchmarks/inputs/phrasegenerator.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// The names of the kinds of inputs: `ordinary` (no command to convert), `tables-small`,
/// `tables-banner` and `tables-wide` (TABLES commands only, of about 180 bytes, 2 KB and 13 KB),
/// `igraph` (IGRAPH commands only), `cplusplus` (functions, for a formatter to work on).
std::vector<std::string_view> InputKinds();

/// An endless input of one kind, command by command.
class InputGenerator {
public:
    /// Throws std::invalid_argument for an unknown kind.
    InputGenerator(std::string_view kind, std::uint64_t seed);

    /// Appends the next command with the line break behind it.
    void AppendCommand(std::string& text) { m_phrases.Append("command", text); }

private:
    PhraseGenerator m_phrases;
};

/// Whole commands of the kind, `bytes` bytes and what is left of the last one.
std::string GenerateInput(std::string_view kind, std::size_t bytes, std::uint64_t seed);

/// One TABLES command whose columns, stacks nested in each other, multiply out to `terms` terms, a
/// power of ten.
std::string GenerateProduct(std::size_t terms);

PhraseGrammar OrdinaryGrammar();
/// The size is that of the kind: small, banner or wide.
PhraseGrammar TablesGrammar(std::string_view size);
PhraseGrammar IgraphGrammar();
PhraseGrammar CPlusPlusGrammar();

/// Names of variables, texts for titles and labels: what the grammars have in common.
PhraseGrammar SurveyWords();

} // namespace recastor
