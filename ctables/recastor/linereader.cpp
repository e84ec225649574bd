#include "ctables/recastor/linereader.h"

#include <algorithm>
#include <cstring>

namespace recastor {

namespace {

/// The first `byte` in [begin, end), or end.
const char* FindByte(const char* begin, const char* end, char byte) {
    const void* found = std::memchr(begin, byte, static_cast<std::size_t>(end - begin));
    return found != nullptr ? static_cast<const char*>(found) : end;
}

} // namespace

LineReader::LineReader(std::istream& input) :
    m_input(input), m_position(m_block.data()), m_end(m_position), m_lineFeed(m_position),
    m_carriageReturn(m_position) {}

bool LineReader::ReadLine(std::string& line) {
    line.clear();
    bool found = false;
    while (HasMore()) {
        found = true;
        const char* const stop = FindLineBreak();
        line.append(m_position, stop);
        m_position = stop;
        if (stop == m_end) {
            continue;
        }
        const char ending = *m_position++;
        if (ending == '\r' && HasMore() && *m_position == '\n') {
            line += ending;
            ++m_position;
        }
        break;
    }
    return found;
}

bool LineReader::Refill() {
    const auto size = static_cast<std::streamsize>(m_block.size());
    const std::streamsize count = m_input.rdbuf()->sgetn(m_block.data(), size);
    m_position = m_block.data();
    m_end = m_position + std::max<std::streamsize>(count, 0);
    m_lineFeed = FindByte(m_position, m_end, '\n');
    m_carriageReturn = FindByte(m_position, m_end, '\r');
    return m_position != m_end;
}

/// The line feed or carriage return that ends the line at hand; m_end when the block holds none.
const char* LineReader::FindLineBreak() {
    if (m_lineFeed < m_position) {
        m_lineFeed = FindByte(m_position, m_end, '\n');
    }
    if (m_carriageReturn < m_position) {
        m_carriageReturn = FindByte(m_position, m_end, '\r');
    }
    return std::min(m_lineFeed, m_carriageReturn);
}

} // namespace recastor
