#include "archive/tree/folders.h"

#include "archive/outcome/shownpath.h"
#include "archive/tree/systemerror.h"

#include <filesystem>

namespace recastor {

namespace {

namespace fs = std::filesystem;

bool IsWithin(const fs::path& inner, const fs::path& outer) {
    const auto [innerEnd, outerEnd] =
        std::mismatch(inner.begin(), inner.end(), outer.begin(), outer.end());
    return outerEnd == outer.end();
}

/// Absolute and without links, whether or not it is there.
fs::path Canonical(const std::string& path) {
    std::error_code error;
    fs::path canonical = fs::weakly_canonical(path, error);
    if (error) {
        throw SystemError(ShownPath(path), error.value());
    }
    return canonical.has_filename() ? canonical : canonical.parent_path();
}

} // namespace

void MakeFolders(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error || !fs::is_directory(path, error)) {
        throw SystemError("cannot make the folder " + ShownPath(path),
                          error ? error.value() : ENOTDIR);
    }
}

void MakeFolderInside(const std::string& path) {
    std::error_code error;
    if (fs::is_symlink(fs::symlink_status(path, error))) {
        throw FileError("cannot use the folder " + ShownPath(path) + ": it is a link");
    }
    MakeFolders(path);
}

void PrepareFolders(const TreeOptions& options) {
    std::error_code error;
    if (!fs::is_directory(options.source, error)) {
        throw SystemError("cannot read the source folder " + ShownPath(options.source),
                          error ? error.value() : ENOTDIR);
    }
    if (IsWithin(Canonical(options.source), Canonical(options.target))) {
        throw FileError("the target folder is the source folder or holds it: " +
                        ShownPath(options.target));
    }
    if (options.WritesTargets()) {
        MakeFolders(options.target);
    }
    if (options.isUsualReport) {
        MakeFolderInside(options.report);
    } else if (!options.report.empty()) {
        MakeFolders(options.report);
    }
}

} // namespace recastor
