#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/dump.h"
#include "tests/support/tokens.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

struct CodesRow {
    const char* command;
    const char* codes;
};

void ExpectCodes(const std::vector<CodesRow>& rows) {
    for (const auto& [command, codes] : rows) {
        SCOPED_TRACE(command);
        EXPECT_EQ(DumpCodes(command), codes);
    }
}

/// A command's codes read one by one, each with its token.
class Reader {
public:
    explicit Reader(const std::string& command) { m_command.Reset(TokensOf(command)); }

    int Next() {
        ZELKToken* token = nullptr;
        const int code = m_command.GetNextToken(token);
        m_token.reset(token);
        return code;
    }

    const ZELKToken* Token() const { return m_token.get(); }

    std::string Place() const {
        int line = 0;
        int column = 0;
        m_token->StartLocation(line, column);
        return std::to_string(line) + ':' + std::to_string(column);
    }

private:
    TbTrTablesCommand m_command;
    std::unique_ptr<ZELKToken> m_token;
};

TEST(TablesClassifier, EveryCommandBeginsWithASlash) {
    const std::string codes = "SP_SLASH TB_TABLE SP_VARNAME SP_BY SP_VARNAME";
    EXPECT_EQ(DumpCodes("TABLES /TABLE a BY b"), codes);
    EXPECT_EQ(DumpCodes("TABLES TABLE a BY b"), codes);
    EXPECT_EQ(DumpCodes("TABLES = TABLE a BY b"), codes);
    EXPECT_EQ(DumpCodes("TABLES == /TABLE a BY b"), codes);
}

TEST(TablesClassifier, TheSlashThatIsNotWrittenIsAnOperatorOfItsOwn) {
    for (const char* command : {"TABLES TABLE a", "TABLES /TABLE a"}) {
        SCOPED_TRACE(command);
        Reader reader(command);
        EXPECT_EQ(reader.Next(), SP_SLASH);
        EXPECT_EQ(reader.Token()->AsString(true), "/");
        EXPECT_EQ(reader.Token()->Type(), TokenSequenceBase::kOperator);
        EXPECT_EQ(reader.Token()->OpCode(), TokenSequenceBase::kSlash);
        EXPECT_EQ(reader.Next(), TB_TABLE);
        EXPECT_EQ(reader.Token()->AsString(true), "TABLE");
    }
}

TEST(TablesClassifier, MissingInsideFormatIsTheKeyword) {
    EXPECT_EQ(DumpCodes("TABLES /FORMAT MISSING('-')"),
              "SP_SLASH TB_FORMAT TB_MISSING SP_LPAREN SP_SLITERAL SP_RPAREN");
}

TEST(TablesClassifier, MissingBehindASlashIsTheSubcommand) {
    ExpectCodes({
        {"TABLES /MISSING INCLUDE", "SP_SLASH TB_MISSINGSUBCOM TB_INCLUDE"},
        {"TABLES missing missing", "SP_SLASH TB_MISSINGSUBCOM TB_MISSING"},
    });
}

TEST(TablesClassifier, SortReadsItsDirectionOnlyInFront) {
    const std::string tooLong(65 - 3, 'X');
    ExpectCodes({
        {"TABLES /SORT DESCENDING x", "SP_SLASH TB_SORT TB_DESCENDING SP_VARNAME"},
        {"TABLES /SORT = asc x", "SP_SLASH TB_SORT TB_ASCENDING SP_VARNAME"},
        {"TABLES /SORT x DESCENDING", "SP_SLASH TB_SORT SP_VARNAME SP_VARNAME"},
        {"TABLES /SORT CASES", "SP_SLASH TB_SORT SP_VARNAME"},
    });
    // A word of more than 64 bytes cannot be a name; in front it still begins like the keyword.
    EXPECT_EQ(DumpCodes("TABLES /SORT x DES" + tooLong),
              "SP_SLASH TB_SORT SP_VARNAME SP_NONVARNAME");
    EXPECT_EQ(DumpCodes("TABLES /SORT DES" + tooLong), "SP_SLASH TB_SORT TB_DESCENDING");
}

TEST(TablesClassifier, UnweightedIsReadOutsideParenthesesOnly) {
    ExpectCodes({
        {"TABLES /STATISTICS U mean", "SP_SLASH TB_STATISTICS TB_UNWEIGHTED SP_VARNAME"},
        {"TABLES /STATISTICS U !mean", "SP_SLASH TB_STATISTICS TB_UNWEIGHTED SP_NONVARNAME"},
        {"TABLES /STATISTICS mean(U) U",
         "SP_SLASH TB_STATISTICS SP_VARNAME SP_LPAREN SP_VARNAME SP_RPAREN TB_UNWEIGHTED"},
        {"TABLES /STATISTICS ((U) U) U",
         "SP_SLASH TB_STATISTICS SP_LPAREN SP_LPAREN SP_VARNAME SP_RPAREN SP_VARNAME SP_RPAREN "
         "TB_UNWEIGHTED"},
        {"TABLES /STATISTICS (x /STATISTICS U",
         "SP_SLASH TB_STATISTICS SP_LPAREN SP_VARNAME SP_SLASH TB_STATISTICS TB_UNWEIGHTED"},
    });
}

TEST(TablesClassifier, ArgumentsOfObsoleteAndUnknownSubcommandsAreAllOneCode) {
    ExpectCodes({
        {"TABLES /FOOTNOTE 'a' 'b'", "SP_SLASH TB_FOOTNOTE TB_ANYSUBCOMTOKEN TB_ANYSUBCOMTOKEN"},
        {"TABLES /XYZ 1 2", "SP_SLASH TB_UNKNOWNSUBCOM TB_ANYSUBCOMTOKEN TB_ANYSUBCOMTOKEN"},
        {"TABLES /WRITE - 5, = BY", "SP_SLASH TB_WRITE TB_ANYSUBCOMTOKEN TB_ANYSUBCOMTOKEN"},
        {"TABLES /INDEX ( /TABLE x",
         "SP_SLASH TB_INDEX TB_ANYSUBCOMTOKEN SP_SLASH TB_TABLE SP_VARNAME"},
        {"TABLES /WRITE", "SP_SLASH TB_WRITE"},
    });
}

TEST(TablesClassifier, MinusAndNumberAreOneNegativeNumber) {
    Reader reader("TABLES /TABLE -5");
    reader.Next();
    reader.Next();
    EXPECT_EQ(reader.Next(), SP_NUMBER);
    EXPECT_EQ(reader.Token()->Type(), TokenSequenceBase::kNumber);
    EXPECT_EQ(reader.Token()->AsNumber(), -5.0);
    EXPECT_EQ(reader.Next(), 0);
}

TEST(TablesClassifier, MinusWithoutNumberIsAnotherOperator) {
    ExpectCodes({
        {"TABLES /TABLE -x", "SP_SLASH TB_TABLE SP_OTHEROP SP_VARNAME"},
        {"TABLES /TABLE - - 5", "SP_SLASH TB_TABLE SP_OTHEROP SP_NUMBER"},
        {"TABLES /TABLE -= 5", "SP_SLASH TB_TABLE SP_OTHEROP SP_NUMBER"},
        {"TABLES /TABLE -", "SP_SLASH TB_TABLE SP_OTHEROP"},
        {"TABLES /TABLE - /", "SP_SLASH TB_TABLE SP_OTHEROP SP_SLASH"},
        {"TABLES /TABLE +x", "SP_SLASH TB_TABLE SP_PLUS SP_VARNAME"},
        {"TABLES /TABLE x +", "SP_SLASH TB_TABLE SP_VARNAME SP_PLUS"},
        {"TABLES -5", "SP_SLASH SP_NUMBER"},
        {"TABLES -x", "SP_SLASH SP_OTHEROP SP_VARNAME"},
    });
}

TEST(TablesClassifier, SignedNumberBeginsOneColumnBeforeTheNumber) {
    struct Row {
        const char* command;
        const char* text;
        double value;
        const char* place;
    };
    for (const auto& [command, text, value, place] : {
             Row{"TABLES (-1.5)", "-1.5", -1.5, "1:9"},
             Row{"TABLES (+2)", "+2", 2.0, "1:9"},
             Row{"TABLES (-   2)", "-2", -2.0, "1:12"},
             Row{"TABLES (-\n  7)", "-7", -7.0, "2:1"},
             Row{"TABLES (-\n7)", "-7", -7.0, "2:0"},
             Row{"TABLES (7)", "7", 7.0, "1:9"},
         }) {
        SCOPED_TRACE(command);
        Reader reader(command);
        reader.Next();
        reader.Next();
        EXPECT_EQ(reader.Next(), SP_NUMBER);
        EXPECT_EQ(reader.Token()->AsString(true), text);
        EXPECT_EQ(reader.Token()->AsNumber(), value);
        EXPECT_EQ(reader.Place(), place);
        EXPECT_EQ(reader.Next(), SP_RPAREN);
    }
}

TEST(TablesClassifier, EqualsSignsAndCommasAreLeftOut) {
    ExpectCodes({
        {"TABLES /TABLE p = q , r", "SP_SLASH TB_TABLE SP_VARNAME SP_VARNAME SP_VARNAME"},
        {"TABLES /TABLE EQ p eq q", "SP_SLASH TB_TABLE SP_VARNAME SP_VARNAME"},
        {"TABLES /= TABLE p =", "SP_SLASH TB_TABLE SP_VARNAME"},
    });
}

TEST(TablesClassifier, GivesEveryTokenItsCode) {
    ExpectCodes({
        {"TABLES /TABLE 'x' \"y\" 5 .5 1e3",
         "SP_SLASH TB_TABLE SP_SLITERAL SP_SLITERAL SP_NUMBER SP_NUMBER SP_NUMBER"},
        {"TABLES /TABLE > + ( ) :",
         "SP_SLASH TB_TABLE SP_GREATERTHAN SP_PLUS SP_LPAREN SP_RPAREN SP_COLON"},
        {"TABLES /TABLE GT TO BY ALL gt to by all",
         "SP_SLASH TB_TABLE SP_GREATERTHAN SP_TO SP_BY SP_ALL SP_GREATERTHAN SP_TO SP_BY SP_ALL"},
        {"TABLES /TABLE LT LE GE", "SP_SLASH TB_TABLE SP_OTHEROP SP_OTHEROP SP_OTHEROP"},
        {"TABLES /TABLE NE NOT WITH AND OR",
         "SP_SLASH TB_TABLE SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP"},
        {"TABLES /TABLE < <= >= ~= ~ *",
         "SP_SLASH TB_TABLE SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP"},
        {"TABLES /TABLE ** *> ; ? % & {",
         "SP_SLASH TB_TABLE SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP SP_OTHEROP "
         "SP_OTHEROP"},
        {"TABLES /TABLE a #b $c @d !e", "SP_SLASH TB_TABLE SP_VARNAME SP_VARNAME SP_VARNAME "
                                        "SP_VARNAME SP_NONVARNAME"},
        {"TABLES /5 /'x' /( /BY /ALL", "SP_SLASH SP_NUMBER SP_SLASH SP_SLITERAL SP_SLASH SP_LPAREN "
                                       "SP_SLASH SP_BY SP_SLASH SP_ALL"},
        {"TABLES //", "SP_SLASH SP_SLASH"},
    });
}

TEST(TablesClassifier, WordOfMoreThanSixtyFourBytesIsNoName) {
    EXPECT_EQ(DumpCodes("TABLES /TABLE " + std::string(64, 'v')), "SP_SLASH TB_TABLE SP_VARNAME");
    EXPECT_EQ(DumpCodes("TABLES /TABLE " + std::string(65, 'v')),
              "SP_SLASH TB_TABLE SP_NONVARNAME");
}

TEST(TablesClassifier, TokensAreCopiesWithTheirPlaces) {
    Reader reader("TABLES TABLE abc\n  BY 'it''s'");
    reader.Next();
    reader.Next();
    EXPECT_EQ(reader.Place(), "1:8");
    EXPECT_EQ(reader.Next(), SP_VARNAME);
    EXPECT_EQ(reader.Token()->AsString(true), "abc");
    EXPECT_EQ(reader.Place(), "1:14");
    EXPECT_EQ(reader.Next(), SP_BY);
    EXPECT_EQ(reader.Place(), "2:2");
    EXPECT_EQ(reader.Next(), SP_SLITERAL);
    EXPECT_EQ(reader.Token()->AsString(false), "it's");
    EXPECT_EQ(reader.Place(), "2:5");
    EXPECT_EQ(reader.Next(), 0);
    EXPECT_EQ(reader.Token(), nullptr);
}

TEST(TablesClassifier, CommandWithoutTokensBehindItsNameIsAtItsEnd) {
    for (const char* command : {"", "TABLES", "TABLES = ,", "TABLES BREAK", "TABLES /BREAK z"}) {
        SCOPED_TRACE(command);
        Reader reader(command);
        for (int call = 0; call < 3; ++call) {
            EXPECT_EQ(reader.Next(), 0);
            EXPECT_EQ(reader.Token(), nullptr);
        }
    }
}

TEST(TablesClassifier, EndStaysTheEnd) {
    Reader reader("TABLES /TITLE");
    while (reader.Next() != 0) {
    }
    EXPECT_EQ(reader.Next(), 0);
    EXPECT_EQ(reader.Token(), nullptr);
}

TEST(TablesClassifier, WithoutASequenceIsAtItsEnd) {
    TbTrTablesCommand command;
    ZELKToken* token = nullptr;
    EXPECT_EQ(command.GetNextToken(token), 0);
    command.Reset(nullptr);
    EXPECT_EQ(command.GetNextToken(token), 0);
    EXPECT_EQ(token, nullptr);
}

TEST(TablesResults, LastErrorWins) {
    TbTrTablesCommand command;
    command.SetParseError({3, 4, 5, 6}, TB_SORT, TbTrTablesCommand::kBadArgument);
    command.SetParseErrorString("median");
    command.SetParseError({7, 8, 9, 10}, TB_TABLE, TbTrTablesCommand::kBadTableWord);
    int line = 0;
    int column = 0;
    int code = 0;
    std::string text;
    EXPECT_EQ(command.GetParseErrorInfo(line, column, code, text),
              TbTrTablesCommand::kBadTableWord);
    EXPECT_EQ(line, 7);
    EXPECT_EQ(column, 8);
    EXPECT_EQ(code, TB_TABLE);
    EXPECT_EQ(text, "median");
}

TEST(TablesResults, WarningsKeepTheirOrder) {
    TbTrTablesCommand command;
    EXPECT_EQ(command.GetLastWarning(), "");
    EXPECT_TRUE(command.ListWarnings().empty());
    command.AddWarning("one");
    command.AddWarning("two");
    EXPECT_EQ(command.GetLastWarning(), "two");
    EXPECT_EQ(command.ListWarnings(), (std::vector<std::string>{"one", "two"}));
}

TEST(TablesResults, OwnTheTreeUntilTheNextOne) {
    int deleted = 0;
    TbTrTablesCommand command;
    auto* const first = new TbTrParseNode(SP_VARNAME, new WatchedToken(deleted));
    command.SetParseTree(first);
    EXPECT_EQ(command.GetParseTree(), first);
    command.SetParseTree(new TbTrParseNode(SP_VARNAME, new WatchedToken(deleted)));
    EXPECT_EQ(deleted, 1);
    command.Reset(nullptr);
    EXPECT_EQ(deleted, 2);
    EXPECT_EQ(command.GetParseTree(), nullptr);
}

TEST(TablesResults, ResetForgetsThePreviousCommand) {
    TbTrTablesCommand command;
    ZELKToken* token = nullptr;
    command.Reset(TokensOf("TABLES /BREAK z /STATISTICS ("));
    while (command.GetNextToken(token) != 0) {
        delete token;
    }
    command.SetParseError({3, 4, 5, 6}, TB_SORT, TbTrTablesCommand::kBadArgument);
    command.SetParseErrorString("median");
    command.SetLastLocation({3, 4, 5, 6});
    command.SetOffendingLocation({3, 4, 5, 6});
    command.AddWarning("one");
    command.Reset(TokensOf("TABLES /TABLE a"));
    int line = 1;
    int column = 1;
    int code = 1;
    std::string text = "x";
    EXPECT_EQ(command.GetParseErrorInfo(line, column, code, text), TbTrTablesCommand::kNoError);
    EXPECT_EQ(line + column + code, 0);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(command.ListWarnings().empty());
    EXPECT_EQ(command.LastLocation().first_line, 0);
    EXPECT_EQ(command.OffendingLocation().first_line, 0);
    // The BREAK of the previous command is forgotten too.
    for (const int expected : {263, 302, 260, 0}) {
        EXPECT_EQ(command.GetNextToken(token), expected);
        delete token;
    }
}

} // namespace

} // namespace recastor
