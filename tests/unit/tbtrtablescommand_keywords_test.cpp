// Which words the classifier reads as keywords, and where.

#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/dump.h"

#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct Keyword {
    const char* text;
    int code;
};

constexpr Keyword kKeywords[] = {
    {"AUTOLABEL", 273},   {"BASE", 274},       {"BOXCHARS", 305},  {"BREAK", 269},
    {"CAPTION", 298},     {"CONTINUED", 306},  {"CORNER", 300},    {"FONTCHARS", 307},
    {"FOOTNOTE", 308},    {"FORMAT", 290},     {"FTOTAL", 291},    {"GBASE", 275},
    {"INDEX", 309},       {"MDGROUP", 294},    {"MISSING", 276},   {"MRGROUP", 293},
    {"OBSERVATION", 303}, {"PFOOTNOTE", 310},  {"PTITLE", 311},    {"PTOTAL", 292},
    {"SORT", 295},        {"STATISTICS", 301}, {"TABLE", 302},     {"TFOOTNOTE", 312},
    {"TITLE", 299},       {"WRITE", 313},      {"DEFAULT", 278},   {"ON", 279},
    {"OFF", 280},         {"ANSWERING", 281},  {"QUALIFIED", 282}, {"ALL", 283},
    {"CASES", 284},       {"RESPONSES", 285},  {"EXCLUDE", 287},   {"INCLUDE", 286},
    {"BLANK", 288},       {"ZERO", 289},       {"ASCENDING", 296}, {"DESCENDING", 297},
    {"UNWEIGHTED", 272},  {"U", 272},          {"LABELS", 270},
};

std::string LowerCased(std::string text) {
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return text;
}

/// Spellings that the first three characters make a keyword of; a shorter keyword has but itself.
std::set<std::string> Spellings(const std::string& keyword) {
    const std::string lower = LowerCased(keyword);
    const std::string mixed = keyword.substr(0, 1) + lower.substr(1);
    if (keyword.size() < 3) {
        return {keyword, lower, mixed};
    }
    const std::string start = keyword.substr(0, 3);
    return {keyword, lower, mixed, start, LowerCased(start), keyword + "S", start + "_9.z"};
}

std::string LastCode(const std::string& command) {
    const std::string codes = DumpCodes(command);
    return codes.substr(codes.rfind(' ') + 1);
}

TEST(TablesKeywords, AreReadInEverySpellingAsASubcommandsName) {
    for (const auto& [text, code] : kKeywords) {
        for (const std::string& spelling : Spellings(text)) {
            SCOPED_TRACE(spelling);
            // The subcommand MISSING has a code of its own; BREAK leaves no code.
            const int expected = code == TB_MISSING ? 277 : code;
            const std::string codes = code == TB_BREAK ? "" : "SP_SLASH " + CodeName(expected);
            EXPECT_EQ(DumpCodes("TABLES /" + spelling), codes);
            EXPECT_EQ(DumpCodes("TABLES " + spelling), codes);
        }
    }
}

TEST(TablesKeywords, NeedTheirFirstThreeCharacters) {
    for (const auto& [text, code] : kKeywords) {
        const std::string keyword = text;
        if (keyword.size() > 2) {
            EXPECT_EQ(DumpCodes("TABLES /" + keyword.substr(0, 2)), "SP_SLASH TB_UNKNOWNSUBCOM")
                << keyword;
        }
        const std::string other = keyword.substr(0, 2) + "#" + keyword;
        EXPECT_EQ(DumpCodes("TABLES /" + other), "SP_SLASH TB_UNKNOWNSUBCOM") << other;
    }
}

TEST(TablesKeywords, TabMatchesTable) {
    EXPECT_EQ(DumpCodes("TABLES /TAB x"), "SP_SLASH TB_TABLE SP_VARNAME");
    EXPECT_EQ(DumpCodes("TABLES /TABLEAU x"), "SP_SLASH TB_TABLE SP_VARNAME");
    EXPECT_EQ(DumpCodes("TABLES /tabulate x"), "SP_SLASH TB_TABLE SP_VARNAME");
}

enum class Reads { kAll, kDirections, kWeights, kNone, kSwallowed };

struct Place {
    const char* before;
    Reads reads;
};

constexpr Place kPlaces[] = {
    {"/AUTOLABEL ", Reads::kAll},
    {"/BASE x ", Reads::kAll},
    {"/GBASE (", Reads::kAll},
    {"/MISSING 'a' ", Reads::kAll},
    {"/FORMAT 5 ", Reads::kAll},
    {"FORMAT ) ", Reads::kAll},
    {"/SORT ", Reads::kDirections},
    {"/SORT (", Reads::kNone},
    {"/SORT x ", Reads::kNone},
    {"/SORT ASCENDING ", Reads::kNone},
    {"/STATISTICS ", Reads::kWeights},
    {"/STATISTICS mean ", Reads::kWeights},
    {"/STATISTICS mean((f5)) ", Reads::kWeights},
    {"/STATISTICS mean(", Reads::kNone},
    {"/STATISTICS mean((f5) ", Reads::kNone},
    {"/STATISTICS )", Reads::kNone},
    {"/TABLE ", Reads::kNone},
    {"/TABLE (", Reads::kNone},
    {"/FTOTAL ", Reads::kNone},
    {"/PTOTAL ", Reads::kNone},
    {"/MRGROUP ", Reads::kNone},
    {"/MDGROUP g ", Reads::kNone},
    {"/OBSERVATION ", Reads::kNone},
    {"/CAPTION ", Reads::kNone},
    {"/TITLE ", Reads::kNone},
    {"/CORNER ", Reads::kNone},
    {"/DEFAULT ", Reads::kNone},
    {"/STATISTICS x /SORT y /TABLE ", Reads::kNone},
    {"/WRITE ", Reads::kSwallowed},
    {"/BOXCHARS (", Reads::kSwallowed},
    {"/UNKNOWN ", Reads::kSwallowed},
};

/// The code of a keyword in a place where some keywords count and all others are names.
std::string ExpectedCode(Reads reads, int code) {
    if (reads == Reads::kSwallowed) {
        return "TB_ANYSUBCOMTOKEN";
    }
    const bool isRead = reads == Reads::kAll ||
                        (reads == Reads::kDirections && (code == 296 || code == 297)) ||
                        (reads == Reads::kWeights && code == 272);
    return isRead ? CodeName(code) : "SP_VARNAME";
}

TEST(TablesKeywords, AreReadElsewhereOnlyWhereTheyMeanSomething) {
    for (const auto& [before, reads] : kPlaces) {
        for (const auto& [text, code] : kKeywords) {
            for (const std::string& spelling : Spellings(text)) {
                SCOPED_TRACE(before + spelling);
                // ALL is reserved: it is itself in every place.
                const bool isReserved = LowerCased(spelling) == "all";
                const Reads readsHere =
                    isReserved && reads != Reads::kSwallowed ? Reads::kAll : reads;
                EXPECT_EQ(LastCode("TABLES " + (before + spelling)), ExpectedCode(readsHere, code));
            }
        }
    }
}

TEST(TablesKeywords, OnlyWordsThatAreNotReservedAreKeywords) {
    struct Row {
        const char* text;
        int code;
    };
    for (const auto& [text, code] : {
             Row{"table", 302},
             Row{"'TABLE'", 0},
             Row{"5", 0},
             Row{"/", 0},
             Row{"ALL", 0},
             Row{"allx", 283},
             Row{"BY", 0},
             Row{"u", 272},
             Row{"up", 0},
             Row{"x", 0},
         }) {
        SCOPED_TRACE(text);
        const std::unique_ptr<ZELKTokenSequence> tokens(TokensOf(text));
        tokens->Next();
        EXPECT_EQ(TablesKeyword(*tokens), code);
        tokens->Next();
        EXPECT_EQ(TablesKeyword(*tokens), 0);
    }
}

TEST(TablesKeywords, AreToldByTheirCodes) {
    for (const auto& [text, code] : kKeywords) {
        const bool isSecondOfItsCode = std::string(text) == "U";
        EXPECT_EQ(TbTrTablesCommand::KeywordFromCode(code),
                  isSecondOfItsCode ? "UNWEIGHTED" : text);
    }
    EXPECT_EQ(TbTrTablesCommand::KeywordFromCode(277), "MISSING");
    for (const int code : {0, 256, 260, 263, 271, 304, 314, 505}) {
        EXPECT_EQ(TbTrTablesCommand::KeywordFromCode(code), "") << code;
    }
}

} // namespace

} // namespace recastor
