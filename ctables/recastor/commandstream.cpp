#include "ctables/recastor/commandstream.h"

#include "ctables/recastor/opening.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/printcommand.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkbase/zelkassert.h"

#include <utility>

namespace recastor {

namespace {

/// Calls `examine` with the line's text, a byte-order mark at the start of the file left out. An
/// error's line becomes that of the input file.
template <typename Examine>
auto ExamineLine(const std::string& line, std::int64_t lineNumber, const Examine& examine) {
    try {
        return lineNumber == 1 && line.starts_with(kByteOrderMark)
                   ? examine(line.substr(kByteOrderMark.size()), kByteOrderMark.size())
                   : examine(line, std::size_t{0});
    } catch (ParseError& error) {
        error.IncrementLine(static_cast<long>(lineNumber - 1));
        throw;
    }
}

} // namespace

CommandStream::CommandStream(std::istream& input, bool batch) : m_input(input), m_batch(batch) {}

bool CommandStream::NextCommand() {
    m_command.clear();
    m_firstLine = 0;
    m_opening = {};
    bool done = false;
    while (!done) {
        FillLineBuffer(m_command.empty());
        if (m_lineBuffer.empty()) {
            break;
        }
        if (m_command.empty()) {
            m_firstLine = m_lineNumber;
        }
        const bool opensCommand = !m_opening.holdsToken;
        if (opensCommand) {
            ClassifyLine();
        }
        if (m_opening.kind == kInlineDataCommand) {
            done = GatherDataLine(opensCommand);
        } else {
            done = m_batch ? GatherBatchLine() : GatherInteractiveLine();
        }
    }
    return m_command.empty();
}

std::int64_t CommandStream::FirstLineNumber() const {
    return m_command.empty() ? 0 : m_firstLine;
}

int CommandStream::TypeOfCommand() const {
    return m_command.empty() ? kOrdinaryCommand : m_opening.kind;
}

void CommandStream::FillLineBuffer(bool skipBlankLines) {
    if (skipBlankLines && IsWSOnly(m_lineBuffer)) {
        m_lineBuffer.clear();
    }
    while (m_lineBuffer.empty() && !m_atEnd) {
        if (!m_input.ReadLine(m_lineBuffer)) {
            m_lineBuffer.clear();
            m_atEnd = true;
            return;
        }
        ++m_lineNumber;
        if (skipBlankLines && IsWSOnly(m_lineBuffer)) {
            m_lineBuffer.clear();
        } else {
            m_lineBuffer += '\n';
        }
    }
}

/// Moves the line in hand into the command; from `ixEnd` on (-1: nothing) it becomes a line feed.
void CommandStream::AppendFromBuffer(int ixEnd) {
    if (m_lineBuffer.empty()) {
        return;
    }
    if (ixEnd >= 0) {
        const auto end = static_cast<std::size_t>(ixEnd);
        ZELK_ASSERT_AS(end < m_lineBuffer.size(), "ixEnd < m_lineBuffer.size()");
        m_lineBuffer.resize(end);
        m_lineBuffer += '\n';
    }
    if (m_command.empty()) {
        m_command.swap(m_lineBuffer); // most commands are one line
    } else {
        m_command += m_lineBuffer;
    }
    m_lineBuffer.clear();
}

/// Takes the command's kind from the line in hand. As long as a command's lines hold no token (an
/// open comment, a lone comma), the next line may still tell.
void CommandStream::ClassifyLine() {
    try {
        ExamineLine(m_lineBuffer, m_lineNumber, [this](const std::string& text, std::size_t) {
            m_opening = ReadOpening(text, m_batch);
        });
        m_opening.isWhole = m_opening.isWhole && m_command.empty();
    } catch (const ParseError& error) {
        // The search for the command's end tells whether the quote is really unclosed.
        if (error.GetErrorID() != ParseError::kUnclosedLiteral) {
            throw;
        }
        m_opening = {kOrdinaryCommand, true};
    }
}

/// The lines of a data block are taken whole; END DATA is the last.
bool CommandStream::GatherDataLine(bool opensBlock) {
    const bool done = !opensBlock && ZELKTokenSequence::IsEndData(m_lineBuffer);
    AppendFromBuffer(-1);
    return done;
}

bool CommandStream::GatherInteractiveLine() {
    const int ixEnd = FindEnd(m_lineBuffer, m_lineNumber);
    AppendFromBuffer(ixEnd);
    return ixEnd >= 0;
}

/// Only the layout of the lines ends a command: one that begins with a blank continues it.
bool CommandStream::GatherBatchLine() {
    std::string current = std::exchange(m_lineBuffer, {});
    const std::int64_t currentNumber = m_lineNumber;
    FillLineBuffer(false);
    const bool done = m_lineBuffer.empty() || m_lineBuffer.front() != ' ';
    std::string following = std::exchange(m_lineBuffer, std::move(current));

    const bool blank = IsWSOnly(m_lineBuffer);
    if (!blank) {
        m_textLine = m_command.size();
        m_textLineNumber = currentNumber;
    }
    if (done && blank && EndBeforeTrailingBlankLines()) {
        m_lineBuffer.clear();
    } else {
        AppendFromBuffer(done ? FindEnd(m_lineBuffer, currentNumber) : -1);
    }
    m_lineBuffer = std::move(following);
    return done;
}

/// Ends the gathered text at the period that ends its last line with more than blanks, if there is
/// one, so that blank lines below a command do not hide its period.
bool CommandStream::EndBeforeTrailingBlankLines() {
    const std::size_t lineEnd = m_command.find('\n', m_textLine);
    const std::string line = m_command.substr(m_textLine, lineEnd + 1 - m_textLine);
    const int ixEnd = FindEnd(line, m_textLineNumber);
    if (ixEnd < 0) {
        return false;
    }
    m_command.resize(m_textLine + static_cast<std::size_t>(ixEnd));
    m_command += '\n';
    return true;
}

/// Index in `line` of the period that ends the command; -1 when it goes on.
int CommandStream::FindEnd(const std::string& line, std::int64_t lineNumber) const {
    const bool commentLike =
        m_opening.kind == kCommentCommand || m_opening.kind == kDocumentCommand;
    return ExamineLine(line, lineNumber, [&](const std::string& text, std::size_t skipped) {
        const int ixEnd = ZELKTokenSequence::FindEndOfCommand(text, commentLike);
        return ixEnd < 0 ? ixEnd : ixEnd + static_cast<int>(skipped);
    });
}

} // namespace recastor
