#include "ctables/recastor/filedescriptor.h"
#include "tests/support/run.h"

#include <array>
#include <fcntl.h>
#include <istream>
#include <string>
#include <unistd.h>
#include <utility>

#include <gtest/gtest.h>

namespace recastor {

namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    fs::path Path(const std::string& name) const { return m_folder.Path() / name; }
    FileDescriptor Open(const std::string& name, int flags = O_RDWR | O_CREAT) const {
        return FileDescriptor::Open(Path(name), flags);
    }

private:
    TemporaryFolder m_folder;
};

bool IsOpenNumber(int number) {
    return ::fcntl(number, F_GETFD) != -1;
}

TEST_F(Files, NoFileIsNotOpen) {
    FileDescriptor none;
    EXPECT_FALSE(none.IsOpen());
    EXPECT_FALSE(FileDescriptor(-1).IsOpen());
    EXPECT_TRUE(none.Close());
    EXPECT_FALSE(none.IsDirectory());
    EXPECT_FALSE(none.IsRegular());
}

TEST_F(Files, DescriptorIsClosedWithItsOwner) {
    int number = -1;
    {
        number = ::open(Path("a").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        const FileDescriptor file(number);
        EXPECT_TRUE(file.IsOpen());
        EXPECT_TRUE(IsOpenNumber(number));
    }
    EXPECT_FALSE(IsOpenNumber(number));
}

TEST_F(Files, MovedDescriptorIsClosedOnce) {
    const int number = ::open(Path("a").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    const int other = ::open(Path("b").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    FileDescriptor first(number);
    FileDescriptor second(std::move(first));
    EXPECT_TRUE(second.IsOpen());
    FileDescriptor third(other);
    third = std::move(second);
    EXPECT_FALSE(IsOpenNumber(other));
    EXPECT_TRUE(IsOpenNumber(number));
    EXPECT_TRUE(third.Close());
    EXPECT_FALSE(third.IsOpen());
    EXPECT_FALSE(IsOpenNumber(number));
}

TEST_F(Files, WrittenBytesAreReadAgain) {
    const FileDescriptor file = Open("a");
    const std::string text = std::string("a\0b\n", 4) + std::string(200'000, 'x');
    EXPECT_TRUE(file.Write(text));
    EXPECT_TRUE(file.Write(""));
    EXPECT_TRUE(file.Rewind());
    std::string read;
    std::array<char, 4096> block{};
    long count = 0;
    while ((count = file.Read(block.data(), block.size())) > 0) {
        read.append(block.data(), static_cast<std::size_t>(count));
    }
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(read == text);
}

TEST_F(Files, FailuresAreTold) {
    const FileDescriptor file = Open("a", O_RDONLY | O_CREAT);
    EXPECT_FALSE(file.Write("x"));
    std::array<char, 8> block{};
    EXPECT_LT(FileDescriptor().Read(block.data(), block.size()), 0);
    EXPECT_FALSE(FileDescriptor().Rewind());
    EXPECT_FALSE(file.Truncate());
    EXPECT_FALSE(FileDescriptor::Open("/dev/full", O_WRONLY).Write("x"));
}

TEST_F(Files, TruncatedFileIsEmpty) {
    WriteFile(Path("a"), "abc");
    EXPECT_TRUE(Open("a").Truncate());
    EXPECT_EQ(ReadFile(Path("a")), "");
}

TEST_F(Files, DeviceIsNotTruncated) {
    const FileDescriptor device = FileDescriptor::Open("/dev/null", O_WRONLY);
    EXPECT_FALSE(device.IsRegular());
    EXPECT_TRUE(device.Truncate());
}

TEST_F(Files, PipeCanBeReadOnce) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    const FileDescriptor reading(ends[0]);
    const FileDescriptor writing(ends[1]);
    EXPECT_FALSE(reading.Rewind());
    EXPECT_FALSE(reading.IsRegular());
    EXPECT_FALSE(reading.IsDirectory());
}

TEST_F(Files, FolderIsADirectory) {
    const FileDescriptor folder = FileDescriptor::Open(Path(""), O_RDONLY);
    EXPECT_TRUE(folder.IsDirectory());
    EXPECT_FALSE(folder.IsRegular());
    EXPECT_FALSE(Open("a").IsDirectory());
    EXPECT_TRUE(Open("a").IsRegular());
}

TEST_F(Files, SameFileIsKnownByEveryName) {
    WriteFile(Path("a"), "x");
    WriteFile(Path("b"), "x");
    fs::create_symlink(Path("a"), Path("link"));
    fs::create_hard_link(Path("a"), Path("hard"));
    const FileDescriptor a = Open("a");
    EXPECT_EQ(a.IsSameFileAs(Open("a")), true);
    EXPECT_EQ(a.IsSameFileAs(Open("link")), true);
    EXPECT_EQ(a.IsSameFileAs(Open("hard")), true);
    EXPECT_EQ(a.IsSameFileAs(Open("b")), false);
    EXPECT_EQ(a.IsSameFileAs(FileDescriptor()), std::nullopt);
    EXPECT_EQ(FileDescriptor().IsSameFileAs(a), std::nullopt);
}

TEST_F(Files, DeviceThatKeepsNothingIsNoSameFile) {
    const FileDescriptor first = FileDescriptor::Open("/dev/null", O_RDWR);
    const FileDescriptor second = FileDescriptor::Open("/dev/null", O_RDWR);
    EXPECT_EQ(first.IsSameFileAs(second), false);
}

TEST_F(Files, StreamReadsAFileOfManyBlocks) {
    std::string text;
    for (int i = 0; i < 30'000; ++i) {
        text += "line " + std::to_string(i) + '\n';
    }
    WriteFile(Path("a"), text);
    const FileDescriptor file = Open("a");
    FileReadBuffer buffer(file);
    std::istream stream(&buffer);
    EXPECT_TRUE(ReadAll(stream) == text);
    EXPECT_EQ(stream.get(), std::istream::traits_type::eof());
}

TEST_F(Files, StreamOfAnUnreadableFileThrows) {
    const FileDescriptor none;
    FileReadBuffer buffer(none);
    EXPECT_THROW(buffer.sgetc(), ReadFailure);
}

TEST_F(Files, FileThatCannotBeOpenedIsNotOpen) {
    EXPECT_FALSE(FileDescriptor::Open(Path("none/a"), O_RDWR | O_CREAT).IsOpen());
    EXPECT_FALSE(FileDescriptor::Open(Path("none"), O_RDONLY).IsOpen());
}

} // namespace

} // namespace recastor
