// Runs in which the system fails: a call at a time, each in turn.

#include "tests/support/run.h"

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

/// Large enough for several blocks to be read and to be written.
std::string LargeInput() {
    const std::string script = ReadFile(fs::path(RECASTOR_ROOT) / "examples/household.syn");
    std::string text;
    while (text.size() < 150000) {
        text += script;
    }
    return text;
}

/// One run of the program on the large input, disturbed or not.
class Faults : public testing::Test {
protected:
    Faults() : m_input(LargeInput()) { WriteFile(m_folder.Path() / "input.syn", m_input); }

    /// How the input reaches the program.
    enum class Source { kFile, kPipe };

    /// `fault` as the fault library takes it; none when it is empty.
    RunResult Run(const std::string& fault) const {
        return RunProgram(RECASTOR_PROGRAM, {"input.syn", "output.syn"}, m_folder.Path(),
                          Environment(fault));
    }

    /// The same, the input coming through a pipe.
    RunResult RunOnPipe(const std::string& fault) const {
        const std::string command = "cat input.syn | LD_PRELOAD='" RECASTOR_FAULT_LIBRARY
                                    "' RECASTOR_FAULT='" +
                                    fault + "' '" RECASTOR_PROGRAM "' /dev/stdin output.syn";
        return RunProgram("/bin/sh", {"-c", command}, m_folder.Path(), {kSanitizerOptions});
    }

    std::string Output() const {
        const fs::path output = m_folder.Path() / "output.syn";
        return fs::exists(output) ? ReadFile(output) : "";
    }

    std::string UndisturbedOutput() const {
        EXPECT_EQ(0, Run("").status);
        std::string output = Output();
        fs::remove(m_folder.Path() / "output.syn");
        return output;
    }

    void ExpectInputUntouched() const {
        EXPECT_EQ(m_input, ReadFile(m_folder.Path() / "input.syn"));
    }

    /// Makes the first call fail, then the second, and so on until a run makes fewer calls than
    /// that: each run ends with the whole output, or with status 1 and a message.
    void ExpectEachFailureTold(const std::string& call, int error, Source source = Source::kFile) {
        const std::string whole = UndisturbedOutput();
        int told = 0;
        for (int number = 1; number <= kMostCalls; ++number) {
            const std::string fault =
                call + ":" + std::to_string(number) + ":" + std::to_string(error);
            SCOPED_TRACE(fault);
            const RunResult result = source == Source::kFile ? Run(fault) : RunOnPipe(fault);
            ExpectInputUntouched();
            if (result.status == 0) {
                EXPECT_EQ(whole, Output());
                EXPECT_EQ("", result.errors);
            } else {
                ++told;
                EXPECT_EQ(1, result.status);
                EXPECT_TRUE(IsFileMessage(result.errors)) << result.errors;
                EXPECT_EQ(0U, whole.rfind(Output(), 0)) << "not the beginning of the output";
            }
        }
        EXPECT_GT(told, 0);
    }

    const fs::path& Folder() const { return m_folder.Path(); }

private:
    static constexpr int kMostCalls = 12;
    /// The fault library stands in front of the sanitizer's own.
    static constexpr const char* kSanitizerOptions = "ASAN_OPTIONS=verify_asan_link_order=0";

    static std::vector<std::string> Environment(const std::string& fault) {
        if (fault.empty()) {
            return {};
        }
        return {"LD_PRELOAD=" RECASTOR_FAULT_LIBRARY, "RECASTOR_FAULT=" + fault, kSanitizerOptions};
    }

    static bool IsFileMessage(const std::string& errors) {
        for (const char* const message :
             {"Error opening input file ", "Error opening output file ",
              "Error reading input file ", "Error writing output file "}) {
            if (errors.find(message) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

    TemporaryFolder m_folder;
    std::string m_input;
};

TEST_F(Faults, OpenIsDenied) {
    ExpectEachFailureTold("open", EACCES);
}

TEST_F(Faults, ReadFails) {
    ExpectEachFailureTold("read", EIO);
}

TEST_F(Faults, AReadThatFailsIsToldWithTheNameOfTheFile) {
    const RunResult result = Run("read:2:" + std::to_string(EIO));
    EXPECT_EQ("Error reading input file input.syn\n", result.errors);
    EXPECT_EQ(1, result.status);
}

TEST_F(Faults, AReadThatFailsAtFirstLeavesAnOlderOutputAlone) {
    WriteFile(Folder() / "output.syn", "older");
    EXPECT_EQ(1, Run("read:1:" + std::to_string(EIO)).status);
    EXPECT_EQ("older", Output());
}

TEST_F(Faults, ReadOfAPipeFails) {
    ExpectEachFailureTold("read", EIO, Source::kPipe);
}

TEST_F(Faults, TheDiskIsFull) {
    ExpectEachFailureTold("write", ENOSPC);
}

TEST_F(Faults, TheDiskIsFullForAPipe) {
    ExpectEachFailureTold("write", ENOSPC, Source::kPipe);
}

TEST_F(Faults, WriteFails) {
    ExpectEachFailureTold("write", EIO);
}

TEST_F(Faults, CloseReportsAFullDisk) {
    ExpectEachFailureTold("close", ENOSPC);
}

TEST_F(Faults, CloseReportsAFailedWrite) {
    ExpectEachFailureTold("close", EIO);
}

TEST_F(Faults, TheInputCannotBeReadTwice) {
    ExpectEachFailureTold("lseek", EIO);
}

TEST_F(Faults, TheOutputCannotBeEmptied) {
    ExpectEachFailureTold("ftruncate", EIO);
}

TEST_F(Faults, TheSystemCannotTellWhichFileItIs) {
    ExpectEachFailureTold("fstat", EIO);
}

TEST_F(Faults, WithoutKnowledgeOfTheFilesTheInputIsNotOverwritten) {
    for (int number = 1; number <= 6; ++number) {
        const std::string fault = "fstat:" + std::to_string(number) + ":5";
        RunProgram(RECASTOR_PROGRAM, {"input.syn", "input.syn"}, Folder(),
                   {"LD_PRELOAD=" RECASTOR_FAULT_LIBRARY, "RECASTOR_FAULT=" + fault,
                    "ASAN_OPTIONS=verify_asan_link_order=0"});
        ExpectInputUntouched();
    }
}

TEST_F(Faults, SignalsInterruptEveryCall) {
    const std::string whole = UndisturbedOutput();
    for (const char* const call : {"open", "read", "write", "ftruncate"}) {
        for (int number = 1; number <= 6; ++number) {
            const std::string fault =
                call + (":" + std::to_string(number)) + ":" + std::to_string(EINTR);
            SCOPED_TRACE(fault);
            EXPECT_EQ(0, Run(fault).status);
            EXPECT_EQ(whole, Output());
        }
    }
}

TEST_F(Faults, ReadsAndWritesTakeOneByteAtATime) {
    const std::string whole = UndisturbedOutput();
    for (const char* const fault : {"read:1+:short", "write:1+:short"}) {
        SCOPED_TRACE(fault);
        EXPECT_EQ(0, Run(fault).status);
        EXPECT_EQ(whole, Output());
    }
}

TEST_F(Faults, KilledAnywhereTheInputStaysAndARerunIsWhole) {
    constexpr int kKilled = 128 + 9;
    const std::string whole = UndisturbedOutput();
    for (const char* const call : {"open", "read", "write", "ftruncate", "close"}) {
        int killed = 0;
        for (int number = 1; number <= 4; ++number) {
            killed += Run(call + (":" + std::to_string(number)) + ":kill").status == kKilled;
            ExpectInputUntouched();
        }
        EXPECT_GT(killed, 0) << call;
        EXPECT_EQ(0, Run("").status);
        EXPECT_EQ(whole, Output());
    }
}

} // namespace

} // namespace recastor
