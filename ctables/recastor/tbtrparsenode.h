/// The tree of a parsed TABLES command.
#pragma once

#include "ctables/recastor/nodeslots.h"
#include "ctables/recastor/tbtrnodetypes.h"
#include "ctables/recastor/zelktoken.h"
#include "platform/zelkbase/smallobjects.h"

#include <cstdint>
#include <memory>
#include <ostream>

namespace recastor {

class ExpandedDimensions;
class TbTrCommandNode;
class TbTrNameListNode;

/// A node: a type of TbTrNodeType, the token that it stands for (keyword and structural nodes have
/// none) and children in order. A node owns its token and its children. A child slot may hold
/// null; such slots count, since they keep positions. Out-of-range indexes (0-based) are answered
/// with null or 0.
///
/// Every SP_VARNAME node that MakeVarNameNode makes has two slots: 0 for the label that the syntax
/// gives a total or a group, 1 for the total that the translator attaches to a variable.
class TbTrParseNode : public SmallObject {
public:
    using NodePtr = std::unique_ptr<TbTrParseNode>;

    /// What GetChildIndex answers when there is no such child.
    static constexpr unsigned kNoIndex = 0xFFFFFFFFU;

    /// Takes over `token`, which may be null.
    TbTrParseNode(int nodeType, ZELKToken* token);
    virtual ~TbTrParseNode();
    TbTrParseNode(const TbTrParseNode&) = delete;
    TbTrParseNode& operator=(const TbTrParseNode&) = delete;

    /// A type that is yet to be looked up.
    static constexpr int kNotLookedUp = -1;

    // The short operations are final, so that the compiler sees through them: every stage of the
    // translation calls them for every node.

    virtual int GetNodeType() const final { return m_nodeType; }
    virtual void SetNodeType(int nodeType) final { m_nodeType = nodeType; }
    /// The token stays with the node.
    virtual ZELKToken* GetToken() const final { return m_token.get(); }
    /// Takes over `token` and returns the previous one, which is the caller's to delete.
    virtual ZELKToken* SetToken(ZELKToken* token);
    virtual void SetParent(TbTrParseNode* parent) final { m_parent = parent; }
    virtual TbTrParseNode* GetParent() const final { return m_parent; }
    /// Puts `child` (may be null) into an existing slot and takes it over; returns what stood
    /// there. Out of range it does nothing, and `child` stays the caller's.
    virtual NodePtr SetChild(unsigned index, TbTrParseNode* child) final;
    /// Takes the slot away and returns what stood in it; later children move up.
    virtual NodePtr RemoveChild(unsigned index);
    /// Appends a slot and takes over `child`, which may be null.
    virtual void AppendChild(TbTrParseNode* child) final;
    /// Inserts `count` null slots before position `index`, which may be the child count, and
    /// returns `count`; 0, with nothing changed, for a larger index.
    virtual unsigned InsertNullChildren(unsigned index, unsigned count);
    virtual TbTrParseNode* GetChild(unsigned index) const final;
    /// The slot that holds exactly this node.
    virtual unsigned GetChildIndex(const TbTrParseNode* child) const final;
    virtual unsigned GetChildCount() const final {
        return static_cast<unsigned>(m_children.Size());
    }
    /// The type with which the command declares the variable that this node is, once it was looked
    /// up and noted: every stage asks for it. A node with another token has it no more.
    virtual int GetNotedType() const final { return m_notedType; }
    virtual void NoteType(int declaredType) const final { m_notedType = declaredType; }
    /// Debug print of the tree, `level` tabs deep (none when it is below 0 or above 20).
    virtual void Print(std::ostream& out, int level) const;
    /// This node when it is the root of a parsed command; null for every other node.
    virtual const TbTrCommandNode* AsCommandNode() const { return nullptr; }
    /// This node when it is a list that finds its children by name; null for every other node.
    virtual const TbTrNameListNode* AsNameList() const { return nullptr; }
    /// This node when it holds the expanded dimensions of a table; null for every other node.
    virtual const ExpandedDimensions* AsExpandedDimensions() const { return nullptr; }

    /// A deep copy without parent that the caller owns.
    TbTrParseNode* Clone() const;

    // Factories. The node is the caller's. A token is taken over only when a node is made of it;
    // null is returned for a null token and one of another type.

    /// A node without token for one of the attribute codes; `token`, if given, is deleted. Null,
    /// with the token left to the caller, for any other code.
    static TbTrParseNode* MakeAttrNode(int type, ZELKToken* token);
    static TbTrParseNode* MakeLiteralNode(ZELKToken* token);
    static TbTrParseNode* MakeNumberNode(ZELKToken* token);
    static TbTrParseNode* MakeVarNameNode(ZELKToken* token);
    /// A TBI_VARRANGE node over both names; one that is no name leaves its slot null. Null when
    /// neither is one.
    static TbTrParseNode* MakeVarRangeNode(ZELKToken* first, ZELKToken* last);

private:
    friend class NodeSlots<TbTrParseNode>;
    void NotePlace(std::uint32_t place) { m_place = place; }

    int m_nodeType;
    std::uint32_t m_place = 0; ///< among the slots of the parent
    std::unique_ptr<ZELKToken> m_token;
    TbTrParseNode* m_parent = nullptr;
    NodeSlots<TbTrParseNode> m_children;
    mutable int m_notedType = kNotLookedUp;
};

} // namespace recastor
