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
    bool Open(OutputFile& output, const std::string& name) const {
        return output.Open(name, m_input);
    }
    /// What the file holds when the pieces were written one by one.
    std::string Written(const std::vector<std::string>& pieces, bool crLf = false) const {
        OutputFile output;
        EXPECT_TRUE(Open(output, m_path.string()));
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

private:
    FileDescriptor m_input =
        FileDescriptor::Open((m_folder.Path() / "input.syn").string(), O_RDONLY | O_CREAT);
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

TEST_F(Output, LinesAreTheSameWhereverTheTextIsCut) {
    const std::string text = "a\n \t\r\n\n\rb\r\n  c\n\n \nd e\n\v\n f";
    for (std::size_t cut = 0; cut <= text.size(); ++cut) {
        const std::vector<std::string> pieces{text.substr(0, cut), text.substr(cut)};
        EXPECT_EQ(Written(pieces), "a\n\rb\r\n  c\nd e\n\v\n f\n") << cut;
        EXPECT_EQ(Written(pieces, true), "a\r\n\rb\r\n  c\r\nd e\r\n\v\r\n f\r\n") << cut;
    }
}

TEST_F(Output, LineOfWhiteSpaceIsFoundWhereverItStands) {
    const std::string ends = "first line\nlast line\n";
    for (std::size_t length = 1; length <= 40; ++length) {
        const std::string filled(length, 'x');
        for (const std::string& blank : {"\n"s, " \n"s, "\t\r\n"s}) {
            SCOPED_TRACE(length);
            EXPECT_EQ(Written({filled + '\n' + blank + ends}), filled + '\n' + ends);
            EXPECT_EQ(Written({blank + filled + '\n' + ends}), filled + '\n' + ends);
            EXPECT_EQ(Written({ends + filled + " \n" + blank}), ends + filled + " \n");
            EXPECT_EQ(Written({ends + blank + blank + ends + filled + '\n' + blank + filled}),
                      ends + ends + filled + '\n' + filled + '\n');
        }
    }
}

TEST_F(Output, SingleCharactersAreGatheredToo) {
    OutputFile output;
    ASSERT_TRUE(Open(output, m_path.string()));
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
    ASSERT_TRUE(Open(output, m_path.string()));
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
    ASSERT_TRUE(Open(output, "/dev/fd/" + std::to_string(ends[1])));
    output.Stream() << "a\nb" << std::flush;
    std::array<char, 10> block{};
    ASSERT_EQ(::fcntl(ends[0], F_SETFL, O_NONBLOCK), 0);
    EXPECT_EQ(reading.Read(block.data(), block.size()), 2);
    EXPECT_EQ(std::string(block.data(), 2), "a\n");
    EXPECT_TRUE(output.Close());
}

TEST_F(Output, FileThatCannotBeWrittenIsNotOpened) {
    OutputFile output;
    EXPECT_FALSE(Open(output, m_folder.Path().string()));
    EXPECT_FALSE(Open(output, (m_folder.Path() / "none" / "x").string()));
    EXPECT_FALSE(Open(output, ""));
}

TEST_F(Output, InputIsRefusedUnderEveryName) {
    WriteFile(m_path, "the input\n");
    fs::create_symlink(m_path, m_folder.Path() / "link");
    fs::create_hard_link(m_path, m_folder.Path() / "hard");
    const FileDescriptor input = FileDescriptor::Open(m_path.string(), O_RDONLY);
    for (const char* name : {"output.syn", "./output.syn", "link", "hard"}) {
        OutputFile output;
        EXPECT_FALSE(output.Open((m_folder.Path() / name).string(), input)) << name;
    }
    EXPECT_EQ(ReadFile(m_path), "the input\n");
}

TEST_F(Output, FileIsLeftAloneWhenNothingTellsItFromTheInput) {
    WriteFile(m_path, "old\n");
    OutputFile output;
    EXPECT_FALSE(output.Open(m_path.string(), FileDescriptor()));
    EXPECT_EQ(ReadFile(m_path), "old\n");
}

TEST_F(Output, FullDeviceIsToldWhenItIsClosed) {
    OutputFile output;
    ASSERT_TRUE(Open(output, "/dev/full"));
    output.Stream() << "a\n";
    EXPECT_FALSE(output.Close());
}

TEST_F(Output, AfterAFailureNothingMoreIsWritten) {
    WriteFile(m_path, "");
    FileDescriptor file = FileDescriptor::Open(m_path.string(), O_RDONLY);
    LineWriteBuffer buffer(file);
    std::ostream stream(&buffer);
    stream << "a\n";
    EXPECT_FALSE(buffer.HasFailed());
    buffer.WriteBlock();
    EXPECT_TRUE(buffer.HasFailed());
    file = FileDescriptor::Open(m_path.string(), O_WRONLY);
    stream << "b\n";
    buffer.Finish();
    EXPECT_TRUE(buffer.HasFailed());
    EXPECT_EQ(ReadFile(m_path), "");
}

} // namespace

} // namespace recastor
