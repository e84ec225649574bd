/// Cuts the input file into whole commands.
#pragma once

#include "ctables/recastor/linereader.h"
#include "ctables/recastor/opening.h"

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>

namespace recastor {

/// May stand in front of a file in UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Gathers the physical lines of one command at a time. In interactive mode a command ends with
/// the period that ends a line; in batch mode with the next line that does not begin with a blank;
/// inline data with END DATA. A last command that nothing ends is returned whole.
class CommandStream {
public:
    /// `input` is not owned and must outlive the stream.
    CommandStream(std::istream& input, bool batch);

    /// Gathers the next command; true when there is none left. Throws ParseError, its line that
    /// of the input file, when the lexical layer cannot tell where the command ends.
    bool NextCommand();

    /// The current command: its lines, each with a line feed. The period that ends it has become
    /// a line feed, and what stood behind it is dropped. Empty when no command is left.
    const std::string& CommandString() const { return m_command; }
    /// 1-based line of the input file; 0 when no command is left.
    std::int64_t FirstLineNumber() const;
    /// One of CommandKind; 0 when no command is left.
    int TypeOfCommand() const;
    /// What its first line told.
    const Opening& OpeningOfFirstLine() const { return m_opening; }

private:
    void FillLineBuffer(bool skipBlankLines);
    void AppendFromBuffer(int ixEnd);
    void ClassifyLine();
    bool GatherDataLine(bool opensBlock);
    bool GatherInteractiveLine();
    bool GatherBatchLine();
    bool EndBeforeTrailingBlankLines();
    int FindEnd(const std::string& line, std::int64_t lineNumber) const;

    LineReader m_input;
    bool m_batch;
    bool m_atEnd = false;
    std::int64_t m_lineNumber = 0; ///< physical lines read so far
    std::int64_t m_firstLine = 0;
    Opening m_opening; ///< of the first line that holds a token; no text is whole but the first's
    std::string m_command;
    std::string m_lineBuffer; ///< the line in hand, not yet moved into the command

    std::size_t m_textLine = 0; ///< where the command's last line with more than blanks begins
    std::int64_t m_textLineNumber = 0;
};

} // namespace recastor
