#include "ctables/recastor/recastor.h"

#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/conversionlistener.h"
#include "ctables/recastor/errorlines.h"
#include "ctables/recastor/messages.h"
#include "ctables/recastor/opening.h"
#include "ctables/recastor/parseigraph.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/printcommand.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "ctables/recastor/tokenscan.h"
#include "ctables/recastor/zelktokensequence.h"

#include <array>
#include <iostream>
#include <memory>
#include <string>

namespace recastor {

namespace {

/// A command that is converted: how it is recognised, framed and done.
struct Conversion {
    std::uint32_t abbreviation; ///< of the command's name
    const std::string& beginComment;
    const std::string& endComment;
    void (*convert)(ZELKTokenSequence* tokens, std::ostream& output, std::int64_t lineOffset,
                    ConversionListener& listener);
    ReportedKind kind;
};

/// How an ordinary command is converted, by its first word; null for one that is copied.
const Conversion* FindConversion(std::uint32_t abbreviation) {
    static const Conversion conversions[] = {
        {Abbreviation("TABLES"), IDS_STRING_COMMENT_BEGIN_TABLES_COMMAND,
         IDS_STRING_COMMENT_END_TABLES_COMMAND, ParseTables, ReportedKind::kTables},
        {Abbreviation("IGRAPH"), IDS_STRING_COMMENT_BEGIN_IGRAPH_COMMAND,
         IDS_STRING_COMMENT_END_IGRAPH_COMMAND, ParseIgraph, ReportedKind::kIgraph},
    };
    for (const Conversion& conversion : conversions) {
        if (conversion.abbreviation == abbreviation) {
            return &conversion;
        }
    }
    return nullptr;
}

/// What listeners call a command that is copied, by its CommandKind.
ReportedKind KindOfCopied(int kind) {
    constexpr std::array kinds{ReportedKind::kOther, ReportedKind::kComment,
                               ReportedKind::kDocument, ReportedKind::kData};
    return kinds.at(static_cast<std::size_t>(kind));
}

/// Converts or copies the current command of the stream, whose text is `text`.
void ConvertOrCopy(const CommandStream& commands, const std::string& text, bool batch,
                   std::ostream& output, ConversionListener& listener) {
    const std::int64_t lineOffset = commands.FirstLineNumber() - 1;
    const Opening& known = commands.OpeningOfFirstLine();
    const Opening opening = known.isWhole ? known : ReadOpening(text, batch);
    const bool ordinary = opening.kind == kOrdinaryCommand;
    const Conversion* const conversion = ordinary ? FindConversion(opening.abbreviation) : nullptr;
    listener.OnCommand(conversion != nullptr ? conversion->kind : KindOfCopied(opening.kind),
                       lineOffset + 1, text);
    if (conversion != nullptr) {
        auto tokens = std::make_unique<ZELKTokenSequence>(text, batch, 0);
        output << conversion->beginComment << '\n';
        PrintCommand(CommentCommand(text), output, 1);
        PrintCommand(conversion->endComment, output, 0);
        conversion->convert(tokens.release(), output, lineOffset, listener);
        return;
    }
    if (ordinary) {
        CheckTokens(text.c_str(), batch); // a faulty command ends the run though it is only copied
    }
    PrintCommand(text, output, 0);
}

/// The same; the line of an error in the command's tokens becomes that of the input file.
void ConvertOrCopyAtItsLine(const CommandStream& commands, const std::string& text, bool batch,
                            std::ostream& output, ConversionListener& listener) {
    try {
        ConvertOrCopy(commands, text, batch, output, listener);
    } catch (ParseError& error) {
        error.IncrementLine(static_cast<long>(commands.FirstLineNumber() - 1));
        throw;
    }
}

/// A byte-order mark at the start of the file is written at once, so that the first command is
/// recognised without it.
void ConvertOrCopyFirst(const CommandStream& commands, bool batch, std::ostream& output,
                        ConversionListener& listener) {
    std::string text = commands.CommandString();
    if (text.starts_with(kByteOrderMark)) {
        output << kByteOrderMark;
        text.erase(0, kByteOrderMark.size());
    }
    ConvertOrCopyAtItsLine(commands, text, batch, output, listener);
}

/// Parses the classifier's command; when that fails an error is recorded.
bool ParseCommand(TbTrTablesCommand& command) {
    if (yyparse() == 0) {
        return true;
    }
    int line = 0;
    int column = 0;
    int code = 0;
    std::string text;
    if (command.GetParseErrorInfo(line, column, code, text) == TbTrTablesCommand::kNoError) {
        // The parser's stack is full: no rule was reduced that could have told it.
        reportGenericError(command.LastLocation());
    }
    return false;
}

/// Tells the error that the classifier has recorded.
void TellError(long lineOffset, ConversionListener& listener) {
    if (const auto error = RecordedError(lineOffset)) {
        listener.OnNotConverted(*error);
    }
}

} // namespace

bool ConvertCommands(CommandStream& commands, bool batch, std::ostream& output,
                     ConversionListener& listener) {
    try {
        if (!commands.NextCommand()) {
            ConvertOrCopyFirst(commands, batch, output, listener);
        }
        while (!commands.NextCommand()) {
            ConvertOrCopyAtItsLine(commands, commands.CommandString(), batch, output, listener);
        }
        return true;
    } catch (const ParseError& error) {
        std::string first;
        std::string second;
        GetParseErrorStrings(error, first, second);
        PrintErrorLine(first, output);
        PrintErrorLine(second, output);
        listener.OnEnd(ErrorOf(error));
        return false;
    }
}

void ParseTables(ZELKTokenSequence* tokens, std::ostream& output, std::int64_t lineOffset,
                 ConversionListener& listener) {
    TbTrTablesCommand& command = TbTrTablesCommand::g_tablesCommand;
    command.Reset(tokens);
    const bool parsed = ParseCommand(command);
    command.DropTokens();
    if (parsed) {
        listener.OnTree(*command.GetParseTree());
    }
    std::string result;
    const bool ok = parsed && ParseTree::TranslateTablesCommand(command.GetParseTree(), result);
    PrintCommand(IDS_STRING_BEGIN_CTABLES_COMMAND, output, 0);
    if (ok) {
        for (const std::string& warning : command.ListWarnings()) {
            PrintErrorLine(warning, output);
        }
        PrintCommand(result, output, 0);
        listener.OnConverted(result, command.ListWarnings());
        std::cout << IDS_CONVERSION_TABLES_SUCCEED;
    } else {
        PrintParseOrTranslateError(output, static_cast<long>(lineOffset));
        TellError(static_cast<long>(lineOffset), listener);
        std::cout << IDS_CONVERSION_TABLES_FAIL;
    }
    PrintCommand(IDS_STRING_END_CTABLES_COMMAND, output, 0);
    command.Reset(nullptr); // so that the next command begins with all memory free
}

} // namespace recastor
