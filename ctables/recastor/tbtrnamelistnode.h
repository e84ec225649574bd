/// A list of names, or of what is listed under names.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"
#include "platform/zelkbase/smallobjects.h"

#include <memory>
#include <string_view>

namespace recastor {

/// A list of variables, or of arguments of a function, whose first child is their variable. It
/// finds one by its name in constant time, since every variable of a table is looked for in it.
class TbTrNameListNode : public TbTrParseNode {
public:
    explicit TbTrNameListNode(int nodeType) : TbTrParseNode(nodeType, nullptr) {}

    const TbTrNameListNode* AsNameList() const override { return this; }

    /// The first child with the (upper-cased) name, which is not empty; null when there is none.
    /// The list must not change afterwards.
    const TbTrParseNode* FindChild(std::string_view name) const;

private:
    using Children = SmallHashMap<std::string_view, const TbTrParseNode*>;

    /// By name; the names are those of the nodes' tokens. Null until one is asked for.
    mutable std::unique_ptr<Children> m_children;
};

/// The same of a list of either class.
const TbTrParseNode* FindInNameList(const TbTrParseNode& list, std::string_view name);

} // namespace recastor
