#include "platform/zelkbase/heapsettings.h"

#include <cstddef>
#include <cstdlib>
#include <unistd.h>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// Where the heap ends once so many bytes were taken from it and given back.
void* EndOfHeapAfter(std::size_t size) {
    void* const block = std::malloc(size);
    EXPECT_NE(block, nullptr);
    void* const end = ::sbrk(0);
    std::free(block);
    EXPECT_EQ(::sbrk(0), end) << size;
    return end;
}

TEST(HeapSettings, WhatIsFreedStaysInTheHeapForTheNextBlock) {
    KeepFreedMemory();
    void* const end = EndOfHeapAfter(3U << 20U);
    EXPECT_EQ(EndOfHeapAfter(1U << 20U), end);
    EXPECT_EQ(EndOfHeapAfter(3U << 20U), end);
}

} // namespace

} // namespace recastor
