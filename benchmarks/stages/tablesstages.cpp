#include "benchmarks/stages/stages.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "ctables/recastor/zelktokensequence.h"

#include <functional>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

namespace recastor {

namespace {

/// The sizes of TABLES commands.
const std::vector<std::string_view> kSizes{"tables-small", "tables-banner", "tables-wide"};

TbTrTablesCommand& TokenizedCommand(const std::string& text) {
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    command.Reset(std::make_unique<ZELKTokenSequence>(text, false, 0).release());
    return command;
}

TbTrParseNode& ParsedCommand(const std::string& text) {
    TbTrTablesCommand& command = TokenizedCommand(text);
    benchmark::DoNotOptimize(yyparse());
    command.DropTokens();
    return *command.GetParseTree();
}

std::size_t MakeGrammarCodes(const Sample& sample, Stopwatch& watch) {
    for (const std::string& text : sample.commands) {
        TbTrTablesCommand& command = TokenizedCommand(text);
        watch.Start();
        ZELKToken* token = nullptr;
        while (command.GetNextToken(token) != 0) {
            const std::unique_ptr<ZELKToken> owner(token);
        }
        watch.Stop();
    }
    return sample.text.size();
}

std::size_t Parse(const Sample& sample, Stopwatch& watch) {
    for (const std::string& text : sample.commands) {
        TokenizedCommand(text);
        watch.Start();
        benchmark::DoNotOptimize(yyparse());
        watch.Stop();
    }
    return sample.text.size();
}

OpaqueValue TokenValue(const std::string& text, int code) {
    OpaqueValue value;
    OpaqueValue_Init(value);
    OpaqueValue_SetZELKToken(value,
                             new ZELKStringToken(PaddedText(text), 1, 1, PaddedText(text),
                                                 TokenSequenceBase::kNotOperator),
                             code);
    return value;
}

/// The actions for a stack of the names A0 + A1 + ..., as long as the sample.
std::size_t BuildStack(const Sample& sample, Stopwatch& watch) {
    std::vector<OpaqueValue> names;
    std::size_t bytes = 0;
    while (bytes < sample.text.size()) {
        const std::string name = 'A' + std::to_string(names.size());
        bytes += name.size() + 1; // and the plus sign
        names.push_back(TokenValue(name, SP_VARNAME));
    }
    watch.Start();
    OpaqueValue stack = table_tableItem(names.front());
    for (std::size_t i = 1; i < names.size(); ++i) {
        stack = table_tableExpressionStack(stack, common_nothing(), table_tableItem(names[i]));
    }
    OpaqueValue_Clear(stack);
    watch.Stop();
    return bytes;
}

/// Every dimension of every table.
void ForEachDimension(const TbTrParseNode& root, const std::function<void(TbTrParseNode&)>& visit) {
    for (unsigned group = 1; group < root.GetChildCount(); ++group) {
        const TbTrParseNode& table = *root.GetChild(group)->GetChild(0);
        for (unsigned i = 0; i < table.GetChildCount(); ++i) {
            if (TbTrParseNode* const dimension = table.GetChild(i)) {
                visit(*dimension);
            }
        }
    }
}

std::size_t MultiplyOut(const Sample& sample, Stopwatch& watch) {
    for (const std::string& text : sample.commands) {
        const TbTrParseNode& root = ParsedCommand(text);
        watch.Start();
        ForEachDimension(root, [](TbTrParseNode& dimension) {
            ParseTree::Normalize(dimension);
            benchmark::DoNotOptimize(ParseTree::MultiplyOut(&dimension));
        });
        watch.Stop();
    }
    return sample.text.size();
}

std::size_t Translate(const Sample& sample, Stopwatch& watch) {
    std::string result;
    for (const std::string& text : sample.commands) {
        TbTrParseNode& root = ParsedCommand(text);
        watch.Start();
        benchmark::DoNotOptimize(ParseTree::TranslateTablesCommand(&root, result));
        watch.Stop();
    }
    return sample.text.size();
}

/// The words of a text as pieces.
OutputSequence PiecesOf(const std::string& text) {
    OutputSequence pieces;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" \n", start), text.size());
        pieces.PushBack(text.substr(start, end - start), true);
        start = end + 1;
    }
    return pieces;
}

std::size_t LayOut(const Sample& sample, Stopwatch& watch) {
    constexpr unsigned kWidth = 80;
    constexpr unsigned kIndentation = 2;
    for (const std::string& text : sample.commands) {
        const OutputSequence pieces = PiecesOf(text);
        watch.Start();
        benchmark::DoNotOptimize(pieces.Print(kWidth, kIndentation));
        watch.Stop();
    }
    return sample.text.size();
}

} // namespace

std::vector<Stage> TablesStages() {
    return {
        {"classifier", kSizes, MakeGrammarCodes},
        {"parser, with classifier and builder", kSizes, Parse},
        {"builder", {"tables-wide"}, BuildStack},
        {"normalisation", kSizes, MultiplyOut},
        {"translation, with normalisation and layout", kSizes, Translate},
        {"layout", {"tables-banner", "tables-wide"}, LayOut},
    };
}

} // namespace recastor
