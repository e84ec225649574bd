#include "tests/support/dump.h"

#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "ctables/recastor/zelktokensequence.h"
#include "ctables/recastor/zelktokenvector.h"

#include <array>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace recastor {

namespace {

/// The names of the codes from 257 on, in their order.
constexpr std::array<std::string_view, 58> kTerminalNames = {
    "SP_SLITERAL",      "SP_NUMBER",         "SP_NONVARNAME",  "SP_VARNAME",
    "SP_PLUS",          "SP_GREATERTHAN",    "SP_SLASH",       "SP_COLON",
    "SP_LPAREN",        "SP_RPAREN",         "SP_BY",          "SP_TO",
    "TB_BREAK",         "TB_LABELS",         "SP_OTHEROP",     "TB_UNWEIGHTED",
    "TB_AUTOLABEL",     "TB_BASE",           "TB_GBASE",       "TB_MISSING",
    "TB_MISSINGSUBCOM", "TB_DEFAULT",        "TB_ON",          "TB_OFF",
    "TB_ANSWERING",     "TB_QUALIFIED",      "SP_ALL",         "TB_CASES",
    "TB_RESPONSES",     "TB_INCLUDE",        "TB_EXCLUDE",     "TB_BLANK",
    "TB_ZERO",          "TB_FORMAT",         "TB_FTOTAL",      "TB_PTOTAL",
    "TB_MRGROUP",       "TB_MDGROUP",        "TB_SORT",        "TB_ASCENDING",
    "TB_DESCENDING",    "TB_CAPTION",        "TB_TITLE",       "TB_CORNER",
    "TB_STATISTICS",    "TB_TABLE",          "TB_OBSERVATION", "TB_UNKNOWNSUBCOM",
    "TB_BOXCHARS",      "TB_CONTINUED",      "TB_FONTCHARS",   "TB_FOOTNOTE",
    "TB_INDEX",         "TB_PFOOTNOTE",      "TB_PTITLE",      "TB_TFOOTNOTE",
    "TB_WRITE",         "TB_ANYSUBCOMTOKEN",
};

/// The names of the internal node types from 501 on.
constexpr std::array<std::string_view, 12> kInternalNames = {
    "VARLIST",          "VARRANGE",    "SORTFUNCTION", "SORTVAR", "LIST",      "STATFUNCTION",
    "FULLSTATFUNCTION", "STATFUNCARG", "FMT",          "510",     "FTOTALVAR", "PTOTALVAR",
};

std::string NodeTypeName(int type) {
    if (type == SP_PLUS) {
        return "+";
    }
    if (type == SP_GREATERTHAN) {
        return ">";
    }
    if (type >= TBI_VARLIST) {
        return std::string(kInternalNames.at(static_cast<std::size_t>(type - TBI_VARLIST)));
    }
    return CodeName(type).substr(3);
}

std::string DumpToken(const ZELKToken& token) {
    switch (token.Type()) {
    case TokenSequenceBase::kString:
        return token.OpCode() == TokenSequenceBase::kNotOperator
                   ? token.AsString(true)
                   : token.AsString(true) + '/' + OperatorTypeName(token.OpCode());
    case TokenSequenceBase::kNumber: {
        std::ostringstream text;
        text << '#' << token.AsNumber();
        return text.str();
    }
    case TokenSequenceBase::kLiteral:
        return '`' + token.AsString(false) + '`';
    default:
        return OperatorTypeName(token.OpCode());
    }
}

std::string Place(long line, int column) {
    return '@' + std::to_string(line) + ':' + std::to_string(column);
}

std::string Joined(std::string list, const std::string& item) {
    return list.empty() ? item : list.append(" ").append(item);
}

/// A literal's raw text runs on to the next token; what it gathered there is left out.
std::string WithoutTrailingBlanks(const std::string& text) {
    return text.substr(0, text.find_last_not_of(" \r\n") + 1);
}

std::string DumpVarName(const TbTrParseNode& node) {
    const TbTrParseNode* const label = node.GetChild(0);
    const TbTrParseNode* const total = node.GetChild(1);
    std::string text = node.GetToken()->AsString(true);
    if (label != nullptr || total != nullptr) {
        text += '{' + DumpTree(label) + ' ' + DumpTree(total) + '}';
    }
    return text;
}

std::string DumpError() {
    int line = 0;
    int column = 0;
    int code = 0;
    std::string text;
    const int type = TbTrTablesCommand::g_tablesCommand.GetParseErrorInfo(line, column, code, text);
    return "error " + std::to_string(type) + ' ' + std::to_string(code) + Place(line, column) +
           " \"" + text + '"';
}

} // namespace

ZELKTokenSequence* TokensOf(const std::string& command) {
    return new ZELKTokenSequence(command + '\n', false, 0);
}

std::string CodeName(int code) {
    const auto index = static_cast<std::size_t>(code - SP_SLITERAL);
    return code >= SP_SLITERAL && index < kTerminalNames.size() ? std::string(kTerminalNames[index])
                                                                : std::to_string(code);
}

std::string DumpTokens(const std::string& text, bool batch, int maxTokens, bool places) {
    try {
        const ZELKTokenVector tokens(text.c_str(), batch, maxTokens);
        std::string dump;
        for (int i = 0; i < tokens.Count(); ++i) {
            int line = 0;
            int column = 0;
            tokens[i].StartLocation(line, column);
            const std::string place = places ? Place(line, column) : std::string();
            dump = Joined(dump, DumpToken(tokens[i]) + place);
        }
        return dump;
    } catch (const ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        return "error " + std::to_string(error.GetErrorID()) + Place(line, column);
    }
}

std::string DumpCodes(const std::string& command) {
    TbTrTablesCommand classifier;
    classifier.Reset(TokensOf(command));
    std::string dump;
    ZELKToken* token = nullptr;
    for (int code = classifier.GetNextToken(token); code != 0;
         code = classifier.GetNextToken(token)) {
        const std::unique_ptr<ZELKToken> owner(token);
        dump = Joined(dump, CodeName(code));
    }
    return dump;
}

std::string DumpLex(const std::string& command) {
    TbTrTablesCommand::g_tablesCommand.Reset(TokensOf(command));
    std::string dump;
    int code = 0;
    do {
        OpaqueValue value;
        yyltype place{};
        code = yylex(&value, &place);
        OpaqueValue_Clear(value);
        dump = Joined(dump, CodeName(code) + Place(place.first_line, place.first_column));
    } while (code != 0);
    return dump;
}

std::string DumpTree(const TbTrParseNode* node) {
    if (node == nullptr) {
        return "_";
    }
    const int type = node->GetNodeType();
    if (type == SP_VARNAME) {
        return DumpVarName(*node);
    }
    if (type == SP_SLITERAL || type == SP_NUMBER || type == SP_NONVARNAME || type == TBI_FMT) {
        return WithoutTrailingBlanks(node->GetToken()->AsString(true));
    }
    std::string text = '(' + NodeTypeName(type);
    if (node->GetToken() != nullptr) {
        text += ' ' + node->GetToken()->AsString(true);
    }
    for (unsigned i = 0; i < node->GetChildCount(); ++i) {
        text += ' ' + DumpTree(node->GetChild(i));
    }
    return text + ')';
}

std::string DumpParse(const std::string& command) {
    TbTrTablesCommand& classifier = TbTrTablesCommand::g_tablesCommand;
    classifier.Reset(TokensOf(command));
    std::string dump = yyparse() == 0 ? DumpTree(classifier.GetParseTree()) : DumpError();
    for (const std::string& warning : classifier.ListWarnings()) {
        dump += " ! " + warning;
    }
    return dump;
}

TbTrParseNode* ParseExpression(const std::string& expression) {
    TbTrTablesCommand& classifier = TbTrTablesCommand::g_tablesCommand;
    classifier.Reset(TokensOf("TABLES /TABLE " + expression));
    if (yyparse() != 0) {
        throw std::invalid_argument("not a table expression: " + expression);
    }
    return classifier.GetParseTree()->GetChild(1)->GetChild(0)->SetChild(0, nullptr).release();
}

} // namespace recastor
