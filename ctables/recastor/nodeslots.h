/// The child slots of a tree node.
#pragma once

#include "platform/zelkbase/smallobjects.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace recastor {

/// An array of owned objects, some of them null. Where slots are taken away it keeps a gap, so that
/// taking many away in their order, as totals are out of a long stacking, moves each object once.
/// What lies in the array is its place, which no removal behind it changes; objects are told theirs
/// by their NotePlace(place).
template <typename T>
class NodeSlots {
public:
    using Pointer = std::unique_ptr<T>;

    std::size_t Size() const { return m_slots.size() - m_gapSize; }
    /// `index` is below Size().
    const Pointer& operator[](std::size_t index) const { return m_slots[PlaceOf(index)]; }

    std::size_t PlaceOf(std::size_t index) const {
        return index < m_gapStart ? index : index + m_gapSize;
    }
    /// The index that the place has; of a place in the gap one that is as good as any.
    std::size_t IndexOf(std::size_t place) const {
        return place < m_gapStart ? place : place - std::min<std::size_t>(place, m_gapSize);
    }

    void Append(T* object) {
        if (m_slots.size() == m_slots.capacity()) {
            Reserve(std::max<std::size_t>(kFewSlots, 2 * m_slots.size()));
        }
        m_slots.emplace_back(object);
        TellPlace(m_slots.size() - 1);
    }
    /// Puts `object` into the slot at `index` and returns what stood there.
    Pointer Exchange(std::size_t index, T* object) {
        Pointer previous = std::exchange(m_slots[PlaceOf(index)], Pointer(object));
        TellPlace(PlaceOf(index));
        return previous;
    }
    void Reserve(std::size_t size) { m_slots.reserve(size); }

    /// Takes the slot at `index`, which is below Size(), away with what it holds.
    void Remove(std::size_t index) {
        MoveGapTo(index);
        m_slots[index + m_gapSize].reset();
        ++m_gapSize;
    }
    /// Inserts null slots before `index`, which is at most Size().
    void InsertNull(std::size_t index, std::size_t count) {
        const std::size_t size = Size();
        MoveGapTo(size);
        m_gapSize = 0;
        m_slots.resize(size + count);
        if (index == size) {
            return;
        }
        std::rotate(m_slots.begin() + Offset(index), m_slots.end() - Offset(count), m_slots.end());
        for (std::size_t place = index + count; place < m_slots.size(); ++place) {
            TellPlace(place);
        }
    }

private:
    using Offset = std::ptrdiff_t;

    /// What most nodes that have any get along with.
    static constexpr std::size_t kFewSlots = 2;

    void TellPlace(std::size_t place) {
        if (m_slots[place] != nullptr) {
            m_slots[place]->NotePlace(static_cast<std::uint32_t>(place));
        }
    }
    void Move(std::size_t from, std::size_t to) {
        m_slots[to] = std::move(m_slots[from]);
        TellPlace(to);
    }
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

    SmallVector<Pointer> m_slots;
    // Of 32 bits, since there are many nodes and an index of more does not exist.
    std::uint32_t m_gapStart = 0;
    std::uint32_t m_gapSize = 0; ///< the slots of the gap are null
};

} // namespace recastor
