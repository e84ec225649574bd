#include "ctables/recastor/commandline.h"
#include "ctables/recastor/tbtrtablescommand.h"
#include "tests/support/run.h"
#include "tests/support/textlocale.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

namespace fs = std::filesystem;

const std::string kUsage = "Usage:\n recastor [-b | /b] inputFile outputFile \n";

/// The request that the arguments behind the program's name make: `input output`, with `batch ` in
/// front; "wrong" when they are wrong.
std::string Request(const std::vector<const char*>& arguments) {
    std::vector<const char*> all{"program"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const auto request = ReadArguments(static_cast<int>(all.size()), all.data());
    return request
               ? (request->batch ? "batch " : "") + request->inputName + ' ' + request->outputName
               : "wrong";
}

TEST(Arguments, TwoNamesAreInputAndOutput) {
    EXPECT_EQ(Request({"in", "out"}), "in out");
    EXPECT_EQ(Request({"-b", "out"}), "-b out");
    EXPECT_EQ(Request({"", ""}), " ");
}

TEST(Arguments, SwitchInFrontTurnsBatchModeOn) {
    for (const char* option : {"-b", "/b", "-bogus", "/batch", "-b=1"}) {
        EXPECT_EQ(Request({option, "in", "out"}), "batch in out") << option;
    }
}

TEST(Arguments, OtherSwitchesAreWrong) {
    for (const char* option :
         {"b", "-x", "-", "/", "", "--b", "-B", "/B", " -b", "+b", "--batch"}) {
        EXPECT_EQ(Request({option, "in", "out"}), "wrong") << option;
    }
    EXPECT_EQ(Request({"in", "-b", "out"}), "wrong");
    EXPECT_EQ(Request({"in", "out", "-b"}), "wrong");
}

TEST(Arguments, OtherNumbersOfArgumentsAreWrong) {
    EXPECT_EQ(Request({}), "wrong");
    EXPECT_EQ(Request({"in"}), "wrong");
    EXPECT_EQ(Request({"-b", "in", "out", "more"}), "wrong");
    EXPECT_FALSE(ReadArguments(0, nullptr));
}

TEST(Arguments, UsageNamesTheProgramWhateverItIsStartedAs) {
    EXPECT_EQ(Usage("other"), kUsage);
    EXPECT_EQ(Usage("recastor"), kUsage);
    EXPECT_EQ(Usage(""), kUsage);
}

TEST(Arguments, UsageIsTheSameWhenTheProgramIsStartedUnderAnotherName) {
    const TemporaryFolder folder;
    fs::create_symlink(RECASTOR_PROGRAM, folder.Path() / "converter");
    const RunResult result =
        RunProgram((folder.Path() / "converter").string(), {"-x", "in", "out"}, folder.Path());
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, kUsage + '\n');
    EXPECT_EQ(result.output, "");
}

class Run : public Utf8Test {
protected:
    std::string Path(const std::string& name) const { return (m_folder.Path() / name).string(); }

    /// Converts `in` to `out` and remembers what the run says and returns.
    void Convert(bool batch = false, const std::string& out = "out") {
        const CapturedStreams streams;
        m_status = RunConversion({batch, Path("in"), out == "out" ? Path(out) : out});
        m_said = streams.Output();
        m_errors = streams.Errors();
    }
    /// The same, of a text; gives the text that it becomes.
    std::string Converted(const std::string& text, bool batch = false) {
        WriteFile(Path("in"), text);
        Convert(batch);
        return ReadFile(Path("out"));
    }

    TemporaryFolder m_folder;
    int m_status = -1;
    std::string m_said;
    std::string m_errors;
};

TEST_F(Run, CopiesOtherCommandsSilently) {
    EXPECT_EQ(Converted("\nFREQ x.\n\n* it's.\n"), "FREQ x.\n* it's.\n");
    EXPECT_EQ(m_status, 0);
    EXPECT_EQ(m_said + m_errors, "");
}

TEST_F(Run, FileWithoutCommandsBecomesOneLineEnd) {
    EXPECT_EQ(Converted(""), "\n");
    EXPECT_EQ(Converted(" \n\t\n"), "\n");
    EXPECT_EQ(m_status, 0);
}

TEST_F(Run, BatchModeIsForTheWholeRun) {
    EXPECT_EQ(Converted("FREQ x\n+DESC y\n", true), "FREQ x.\n+DESC y.\n");
    EXPECT_EQ(Converted("+TABLES x\n", true).substr(0, 10), "COMMENT --");
    EXPECT_EQ(Converted("+TABLES x.\n"), "+TABLES x.\n");
}

TEST_F(Run, MissingInputIsTold) {
    Convert();
    EXPECT_EQ(m_status, 1);
    EXPECT_EQ(m_errors, "Error opening input file " + Path("in") + "\n\n" + kUsage + '\n');
    EXPECT_EQ(m_said, "");
    EXPECT_FALSE(fs::exists(Path("out")));
}

TEST_F(Run, InputInUtf16IsRefusedAndTheOutputLeftAlone) {
    WriteFile(Path("out"), "of an earlier run");
    EXPECT_EQ(Converted("\xFE\xFF" + std::string("\0x\0.", 4)), "of an earlier run");
    EXPECT_EQ(m_status, 1);
    EXPECT_EQ(m_errors, "Text in UTF-16 cannot be read, save it as UTF-8 first: input file " +
                            Path("in") + '\n');
    EXPECT_EQ(m_said, "");
}

TEST_F(Run, InputIsLookedAtBeforeTheOutput) {
    Convert(false, Path("none/out"));
    EXPECT_EQ(m_errors, "Error opening input file " + Path("in") + "\n\n" + kUsage + '\n');
}

TEST_F(Run, OutputThatCannotBeOpenedIsTold) {
    WriteFile(Path("in"), "FREQ x.\n");
    Convert(false, Path("none/out"));
    EXPECT_EQ(m_status, 1);
    EXPECT_EQ(m_errors, "Error opening output file " + Path("none/out") + "\n\n" + kUsage + '\n');
}

TEST_F(Run, OutputThatIsTheInputIsRefused) {
    WriteFile(Path("in"), "FREQ x.\n");
    Convert(false, Path("in"));
    EXPECT_EQ(m_status, 1);
    EXPECT_EQ(m_errors, "Error opening output file " + Path("in") + "\n\n" + kUsage + '\n');
    EXPECT_EQ(ReadFile(Path("in")), "FREQ x.\n");
}

TEST_F(Run, FailedWriteIsTold) {
    WriteFile(Path("in"), "FREQ x.\n");
    Convert(false, "/dev/full");
    EXPECT_EQ(m_status, 1);
    EXPECT_EQ(m_errors, "Error writing output file /dev/full\n");
}

TEST_F(Run, TokenizingErrorEndsTheRun) {
    EXPECT_EQ(Converted("FREQ x.\nTITLE 'a\nDESC y.\n"),
              "FREQ x.\n"
              "***** Error while tokenizing input syntax file. Line 2, column 9.\n"
              "***** Literal unclosed at the end of a line or command.\n");
    EXPECT_EQ(m_status, 1);
    EXPECT_EQ(m_errors, "Syntax conversion failed. See output file for details.\n");
    EXPECT_EQ(m_said, "");
}

TEST_F(Run, FailedTablesCommandDoesNotChangeTheStatus) {
    Converted("TABLES /TABLE.\nTABLES /TABLE x.\n");
    EXPECT_EQ(m_status, 0);
    EXPECT_EQ(m_said, "Tables conversion failed!\nTables conversion was successful!\n");
    EXPECT_EQ(m_errors, "");
}

TEST_F(Run, ClassifierHoldsNoCommandAfterwards) {
    Converted("TABLES /TABLE x.\n");
    EXPECT_EQ(TbTrTablesCommand::g_tablesCommand.GetParseTree(), nullptr);
}

TEST_F(Run, LineEndsFollowTheFirstLine) {
    EXPECT_EQ(Converted("FREQ x.\r\nDESC y.\n"), "FREQ x.\r\nDESC y.\r\n");
    EXPECT_EQ(Converted("FREQ x.\nDESC y\r\n  z.\r\n"), "FREQ x.\nDESC y\r\n  z.\n");
    EXPECT_EQ(Converted("\r\n\r\n"), "\r\n");
}

TEST_F(Run, TextThatIsNotInTheLocalesEncodingIsTakenByteByByte) {
    // The byte in front of the quote would else make the rest of the line invisible.
    EXPECT_EQ(Converted("TITLE 'gr\xF6\xDF"
                        "e'.\nFREQ x.\n"),
              "TITLE 'gr\xF6\xDF"
              "e'.\nFREQ x.\n");
    EXPECT_EQ(m_status, 0);
    EXPECT_EQ(Converted("* \xE9\n"
                        "x.\nTITLE 'a\n"),
              "* \xE9\nx.\n"
              "***** Error while tokenizing input syntax file. Line 3, column 9.\n"
              "***** Literal unclosed at the end of a line or command.\n");
}

TEST_F(Run, TextOfALegacyLocaleIsReadInItsEncoding) {
    const TextLocale chinese("zh_CN.GBK");
    // The second byte of the first character is a backslash, which else begins no token.
    EXPECT_EQ(Converted("FREQ \x81\x5C.\nDESC y.\n"), "FREQ \x81\x5C.\nDESC y.\n");
    EXPECT_EQ(m_status, 0);
    EXPECT_EQ(Converted("FREQ \x81\x5C \\.\n"),
              "***** Error while tokenizing input syntax file. Line 1, column 8.\n"
              "***** Encountered a character that is not valid in Quantix syntax.\n");
}

TEST(FailedMessage, GoesToStandardError) {
    const CapturedStreams streams;
    PrintFailedMessage();
    EXPECT_EQ(streams.Errors(), "Syntax conversion failed. See output file for details.\n");
    EXPECT_EQ(streams.Output(), "");
}

} // namespace

} // namespace recastor
