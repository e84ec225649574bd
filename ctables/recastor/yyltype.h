/// The place of a symbol of the TABLES grammar within its command.
#pragma once

namespace recastor {

/// Lines are 1-based; columns are those of the tokens. The parser generator's default rule spans a
/// symbol's place from its first part to its last.
struct yyltype {
    int first_line;
    int first_column;
    int last_line;
    int last_column;
};

} // namespace recastor
