#include "archive/tree/targetfolder.h"

#include "archive/tree/systemerror.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fcntl.h>
#include <unistd.h>

namespace recastor {

namespace {

constexpr mode_t kPermissions = 0777; // a set-user-ID bit would be another user's

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

std::string NameIn(const std::string& path) {
    return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

/// The folder `name` in an open one, made when it is missing, with the permissions of `source`.
FileDescriptor OpenOrMake(int folder, const std::string& name, const std::string& source) {
    const bool made = ::mkdirat(folder, name.c_str(), S_IRWXU) == 0;
    if (!made && errno != EEXIST) {
        throw SystemError("cannot make a folder for the target");
    }
    FileDescriptor opened(
        ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!opened.IsOpen()) {
        throw SystemError("cannot enter a folder of the target");
    }
    struct stat status {};
    if (made && ::stat(source.c_str(), &status) == 0) {
        ::fchmod(opened.Number(), (status.st_mode & kPermissions) | S_IRWXU);
    }
    return opened;
}

/// Several hosts may write to one folder.
std::string TemporaryName(pid_t process) {
    std::array<char, 65> host{};
    ::gethostname(host.data(), host.size() - 1);
    return ".recastor-tree-" + std::string(host.data()) + '-' + std::to_string(process) + "-tmp";
}

} // namespace

int TargetFolder::Enter(const std::string& path) {
    const std::string folder = FolderOf(path);
    if (m_entered.IsOpen() && folder == m_enteredPath) {
        return m_entered.Number();
    }
    m_entered = FileDescriptor::Open(m_root, O_RDONLY | O_DIRECTORY);
    if (!m_entered.IsOpen()) {
        throw SystemError("cannot enter the target folder");
    }
    for (std::size_t start = 0; start < folder.size();) {
        const std::size_t end = std::min(folder.find('/', start), folder.size());
        m_entered = OpenOrMake(m_entered.Number(), folder.substr(start, end - start),
                               m_sourceRoot + '/' + folder.substr(0, end));
        start = end + 1;
    }
    m_enteredPath = folder;
    return m_entered.Number();
}

std::optional<struct stat> TargetFolder::Find(const std::string& path) const {
    struct stat found {};
    return ::lstat(FullPath(path).c_str(), &found) == 0 ? std::optional(found) : std::nullopt;
}

bool TargetFolder::SetTimes(const std::string& path, const struct stat& source) const {
    const std::array<struct timespec, 2> times{source.st_atim, source.st_mtim};
    return ::utimensat(AT_FDCWD, FullPath(path).c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0;
}

TargetFile::TargetFile(TargetFolder& folder, const std::string& path) :
    m_folder(folder.Enter(path)), m_path(path), m_name(NameIn(path)),
    m_temporaryName(TemporaryName(::getpid())) {
    constexpr mode_t kForOwnerOnly = 0600; // until it has the permissions of its source
    ::unlinkat(m_folder, m_temporaryName.c_str(), 0);
    m_file =
        FileDescriptor(::openat(m_folder, m_temporaryName.c_str(),
                                O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kForOwnerOnly));
    if (!m_file.IsOpen()) {
        throw SystemError("cannot write a file into the target's folder");
    }
}

TargetFile::~TargetFile() {
    if (!m_inPlace) {
        ::unlinkat(m_folder, m_temporaryName.c_str(), 0);
    }
}

bool TargetFile::IsFolderBlindToCase() const {
    std::string other = m_temporaryName;
    std::transform(other.begin(), other.end(), other.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return ::faccessat(m_folder, other.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

void TargetFile::PutInPlace(const struct stat& source) {
    const std::array<struct timespec, 2> times{source.st_atim, source.st_mtim};
    if (::fchmod(m_file.Number(), source.st_mode & kPermissions) != 0 ||
        ::futimens(m_file.Number(), times.data()) != 0) {
        throw SystemError("cannot keep the permissions and times of the source");
    }
    if (!m_file.Close()) {
        throw SystemError("cannot write the target");
    }
    if (::renameat(m_folder, m_temporaryName.c_str(), m_folder, m_name.c_str()) != 0) {
        throw SystemError("cannot put the target in its place");
    }
    m_inPlace = true;
}

void RemoveUnfinished(const std::string& root, const std::string& path, pid_t process) {
    const std::string folder = FolderOf(path);
    const std::string place = folder.empty() ? root : root + '/' + folder;
    ::unlink((place + '/' + TemporaryName(process)).c_str());
}

} // namespace recastor
