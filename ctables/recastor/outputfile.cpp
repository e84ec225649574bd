#include "ctables/recastor/outputfile.h"

#include "ctables/recastor/printcommand.h"
#include "platform/zelkbase/neighbours.h"

#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace recastor {

namespace {

/// Whole lines are written in blocks of about this many bytes.
constexpr std::size_t kBlockSize = 65536;

/// How much of these whole lines, of which there are some, is lines up to the first one that may
/// hold white space only: such a one ends in some, or is its line feed alone.
std::size_t SizeOfFilledLines(std::string_view lines) {
    if (lines.front() == '\n') {
        return 0;
    }
    const std::size_t doubtful = FindFirst(lines, [](Neighbours c, Neighbours next) {
        const Neighbours isBlankOrControl = (c >= 0) & (c <= ' ');
        return isBlankOrControl & (next == '\n');
    });
    if (doubtful == std::string_view::npos) {
        return lines.size();
    }
    return lines[doubtful] == '\n' ? doubtful + 1 : lines.rfind('\n', doubtful) + 1;
}

} // namespace

LineWriteBuffer::int_type LineWriteBuffer::overflow(int_type c) {
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        const char byte = traits_type::to_char_type(c);
        xsputn(&byte, 1);
    }
    return traits_type::not_eof(c);
}

std::streamsize LineWriteBuffer::xsputn(const char* text, std::streamsize count) {
    std::string_view rest(text, static_cast<std::size_t>(count));
    if (m_lineStart < m_block.size()) {
        AppendLine(rest);
    }
    if (rest.find('\n') == std::string_view::npos) {
        m_block += rest;
        return count;
    }
    std::string_view lines = rest.substr(0, rest.rfind('\n') + 1);
    rest.remove_prefix(lines.size());
    while (!lines.empty()) {
        AppendFilledLines(lines);
        if (!lines.empty()) {
            AppendLine(lines);
        }
    }
    m_block += rest;
    return count;
}

int LineWriteBuffer::sync() {
    if (m_flushThrough) {
        WriteBlock();
    }
    return 0;
}

void LineWriteBuffer::AppendLine(std::string_view& text) {
    const auto lineFeed = text.find('\n');
    m_block += text.substr(0, lineFeed);
    if (lineFeed == std::string_view::npos) {
        text = {};
        return;
    }
    text.remove_prefix(lineFeed + 1);
    EndLine();
}

void LineWriteBuffer::AppendFilledLines(std::string_view& lines) {
    const std::size_t size = m_crLf ? 0 : SizeOfFilledLines(lines);
    if (size > 0) {
        m_block += lines.substr(0, size);
        EndBlockOfLines();
        lines.remove_prefix(size);
    }
}

void LineWriteBuffer::EndLine() {
    if (IsWSOnly(std::string_view(m_block).substr(m_lineStart))) {
        m_block.resize(m_lineStart);
        return;
    }
    m_block += m_crLf && !m_block.ends_with('\r') ? "\r\n" : "\n";
    EndBlockOfLines();
}

void LineWriteBuffer::EndBlockOfLines() {
    m_anyLine = true;
    m_lineStart = m_block.size();
    if (m_block.size() >= kBlockSize) {
        WriteBlock();
    }
}

void LineWriteBuffer::Finish() {
    EndLine();
    if (!m_anyLine) {
        m_block += m_crLf ? "\r\n" : "\n";
        m_lineStart = m_block.size();
    }
    WriteBlock();
}

void LineWriteBuffer::WriteBlock() {
    // After a failure nothing more is tried: a file with a hole is worse than a short one.
    m_failed = m_failed || !m_file.Write(std::string_view(m_block).substr(0, m_lineStart));
    m_block.erase(0, m_lineStart);
    m_lineStart = 0;
}

bool OutputFile::Open(const std::string& name, const FileDescriptor& input) {
    m_file = FileDescriptor::Open(name, O_WRONLY | O_CREAT);
    if (!m_file.IsOpen() || m_file.IsSameFileAs(input).value_or(true)) {
        return false;
    }
    m_buffer.FlushThrough(!m_file.IsRegular());
    return ShareStandardOutput() || m_file.Truncate();
}

bool OutputFile::ShareStandardOutput() {
    FileDescriptor standardOutput(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0));
    if (!m_file.IsRegular() || !standardOutput.IsOpen() ||
        !m_file.IsSameFileAs(standardOutput).value_or(false)) {
        return false;
    }
    m_file = std::move(standardOutput);
    return true;
}

bool OutputFile::Close() {
    m_buffer.Finish();
    const bool closed = m_file.Close();
    return closed && !m_buffer.HasFailed();
}

} // namespace recastor
