/// The syntax file that is written.
#pragma once

#include "ctables/recastor/filedescriptor.h"

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace recastor {

/// Writes text line by line to a file that it does not own. Lines of white space only are left
/// out, since the finished output holds none. Lines are gathered into blocks.
class LineWriteBuffer : public std::streambuf {
public:
    explicit LineWriteBuffer(const FileDescriptor& file) : m_file(file) {}

    /// Whether a flush of the stream brings what is pending to the file: a reader at the end of a
    /// pipe waits for it, a regular file does not.
    void FlushThrough(bool flushThrough) { m_flushThrough = flushThrough; }
    /// Every line that is written from now on ends in a carriage return and a line feed.
    void UseCrLf() { m_crLf = true; }
    /// Ends the last line; an output without lines becomes one line end.
    void Finish();
    /// Passes the pending whole lines on to the file.
    void WriteBlock();
    bool HasFailed() const { return m_failed; }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    /// Appends the first line of `text`, or as much of it as there is, and takes it off the text.
    void AppendLine(std::string_view& text);
    /// Appends those of these whole lines at once that stand before the first one which may have to
    /// be written otherwise, and takes them off. No line is at hand.
    void AppendFilledLines(std::string_view& lines);
    void EndLine();
    /// The block ends in a line that is written.
    void EndBlockOfLines();

    const FileDescriptor& m_file;
    std::string m_block;         ///< whole lines that wait to be written, and the one at hand
    std::size_t m_lineStart = 0; ///< where in the block the line that is not yet ended begins
    bool m_flushThrough = false;
    bool m_crLf = false;
    bool m_anyLine = false;
    bool m_failed = false;
};

/// Opens the output and makes sure that all of it was written.
class OutputFile {
public:
    OutputFile() : m_buffer(m_file), m_stream(&m_buffer) {}

    /// False when `name` cannot be opened for writing, or is, or may be, the file that `input` is
    /// open on: that one is left as it is.
    bool Open(const std::string& name, const FileDescriptor& input);

    std::ostream& Stream() { return m_stream; }
    void UseCrLf() { m_buffer.UseCrLf(); }
    /// Brings what was written so far to the file.
    void WritePending() { m_buffer.WriteBlock(); }
    /// Ends and closes the output; false when any of it could not be written.
    bool Close();

private:
    /// When the output is the file that the standard output goes to, both write at one position:
    /// neither the progress lines nor what stood in the file is overwritten.
    bool ShareStandardOutput();

    FileDescriptor m_file;
    LineWriteBuffer m_buffer;
    std::ostream m_stream;
};

} // namespace recastor
