// Commands of a size that nobody writes by hand.

#include "tests/support/run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace recastor {

namespace {

using testing::HasSubstr;

/// `count` pieces, `separator` between them.
std::string Repeated(const std::string& piece, int count, const std::string& separator) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += (i > 0 ? separator : "") + piece;
    }
    return text;
}

/// v0, v1 and so on.
std::string DifferentNames(int count, const std::string& separator = " ") {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += (i > 0 ? separator : "") + 'v' + std::to_string(i);
    }
    return text;
}

class Limits : public testing::Test {
protected:
    /// The lines that the program writes in place of a TABLES command with these arguments. The
    /// program runs on its own, with the stack that the system gives everyone.
    std::string Converted(const std::string& arguments) const {
        WriteFile(m_folder.Path() / "input.syn", "TABLES " + arguments + ".\nLAST.\n");
        const RunResult result = RunProgram(
            "/bin/sh", {"-c", "ulimit -s 8192; exec '" RECASTOR_PROGRAM "' input.syn output.syn"},
            m_folder.Path());
        EXPECT_EQ(0, result.status);
        const std::string output = ReadFile(m_folder.Path() / "output.syn");
        EXPECT_TRUE(output.ends_with("\nLAST.\n"));
        return output.substr(output.find("COMMENT -- Begin CTABLES"));
    }

    const TemporaryFolder& Folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

TEST_F(Limits, HundredThousandStackedVariables) {
    const std::string text = Converted("/TABLE " + Repeated("a", 100000, "+"));
    EXPECT_THAT(text, HasSubstr("a[C]+a[C]"));
}

TEST_F(Limits, HundredThousandNestedVariables) {
    const std::string text = Converted("/TABLE " + Repeated("a", 100000, ">"));
    EXPECT_THAT(text, HasSubstr("a[C]"));
}

TEST_F(Limits, ParenthesesUpToTheParsersStack) {
    const std::string text =
        Converted("/TABLE " + std::string(9000, '(') + "a" + std::string(9000, ')'));
    EXPECT_THAT(text, HasSubstr("/TABLE a[C]"));
}

TEST_F(Limits, ParenthesesBeyondTheParsersStackAreAnError) {
    const std::string text =
        Converted("/TABLE " + std::string(100000, '(') + "a" + std::string(100000, ')'));
    EXPECT_THAT(text, HasSubstr("***** "));
}

TEST_F(Limits, OperatorsThatTakeTurnsDeepInParentheses) {
    const std::string text =
        Converted("/TABLE " + Repeated("(a+(b>", 700, "") + "c" + std::string(1400, ')'));
    EXPECT_THAT(text, HasSubstr("COMMENT -- End CTABLES command."));
}

TEST_F(Limits, HundredThousandSubcommands) {
    const std::string text = Converted(Repeated("/TABLE a", 100000, " "));
    EXPECT_THAT(text, HasSubstr("/TABLE a[C]"));
}

TEST_F(Limits, LiteralOfAMillionPieces) {
    const std::string text = Converted("/TABLE a /TITLE " + Repeated("'x'", 1000000, "+"));
    EXPECT_THAT(text, HasSubstr("/TITLES TITLE="));
}

TEST_F(Limits, TensOfThousandsOfTermsAreWritten) {
    const std::string text = Converted("/TABLE " + Repeated("(a+b)", 14, ">"));
    EXPECT_THAT(text, HasSubstr("/TABLE a"));
}

TEST_F(Limits, MoreTermsThanAMachineHoldsAreRefused) {
    const std::string text = Converted("/TABLE sex BY " + Repeated("(a+b)", 3000, ">"));
    EXPECT_THAT(text, HasSubstr("The table expression that begins with a multiplies out to too "
                                "many variables."));
}

TEST_F(Limits, DimensionsWithoutStatisticsAreNotMultipliedOut) {
    const std::string text =
        Converted("/OBSERVATION income /TABLE income BY " + Repeated("(a+b)", 1000, ">") +
                  " /STATISTICS MEAN CPCT(income: a) CPCT(b)");
    EXPECT_THAT(text, HasSubstr("/TABLE income[S]"));
}

#ifndef __SANITIZE_ADDRESS__ // which needs more memory than that for itself
TEST_F(Limits, HundredThousandNamedArgumentsAreFound) {
    const std::string list = DifferentNames(100000);
    const std::string text =
        Converted("/OBSERVATION " + list + " /TABLE x BY " + DifferentNames(100000, "+") +
                  " /STATISTICS MEAN(" + list + ')');
    EXPECT_THAT(text, HasSubstr("v0[S][MEAN]+v1[S][MEAN]"));
    EXPECT_THAT(text, HasSubstr("v99999[S][MEAN]\n  /CATEGORIES"));
}

TEST_F(Limits, HundredThousandBaseVariablesAreFound) {
    const std::string text = Converted("/TABLE x BY " + DifferentNames(100000, "+") +
                                       " /STATISTICS CPCT(x:" + DifferentNames(100000) + ')');
    EXPECT_THAT(text, HasSubstr("x[C][COLPCT.VALIDN] BY v0[C]+v1[C]"));
}

TEST_F(Limits, MemoryThatIsNotThereIsTold) {
    WriteFile(Folder().Path() / "input.syn",
              "TITLE 'first'.\nTABLES /TABLE " + Repeated("a", 1000000, "+") + ".\n");
    const RunResult result = RunProgram(
        "/bin/sh", {"-c", "ulimit -v 100000; exec '" RECASTOR_PROGRAM "' input.syn output.syn"},
        Folder().Path());
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("Not enough memory to convert input file input.syn\n", result.errors);
    EXPECT_TRUE(ReadFile(Folder().Path() / "output.syn").starts_with("TITLE 'first'.\n"));
}
#endif

} // namespace

} // namespace recastor
