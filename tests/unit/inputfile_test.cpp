#include "ctables/recastor/inputfile.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/run.h"
#include "tests/support/textlocale.h"

#include <array>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using namespace std::string_view_literals;

class Input : public Utf8Test {
protected:
    /// Opens and inspects a file with the text, and returns what its stream gives.
    std::string Open(const std::string& text) {
        WriteFile(m_name, text);
        EXPECT_TRUE(m_input.Open(m_name) && m_input.Inspect());
        return ReadAll(m_input.Stream());
    }

    TemporaryFolder m_folder;
    std::string m_name = (m_folder.Path() / "input.syn").string();
    InputFile m_input;
};

TEST_F(Input, StreamBeginsWithTheFirstByte) {
    EXPECT_EQ(Open("\xEF\xBB\xBF"
                   "FREQ x.\r\n"),
              "\xEF\xBB\xBF"
              "FREQ x.\r\n");
}

TEST_F(Input, EmptyFileIsValid) {
    EXPECT_EQ(Open(""), "");
    EXPECT_TRUE(m_input.IsValidText());
    EXPECT_FALSE(m_input.HasCrLf());
}

TEST_F(Input, MissingFileOrFolderCannotBeOpened) {
    EXPECT_FALSE(m_input.Open(m_name));
    EXPECT_FALSE(m_input.Open(""));
    EXPECT_FALSE(m_input.Open(m_folder.Path().string()));
    EXPECT_FALSE(m_input.Open(m_name + "/x"));
}

bool FirstLineIsCrLf(const std::string& text) {
    const TemporaryFolder folder;
    const std::string name = (folder.Path() / "input.syn").string();
    WriteFile(name, text);
    InputFile input;
    EXPECT_TRUE(input.Open(name) && input.Inspect());
    return input.HasCrLf();
}

TEST_F(Input, FirstLineTellsTheLineEnd) {
    EXPECT_TRUE(FirstLineIsCrLf("a\r\nb\n"));
    EXPECT_TRUE(FirstLineIsCrLf("\r\na"));
    EXPECT_FALSE(FirstLineIsCrLf("a\nb\r\n"));
    EXPECT_FALSE(FirstLineIsCrLf("a\rb\r\n"));
    EXPECT_FALSE(FirstLineIsCrLf("a\r\r\n"));
    EXPECT_FALSE(FirstLineIsCrLf("\n\r\n"));
    EXPECT_FALSE(FirstLineIsCrLf("a\r"));
    EXPECT_FALSE(FirstLineIsCrLf("a"));
}

TEST_F(Input, FirstLineMayBeLongerThanABlock) {
    for (const std::size_t length : {65534U, 65535U, 65536U, 200'000U}) {
        EXPECT_TRUE(FirstLineIsCrLf(std::string(length, 'x') + "\r\nb\n")) << length;
        EXPECT_FALSE(FirstLineIsCrLf(std::string(length, 'x') + "\nb\r\n")) << length;
    }
}

TEST_F(Input, TextIsValidWhenAllOfItIs) {
    Open("gr\u00F6\u00DFe\n");
    EXPECT_TRUE(m_input.IsValidText());
}

TEST_F(Input, OneInvalidByteMakesTheTextInvalid) {
    Open(std::string(100'000, 'x') + "\xE9\n" + std::string(100'000, 'x'));
    EXPECT_FALSE(m_input.IsValidText());
}

TEST_F(Input, MarkOfUtf16IsSeenInBothByteOrders) {
    const auto isUtf16 = [this](std::string_view text) {
        Open(std::string(text));
        return m_input.IsUtf16();
    };
    EXPECT_TRUE(isUtf16("\xFF\xFEx\0"sv));
    EXPECT_TRUE(isUtf16("\xFE\xFF\0x"sv));
    EXPECT_TRUE(isUtf16("\xFF\xFE"));
    EXPECT_FALSE(isUtf16("\xFF"));
    EXPECT_FALSE(isUtf16("\xFF\xFF"));
    EXPECT_FALSE(isUtf16("x\xFF\xFE"));
    EXPECT_FALSE(isUtf16("\xEF\xBB\xBFx"));
    EXPECT_FALSE(isUtf16(""));
}

TEST_F(Input, CharacterMayLieOverTheEndOfABlock) {
    Open(std::string(65535, 'x') + "\u20AC\n");
    EXPECT_TRUE(m_input.IsValidText());
}

TEST_F(Input, PipeIsReadFromItsFirstByteToo) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), 0), 0);
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);
    EXPECT_TRUE(writing.Write("FREQ \u00E9.\r\nx\n"));
    EXPECT_TRUE(writing.Close());
    ASSERT_TRUE(m_input.Open("/dev/fd/" + std::to_string(ends[0])));
    EXPECT_TRUE(m_input.Inspect());
    EXPECT_TRUE(m_input.IsValidText());
    EXPECT_TRUE(m_input.HasCrLf());
    EXPECT_EQ(ReadAll(m_input.Stream()), "FREQ \u00E9.\r\nx\n");
}

} // namespace

} // namespace recastor
