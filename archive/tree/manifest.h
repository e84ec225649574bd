/// The list of what became of every file: the lines of OutcomeLine(), in the order of the walk.
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace recastor {

/// Reads a manifest line by line. A file that is missing is one without lines; what is no line of
/// a manifest, as one that was cut off, is passed over. The file is open only while a block of it
/// is read, so that any number of manifests can be read side by side.
class ManifestReader {
public:
    explicit ManifestReader(std::string fileName) : m_fileName(std::move(fileName)) {}

    /// Goes to the next line, from before the first; false behind the last. Throws FileError when
    /// the file cannot be read: what it would have told is not known then.
    bool Next();
    const std::string& Line() const { return m_line; }
    const std::string& Path() const { return m_path; }

private:
    bool ReadLine();
    bool ReadBlock();

    std::string m_fileName;
    std::string m_block;
    std::size_t m_position = 0; ///< in the block
    std::int64_t m_offset = 0;  ///< of the next block in the file
    std::string m_line;
    std::string m_path;
};

/// Reads several manifests as if they were one. Where several have a path the last of them counts.
class MergedManifests {
public:
    /// Throws FileError, as Next() does, when one of them cannot be read.
    explicit MergedManifests(const std::vector<std::string>& fileNames);

    /// Goes to the next line, from before the first; false behind the last.
    bool Next();
    const std::string& Line() const { return m_readers[m_current].Line(); }
    const std::string& Path() const { return m_readers[m_current].Path(); }
    /// Which of the manifests the line is from.
    std::size_t Current() const { return m_current; }

private:
    std::vector<ManifestReader> m_readers;
    std::vector<bool> m_hasLine;
    std::size_t m_current = 0;
};

/// The manifest of a report folder over one run: what earlier runs left is looked up while the new
/// one is written beside it.
class RunManifest {
public:
    /// Throws FileError when the earlier one cannot be read or the new one cannot be written.
    explicit RunManifest(const std::string& reportFolder);

    /// The earlier run's line for the path; empty when there is none. To be asked in the order of
    /// the walk.
    std::string PreviousLine(const std::string& path);
    /// Adds a line, behind those of all paths before its own.
    void Add(const std::string& line);
    /// The earlier run's lines behind the last path that was asked for, one after the other: they
    /// are to be kept when the walk was broken off.
    std::optional<std::string> TakeRest();
    /// Puts the new manifest in the place of the old one. Throws FileError when any of it could not
    /// be written: then the earlier one stands, and the next run reads both.
    void Finish();
    /// Brings what was added so far to the disk.
    void Flush();

    static std::string FileName(const std::string& reportFolder);

private:
    std::string m_fileName;
    ManifestReader m_previous;
    bool m_hasPrevious;
    FileDescriptor m_file;
    std::string m_pending;
    bool m_failed = false;
};

} // namespace recastor
