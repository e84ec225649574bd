/// The codes that the grammar, the tree and the translator share: one integer domain, so that a
/// node made from a keyword or an operator carries that keyword's grammar code.
#pragma once

namespace recastor {

/// The grammar's terminals (SP_ general syntax, TB_ keywords of TABLES), many of which are node
/// types too, and the node types that no token has (TBI_).
enum TbTrNodeType : int {
    SP_SLITERAL = 257, ///< literal
    SP_NUMBER = 258,
    SP_NONVARNAME = 259, ///< a word that cannot be a variable name
    SP_VARNAME = 260,
    SP_PLUS = 261,        ///< stacking in a table expression
    SP_GREATERTHAN = 262, ///< nesting in a table expression
    SP_SLASH = 263,
    SP_COLON = 264,
    SP_LPAREN = 265,
    SP_RPAREN = 266,
    SP_BY = 267,
    SP_TO = 268,
    TB_BREAK = 269,
    TB_LABELS = 270, ///< in a table expression the LABELS pseudo-variable
    SP_OTHEROP = 271,
    TB_UNWEIGHTED = 272,
    TB_AUTOLABEL = 273,
    TB_BASE = 274,
    TB_GBASE = 275,
    TB_MISSING = 276,       ///< the keyword inside FORMAT
    TB_MISSINGSUBCOM = 277, ///< the subcommand
    TB_DEFAULT = 278,
    TB_ON = 279,
    TB_OFF = 280,
    TB_ANSWERING = 281,
    TB_QUALIFIED = 282,
    SP_ALL = 283,
    TB_CASES = 284,
    TB_RESPONSES = 285,
    TB_INCLUDE = 286,
    TB_EXCLUDE = 287,
    TB_BLANK = 288,
    TB_ZERO = 289,
    TB_FORMAT = 290,
    TB_FTOTAL = 291,
    TB_PTOTAL = 292,
    TB_MRGROUP = 293,
    TB_MDGROUP = 294,
    TB_SORT = 295,
    TB_ASCENDING = 296,
    TB_DESCENDING = 297,
    TB_CAPTION = 298,
    TB_TITLE = 299,
    TB_CORNER = 300,
    TB_STATISTICS = 301, ///< the subcommand; in a table expression the STATISTICS pseudo-variable
    TB_TABLE = 302,
    TB_OBSERVATION = 303,
    TB_UNKNOWNSUBCOM = 304,
    TB_BOXCHARS = 305, // 305 to 313: subcommands that are obsolete
    TB_CONTINUED = 306,
    TB_FONTCHARS = 307,
    TB_FOOTNOTE = 308,
    TB_INDEX = 309,
    TB_PFOOTNOTE = 310,
    TB_PTITLE = 311,
    TB_TFOOTNOTE = 312,
    TB_WRITE = 313,
    TB_ANYSUBCOMTOKEN = 314, ///< any token behind an obsolete or unknown subcommand's name

    TBI_VARLIST = 501,
    TBI_VARRANGE = 502, ///< first TO last
    TBI_SORTFUNCTION = 503,
    TBI_SORTVAR = 504,
    TBI_GENERICLIST = 505,
    TBI_STATFUNCTION = 506,
    TBI_FULLSTATFUNCTION = 507,
    TBI_STATFUNCARG = 508,
    TBI_FMT = 509,
    TBI_FTOTALVAR = 511, ///< the mark of a following total
    TBI_PTOTALVAR = 512, ///< the mark of a preceding total
};

} // namespace recastor
