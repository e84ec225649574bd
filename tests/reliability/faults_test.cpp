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
    RunResult Run(const std::string& fault, const char* output = "output.syn") const {
        return RunProgram(RECASTOR_PROGRAM, {"input.syn", output}, m_folder.Path(),
                          Environment(fault));
    }

    /// The same, the input coming through a pipe.
    RunResult RunOnPipe(const std::string& fault) const {
        const std::string command = "cat input.syn | LD_PRELOAD='" RECASTOR_FAULT_LIBRARY
                                    "' RECASTOR_FAULT='" +
                                    fault + "' '" RECASTOR_PROGRAM "' /dev/stdin output.syn";
        return RunProgram("/bin/sh", {"-c", command}, m_folder.Path(),
                          {kMarkSetting, kSanitizerOptions});
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

    /// Disturbs the first call, then the second, and so on until a run makes fewer calls than
    /// that. `run` takes the fault, `check` the result of each run that was disturbed; what is
    /// given is the result of the one that was not.
    template <typename Runner, typename Check>
    RunResult DisturbEachCall(const std::string& call, const std::string& how, const Runner& run,
                              const Check& check) const {
        for (int number = 1; number <= kMostCalls; ++number) {
            const std::string fault = call + ":" + std::to_string(number) + ":" + how;
            SCOPED_TRACE(fault);
            fs::remove(m_folder.Path() / kMark);
            const RunResult result = run(fault);
            ExpectInputUntouched();
            if (!fs::exists(m_folder.Path() / kMark)) {
                return result;
            }
            check(result);
        }
        ADD_FAILURE() << "every run was disturbed";
        return {};
    }

    /// Each run ends with the whole output, or with status 1 and a message.
    void ExpectEachFailureTold(const std::string& call, int error, Source source = Source::kFile) {
        const std::string whole = UndisturbedOutput();
        int told = 0;
        const auto run = [&](const std::string& fault) {
            return source == Source::kFile ? Run(fault) : RunOnPipe(fault);
        };
        const auto check = [&](const RunResult& result) {
            if (result.status == 0) {
                EXPECT_EQ(whole, Output());
                EXPECT_EQ("", result.errors);
            } else {
                ++told;
                EXPECT_EQ(1, result.status);
                EXPECT_TRUE(IsFileMessage(result.errors)) << result.errors;
                EXPECT_EQ(0U, whole.rfind(Output(), 0)) << "not the beginning of the output";
            }
        };
        EXPECT_EQ(0, DisturbEachCall(call, std::to_string(error), run, check).status);
        EXPECT_EQ(whole, Output());
        EXPECT_GT(told, 0);
    }

    const fs::path& Folder() const { return m_folder.Path(); }

private:
    /// More than any run makes of one kind; a pipe gives its bytes in as many parts as it likes.
    static constexpr int kMostCalls = 200;
    /// What the fault library makes when it has disturbed a call.
    static constexpr const char* kMark = "disturbed";
    /// The fault library stands in front of the sanitizer's own.
    static constexpr const char* kSanitizerOptions = "ASAN_OPTIONS=verify_asan_link_order=0";
    static constexpr const char* kMarkSetting = "RECASTOR_FAULT_MARK=disturbed";

    static std::vector<std::string> Environment(const std::string& fault) {
        if (fault.empty()) {
            return {};
        }
        return {"LD_PRELOAD=" RECASTOR_FAULT_LIBRARY, "RECASTOR_FAULT=" + fault, kMarkSetting,
                kSanitizerOptions};
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
    const auto run = [&](const std::string& fault) { return Run(fault, "input.syn"); };
    const auto check = [](const RunResult& result) { EXPECT_EQ(1, result.status); };
    check(DisturbEachCall("fstat", std::to_string(EIO), run, check));
}

TEST_F(Faults, SignalsInterruptEveryCall) {
    const std::string whole = UndisturbedOutput();
    for (const char* const call : {"open", "read", "write", "ftruncate"}) {
        int interrupted = 0;
        const auto run = [&](const std::string& fault) { return Run(fault); };
        const auto check = [&](const RunResult& result) {
            ++interrupted;
            EXPECT_EQ(0, result.status);
            EXPECT_EQ(whole, Output());
        };
        check(DisturbEachCall(call, std::to_string(EINTR), run, check));
        EXPECT_GT(interrupted, 1) << call;
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
        const auto run = [&](const std::string& fault) { return Run(fault); };
        const auto check = [&](const RunResult& result) {
            ++killed;
            EXPECT_EQ(kKilled, result.status);
        };
        // The last run is left alone, and begins where one was killed.
        EXPECT_EQ(0, DisturbEachCall(call, "kill", run, check).status);
        EXPECT_EQ(whole, Output());
        EXPECT_GT(killed, 0) << call;
    }
}

} // namespace

} // namespace recastor
