#include "ctables/recastor/nodeslots.h"

#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// An object that shows its name and counts what is alive.
struct Named {
    explicit Named(char name) : m_name(name) { ++s_alive; }
    ~Named() { --s_alive; }
    Named(const Named&) = delete;
    Named& operator=(const Named&) = delete;
    void NotePlace(std::uint32_t place) { m_place = place; }

    char m_name;
    std::uint32_t m_place = 0;
    static inline int s_alive = 0;
};

/// Slots that hold objects of the given names, "-" for null.
class Slots : public NodeSlots<Named> {
public:
    explicit Slots(const std::string& names) {
        for (const char name : names) {
            Append(name == '-' ? nullptr : new Named(name));
        }
    }
};

/// The names in the slots, "-" for null; "?" behind an object that is told a wrong place.
std::string Names(const Slots& slots) {
    std::string names;
    for (std::size_t i = 0; i < slots.Size(); ++i) {
        const Named* const object = slots[i];
        names += object != nullptr ? object->m_name : '-';
        if (object != nullptr && slots.IndexOf(object->m_place) != i) {
            names += '?';
        }
    }
    return names;
}

TEST(NodeSlots, HoldObjectsAndNullsInOrder) {
    EXPECT_EQ(Names(Slots("ab-c")), "ab-c");
    EXPECT_EQ(Names(Slots("")), "");
}

TEST(NodeSlots, EveryObjectIsDeletedWithThem) {
    for (const char* names : {"", "a", "ab", "abc", "abcdefghij"}) {
        { const Slots slots(names); }
        EXPECT_EQ(Named::s_alive, 0) << names;
    }
}

TEST(NodeSlots, RoomIsMadeForAnyNumber) {
    const std::string letters = "abcdefghijklmnopqrstuvwxyz";
    for (std::size_t size = 0; size <= letters.size(); ++size) {
        Slots slots("");
        slots.Reserve(size);
        for (std::size_t i = 0; i < size; ++i) {
            slots.Append(new Named(letters[i]));
        }
        EXPECT_EQ(Names(slots), letters.substr(0, size));
    }
}

TEST(NodeSlots, RemovalTakesTheSlotAway) {
    Slots slots("abcdef");
    slots.Remove(1);
    EXPECT_EQ(Names(slots), "acdef");
    slots.Remove(3);
    EXPECT_EQ(Names(slots), "acdf");
    slots.Remove(0);
    EXPECT_EQ(Names(slots), "cdf");
    slots.Remove(2);
    EXPECT_EQ(Names(slots), "cd");
    slots.Remove(0);
    slots.Remove(0);
    EXPECT_EQ(Names(slots), "");
}

TEST(NodeSlots, RemovedObjectIsDeleted) {
    Slots slots("abc");
    slots.Remove(1);
    EXPECT_EQ(Named::s_alive, 2);
}

TEST(NodeSlots, GrowAfterRemovals) {
    Slots slots("abcd");
    slots.Remove(1);
    slots.Append(new Named('e'));
    EXPECT_EQ(Names(slots), "acde");
    slots.Remove(3);
    slots.Append(new Named('f'));
    EXPECT_EQ(Names(slots), "acdf");
}

TEST(NodeSlots, NullsAreInsertedAnywhereAlsoAfterRemovals) {
    for (std::size_t removed = 0; removed < 4; ++removed) {
        for (std::size_t index = 0; index <= 3; ++index) {
            for (const std::size_t count : {0U, 1U, 3U}) {
                Slots slots("abcd");
                slots.Remove(removed);
                std::string expected = std::string("abcd").erase(removed, 1);
                expected.insert(index, count, '-');
                slots.InsertNull(index, count);
                EXPECT_EQ(Names(slots), expected) << removed << ' ' << index << ' ' << count;
            }
        }
    }
}

TEST(NodeSlots, ExchangeReturnsWhatStoodThere) {
    Slots slots("abc");
    slots.Remove(0);
    const auto previous = slots.Exchange(1, new Named('x'));
    EXPECT_EQ(previous->m_name, 'c');
    EXPECT_EQ(Names(slots), "bx");
    EXPECT_EQ(slots.Exchange(0, nullptr)->m_name, 'b');
    EXPECT_EQ(Names(slots), "-x");
}

TEST(NodeSlots, RemovalsInOrderLeaveLaterPlaces) {
    Slots slots("abcdefgh");
    const std::uint32_t place = slots[7]->m_place;
    for (std::size_t i = 0; i < 4; ++i) {
        slots.Remove(i); // every other one
    }
    EXPECT_EQ(Names(slots), "bdfh");
    EXPECT_EQ(Named::s_alive, 4);
    slots.Append(new Named('i'));
    EXPECT_EQ(slots[4]->m_place, place + 1);
}

} // namespace

} // namespace recastor
