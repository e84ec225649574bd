#include "ctables/recastor/messages.h"

namespace recastor {

// clang-format off
const std::string IDS_STRING_USAGE = "Usage:";
const std::string IDS_STRING_ARGS = " recastor [-b | /b] inputFile outputFile ";
const std::string IDS_STRING_ERROR_INPUT_FILE = "Error opening input file ";
const std::string IDS_STRING_ERROR_OUTPUT_FILE = "Error opening output file ";
const std::string IDS_STRING_ERROR_READING_INPUT = "Error reading input file ";
const std::string IDS_STRING_ERROR_UTF16_INPUT =
    "Text in UTF-16 cannot be read, save it as UTF-8 first: input file ";
const std::string IDS_STRING_ERROR_WRITING_OUTPUT = "Error writing output file ";
const std::string IDS_STRING_ERROR_NO_MEMORY = "Not enough memory to convert input file ";
const std::string IDS_FAILED_MESSAGE = "Syntax conversion failed. See output file for details.";

const std::string IDS_STRING_COMMENT_BEGIN_TABLES_COMMAND =
    "COMMENT -- Begin commenting out TABLES command to be converted to CTABLES.";
const std::string IDS_STRING_COMMENT_END_TABLES_COMMAND =
    "COMMENT -- End commenting out TABLES command.";
const std::string IDS_STRING_BEGIN_CTABLES_COMMAND = "COMMENT -- Begin CTABLES command.";
const std::string IDS_STRING_END_CTABLES_COMMAND = "COMMENT -- End CTABLES command.";
const std::string IDS_STRING_COMMENT_BEGIN_IGRAPH_COMMAND =
    "COMMENT -- Begin commenting out IGRAPH command to be converted to GGRAPH.";
const std::string IDS_STRING_COMMENT_END_IGRAPH_COMMAND =
    "COMMENT -- End commenting out IGRAPH command.";
const std::string IDS_STRING_BEGIN_GGRAPH_COMMAND = "COMMENT -- Begin GGRAPH command.";
const std::string IDS_STRING_END_GGRAPH_COMMAND = "COMMENT -- End GGRAPH command.";
const std::string IDS_STRING_IGRAPH_ERROR =
    "*IGRAPH syntax is not valid, and can't be converted!";

const std::string IDS_TOKERR_MAIN =
    "Error while tokenizing input syntax file. Line %ld, column %d.";
const std::string IDS_TOKERR_UNCLOSEDLIT = "Literal unclosed at the end of a line or command";
const std::string IDS_TOKERR_BADEXPONENT =
    "Number has a trailing E[+|-] but no digits after that.";
const std::string IDS_TOKERR_INVALIDNUMBER = "Invalid or out-of-range number";
const std::string IDS_TOKERR_INVALIDCHAR =
    "Encountered a character that is not valid in Quantix syntax.";

const std::string IDS_PTERROR_MAIN =
    "Error while parsing or translating input syntax file. Line %ld, column %d.";
const std::string IDS_PTERROR_BADGRAMMAR = "Unable to parse the syntax of the %s subcommand";
const std::string IDS_PTERROR_TOINOBS =
    "TABLES commands using TO on the OBSERVATION subcommand cannot be converted.";
const std::string IDS_PTERROR_SPTABLEEXP =
    "The table expression contains a word in parentheses that is not a keyword or variable name.";
const std::string IDS_PTERROR_YYERROR = "Invalid TABLES command syntax";
const std::string IDS_PTERROR_UNKFUNC = "Unrecognized summary function %s";
const std::string IDS_PTERROR_UNKSORTFUNC = "Unrecognized function %s on SORT subcommand";
const std::string IDS_PTERROR_BADASSOC =
    "Total variable wrongly associates with %s on TABLE subcommand.";
const std::string IDS_PTERROR_BADFTOTAL =
    "Following total %s on a TABLE subcommand does not follow anything.";
const std::string IDS_PTERROR_BADPTOTAL =
    "Preceding total %s on a TABLE subcommand does not precede anything.";
const std::string IDS_PTERROR_BADTOTAL = "Total variable %s does not stack with anything.";
const std::string IDS_PTERROR_SCALETOT = "Total variable %s stacks with a scale variable.";
const std::string IDS_PTERROR_TOOMANYTERMS =
    "The table expression that begins with %s multiplies out to too many variables.";

const std::string IDS_WARN_IGNOREOBSOLETE = "Obsolete subcommand %s has been ignored.";
const std::string IDS_WARN_IGNOREUNKNOWN =
    "Unrecognized or obsolete subcommand %s has been ignored.";
const std::string IDS_WARN_OBSOLETE_FORMAT =
    "Obsolete form of the FORMAT subcommand has been ignored.";

const std::string IDS_CONVERSION_TABLES_SUCCEED = "Tables conversion was successful!\n";
const std::string IDS_CONVERSION_TABLES_FAIL = "Tables conversion failed!\n";
const std::string IDS_CONVERSION_IGRAPH_SUCCEED = "Igraph conversion was successful!\n";
const std::string IDS_CONVERSION_IGRAPH_FAIL = "Igraph conversion failed!\n";

const std::string IDS_STRING_PARSE_ERROR = "A parsing error has occured.";
const std::string IDS_GEEKY_ERROR_MESSAGE = "Detailed error message";
// clang-format on

namespace {

/// Replaces the first `field` in `text`, which holds it once, by `value`.
std::string Filled(std::string text, const std::string& field, const std::string& value) {
    if (const auto position = text.find(field); position != std::string::npos) {
        text.replace(position, field.size(), value);
    }
    return text;
}

} // namespace

bool SCLoadString(std::string& out, const std::string& id) {
    if (id.empty()) {
        return false;
    }
    out = id;
    return true;
}

void SCFormatString(std::string& out, const std::string& format, const std::string& argument) {
    out = Filled(format, "%s", argument);
}

std::string FormatLineAndColumn(const std::string& format, long line, int column) {
    return Filled(Filled(format, "%ld", std::to_string(line)), "%d", std::to_string(column));
}

} // namespace recastor
