#include "ctables/recastor/outputfile.h"
#include "tests/support/run.h"

#include <array>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class Output : public testing::Test {
protected:
    /// What the file holds when the pieces were written one by one.
    std::string Written(const std::vector<std::string>& pieces, bool crLf = false) const {
        OutputFile output;
        EXPECT_TRUE(output.Open(m_path.string(), FileDescriptor()));
        if (crLf) {
            output.UseCrLf();
        }
        for (const std::string& piece : pieces) {
            output.Stream() << piece;
        }
        EXPECT_TRUE(output.Close());
        return ReadFile(m_path);
    }

    TemporaryFolder m_folder;
    fs::path m_path = m_folder.Path() / "output.syn";
};

TEST_F(Output, LinesComeOutAsTheyWereWritten) {
    EXPECT_EQ(Written({"a\nb\n"}), "a\nb\n");
    EXPECT_EQ(Written({"a", "b\nc", "\n"}), "ab\nc\n");
    EXPECT_EQ(Written({"  a \n\tb\t\n"}), "  a \n\tb\t\n");
    EXPECT_EQ(Written({"a\0b\n"s}), "a\0b\n"s);
}

TEST_F(Output, LinesOfWhiteSpaceAreLeftOut) {
    EXPECT_EQ(Written({"\n\na\n \t\n\r\nb\n\n"}), "a\nb\n");
    EXPECT_EQ(Written({" ", "\t", "\na\n", " ", "b\n"}), "a\n b\n");
    EXPECT_EQ(Written({"\v\n\f\n"}), "\v\n\f\n");
}

TEST_F(Output, LastLineIsEnded) {
    EXPECT_EQ(Written({"a"}), "a\n");
    EXPECT_EQ(Written({"a\n  "}), "a\n");
}

TEST_F(Output, OutputWithoutLinesIsOneLineEnd) {
    EXPECT_EQ(Written({}), "\n");
    EXPECT_EQ(Written({"", " \n\n"}), "\n");
    EXPECT_EQ(Written({}, true), "\r\n");
    EXPECT_EQ(Written({"\n \n"}, true), "\r\n");
}

TEST_F(Output, EveryLineMayEndInTwoCharacters) {
    EXPECT_EQ(Written({"a\nb\r\n\nc"}, true), "a\r\nb\r\nc\r\n");
    EXPECT_EQ(Written({"a\r\nb\n"}), "a\r\nb\n");
}

TEST_F(Output, SingleCharactersAreGatheredToo) {
    OutputFile output;
    ASSERT_TRUE(output.Open(m_path.string(), FileDescriptor()));
    for (const char c : "ab\n\nc"s) {
        output.Stream().put(c);
    }
    EXPECT_TRUE(output.Close());
    EXPECT_EQ(ReadFile(m_path), "ab\nc\n");
}

TEST_F(Output, MuchTextIsWrittenWhole) {
    std::string text;
    for (int i = 0; i < 40'000; ++i) {
        text += "line " + std::to_string(i) + '\n';
    }
    EXPECT_TRUE(Written({text}) == text);
    const std::string line(300'000, 'x');
    EXPECT_TRUE(Written({line}) == line + '\n');
}

TEST_F(Output, OldContentsAreGone) {
    WriteFile(m_path, "a much longer text than the new one\n");
    EXPECT_EQ(Written({"a\n"}), "a\n");
}

TEST_F(Output, PendingLinesCanBeBroughtToTheFile) {
    OutputFile output;
    ASSERT_TRUE(output.Open(m_path.string(), FileDescriptor()));
    output.Stream() << "a\nb\nhalf" << std::flush;
    EXPECT_EQ(ReadFile(m_path), "") << "a regular file waits for a block";
    output.WritePending();
    EXPECT_EQ(ReadFile(m_path), "a\nb\n");
    EXPECT_TRUE(output.Close());
    EXPECT_EQ(ReadFile(m_path), "a\nb\nhalf\n");
}

TEST_F(Output, ReaderOfAPipeGetsWhatIsFlushed) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), 0), 0);
    const FileDescriptor reading(ends[0]);
    const FileDescriptor writing(ends[1]);
    OutputFile output;
    ASSERT_TRUE(output.Open("/dev/fd/" + std::to_string(ends[1]), FileDescriptor()));
    output.Stream() << "a\nb" << std::flush;
    std::array<char, 10> block{};
    ASSERT_EQ(::fcntl(ends[0], F_SETFL, O_NONBLOCK), 0);
    EXPECT_EQ(reading.Read(block.data(), block.size()), 2);
    EXPECT_EQ(std::string(block.data(), 2), "a\n");
    EXPECT_TRUE(output.Close());
}

TEST_F(Output, FileThatCannotBeWrittenIsNotOpened) {
    OutputFile output;
    EXPECT_FALSE(output.Open(m_folder.Path().string(), FileDescriptor()));
    EXPECT_FALSE(output.Open((m_folder.Path() / "none" / "x").string(), FileDescriptor()));
    EXPECT_FALSE(output.Open("", FileDescriptor()));
}

TEST_F(Output, InputIsRefusedUnderEveryName) {
    WriteFile(m_path, "the input\n");
    fs::create_symlink(m_path, m_folder.Path() / "link");
    fs::create_hard_link(m_path, m_folder.Path() / "hard");
    const FileDescriptor input(::open(m_path.c_str(), O_RDONLY | O_CLOEXEC));
    for (const char* name : {"output.syn", "./output.syn", "link", "hard"}) {
        OutputFile output;
        EXPECT_FALSE(output.Open((m_folder.Path() / name).string(), input)) << name;
    }
    EXPECT_EQ(ReadFile(m_path), "the input\n");
}

TEST_F(Output, FullDeviceIsToldWhenItIsClosed) {
    OutputFile output;
    ASSERT_TRUE(output.Open("/dev/full", FileDescriptor()));
    output.Stream() << "a\n";
    EXPECT_FALSE(output.Close());
}

TEST_F(Output, AfterAFailureNothingMoreIsWritten) {
    WriteFile(m_path, "");
    FileDescriptor file(::open(m_path.c_str(), O_RDONLY | O_CLOEXEC));
    LineWriteBuffer buffer(file);
    std::ostream stream(&buffer);
    stream << "a\n";
    EXPECT_FALSE(buffer.HasFailed());
    buffer.WriteBlock();
    EXPECT_TRUE(buffer.HasFailed());
    file = FileDescriptor(::open(m_path.c_str(), O_WRONLY | O_CLOEXEC));
    stream << "b\n";
    buffer.Finish();
    EXPECT_TRUE(buffer.HasFailed());
    EXPECT_EQ(ReadFile(m_path), "");
}

} // namespace

} // namespace recastor
