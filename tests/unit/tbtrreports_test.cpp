#include "ctables/recastor/bison/tbtrparsebuilder.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/tokens.h"
#include "tests/support/values.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

constexpr yyltype kPlace{7, 3, 8, 9};

/// Each test begins with a classifier that has recorded nothing.
class Reports : public testing::Test {
protected:
    Reports() { m_command.Reset(nullptr); }

    /// The recorded error as "type code@line:column", "none" when there is none.
    std::string Error() const {
        int line = 0;
        int column = 0;
        int code = 0;
        std::string text;
        const int type = m_command.GetParseErrorInfo(line, column, code, text);
        EXPECT_EQ(text, "");
        return type == 0 ? "none"
                         : std::to_string(type) + ' ' + std::to_string(code) + '@' +
                               std::to_string(line) + ':' + std::to_string(column);
    }

    TbTrTablesCommand& m_command = TbTrTablesCommand::g_tablesCommand;
};

TEST_F(Reports, GenericErrorHasNoSubcommand) {
    reportGenericError(kPlace);
    EXPECT_EQ(Error(), "4 0@7:3");
}

TEST_F(Reports, ArgumentErrorNamesItsSubcommand) {
    for (const int code :
         {273, 274, 275, 277, 291, 292, 293, 294, 295, 298, 299, 300, 301, 302, 303}) {
        reportSubcommandArgumentError(code, kPlace);
        EXPECT_EQ(Error(), "1 " + std::to_string(code) + "@7:3");
    }
}

TEST_F(Reports, CustomErrorDependsOnTheSubcommand) {
    reportSubcommandArgumentCustomError(TB_OBSERVATION, kPlace);
    EXPECT_EQ(Error(), "2 303@7:3");
    reportSubcommandArgumentCustomError(TB_TABLE, kPlace);
    EXPECT_EQ(Error(), "3 302@7:3");
    reportSubcommandArgumentCustomError(TB_SORT, kPlace);
    EXPECT_EQ(Error(), "1 295@7:3");
}

TEST_F(Reports, LastErrorWins) {
    reportSubcommandArgumentError(TB_SORT, {1, 2, 3, 4});
    reportGenericError(kPlace);
    EXPECT_EQ(Error(), "4 0@7:3");
}

TEST_F(Reports, WarningsAreNoErrors) {
    reportObsoleteSubcommand("BOXCHARS", TB_BOXCHARS, kPlace);
    reportUnknownSubcommand("xYz", kPlace);
    reportFormatError(kPlace);
    EXPECT_EQ(Error(), "none");
    EXPECT_EQ(m_command.ListWarnings(),
              (std::vector<std::string>{
                  "Obsolete subcommand BOXCHARS has been ignored.",
                  "Unrecognized or obsolete subcommand xYz has been ignored.",
                  "Obsolete form of the FORMAT subcommand has been ignored.",
              }));
    EXPECT_EQ(m_command.GetLastWarning(),
              "Obsolete form of the FORMAT subcommand has been ignored.");
}

TEST_F(Reports, NamesMayHoldAnything) {
    reportUnknownSubcommand("a%sb%d", kPlace);
    EXPECT_EQ(m_command.GetLastWarning(),
              "Unrecognized or obsolete subcommand a%sb%d has been ignored.");
}

TEST_F(Reports, DroppedSubcommandsWarnAndGiveNothing) {
    OpaqueValue nothing{};
    EXPECT_TRUE(OpaqueValue_IsEmpty(
        dropped_obsolete(TB_PTITLE, kPlace, TokenValue(Word("pti"), TB_PTITLE), nothing)));
    EXPECT_TRUE(OpaqueValue_IsEmpty(
        dropped_unknown(kPlace, TokenValue(Word("qUx"), TB_UNKNOWNSUBCOM), nothing)));
    EXPECT_TRUE(OpaqueValue_IsEmpty(dropped_format(kPlace, TokenValue(Word("FORMAT"), TB_FORMAT))));
    EXPECT_EQ(m_command.ListWarnings(),
              (std::vector<std::string>{
                  "Obsolete subcommand PTITLE has been ignored.",
                  "Unrecognized or obsolete subcommand qUx has been ignored.",
                  "Obsolete form of the FORMAT subcommand has been ignored.",
              }));
}

TEST_F(Reports, RejectionsRecordTheErrorAndGiveNothing) {
    EXPECT_TRUE(OpaqueValue_IsEmpty(
        rejected_arguments(TB_SORT, kPlace, TokenValue(Word("SORT"), TB_SORT))));
    EXPECT_EQ(Error(), "1 295@7:3");
    EXPECT_TRUE(OpaqueValue_IsEmpty(rejected_command({9, 1, 9, 1})));
    EXPECT_EQ(Error(), "4 0@9:1");
}

} // namespace

} // namespace recastor
