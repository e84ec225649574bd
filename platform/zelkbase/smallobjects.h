/// Memory for small objects that are made and dropped by the thousand: tokens and tree nodes.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <new>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace recastor {

/// Hands out blocks of up to kLargest bytes; larger ones come from the heap. Blocks are cut off one
/// behind the other. What is given back waits for the next object of its size, and once everything
/// was given back, as it is behind each command, cutting begins anew: so objects that are made one
/// after the other lie in their order, and the memory that is held is bounded by the largest
/// command. Not for use by several threads.
class SmallObjects {
public:
    static constexpr std::size_t kLargest = 256;

    static void* Allocate(std::size_t size) {
        if (size == 0 || size > kLargest || kUseHeap) {
            return ::operator new(std::max<std::size_t>(size, 1));
        }
        ++s_inUse;
        Block*& first = FreeList(size);
        if (first == nullptr) {
            return CutOff(RoundedUp(size));
        }
        Block* const block = first;
        first = block->next;
        return block;
    }

    static void Release(void* memory, std::size_t size) noexcept {
        if (size == 0 || size > kLargest || kUseHeap) {
            ::operator delete(memory);
            return;
        }
        Block*& first = FreeList(size);
        first = ::new (memory) Block{first};
        if (--s_inUse == 0) {
            BeginAnew();
        }
    }

private:
    struct Block {
        Block* next;
    };

    static constexpr std::size_t kGranularity = 16;

    /// Memory checkers see a use after free or a leak only when the heap is told of every block.
#ifdef RECASTOR_OBJECTS_ON_HEAP
    static constexpr bool kUseHeap = true;
#else
    static constexpr bool kUseHeap = false;
#endif

    static constexpr std::size_t RoundedUp(std::size_t size) {
        return (size + kGranularity - 1) / kGranularity * kGranularity;
    }
    static Block*& FreeList(std::size_t size) {
        return s_freeLists[(size - 1) / kGranularity];
    }
    static void* CutOff(std::size_t size) {
        if (static_cast<std::size_t>(s_end - s_next) < size) {
            GoToNextPiece();
        }
        return std::exchange(s_next, s_next + size);
    }
    static void GoToNextPiece();
    static void BeginAnew();

    static std::array<Block*, kLargest / kGranularity> s_freeLists;
    static std::size_t s_inUse; ///< blocks that were not given back
    static std::byte* s_next;   ///< what is yet to be cut, up to s_end
    static std::byte* s_end;
};

/// Base of the classes whose objects are such small ones.
class SmallObject {
public:
    // The checker asks for an operator delete without the size, which would hide the one with it.
    // NOLINTNEXTLINE(cert-dcl54-cpp,misc-new-delete-overloads)
    static void* operator new(std::size_t size) { return SmallObjects::Allocate(size); }
    static void operator delete(void* memory, std::size_t size) noexcept {
        SmallObjects::Release(memory, size);
    }
};

/// The same memory for the elements of a container.
template <typename T>
struct SmallObjectAllocator {
    using value_type = T;

    SmallObjectAllocator() = default;
    /// Containers convert their allocator without saying so.
    template <typename Other>
    // NOLINTNEXTLINE(google-explicit-constructor)
    SmallObjectAllocator(const SmallObjectAllocator<Other>&) {}

    T* allocate(std::size_t count) {
        return static_cast<T*>(SmallObjects::Allocate(count * kElementSize));
    }
    void deallocate(T* memory, std::size_t count) noexcept {
        SmallObjects::Release(memory, count * kElementSize);
    }
    bool operator==(const SmallObjectAllocator&) const = default;

private:
    // The elements may well be pointers: their own size is meant, not that of what they point to.
    static constexpr std::size_t kElementSize = sizeof(T); // NOLINT(bugprone-sizeof-expression)
};

/// Containers that stay small as a rule and are made by the thousand.
template <typename T>
using SmallVector = std::vector<T, SmallObjectAllocator<T>>;
using SmallString = std::basic_string<char, std::char_traits<char>, SmallObjectAllocator<char>>;
template <typename Key, typename Value>
using SmallHashMap = std::unordered_map<Key, Value, std::hash<Key>, std::equal_to<>,
                                        SmallObjectAllocator<std::pair<const Key, Value>>>;
template <typename Key, typename Value>
using SmallMap =
    std::map<Key, Value, std::less<>, SmallObjectAllocator<std::pair<const Key, Value>>>;

} // namespace recastor
