/// The files of a source folder, one after the other in an order that is always the same.
#pragma once

#include "archive/tree/treeoptions.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace recastor {

/// A file that is to be converted, or what stands in the place of one.
struct WalkEntry {
    std::string path;    ///< relative to the source
    std::string twin;    ///< an earlier one whose path differs in case only; mostly empty
    std::string problem; ///< why it is no file to convert; empty when it is
    bool failed = false; ///< the problem is one of reading, not of what it is
};

/// Walks in the order of IsBeforeInWalk(). Only the names of the folders on the way to the present
/// file are in memory.
class TreeWalk {
public:
    /// `options` is not owned. The target and report folders are not entered where they lie in the
    /// source. Throws FileError when the source cannot be read.
    explicit TreeWalk(const TreeOptions& options);

    /// The next entry that the options' patterns and shard leave; nothing behind the last.
    std::optional<WalkEntry> Next();

private:
    static constexpr std::size_t kNoTwin = static_cast<std::size_t>(-1);
    struct Name {
        std::string name;
        bool isFolder;
        std::size_t twin; ///< index of an earlier name that differs in case only; or kNoTwin
    };
    struct Folder {
        std::string path; ///< "" for the source itself
        std::string twin;
        std::vector<Name> names;
        std::size_t next = 0;
    };

    static void FindTwins(std::vector<Name>& names);
    static std::string TwinOf(const Name& name, const Folder& folder);
    Folder ReadFolder(const std::string& path, const std::string& twin) const;
    std::optional<WalkEntry> Look(const Name& name, const Folder& folder);
    std::optional<WalkEntry> LookAtFile(const std::string& path, const Name& name,
                                        const Folder& folder) const;
    std::string FullPath(const std::string& path) const;

    const TreeOptions& m_options;
    std::string m_realSource;
    std::set<std::pair<std::uint64_t, std::uint64_t>> m_notEntered; ///< devices and inodes
    std::vector<Folder> m_way; ///< from the source to the present folder
};

} // namespace recastor
