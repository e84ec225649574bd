/// The root of a parsed TABLES command.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "platform/zelkbase/smallobjects.h"

#include <cstdint>
#include <string_view>

namespace recastor {

/// A TBI_GENERICLIST: the list of global subcommands, then the table groups. It finds what the
/// global subcommands declare in constant time, since every variable of every table is looked up.
class TbTrCommandNode : public TbTrParseNode {
public:
    /// A declared name and the node type of the subcommand that declares it: TB_OBSERVATION,
    /// TB_MRGROUP, TB_MDGROUP, TB_FTOTAL or TB_PTOTAL. Null and 0: nothing declares it.
    struct Declaration {
        const TbTrParseNode* node = nullptr;
        int type = 0;
    };

    TbTrCommandNode() : TbTrParseNode(TBI_GENERICLIST, nullptr) {}

    const TbTrCommandNode* AsCommandNode() const override { return this; }

    /// The first declaration of the (upper-cased) name. The global subcommands must be in place and
    /// not change afterwards.
    Declaration FindDeclaration(std::string_view name) const {
        return (m_marks & MarkOf(name)) != 0 ? FindMarked(name) : Declaration();
    }

private:
    using Declarations = SmallHashMap<std::string_view, Declaration>;

    static constexpr std::uint64_t kEveryMark = ~std::uint64_t{0};

    /// One bit of a few that names are told apart by.
    static std::uint64_t MarkOf(std::string_view name) {
        constexpr std::size_t kMarks = 64;
        const std::size_t last = name.empty() ? 0 : static_cast<unsigned char>(name.back());
        return std::uint64_t{1} << (7 * name.size() + last) % kMarks;
    }
    Declaration FindMarked(std::string_view name) const;
    void AddName(const TbTrParseNode& name, int type) const;
    void AddNames(const TbTrParseNode* list, int type) const;
    void ReadDeclarations() const;

    mutable Declarations m_declarations; ///< by name; the names are those of the nodes' tokens
    /// Of the declared names, which most names asked for are not; every mark until they are read.
    mutable std::uint64_t m_marks = kEveryMark;
    mutable bool m_declarationsRead = false;
};

} // namespace recastor
