// What the program does to be fast, beside the plainest reading of the same rules.

#include "benchmarks/inputs/inputs.h"
#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/tokenscan.h"
#include "ctables/recastor/zelktokenvector.h"
#include "tests/support/generators/anyencoding.h"
#include "tests/support/generators/igraph.h"
#include "tests/support/generators/syntaxfile.h"
#include "tests/support/generators/syntaxtext.h"
#include "tests/support/law.h"
#include "tests/support/plain/plaincommands.h"
#include "tests/support/plain/plainconversion.h"
#include "tests/support/plain/plaintokens.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace recastor {

namespace {

class PlainPathLaws : public Utf8Test {};

std::string Row(int type, const std::string& raw, const std::string& value, double number, int code,
                int line, int column) {
    std::ostringstream row;
    row << type << '|' << raw << '|' << value << '|' << number << '|' << code << '@' << line << ':'
        << column << '\n';
    return row.str();
}

std::string Row(const ParseError& error) {
    long line = 0;
    int column = 0;
    error.GetLineAndCol(line, column);
    return "error " + std::to_string(error.GetErrorID()) + '@' + std::to_string(line) + ':' +
           std::to_string(column);
}

/// What `read` returns, or the error that it ends in.
template <typename Read>
std::string ResultOf(const Read& read) {
    try {
        return read();
    } catch (const ParseError& error) {
        return Row(error);
    }
}

std::string ProductTokens(const std::string& text, bool batch, int limit) {
    return ResultOf([&] {
        const ZELKTokenVector tokens(text.c_str(), batch, limit);
        // The states of special commands begin at 3, their kinds at 1.
        const int kind = std::max(tokens.TypeOfCommand() - 2, 0);
        std::string rows = std::to_string(kind) + '\n';
        for (int i = 0; i < tokens.Count(); ++i) {
            const ZELKToken& token = tokens[i];
            int line = 0;
            int column = 0;
            token.StartLocation(line, column);
            rows += Row(token.Type(), token.AsString(true), token.AsString(false), token.AsNumber(),
                        token.OpCode(), line, column);
        }
        return rows;
    });
}

std::string ExpectedTokens(const std::string& text, bool batch, int limit) {
    return ResultOf([&] {
        const PlainTokens tokens = ReadTokens(text, batch, limit);
        std::string rows = std::to_string(tokens.kind) + '\n';
        for (const PlainToken& token : tokens.tokens) {
            rows += Row(token.type, token.raw, token.value, token.number, token.code, token.line,
                        token.column);
        }
        return rows;
    });
}

std::string Row(const std::string& text, std::int64_t firstLine, int kind) {
    return std::to_string(firstLine) + ' ' + std::to_string(kind) + ' ' + text;
}

std::string ProductCommands(const std::string& file, bool batch) {
    std::string rows;
    const std::string error = ResultOf([&] {
        std::istringstream input(file);
        CommandStream commands(input, batch);
        while (!commands.NextCommand()) {
            rows +=
                Row(commands.CommandString(), commands.FirstLineNumber(), commands.TypeOfCommand());
        }
        return std::string();
    });
    return rows + error;
}

std::string ExpectedCommands(const std::string& file, bool batch) {
    const PlainCommands commands = CutIntoCommands(file, batch);
    std::string rows;
    for (const PlainCommand& command : commands.commands) {
        rows += Row(command.text, command.firstLine, command.kind);
    }
    return rows + (commands.error ? Row(*commands.error) : "");
}

/// Commands of any sort, sound or not.
std::string AnyCommands(bool batch) {
    switch (*Below(8)) {
    case 0: {
        const SyntaxFile file = *SyntaxFiles();
        return batch ? BatchText(file) : InteractiveText(file);
    }
    case 1:
        return IgraphText(*ValidIgraphs()) + ".\n";
    case 2:
        return *MangledIgraphs(*AnyIgraphs()) + ".\n";
    case 3:
        return *AnySyntax();
    default: {
        const std::string kind = *OneOf({"ordinary", "ordinary", "tables-small", "igraph"});
        const auto bytes = static_cast<std::size_t>(1 + *Below(800));
        return GenerateInput(kind, bytes, static_cast<std::uint64_t>(*Below(1'000'000)));
    }
    }
}

bool Holds(std::string text, const std::string& upperCasedWord) {
    for (char& c : text) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return text.find(upperCasedWord) != std::string::npos;
}

/// The text with pieces put in and taken out: quotes, faulty tokens, bytes that are no text.
std::string Damaged(std::string text) {
    static const Strings pieces{
        "'",      "\"",           "/*",   "*/",  "1e", "1e999",  "0x1F",           "`",
        "\xE4",   "\xFF",         ".",    ".\n", "\r", "\n\n",   "\xC3\xA9",       "\n+ ",
        "\t",     "\xE2\x82\xAC", "\n* ", ",",   "+",  "'a'+\n", "\nBEGIN DATA\n", "\nEND DATA\n",
        "\nCOM ", "\nTAB "};
    while (*OnceIn(2)) {
        const auto at = *rc::gen::inRange<std::size_t>(0, text.size() + 1);
        text.replace(at, static_cast<std::size_t>(*Below(4)), *OneOf(pieces));
    }
    return text;
}

/// Whether the text may hold FORMAT=BLANK ZERO, on which the program stops itself.
bool MayStopTheProgram(const std::string& text) {
    return Holds(text, "BLA") && Holds(text, "ZER");
}

/// A whole file: commands of any sort, with line ends of any kind, and now and then a mark in
/// front.
std::string AnyFile(bool batch) {
    std::string file = *OneOf({"", "", "", "\xEF\xBB\xBF"});
    for (int i = *Below(5); i > 0; --i) {
        const std::string commands = AnyCommands(batch);
        const std::string damaged = *OnceIn(3) ? Damaged(commands) : commands;
        file += MayStopTheProgram(damaged) ? commands : damaged;
    }
    const std::string lineEnd = *OneOf({"\n", "\n", "\r\n", "\r"});
    std::string result;
    for (const char c : file) {
        result += c == '\n' ? lineEnd : std::string(1, c);
    }
    return result;
}

TEST_F(PlainPathLaws, TokensAreThoseOfAPlainReader) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const bool batch = *rc::gen::arbitrary<bool>();
            const std::string text = AnyFile(batch);
            const int limit = *rc::gen::elementOf(std::vector<int>{0, 0, 1, 2, 5});
            RC_ASSERT(ProductTokens(text, batch, limit) == ExpectedTokens(text, batch, limit));
        },
        2000));
}

TEST_F(PlainPathLaws, ErrorsOfCopiedCommandsAreThoseOfAPlainReader) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const bool batch = *rc::gen::arbitrary<bool>();
            const std::string text = AnyFile(batch);
            const std::string expected = ResultOf([&] {
                RC_PRE(ReadTokens(text, batch, 0).kind == 0);
                return std::string();
            });
            RC_ASSERT(expected == ResultOf([&] {
                          CheckTokens(text.c_str(), batch);
                          return std::string();
                      }));
        },
        2000));
}

TEST_F(PlainPathLaws, EndsOfCommandsAreThoseOfAPlainReader) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const std::string text = AnyFile(false);
            const bool freeText = *rc::gen::arbitrary<bool>();
            RC_ASSERT(
                ResultOf([&] {
                    return std::to_string(FindEndOfCommand(text.c_str(), text.size(), freeText));
                }) == ResultOf([&] { return std::to_string(PlainEndOfCommand(text, freeText)); }));
        },
        2000));
}

TEST_F(PlainPathLaws, CommandsAndTheirKindsAreThoseOfAPlainReader) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const bool batch = *rc::gen::arbitrary<bool>();
            const std::string file = AnyFile(batch);
            RC_ASSERT(ProductCommands(file, batch) == ExpectedCommands(file, batch));
        },
        2000));
}

TEST_F(PlainPathLaws, WholeFilesComeOutAsOfAPlainRun) {
    EXPECT_TRUE(HoldsAlways(
        [] {
            const AnyEncoding encoding;
            const bool batch = *rc::gen::arbitrary<bool>();
            const std::string file = AnyFile(batch);
            RC_ASSERT(ProductRun(file, batch) == PlainRun(file, batch));
        },
        1500));
}

TEST_F(PlainPathLaws, LongFilesComeOutAsOfAPlainRun) {
    for (const std::string kind : {"ordinary", "tables-small", "tables-banner", "igraph"}) {
        const std::string file = GenerateInput(kind, 300'000, 5);
        EXPECT_TRUE(ProductRun(file, false) == PlainRun(file, false)) << kind;
    }
}

} // namespace

} // namespace recastor
