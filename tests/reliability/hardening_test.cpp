// How the program was built and linked, read off its own file.

#include "tests/support/run.h"

#include <cstring>
#include <elf.h>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// The program's file, header by header.
class Hardening : public testing::Test {
protected:
    Hardening() : m_bytes(ReadFile(RECASTOR_PROGRAM)), m_header(At<Elf64_Ehdr>(0)) {
        for (unsigned i = 0; i < m_header.e_phnum; ++i) {
            m_segments.push_back(At<Elf64_Phdr>(m_header.e_phoff + i * sizeof(Elf64_Phdr)));
        }
    }

    template <typename Record>
    Record At(std::size_t offset) const {
        Record record{};
        if (offset + sizeof record <= m_bytes.size()) {
            std::memcpy(&record, m_bytes.data() + offset, sizeof record);
        }
        return record;
    }

    std::optional<Elf64_Phdr> Segment(unsigned type) const {
        for (const Elf64_Phdr& segment : m_segments) {
            if (segment.p_type == type) {
                return segment;
            }
        }
        return std::nullopt;
    }

    Elf64_Xword DynamicFlags() const {
        const Elf64_Phdr dynamic = Segment(PT_DYNAMIC).value_or(Elf64_Phdr{});
        for (std::size_t at = 0; at < dynamic.p_filesz; at += sizeof(Elf64_Dyn)) {
            const auto entry = At<Elf64_Dyn>(dynamic.p_offset + at);
            if (entry.d_tag == DT_FLAGS) {
                return entry.d_un.d_val;
            }
        }
        return 0;
    }

    const Elf64_Ehdr& Header() const { return m_header; }

private:
    std::string m_bytes;
    Elf64_Ehdr m_header;
    std::vector<Elf64_Phdr> m_segments;
};

TEST_F(Hardening, TheProgramIsPlacedAtRandom) {
    EXPECT_EQ(ET_DYN, Header().e_type);
}

TEST_F(Hardening, TheTablesOfAddressesAreReadOnly) {
    EXPECT_TRUE(Segment(PT_GNU_RELRO));
    EXPECT_TRUE(DynamicFlags() & DF_BIND_NOW);
}

TEST_F(Hardening, TheStackIsNotExecutable) {
    const auto stack = Segment(PT_GNU_STACK);
    EXPECT_TRUE(stack);
    EXPECT_FALSE(stack.value_or(Elf64_Phdr{}).p_flags & PF_X);
}

} // namespace

} // namespace recastor
