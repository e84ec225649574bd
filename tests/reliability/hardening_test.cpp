// How the programs were built and linked, read off their own files.

#include "tests/support/run.h"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

/// A program's file, header by header.
class Hardening : public testing::TestWithParam<const char*> {
protected:
    Hardening() : m_bytes(ReadFile(GetParam())), m_header(At<Elf64_Ehdr>(0)) {
        m_segments = Records<Elf64_Phdr>(m_header.e_phoff, m_header.e_phnum);
        m_sections = Records<Elf64_Shdr>(m_header.e_shoff, m_header.e_shnum);
    }

    template <typename Record>
    Record At(std::size_t offset) const {
        Record record{};
        if (offset + sizeof record <= m_bytes.size()) {
            std::memcpy(&record, m_bytes.data() + offset, sizeof record);
        }
        return record;
    }

    template <typename Record>
    std::vector<Record> Records(std::size_t offset, std::size_t count) const {
        std::vector<Record> records;
        for (std::size_t i = 0; i < count; ++i) {
            records.push_back(At<Record>(offset + i * sizeof(Record)));
        }
        return records;
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
        for (const auto& entry :
             Records<Elf64_Dyn>(dynamic.p_offset, dynamic.p_filesz / sizeof(Elf64_Dyn))) {
            if (entry.d_tag == DT_FLAGS) {
                return entry.d_un.d_val;
            }
        }
        return 0;
    }

    /// The names that the program wants of shared libraries.
    std::set<std::string> Imports() const {
        std::set<std::string> names;
        for (const Elf64_Shdr& section : m_sections) {
            if (section.sh_type != SHT_DYNSYM || section.sh_link >= m_sections.size()) {
                continue;
            }
            const std::size_t texts = m_sections[section.sh_link].sh_offset;
            for (const auto& symbol :
                 Records<Elf64_Sym>(section.sh_offset, section.sh_size / sizeof(Elf64_Sym))) {
                if (symbol.st_shndx == SHN_UNDEF && texts + symbol.st_name < m_bytes.size()) {
                    names.insert(m_bytes.c_str() + texts + symbol.st_name);
                }
            }
        }
        return names;
    }

    const Elf64_Ehdr& Header() const { return m_header; }

private:
    std::string m_bytes;
    Elf64_Ehdr m_header;
    std::vector<Elf64_Phdr> m_segments;
    std::vector<Elf64_Shdr> m_sections;
};

TEST_P(Hardening, TheProgramIsPlacedAtRandom) {
    EXPECT_EQ(ET_DYN, Header().e_type);
}

TEST_P(Hardening, TheTablesOfAddressesAreReadOnly) {
    EXPECT_TRUE(Segment(PT_GNU_RELRO));
    EXPECT_TRUE(DynamicFlags() & DF_BIND_NOW);
}

TEST_P(Hardening, TheStackIsNotExecutable) {
    const auto stack = Segment(PT_GNU_STACK);
    EXPECT_TRUE(stack);
    EXPECT_FALSE(stack.value_or(Elf64_Phdr{}).p_flags & PF_X);
}

#ifdef RECASTOR_RELEASE // other builds are for the debugger
// The standard library that a program may hold a copy of uses neither of the two.
TEST_P(Hardening, AnOverrunOfTheStackEndsTheProgram) {
    EXPECT_TRUE(Imports().contains("__stack_chk_fail"));
}

TEST_P(Hardening, CallsOfTheCLibraryAreChecked) {
    const std::set<std::string> imports = Imports();
    EXPECT_TRUE(std::any_of(imports.begin(), imports.end(),
                            [](const std::string& name) { return name.ends_with("_chk"); }));
}
#endif

INSTANTIATE_TEST_SUITE_P(Programs, Hardening,
                         testing::Values(RECASTOR_PROGRAM, RECASTOR_TREE_PROGRAM),
                         [](const testing::TestParamInfo<const char*>& program) {
                             return program.index == 0 ? "Recastor" : "RecastorTree";
                         });

} // namespace

} // namespace recastor
