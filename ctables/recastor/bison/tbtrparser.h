/// The generated parser of TABLES commands and what it needs of the rest of the program.
#pragma once

#include "ctables/recastor/bison/opaquevalue.h"
#include "ctables/recastor/yyltype.h"

/// Parses the command of the global classifier. 0 when the tree is finished; non-zero when the
/// parse was abandoned, with the error recorded in the classifier unless the parser's stack
/// overflowed.
int yyparse();

/// Gives the parser its next grammar code, with the token as its value; 0 at the end. Slashes are
/// left out. The location is the token's start; at the end it stays that of the last token, or of
/// the command's name when there was none.
int yylex(recastor::OpaqueValue* value, recastor::yyltype* location);

/// Writes the parser's message to the debug log.
void yyerror(const char* message);

/// Non-zero: the parser traces its steps on standard error.
extern int yydebug;
