// BREAK is taken out where it stands and read again at the end of each TABLE behind it.

#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/dump.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The tokens that the classifier gives, as they are written.
std::string Texts(const std::string& text) {
    TbTrTablesCommand command;
    command.Reset(TokensOf(text));
    std::string texts;
    ZELKToken* token = nullptr;
    while (command.GetNextToken(token) != 0) {
        const std::unique_ptr<ZELKToken> owner(token);
        texts += (texts.empty() ? "" : " ") + token->AsString(true);
    }
    return texts;
}

struct Row {
    const char* command;
    const char* texts;
};

void ExpectTexts(const std::vector<Row>& rows) {
    for (const auto& [command, texts] : rows) {
        SCOPED_TRACE(command);
        EXPECT_EQ(Texts(command), texts);
    }
}

TEST(Break, ArgumentsFollowThoseOfTheTable) {
    EXPECT_EQ(DumpCodes("TABLES /BREAK z /TABLE a"), "SP_SLASH TB_TABLE SP_VARNAME SP_VARNAME");
    ExpectTexts({
        {"TABLES /BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES /BREAK BY x + y /TABLE a BY b", "/ TABLE a BY b BY x + y"},
        {"TABLES /BREAK=x, y /TABLE=a", "/ TABLE a x y"},
        {"TABLES /bre x /TAB a", "/ TAB a x"},
        {"TABLES /breakfast x /TABLE a", "/ TABLE a x"},
    });
}

TEST(Break, NeedsNoSlashAtTheCommandsStart) {
    ExpectTexts({
        {"TABLES BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES = BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES BREAK y /BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES BREAK /TABLE a", "/ TABLE a"},
        {"TABLES BREAK z", ""},
    });
}

TEST(Break, IsReadOnceForEachTable) {
    ExpectTexts({
        {"TABLES /BREAK z /TABLE a /TABLE b", "/ TABLE a z / TABLE b z"},
        {"TABLES /BREAK z /TABLE a /SORT x /TABLE b", "/ TABLE a z / SORT x / TABLE b z"},
        {"TABLES /BREAK z /TABLE", "/ TABLE z"},
        {"TABLES /BREAK z /TABLE a /", "/ TABLE a z /"},
        {"TABLES /BREAK z /BASE ALL /TABLE a", "/ BASE ALL / TABLE a z"},
        {"TABLES /BREAK TABLE /TABLE a /TABLE b", "/ TABLE a TABLE / TABLE b TABLE"},
    });
}

TEST(Break, ActsOnTheTablesBehindIt) {
    ExpectTexts({
        {"TABLES /TABLE a /BREAK z", "/ TABLE a"},
        {"TABLES /TABLE a /BREAK z /TABLE b", "/ TABLE a / TABLE b z"},
        {"TABLES /TABLE a /SORT x /BREAK z /TITLE 't' /TABLE b", "/ TABLE a / SORT x / TITLE 't'  "
                                                                 "/ TABLE b z"},
        {"TABLES /BREAK y /TABLE a /BREAK z /TABLE b", "/ TABLE a y / TABLE b z"},
        {"TABLES /BREAK y /TABLE a /BREAK z /SORT x", "/ TABLE a y / SORT x"},
    });
}

TEST(Break, LastOneWins) {
    ExpectTexts({
        {"TABLES /BREAK y /BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES /BREAK x /BREAK y /BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES /BREAK y /BASE ALL /BREAK z /TABLE a", "/ BASE ALL / TABLE a z"},
        {"TABLES /TABLE a /BREAK y /BREAK z /TABLE b", "/ TABLE a / TABLE b z"},
    });
}

TEST(Break, WithoutArgumentsChangesNothing) {
    ExpectTexts({
        {"TABLES /BREAK /TABLE a", "/ TABLE a"},
        {"TABLES /BREAK = EQ , /TABLE a", "/ TABLE a"},
        {"TABLES /BREAK z /BREAK /TABLE a", "/ TABLE a z"},
        {"TABLES /BREAK /BREAK z /TABLE a", "/ TABLE a z"},
        {"TABLES /BREAK z /TABLE a /BREAK /TABLE b", "/ TABLE a z / TABLE b z"},
        {"TABLES /TABLE a /BREAK", "/ TABLE a"},
    });
}

TEST(Break, ArgumentsAreClassifiedAsTheTables) {
    struct CodesRow {
        const char* command;
        const char* codes;
    };
    for (const auto& [command, codes] : {
             CodesRow{"TABLES /BREAK U (labels) /TABLE a",
                      "SP_SLASH TB_TABLE SP_VARNAME SP_VARNAME SP_LPAREN SP_VARNAME SP_RPAREN"},
             CodesRow{"TABLES /BREAK -5 /TABLE a", "SP_SLASH TB_TABLE SP_VARNAME SP_NUMBER"},
             // The sign looks at what is written behind it.
             CodesRow{"TABLES /BREAK 5 /TABLE -", "SP_SLASH TB_TABLE SP_OTHEROP SP_NUMBER"},
             CodesRow{"TABLES /BREAK - /TABLE 5 /5",
                      "SP_SLASH TB_TABLE SP_NUMBER SP_OTHEROP SP_SLASH SP_NUMBER"},
         }) {
        SCOPED_TRACE(command);
        EXPECT_EQ(DumpCodes(command), codes);
    }
}

TEST(Break, IsAWordInsideOtherSubcommands) {
    ExpectTexts({
        {"TABLES /TABLE break z /TABLE a", "/ TABLE break z / TABLE a"},
        {"TABLES /WRITE BREAK z /TABLE a", "/ WRITE BREAK z / TABLE a"},
        {"TABLES /BREAK BREAK z /TABLE a", "/ TABLE a BREAK z"},
        {"TABLES / / BREAK z /TABLE a", "/ / TABLE a z"},
        {"TABLES /'BREAK' z /TABLE a", "/ 'BREAK'  z / TABLE a"},
    });
}

} // namespace

} // namespace recastor
