#include "archive/tree/treewalk.h"

#include "archive/outcome/pathhash.h"
#include "archive/tree/patterns.h"
#include "archive/tree/systemerror.h"

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace recastor {

namespace {

using Identity = std::pair<std::uint64_t, std::uint64_t>;

std::optional<Identity> IdentityOf(const std::string& fullPath) {
    struct stat status {};
    if (::stat(fullPath.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return Identity(status.st_dev, status.st_ino);
}

/// The path that links lead to; empty, with errno set, when they lead nowhere.
std::string RealPath(const std::string& fullPath) {
    const std::unique_ptr<char, void (*)(void*)> path(::realpath(fullPath.c_str(), nullptr),
                                                      &std::free);
    return path == nullptr ? "" : path.get();
}

std::string Joined(const std::string& folder, const std::string& name) {
    return folder.empty() ? name : folder + '/' + name;
}

bool IsFolder(const std::string& fullPath, unsigned char type) {
    struct stat status {};
    return type == DT_DIR || (type == DT_UNKNOWN && ::lstat(fullPath.c_str(), &status) == 0 &&
                              S_ISDIR(status.st_mode));
}

/// Why what a link leads to is no file to convert; empty when it is one.
std::string WhyNotFollowed(const std::string& fullPath, const std::string& realSource) {
    const std::string real = RealPath(fullPath);
    if (real.empty()) {
        return errno == ELOOP    ? "is a link in a loop of links"
               : errno == ENOENT ? "is a link to nothing"
                                 : SystemError("is a link that cannot be followed").what();
    }
    if (!real.starts_with(realSource + '/') && real != realSource) {
        return "is a link that leads out of the source folder";
    }
    struct stat status {};
    if (::stat(real.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
        return "is a link to a folder of the source; its files are converted in their own place";
    }
    return "";
}

} // namespace

TreeWalk::TreeWalk(const TreeOptions& options) :
    m_options(options), m_realSource(RealPath(options.source)) {
    if (m_realSource.empty()) {
        throw SystemError("cannot read the source folder");
    }
    if (m_realSource == "/") {
        m_realSource.clear();
    }
    for (const std::string& folder : {options.target, options.report}) {
        if (const auto identity = IdentityOf(folder); !folder.empty() && identity) {
            m_notEntered.insert(*identity);
        }
    }
    m_way.push_back(ReadFolder("", ""));
}

std::optional<WalkEntry> TreeWalk::Next() {
    while (!m_way.empty()) {
        Folder& folder = m_way.back();
        if (folder.next == folder.names.size()) {
            m_way.pop_back();
            continue;
        }
        const Name name = folder.names[folder.next++];
        auto entry = Look(name, folder);
        if (entry &&
            HashOfPath(entry->path) % m_options.shard.count + 1 == m_options.shard.number) {
            return entry;
        }
    }
    return std::nullopt;
}

std::optional<WalkEntry> TreeWalk::Look(const Name& name, const Folder& folder) {
    const std::string path = Joined(folder.path, name.name);
    if (MatchesAny(m_options.exclude, path)) {
        return std::nullopt;
    }
    if (!name.isFolder) {
        return LookAtFile(path, name, folder);
    }
    if (const auto identity = IdentityOf(FullPath(path));
        identity && m_notEntered.contains(*identity)) {
        return std::nullopt;
    }
    try {
        m_way.push_back(ReadFolder(path, TwinOf(name, folder)));
        return std::nullopt;
    } catch (const FileError& error) {
        return WalkEntry{path, "", error.what(), true};
    }
}

/// A file; also what could be one: a link that leads nowhere has no kind.
std::optional<WalkEntry> TreeWalk::LookAtFile(const std::string& path, const Name& name,
                                              const Folder& folder) const {
    const bool included = MatchesAny(m_options.include, path);
    struct stat status {};
    const bool found = ::lstat(FullPath(path).c_str(), &status) == 0;
    WalkEntry entry{path, TwinOf(name, folder), "", false};
    if (found && S_ISLNK(status.st_mode)) {
        entry.problem = WhyNotFollowed(FullPath(path), m_realSource);
        if (entry.problem.empty() && ::stat(FullPath(path).c_str(), &status) != 0) {
            entry.problem = SystemError("is a link that cannot be followed").what();
        } else if (!entry.problem.empty()) {
            return entry;
        }
    }
    if (!included) {
        return std::nullopt;
    }
    if (found && !S_ISREG(status.st_mode)) {
        entry.problem = "is no regular file";
    }
    if (entry.twin.empty() && !folder.twin.empty() &&
        ::lstat(FullPath(Joined(folder.twin, name.name)).c_str(), &status) == 0) {
        entry.twin = Joined(folder.twin, name.name);
    }
    return entry;
}

TreeWalk::Folder TreeWalk::ReadFolder(const std::string& path, const std::string& twin) const {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(FullPath(path).c_str()), &::closedir);
    if (open == nullptr) {
        throw SystemError(path.empty() ? "cannot read the source folder" : "cannot be entered");
    }
    Folder folder{path, twin, {}};
    while (const struct dirent* const entry = ::readdir(open.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            folder.names.push_back(
                {name, IsFolder(FullPath(Joined(path, name)), entry->d_type), kNoTwin});
        }
    }
    std::sort(folder.names.begin(), folder.names.end(),
              [](const Name& a, const Name& b) { return a.name < b.name; });
    FindTwins(folder.names);
    return folder;
}

/// Compares hashes: a folder may hold a million names.
void TreeWalk::FindTwins(std::vector<Name>& names) {
    std::vector<std::pair<std::uint64_t, std::size_t>> folded;
    folded.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        folded.emplace_back(HashOfPath(FoldedCase(names[i].name)), i);
    }
    std::sort(folded.begin(), folded.end());
    for (std::size_t i = 1; i < folded.size(); ++i) {
        if (folded[i].first == folded[i - 1].first) {
            names[folded[i].second].twin = folded[i - 1].second;
        }
    }
}

std::string TreeWalk::TwinOf(const Name& name, const Folder& folder) {
    return name.twin == kNoTwin ? "" : Joined(folder.path, folder.names[name.twin].name);
}

std::string TreeWalk::FullPath(const std::string& path) const {
    return path.empty() ? m_options.source : m_options.source + '/' + path;
}

} // namespace recastor
