#include "tests/support/plain/plaincommands.h"

#include "tests/support/plain/plaincursor.h"
#include "tests/support/plain/plaintokens.h"

#include <algorithm>

namespace recastor {

namespace {

constexpr int kInlineData = 3;

bool IsFreeText(int kind) {
    return kind == 1 || kind == 2;
}

bool IsBlank(const std::string& line) {
    return line.find_first_not_of(" \t\n\r") == std::string::npos;
}

bool IsEndOfData(const std::string& line) {
    return PlainUpperCased(line.substr(0, 8)) == "END DATA";
}

/// Whether the cursor stands at the end of the text, not at a NUL or a byte that is no text in it.
bool IsAtEnd(const PlainCursor& cursor, const std::string& text) {
    return cursor.Offset() == text.size();
}

int EndOfFreeText(const std::string& text) {
    for (PlainCursor cursor(text); cursor.Code() != 0;) {
        const PlainCursor place = cursor;
        cursor.Step();
        if (place.Is('.')) {
            while (cursor.IsOneOf(" \t")) {
                cursor.Step();
            }
            if (cursor.IsLineBreak() || IsAtEnd(cursor, text)) {
                return static_cast<int>(place.Offset());
            }
        }
    }
    return -1;
}

/// Whether nothing but blanks and comments stands between the cursor, behind a period, and a line
/// break or, behind a blank, the end. Steps over what it looked at.
bool IsLastOnLine(PlainCursor& cursor, const std::string& text, int& line) {
    for (;;) {
        const bool comment = PassComment(cursor);
        int lines = 0;
        const bool blanks = PassWhitespace(cursor, lines);
        line += lines;
        if (blanks && (lines > 0 || IsAtEnd(cursor, text))) {
            return true;
        }
        if (!blanks && !comment) {
            return false;
        }
    }
}

/// A file's lines, each with a line feed behind it.
std::vector<std::string> LinesOf(const std::string& file) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < file.size();) {
        std::size_t end = start;
        while (end < file.size() && file[end] != '\n' &&
               !(file[end] == '\r' && file.compare(end + 1, 1, "\n") != 0)) {
            ++end;
        }
        lines.push_back(file.substr(start, end - start) + '\n');
        start = end + 1;
    }
    return lines;
}

/// Goes through the lines of a file.
class Cutter {
public:
    Cutter(const std::string& file, bool batch) : m_lines(LinesOf(file)), m_batch(batch) {}

    /// The next command; nothing when there is none left.
    std::optional<PlainCommand> Next() {
        while (m_next < m_lines.size() && IsBlank(m_lines[m_next])) {
            ++m_next;
        }
        if (m_next == m_lines.size()) {
            return std::nullopt;
        }
        PlainCommand command;
        command.firstLine = static_cast<std::int64_t>(m_next) + 1;
        m_kindKnown = false;
        bool done = false;
        while (!done && m_next < m_lines.size()) {
            const bool opens = !m_kindKnown;
            if (opens) {
                Classify(command);
            }
            if (command.kind == kInlineData) {
                done = !opens && IsEndOfData(m_lines[m_next]);
                command.text += m_lines[m_next];
            } else {
                done = m_batch ? TakeBatchLine(command) : TakeLine(command);
            }
            ++m_next;
        }
        return command;
    }

private:
    /// Calls `examine` with the line and the length of the byte-order mark that is left out of it;
    /// an error's line becomes that of the file.
    template <typename Examine>
    auto Examined(std::size_t index, const Examine& examine) const {
        const bool hasMark = index == 0 && m_lines[0].starts_with("\xEF\xBB\xBF");
        const int mark = hasMark ? 3 : 0;
        try {
            return examine(m_lines[index].substr(static_cast<std::size_t>(mark)), mark);
        } catch (ParseError& error) {
            error.IncrementLine(static_cast<long>(index));
            throw;
        }
    }

    void Classify(PlainCommand& command) {
        try {
            const PlainTokens opening = Examined(
                m_next, [&](const std::string& line, int) { return ReadTokens(line, m_batch, 2); });
            command.kind = opening.kind;
            m_kindKnown = !opening.tokens.empty();
        } catch (const ParseError& error) {
            if (error.GetErrorID() != ParseError::kUnclosedLiteral) {
                throw;
            }
            command.kind = 0; // the search for the end tells whether the quote is unclosed
            m_kindKnown = true;
        }
    }

    int EndIn(std::size_t index, int kind) const {
        return Examined(index, [&](const std::string& line, int mark) {
            const int end = PlainEndOfCommand(line, IsFreeText(kind));
            return end < 0 ? end : end + mark;
        });
    }

    /// The line up to the period at `end`; whole when there is none.
    std::string LineUpTo(std::size_t index, int end) const {
        return end < 0 ? m_lines[index]
                       : m_lines[index].substr(0, static_cast<std::size_t>(end)) + '\n';
    }

    bool TakeLine(PlainCommand& command) const {
        const int end = EndIn(m_next, command.kind);
        command.text += LineUpTo(m_next, end);
        return end >= 0;
    }

    /// The line before one that does not begin with a blank is the command's last. The period is
    /// looked for in the last line that is not blank; what stands behind it is dropped.
    bool TakeBatchLine(PlainCommand& command) {
        const bool isLast = m_next + 1 == m_lines.size() || m_lines[m_next + 1][0] != ' ';
        if (!IsBlank(m_lines[m_next])) {
            m_textLine = m_next;
            m_textBefore = command.text;
        }
        if (!isLast) {
            command.text += m_lines[m_next];
            return false;
        }
        const int end = EndIn(m_textLine, command.kind);
        if (m_textLine == m_next || end >= 0) {
            command.text = m_textBefore + LineUpTo(m_textLine, end);
        } else {
            command.text += m_lines[m_next];
        }
        return true;
    }

    std::vector<std::string> m_lines;
    bool m_batch;
    std::size_t m_next = 0; ///< the line at hand
    bool m_kindKnown = false;
    std::size_t m_textLine = 0; ///< the command's last line with more than blanks
    std::string m_textBefore;   ///< what the command holds before it
};

} // namespace

int PlainEndOfCommand(const std::string& text, bool freeText) {
    if (freeText) {
        return EndOfFreeText(text);
    }
    int line = 1;
    for (PlainCursor cursor(text); cursor.Code() != 0;) {
        const PlainCursor place = cursor;
        if (PassWhitespace(cursor, line) || PassComment(cursor)) {
            continue;
        }
        cursor.Step();
        if (place.IsQuote()) {
            if (!PassToQuote(cursor, place.Code())) {
                throw ParseError(line, cursor.Number(), ParseError::kUnclosedLiteral);
            }
            cursor.Step();
        } else if (place.Is('.') && IsLastOnLine(cursor, text, line)) {
            return static_cast<int>(place.Offset());
        }
    }
    return -1;
}

PlainCommands CutIntoCommands(const std::string& file, bool batch) {
    PlainCommands result;
    Cutter cutter(file, batch);
    try {
        while (auto command = cutter.Next()) {
            result.commands.push_back(*command);
        }
    } catch (const ParseError& error) {
        result.error = error;
    }
    return result;
}

} // namespace recastor
