/// The input as physical lines.
#pragma once

#include <array>
#include <istream>
#include <string>

namespace recastor {

/// Reads lines from a stream that it does not own, in blocks: what it has not handed out yet is
/// lost to other readers of the stream. A line ends with a line feed, or with a carriage return
/// that no line feed follows.
class LineReader {
public:
    explicit LineReader(std::istream& input);

    /// The next line without its line feed; the carriage return in front of a line feed stays.
    /// False when no line is left.
    bool ReadLine(std::string& line);

private:
    bool Refill();
    bool HasMore() { return m_position != m_end || Refill(); }
    const char* FindLineBreak();

    std::istream& m_input;
    std::array<char, 65536> m_block{};
    const char* m_position;
    const char* m_end;
    // Remembered, since most files end all their lines in only one of the two.
    const char* m_lineFeed;       ///< the first one at or behind m_position; m_end when none
    const char* m_carriageReturn; ///< the same
};

} // namespace recastor
