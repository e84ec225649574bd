#include "archive/tree/manifest.h"

#include "archive/outcome/outcomejson.h"
#include "archive/outcome/shownpath.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/wholefile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace recastor {

namespace {

constexpr std::size_t kBlockSize = 65536;
constexpr const char* kUnfinished = ".part";

/// When a run was ended before it could finish its manifest, joins what it did with what stood
/// there before.
void Recover(const std::string& fileName) {
    const std::string unfinished = fileName + kUnfinished;
    if (::access(unfinished.c_str(), F_OK) != 0) {
        return;
    }
    const std::string joined = fileName + ".joined";
    WholeFile file(joined);
    MergedManifests both({fileName, unfinished});
    while (both.Next()) {
        file.Stream() << both.Line() << '\n';
    }
    file.Finish();
    if (std::rename(joined.c_str(), fileName.c_str()) != 0) {
        throw SystemError("cannot write " + fileName);
    }
    static_cast<void>(std::remove(unfinished.c_str())); // what stays is joined again
}

std::string Recovered(const std::string& fileName) {
    Recover(fileName);
    return fileName;
}

} // namespace

bool ManifestReader::Next() {
    while (ReadLine()) {
        auto path = PathOfLine(m_line);
        if (path && m_line.ends_with('}')) {
            m_path = std::move(*path);
            return true;
        }
    }
    return false;
}

bool ManifestReader::ReadLine() {
    m_line.clear();
    for (;;) {
        const std::size_t end = m_block.find('\n', m_position);
        m_line.append(m_block, m_position, end - m_position); // npos: the rest
        if (end != std::string::npos) {
            m_position = end + 1;
            return true;
        }
        if (!ReadBlock()) {
            return !m_line.empty();
        }
    }
}

/// False at the end of the file.
bool ManifestReader::ReadBlock() {
    m_block.clear();
    m_position = 0;
    const FileDescriptor file = FileDescriptor::Open(m_fileName, O_RDONLY);
    if (!file.IsOpen() && errno == ENOENT && m_offset == 0) {
        return false;
    }
    m_block.resize(kBlockSize);
    const bool open = file.IsOpen() && ::lseek(file.Number(), m_offset, SEEK_SET) == m_offset;
    const long count = open ? file.Read(m_block.data(), m_block.size()) : -1;
    if (count < 0) {
        throw SystemError("cannot read " + ShownPath(m_fileName));
    }
    m_block.resize(static_cast<std::size_t>(count));
    m_offset += count;
    return count > 0;
}

MergedManifests::MergedManifests(const std::vector<std::string>& fileNames) {
    for (const std::string& name : fileNames) {
        m_readers.emplace_back(name);
        m_hasLine.push_back(m_readers.back().Next());
    }
    m_current = m_readers.size();
}

bool MergedManifests::Next() {
    // Of equal paths the last reader's line was given; the others' are passed over with it.
    if (m_current < m_readers.size()) {
        const std::string path = Path();
        for (std::size_t i = 0; i < m_readers.size(); ++i) {
            while (m_hasLine[i] && m_readers[i].Path() == path) {
                m_hasLine[i] = m_readers[i].Next();
            }
        }
    }
    m_current = m_readers.size();
    for (std::size_t i = 0; i < m_readers.size(); ++i) {
        if (m_hasLine[i] && (m_current == m_readers.size() ||
                             !IsBeforeInWalk(m_readers[m_current].Path(), m_readers[i].Path()))) {
            m_current = i;
        }
    }
    return m_current < m_readers.size();
}

RunManifest::RunManifest(const std::string& reportFolder) :
    m_fileName(Recovered(FileName(reportFolder))), m_previous(m_fileName),
    m_hasPrevious(m_previous.Next()), m_file(OpenNewFile(m_fileName + kUnfinished)) {}

std::string RunManifest::PreviousLine(const std::string& path) {
    while (m_hasPrevious && IsBeforeInWalk(m_previous.Path(), path)) {
        m_hasPrevious = m_previous.Next();
    }
    if (!m_hasPrevious || m_previous.Path() != path) {
        return "";
    }
    std::string line = m_previous.Line();
    m_hasPrevious = m_previous.Next();
    return line;
}

void RunManifest::Add(const std::string& line) {
    m_pending += line;
    m_pending += '\n';
    if (m_pending.size() >= kBlockSize) {
        Flush();
    }
}

void RunManifest::Flush() {
    m_failed = m_failed || !m_file.Write(m_pending);
    m_pending.clear();
}

std::optional<std::string> RunManifest::TakeRest() {
    if (!m_hasPrevious) {
        return std::nullopt;
    }
    std::string line = m_previous.Line();
    m_hasPrevious = m_previous.Next();
    return line;
}

void RunManifest::Finish() {
    Flush();
    const bool closed = m_file.Close();
    if (m_failed || !closed ||
        std::rename((m_fileName + kUnfinished).c_str(), m_fileName.c_str()) != 0) {
        throw SystemError("cannot write " + m_fileName);
    }
}

std::string RunManifest::FileName(const std::string& reportFolder) {
    return reportFolder + "/manifest.jsonl";
}

} // namespace recastor
