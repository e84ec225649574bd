#include "platform/zelkbase/smallobjects.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(SmallObjects, BlocksOfEverySizeAreAlignedAndApart) {
    for (const std::size_t size : {1U, 15U, 16U, 17U, 64U, 127U, 128U, 129U, 1000U}) {
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
