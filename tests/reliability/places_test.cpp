// Where the output goes, and that nothing else is written.

#include "tests/support/run.h"

#include <filesystem>
#include <string>
#include <sys/stat.h>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

const char* const kInput = "TABLES /TABLE sex BY region.\nFREQUENCIES sex.\n";

class Places : public testing::Test {
protected:
    Places() { WriteFile(Folder() / "input.syn", kInput); }

    const fs::path& Folder() const { return m_folder.Path(); }

    RunResult Run(const std::string& output) const {
        return RunProgram(RECASTOR_PROGRAM, {"input.syn", output}, Folder());
    }

    /// Runs a command line of the shell, "$P" in it being the program.
    RunResult RunShell(const std::string& command) const {
        return RunProgram("/bin/sh", {"-c", "P='" RECASTOR_PROGRAM "'; " + command}, Folder());
    }

    std::string Converted() const {
        EXPECT_EQ(0, Run("plain.syn").status);
        std::string converted = ReadFile(Folder() / "plain.syn");
        fs::remove(Folder() / "plain.syn");
        return converted;
    }

    void ExpectRefused(const std::string& output) const {
        const RunResult result = Run(output);
        EXPECT_EQ(1, result.status);
        EXPECT_EQ(0U, result.errors.find("Error opening output file " + output + "\n"))
            << result.errors;
        EXPECT_EQ(kInput, ReadFile(Folder() / "input.syn"));
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(Places, TheInputByItsNameIsRefused) {
    ExpectRefused("input.syn");
}

TEST_F(Places, ASymbolicLinkToTheInputIsRefused) {
    fs::create_symlink("input.syn", Folder() / "link.syn");
    ExpectRefused("link.syn");
}

TEST_F(Places, AHardLinkToTheInputIsRefused) {
    fs::create_hard_link(Folder() / "input.syn", Folder() / "link.syn");
    ExpectRefused("link.syn");
}

TEST_F(Places, ASymbolicLinkThatLeadsNowhereInAMissingFolderIsRefused) {
    fs::create_symlink("missing/file.syn", Folder() / "link.syn");
    ExpectRefused("link.syn");
}

TEST_F(Places, ASymbolicLinkToAnotherFileIsFollowed) {
    const std::string converted = Converted();
    WriteFile(Folder() / "target.syn", "older and longer than nothing\n");
    fs::create_symlink("target.syn", Folder() / "link.syn");
    EXPECT_EQ(0, Run("link.syn").status);
    EXPECT_TRUE(fs::is_symlink(Folder() / "link.syn"));
    EXPECT_EQ(converted, ReadFile(Folder() / "target.syn"));
}

TEST_F(Places, AFolderIsRefused) {
    fs::create_directory(Folder() / "folder");
    ExpectRefused("folder");
}

TEST_F(Places, APipeGetsTheWholeOutput) {
    const std::string converted = Converted();
    const RunResult result =
        RunShell("mkfifo pipe; cat pipe >copy.syn & \"$P\" input.syn pipe && wait");
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(converted, ReadFile(Folder() / "copy.syn"));
}

TEST_F(Places, AReaderThatClosesItsPipeEndsTheRunAsItDoesForOtherTools) {
    const RunResult result = RunShell(
        "for i in 1 2 3 4 5 6 7 8 9 10 11 12; do cat input.syn input.syn >more; mv more input.syn; "
        "done; \"$P\" input.syn /dev/stdout | head -n 1");
    EXPECT_EQ("", result.errors);
}

TEST_F(Places, AFullDeviceIsTold) {
    const RunResult result = Run("/dev/full");
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("Error writing output file /dev/full\n", result.errors);
}

TEST_F(Places, ProgressLinesThatCannotBeWrittenLoseNothing) {
    const std::string converted = Converted();
    EXPECT_EQ(0, RunShell("\"$P\" input.syn output.syn >/dev/full").status);
    EXPECT_EQ(converted, ReadFile(Folder() / "output.syn"));
}

TEST_F(Places, AnOlderOutputIsReplacedWhole) {
    const std::string converted = Converted();
    WriteFile(Folder() / "output.syn", std::string(100000, 'x'));
    EXPECT_EQ(0, Run("output.syn").status);
    EXPECT_EQ(converted, ReadFile(Folder() / "output.syn"));
}

TEST_F(Places, TheOutputHasThePermissionsOfTheUsersUmask) {
    EXPECT_EQ(0, RunShell("umask 027; \"$P\" input.syn output.syn").status);
    EXPECT_EQ(fs::perms(0640), fs::status(Folder() / "output.syn").permissions());
}

TEST_F(Places, NothingButTheOutputIsMade) {
    fs::create_directory(Folder() / "work");
    fs::rename(Folder() / "input.syn", Folder() / "work/input.syn");
    EXPECT_EQ(0, RunShell("cd work && TMPDIR=$PWD \"$P\" input.syn output.syn && "
                          "cat input.syn | TMPDIR=$PWD \"$P\" /dev/stdin output.syn")
                     .status);
    std::string names;
    for (const auto& entry : fs::directory_iterator(Folder() / "work")) {
        names += entry.path().filename().string() + ' ';
    }
    EXPECT_TRUE(names == "input.syn output.syn " || names == "output.syn input.syn ") << names;
}

} // namespace

} // namespace recastor
