#include "tests/support/commandtree.h"

#include "ctables/recastor/bison/tbtrparser.h"
#include "ctables/recastor/lexicalchars.h"
#include "ctables/recastor/tbtrtablescommand.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace recastor {

namespace {

TbTrParseNode* MakeVariable(const std::string& name) {
    std::string upperCased;
    UpperCaseString(name, upperCased);
    return TbTrParseNode::MakeVarNameNode(new ZELKStringToken(
        PaddedText(name), 1, 1, PaddedText(upperCased), TokenSequenceBase::kNotOperator));
}

/// Reads the tree that begins at `position`, and goes behind it.
TbTrParseNode* ReadNode(const std::string& dump, std::size_t& position) {
    static const std::map<std::string, int> types{
        {"+", SP_PLUS},           {">", SP_GREATERTHAN},
        {"TABLE", TB_TABLE},      {"LIST", TBI_GENERICLIST},
        {"VARLIST", TBI_VARLIST}, {"STATISTICS", TB_STATISTICS},
        {"LABELS", TB_LABELS},
    };
    const bool isInner = dump.at(position) == '(';
    position += isInner ? 1 : 0;
    const std::size_t end = std::min(dump.find_first_of(" )", position), dump.size());
    const std::string word = dump.substr(position, end - position);
    position = end;
    if (!isInner) {
        return word == "_" ? nullptr : MakeVariable(word);
    }
    auto node = std::make_unique<TbTrParseNode>(types.at(word), nullptr);
    while (dump.at(position) == ' ') {
        node->AppendChild(ReadNode(dump, ++position));
    }
    ++position; // the closing parenthesis
    return node.release();
}

} // namespace

TbTrParseNode::NodePtr TreeFromDump(const std::string& dump) {
    std::size_t position = 0;
    return TbTrParseNode::NodePtr(ReadNode(dump, position));
}

TbTrParseNode& ParseCommand(const std::string& command) {
    TbTrTablesCommand& classifier = TbTrTablesCommand::g_tablesCommand;
    classifier.Reset(new ZELKTokenSequence(command + '\n', false, 0));
    if (yyparse() != 0) {
        throw std::invalid_argument("not a TABLES command: " + command);
    }
    return *classifier.GetParseTree();
}

TbTrParseNode& ParseTable(const std::string& command, unsigned group) {
    return *ParseCommand(command).GetChild(group)->GetChild(0);
}

} // namespace recastor
