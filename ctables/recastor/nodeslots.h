/// The child slots of a tree node.
#pragma once

#include "platform/zelkbase/smallobjects.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace recastor {

/// An array of owned objects, some of them null. The first few lie in the array itself, as all of
/// most nodes do. Where slots are taken away it keeps a gap, so that taking many away in their
/// order, as totals are out of a long stacking, moves each object once. What lies in the array is
/// its place, which no removal behind it changes; objects are told theirs by their
/// NotePlace(place).
template <typename T>
class NodeSlots {
public:
    using Pointer = std::unique_ptr<T>;

    NodeSlots() = default;
    ~NodeSlots() {
        for (std::size_t place = 0; place < m_used; ++place) {
            delete m_slots[place];
        }
        FreeLargerArray();
    }
    NodeSlots(const NodeSlots&) = delete;
    NodeSlots& operator=(const NodeSlots&) = delete;

    std::size_t Size() const { return m_used - m_gapSize; }
    /// `index` is below Size(). The object stays owned.
    T* operator[](std::size_t index) const { return m_slots[PlaceOf(index)]; }

    std::size_t PlaceOf(std::size_t index) const {
        return index < m_gapStart ? index : index + m_gapSize;
    }
    /// The index that the place has; of a place in the gap one that is as good as any.
    std::size_t IndexOf(std::size_t place) const {
        return place < m_gapStart ? place : place - std::min<std::size_t>(place, m_gapSize);
    }

    void Append(T* object) {
        MakeRoomFor(1);
        Put(m_used, object);
        ++m_used;
    }
    /// Puts `object` into the slot at `index` and returns what stood there.
    Pointer Exchange(std::size_t index, T* object) {
        const std::size_t place = PlaceOf(index);
        Pointer previous(m_slots[place]);
        Put(place, object);
        return previous;
    }
    void Reserve(std::size_t size) {
        if (size > m_capacity) {
            Grow(size);
        }
    }

    /// Takes the slot at `index`, which is below Size(), away with what it holds.
    void Remove(std::size_t index) {
        MoveGapTo(index);
        delete std::exchange(m_slots[index + m_gapSize], nullptr);
        ++m_gapSize;
    }
    /// Inserts null slots before `index`, which is at most Size().
    void InsertNull(std::size_t index, std::size_t count) {
        CloseGap();
        MakeRoomFor(count);
        for (std::size_t place = m_used; count > 0 && place-- > index;) {
            Move(place, place + count);
        }
        m_used += static_cast<std::uint32_t>(count);
    }

private:
    /// What most nodes get along with.
    static constexpr std::uint32_t kFewSlots = 2;

    void Put(std::size_t place, T* object) {
        m_slots[place] = object;
        if (object != nullptr) {
            object->NotePlace(static_cast<std::uint32_t>(place));
        }
    }
    void MakeRoomFor(std::size_t count) {
        if (m_used + count > m_capacity) {
            Grow(std::max<std::size_t>(m_used + count, 2 * std::size_t{m_capacity}));
        }
    }
    void Grow(std::size_t capacity) {
        T** const larger = SmallObjectAllocator<T*>().allocate(capacity);
        std::fill(std::copy_n(m_slots, m_used, larger), larger + capacity, nullptr);
        FreeLargerArray();
        m_slots = larger;
        m_capacity = static_cast<std::uint32_t>(capacity);
    }
    void FreeLargerArray() {
        if (m_capacity > kFewSlots) {
            SmallObjectAllocator<T*>().deallocate(m_slots, m_capacity);
        }
    }
    void Move(std::size_t from, std::size_t to) { Put(to, std::exchange(m_slots[from], nullptr)); }
    void MoveGapTo(std::size_t index) {
        if (m_gapSize == 0) {
            m_gapStart = static_cast<std::uint32_t>(index);
        }
        for (; m_gapStart < index; ++m_gapStart) {
            Move(m_gapStart + m_gapSize, m_gapStart);
        }
        for (; m_gapStart > index; --m_gapStart) {
            Move(m_gapStart - 1, m_gapStart - 1 + m_gapSize);
        }
    }
    void CloseGap() {
        MoveGapTo(Size());
        m_used -= m_gapSize;
        m_gapSize = 0;
    }

    std::array<T*, kFewSlots> m_few{};
    T** m_slots = m_few.data(); ///< or a larger array on the heap; what is not used is null
    // Of 32 bits, since there are many nodes and an index of more does not exist.
    std::uint32_t m_used = 0; ///< slots, the gap with them
    std::uint32_t m_capacity = kFewSlots;
    std::uint32_t m_gapStart = 0;
    std::uint32_t m_gapSize = 0; ///< the slots of the gap are null
};

} // namespace recastor
