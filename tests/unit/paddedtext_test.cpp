#include "platform/zelkbase/paddedtext.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

const std::string kLetters = "abcdefghijklmnopqrstuvwxyz";

TEST(PaddedText, CopiesTheTextHoweverMuchMayBeReadBehindIt) {
    for (std::size_t size = 0; size <= 20; ++size) {
        for (std::size_t readable = size; readable <= kLetters.size(); ++readable) {
            // A buffer of just as many bytes, so that a checker sees a step beyond.
            const std::vector<char> buffer(
                kLetters.begin(), kLetters.begin() + static_cast<std::ptrdiff_t>(readable));
            const std::string_view text(buffer.data(), size);
            const std::string copy = PaddedText(text, readable).Copy();
            EXPECT_EQ(copy, kLetters.substr(0, size));
            EXPECT_EQ(copy.c_str()[size], '\0');
        }
    }
}

TEST(PaddedText, KeepsZerosInTheText) {
    const std::string text("a\0b\0................", 20);
    EXPECT_EQ(PaddedText(std::string_view(text).substr(0, 4), text.size()).Copy(),
              text.substr(0, 4));
    EXPECT_EQ(PaddedText(std::string_view(text).substr(0, 4)).Copy(), text.substr(0, 4));
}

} // namespace

} // namespace recastor
