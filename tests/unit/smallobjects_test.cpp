#include "platform/zelkbase/smallobjects.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(SmallObjects, BlocksOfEverySizeAreAlignedAndApart) {
    for (const std::size_t size : {1U, 15U, 16U, 17U, 64U, 255U, 256U, 257U, 1000U}) {
        SCOPED_TRACE(size);
        std::set<unsigned char*> blocks;
        for (int i = 0; i < 5000; ++i) {
            auto* const block = static_cast<unsigned char*>(SmallObjects::Allocate(size));
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 16, 0U);
            std::memset(block, i, size);
            blocks.insert(block);
        }
        ASSERT_EQ(blocks.size(), 5000U);
        const auto overlaps = [size](const unsigned char* left, const unsigned char* right) {
            return left + size > right;
        };
        EXPECT_EQ(std::adjacent_find(blocks.begin(), blocks.end(), overlaps), blocks.end());
        for (unsigned char* const block : blocks) {
            SmallObjects::Release(block, size);
        }
    }
}

struct Small : SmallObject {
    explicit Small(int number) : value(number) {}
    int value;
};

struct Derived : Small {
    explicit Derived(int number) : Small(number) {}
    char text[100] = {};
};

TEST(SmallObjects, ObjectsKeepTheirValuesWhileOthersComeAndGo) {
    std::vector<Small*> objects;
    for (int i = 0; i < 1000; ++i) {
        objects.push_back(new Small(i));
        delete new Derived(-1);
        delete new Small(-1);
    }
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(objects[static_cast<std::size_t>(i)]->value, i);
        delete objects[static_cast<std::size_t>(i)];
    }
}

/// A block whose every byte is `mark`.
struct Marked {
    unsigned char* memory;
    std::size_t size;
    unsigned char mark;

    static Marked Make(std::size_t size, unsigned char mark) {
        auto* const memory = static_cast<unsigned char*>(SmallObjects::Allocate(size));
        std::memset(memory, mark, size);
        return {memory, size, mark};
    }
    void Release() const {
        EXPECT_TRUE(std::all_of(memory, memory + size,
                                [this](unsigned char byte) { return byte == mark; }));
        SmallObjects::Release(memory, size);
    }
};

TEST(SmallObjects, BlocksAreNobodyElsesHoweverOftenAllAreGivenBack) {
    for (const std::size_t count : {1U, 2U, 3U, 700U, 5U, 2000U, 700U}) {
        std::vector<Marked> blocks;
        for (std::size_t i = 0; i < count; ++i) {
            blocks.push_back(Marked::Make(1 + 37 * i % 256, static_cast<unsigned char>(i)));
            if (i % 3 == 2) { // another one in the place of one given back
                blocks[i / 2].Release();
                blocks[i / 2] = Marked::Make(1 + 11 * i % 256, static_cast<unsigned char>(i + 1));
            }
        }
        std::for_each(blocks.begin() + static_cast<std::ptrdiff_t>(count / 2), blocks.end(),
                      [](const Marked& block) { block.Release(); });
        blocks.resize(count / 2);
        std::for_each(blocks.begin(), blocks.end(), [](const Marked& block) { block.Release(); });
    }
}

#ifndef RECASTOR_OBJECTS_ON_HEAP
/// Ten blocks in the order in which they were given out.
std::vector<void*> TenBlocks() {
    std::vector<void*> blocks;
    for (int i = 0; i < 10; ++i) {
        blocks.push_back(SmallObjects::Allocate(96));
    }
    return blocks;
}

void ReleaseAll(const std::vector<void*>& blocks) {
    for (void* const block : blocks) {
        SmallObjects::Release(block, 96);
    }
}

TEST(SmallObjects, OnceAllIsGivenBackMemoryIsCutAnewInItsOrder) {
    ReleaseAll(TenBlocks());
    const std::vector<void*> first = TenBlocks();
    EXPECT_TRUE(std::is_sorted(first.begin(), first.end()));
    std::vector<void*> mixed = first;
    std::swap(mixed[2], mixed[7]);
    ReleaseAll(mixed);
    const std::vector<void*> second = TenBlocks();
    EXPECT_EQ(second, first);
    ReleaseAll(second);
}
#endif

TEST(SmallObjects, ContainersGrowBeyondTheLargestBlock) {
    std::vector<int, SmallObjectAllocator<int>> numbers;
    for (int i = 0; i < 1000; ++i) {
        numbers.push_back(i);
    }
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(numbers[static_cast<std::size_t>(i)], i);
    }
}

} // namespace

} // namespace recastor
