/// The folder that targets are written to.
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <optional>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace recastor {

/// Opens folders below a root without ever leaving it: a link in the place of a folder is refused.
class TargetFolder {
public:
    /// Folders that are made get the permissions of those that they mirror.
    TargetFolder(std::string root, std::string sourceRoot) :
        m_root(std::move(root)), m_sourceRoot(std::move(sourceRoot)) {}

    /// The open folder of the file `path`, relative to the root, made where it is missing. It
    /// stays open until the next call. Throws FileError.
    int Enter(const std::string& path);

    /// What stands at `path`, links not followed; nothing when there is nothing or no way to it.
    std::optional<struct stat> Find(const std::string& path) const;
    /// Gives what stands at `path` the times of `source`; false on failure.
    bool SetTimes(const std::string& path, const struct stat& source) const;
    std::string FullPath(const std::string& path) const { return m_root + '/' + path; }

private:
    std::string m_root;
    std::string m_sourceRoot;
    std::string m_enteredPath;
    FileDescriptor m_entered;
};

/// A file that is written beside its place and put there when it is whole.
class TargetFile {
public:
    /// Makes the file that is to be `path`. Throws FileError.
    TargetFile(TargetFolder& folder, const std::string& path);
    /// Removes the file unless it was put in its place.
    ~TargetFile();
    TargetFile(const TargetFile&) = delete;
    TargetFile& operator=(const TargetFile&) = delete;

    const FileDescriptor& File() const { return m_file; }
    /// Whether its folder takes names that differ in case only for the same.
    bool IsFolderBlindToCase() const;
    /// Gives it the permissions and times of `source` and puts it in its place, over what stands
    /// there. Throws FileError.
    void PutInPlace(const struct stat& source);

private:
    int m_folder; ///< open; not owned
    std::string m_path;
    std::string m_name;
    std::string m_temporaryName;
    FileDescriptor m_file;
    bool m_inPlace = false;
};

/// Removes what the process, which is over, left unfinished of the file `path` below `root`.
void RemoveUnfinished(const std::string& root, const std::string& path, pid_t process);

} // namespace recastor
