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

/// How often `piece` stands in the text, which is too long to be shown when it does not.
int Count(const std::string& text, const std::string& piece) {
    int count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos;
         at = text.find(piece, at + piece.size())) {
        ++count;
    }
    return count;
}

class Limits : public testing::Test {
protected:
    /// The lines that the program writes in place of a TABLES command with these arguments, which
    /// it can convert.
    std::string Converted(const std::string& arguments) const {
        return Written(arguments, "Tables conversion was successful!\n");
    }

    /// The same of a command that it cannot convert.
    std::string Refused(const std::string& arguments) const {
        return Written(arguments, "Tables conversion failed!\n");
    }

    const TemporaryFolder& Folder() const { return m_folder; }

private:
    /// The program runs on its own, with the stack that the system gives everyone, and says how
    /// it went.
    std::string Written(const std::string& arguments, const std::string& said) const {
        WriteFile(m_folder.Path() / "input.syn", "TABLES " + arguments + ".\nLAST.\n");
        const RunResult result = RunProgram(
            "/bin/sh", {"-c", "ulimit -s 8192; exec '" RECASTOR_PROGRAM "' input.syn output.syn"},
            m_folder.Path());
        EXPECT_EQ(0, result.status);
        EXPECT_EQ(said, result.output);
        const std::string output = ReadFile(m_folder.Path() / "output.syn");
        EXPECT_TRUE(output.ends_with("\nLAST.\n"));
        return output.substr(output.find("COMMENT -- Begin CTABLES"));
    }

    TemporaryFolder m_folder;
};

TEST_F(Limits, HundredThousandStackedVariables) {
    const std::string text = Converted("/TABLE " + Repeated("a", 100000, "+"));
    EXPECT_EQ(100000, Count(text, "a[C]"));
    EXPECT_EQ(99999, Count(text, "+"));
}

TEST_F(Limits, HundredThousandNestedVariables) {
    const std::string text = Converted("/TABLE " + Repeated("a", 100000, ">"));
    EXPECT_EQ(100000, Count(text, "a[C]"));
    EXPECT_EQ(99999, Count(text, ">"));
}

TEST_F(Limits, ParenthesesUpToTheParsersStack) {
    const std::string text =
        Converted("/TABLE " + std::string(9000, '(') + "a" + std::string(9000, ')'));
    EXPECT_THAT(text, HasSubstr("/TABLE a[C]\n"));
}

TEST_F(Limits, ParenthesesBeyondTheParsersStackAreAnError) {
    const std::string text =
        Refused("/TABLE " + std::string(100000, '(') + "a" + std::string(100000, ')'));
    EXPECT_THAT(text, HasSubstr("\n***** Invalid TABLES command syntax.\n"));
}

TEST_F(Limits, OperatorsThatTakeTurnsDeepInParentheses) {
    const std::string text =
        Converted("/TABLE " + Repeated("(a+(b>", 700, "") + "c" + std::string(1400, ')'));
    // a, b>a, b>b>a and so on; the last of the 701 terms ends in c.
    EXPECT_EQ(700, Count(text, "a[C]"));
    EXPECT_EQ(700 * 701 / 2, Count(text, "b[C]"));
    EXPECT_EQ(1, Count(text, "c[C]"));
    EXPECT_EQ(700, Count(text, "+"));
}

TEST_F(Limits, HundredThousandSubcommands) {
    const std::string text = Converted(Repeated("/TABLE a", 100000, " "));
    EXPECT_EQ(100000, Count(text, "/TABLE a[C]\n"));
}

TEST_F(Limits, LiteralOfAMillionPieces) {
    const std::string literal = Repeated("'x'", 1000000, "+");
    const std::string text = Converted("/TABLE a /TITLE " + literal);
    EXPECT_EQ(1, Count(text, "/TITLES TITLE=\n  " + literal + ".\n"));
}

TEST_F(Limits, TensOfThousandsOfTermsAreWritten) {
    const std::string text = Converted("/TABLE " + Repeated("(a+b)", 14, ">"));
    const int terms = 1 << 14;
    EXPECT_EQ(terms * 14 / 2, Count(text, "a[C]"));
    EXPECT_EQ(terms * 14 / 2, Count(text, "b[C]"));
    EXPECT_EQ(terms - 1, Count(text, "+"));
}

TEST_F(Limits, MoreTermsThanAMachineHoldsAreRefused) {
    const std::string text = Refused("/TABLE sex BY " + Repeated("(a+b)", 3000, ">"));
    EXPECT_THAT(text, HasSubstr("The table expression that begins with a multiplies out to too "
                                "many variables."));
}

TEST_F(Limits, DimensionsWithoutStatisticsAreNotMultipliedOut) {
    const std::string text =
        Converted("/OBSERVATION income /TABLE income BY " + Repeated("(a+b)", 1000, ">") +
                  " /STATISTICS MEAN CPCT(income: a) CPCT(b)");
    EXPECT_THAT(text, HasSubstr("/TABLE income[S]"));
    EXPECT_EQ(1000, Count(text, "a[C]"));
    EXPECT_EQ(1000, Count(text, "b[C]"));
}

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

#ifndef __SANITIZE_ADDRESS__ // which needs more memory than that for itself
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
