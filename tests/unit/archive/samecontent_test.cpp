#include "archive/tree/samecontent.h"
#include "archive/tree/systemerror.h"
#include "tests/support/memoryfile.h"
#include "tests/support/run.h"

#include <fcntl.h>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// A regular file of no bytes whose reading fails.
constexpr const char* kUnreadable = "/proc/self/mem";

bool IsSame(const std::string& one, const std::string& another) {
    const MemoryFile file(one);
    const MemoryFile other(another);
    return HasContentOf(FileDescriptor::Open(file.Name(), O_RDONLY), other.Name());
}

TEST(SameContent, IsToldByTheBytes) {
    EXPECT_TRUE(IsSame("", ""));
    EXPECT_TRUE(IsSame(std::string(70000, 'x') + "a", std::string(70000, 'x') + "a"));
    EXPECT_FALSE(IsSame(std::string(70000, 'x') + "a", std::string(70000, 'x') + "b"));
    EXPECT_FALSE(IsSame("a", "ab"));
}

TEST(SameContent, FileThatCannotBeReadHasNoContent) {
    const MemoryFile empty("");
    const FileDescriptor file = FileDescriptor::Open(empty.Name(), O_RDONLY);
    EXPECT_FALSE(HasContentOf(file, kUnreadable));
    EXPECT_FALSE(HasContentOf(file, "/nowhere"));
    EXPECT_FALSE(HasContentOf(file, "/"));
}

TEST(HashOfFile, IsThatOfItsBytes) {
    const MemoryFile empty("");
    EXPECT_EQ(HashOfFile(empty.Name()), "99aa06d3014798d86001c324468d497f");
    EXPECT_THROW(HashOfFile(kUnreadable), FileError);
    EXPECT_THROW(HashOfFile("/nowhere"), FileError);
}

} // namespace

} // namespace recastor
