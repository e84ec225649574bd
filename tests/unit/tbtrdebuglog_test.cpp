#include "ctables/recastor/tbtrdebuglog.h"
#include "tests/support/dump.h"

#include <iostream>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;
using testing::Not;

/// Turns the log on and gathers what it says, as long as it lives.
class GatheredLog {
public:
    GatheredLog() : m_buffer(m_log.rdbuf(m_text.rdbuf())) { m_log.StartLogging(); }
    ~GatheredLog() {
        m_log.StopLogging();
        m_log.rdbuf(m_buffer);
    }
    GatheredLog(const GatheredLog&) = delete;
    GatheredLog& operator=(const GatheredLog&) = delete;

    std::string Text() const { return m_text.str(); }

private:
    TbTrDebugLog& m_log = TbTrDebugLog::GetDebugLog();
    std::ostringstream m_text;
    std::streambuf* m_buffer;
};

/// What the log says about a command.
std::string LogOf(const std::string& command) {
    const GatheredLog log;
    DumpParse("TABLES " + command);
    return log.Text();
}

/// The parser's message among the lines of the log; empty when there is none.
std::string MessageOf(const std::string& command) {
    std::istringstream lines(LogOf(command));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("parse")) {
            return line;
        }
    }
    return {};
}

TEST(TbTrDebugLog, StartsOffAndIsSwitched) {
    TbTrDebugLog log;
    EXPECT_FALSE(log.IsLoggingOn());
    log.StartLogging();
    EXPECT_TRUE(log.IsLoggingOn());
    log.StopLogging();
    EXPECT_FALSE(log.IsLoggingOn());
}

TEST(TbTrDebugLog, WritesToStandardError) {
    TbTrDebugLog log;
    EXPECT_EQ(log.rdbuf(), std::cerr.rdbuf());
    EXPECT_EQ(&log.GetStream(), &log);
}

TEST(TbTrDebugLog, ThereIsOneOfTheProgram) {
    EXPECT_EQ(&TbTrDebugLog::GetDebugLog(), &TbTrDebugLog::GetDebugLog());
    EXPECT_FALSE(TbTrDebugLog::GetDebugLog().IsLoggingOn());
}

TEST(TbTrDebugLog, SaysNothingWhenItIsOff) {
    testing::internal::CaptureStderr();
    DumpParse("TABLES /FORMAT x /WRITE y /odd z /TABLE a /TABLE 5");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(TbTrDebugLog, SaysNothingAfterItHasBeenSwitchedOff) {
    LogOf("/TABLE 5");
    testing::internal::CaptureStderr();
    DumpParse("TABLES /TABLE 5");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(TbTrDebugLog, ShowsEachTokenWithItsCode) {
    EXPECT_EQ(LogOf("/TABLE a > 5"), "302\tkString\t1:9\tkNotOperator\tTABLE\n"
                                     "260\tkString\t1:15\tkNotOperator\ta\n"
                                     "262\tkOperator\t1:17\tkGreaterThan\t>\n"
                                     "258\tkNumber\t1:19\t5\t5\n"
                                     "parse error, unexpected SP_NUMBER, expecting SP_VARNAME or "
                                     "SP_LPAREN\n"
                                     "reportSubcommandArgumentError\n");
}

TEST(TbTrDebugLog, ShowsWhichReportsWereMade) {
    struct Row {
        const char* command;
        const char* report;
    };
    for (const auto& [command, report] : {
             Row{"/TITLE 'x'", "reportGenericError\n"},
             Row{"/SORT x /5", "reportGenericError\n"},
             Row{"/TABLE", "reportSubcommandArgumentError\n"},
             Row{"/OBSERVATION a TO b /TABLE t", "reportSubcommandArgumentCustomError\n"},
             Row{"/TABLE (!x)", "reportSubcommandArgumentCustomError\n"},
             Row{"/WRITE x /TABLE t", "reportObsoleteSubcommand\n"},
             Row{"/odd x /TABLE t", "reportUnknownSubcommand\n"},
             Row{"/FORMAT x /TABLE t", "reportFormatError\n"},
         }) {
        SCOPED_TRACE(command);
        EXPECT_THAT(LogOf(command), HasSubstr(report));
    }
    EXPECT_THAT(LogOf("/GBASE CASES /TABLE t"), Not(HasSubstr("report")));
}

TEST(ParserMessage, NamesUpToFourExpectedTokens) {
    struct Row {
        const char* command;
        const char* message;
    };
    for (const auto& [command, message] : {
             Row{"/TABLE t /STATISTICS mean('M' : 5",
                 "parse error, unexpected SP_NUMBER, expecting SP_VARNAME"},
             Row{"/MISSING ON",
                 "parse error, unexpected TB_ON, expecting TB_INCLUDE or TB_EXCLUDE"},
             Row{"/TABLE t /SORT 5", "parse error, unexpected SP_NUMBER, expecting SP_VARNAME or "
                                     "TB_ASCENDING or TB_DESCENDING"},
             Row{"/TABLE t /STATISTICS mean(5",
                 "parse error, unexpected SP_NUMBER, expecting SP_SLITERAL or SP_VARNAME or "
                 "SP_LPAREN or SP_RPAREN"},
         }) {
        SCOPED_TRACE(command);
        EXPECT_EQ(MessageOf(command), message);
    }
}

TEST(ParserMessage, NamesNoneOfFiveExpectedTokens) {
    // A literal, a name, a colon and both parentheses would do behind the variable.
    EXPECT_EQ(MessageOf("/TABLE t /STATISTICS mean(x 5"), "parse error, unexpected SP_NUMBER");
    EXPECT_EQ(MessageOf("/5"), "parse error, unexpected SP_NUMBER");
}

TEST(ParserMessage, TellsOfAnUnparseableFormat) {
    EXPECT_THAT(MessageOf("/FORMAT BOX /TABLE t"), HasSubstr("parse error, unexpected SP_OTHEROP"));
}

TEST(ParserMessage, TellsWhenTheStackIsFull) {
    EXPECT_EQ(MessageOf("/TABLE " + std::string(20000, '(')), "parser stack overflow");
}

TEST(ParserMessage, IsNotMadeForACommandThatParses) {
    EXPECT_EQ(MessageOf("/FORMAT BLANK /TABLE t /TITLE 'x'"), "");
}

} // namespace

} // namespace recastor
