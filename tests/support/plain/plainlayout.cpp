#include "tests/support/plain/plainlayout.h"

namespace recastor {

namespace {

using Texts = std::vector<std::string>;

std::string WithoutLeadingBlanks(std::string text) {
    while (text.starts_with(' ')) {
        text.erase(0, 1);
    }
    return text;
}

/// Whether the layout takes the piece for a comma, which never begins a line: without blanks, and
/// without the last character that is none, it is one.
bool CountsAsComma(std::string text) {
    while (text.ends_with(' ')) {
        text.pop_back();
    }
    if (!text.empty()) {
        text.pop_back();
    }
    return WithoutLeadingBlanks(text) == ",";
}

/// Puts the comma behind the last piece, which comes along to a new line.
void PlaceCommaOnNewLine(Texts& result, const std::string& indentation, std::size_t& column) {
    const std::string carried = WithoutLeadingBlanks(result.back());
    result.pop_back();
    result.insert(result.end(), {"\n", indentation, carried});
    column = indentation.size() + carried.size();
}

} // namespace

void PlainPieces::PushBack(const std::string& text, bool leadingBlank) {
    m_pieces.push_back({(leadingBlank ? " " : "") + text, false});
}

void PlainPieces::PushBackNewline() {
    m_lastNewline = static_cast<std::int64_t>(m_pieces.size());
    m_pieces.push_back({"\n", true});
}

void PlainPieces::PushBack(const PlainPieces& other) {
    m_lastNewline = static_cast<std::int64_t>(m_pieces.size()) + other.m_lastNewline;
    for (const Piece& piece : other.m_pieces) {
        m_pieces.push_back(piece);
    }
}

std::size_t PlainPieces::Length() const {
    std::size_t length = 0;
    for (std::size_t i = CurrentLine(); i < m_pieces.size(); ++i) {
        length += m_pieces[i].text.size();
    }
    return length;
}

void PlainPieces::Fuse() {
    std::string fused;
    const std::size_t first = CurrentLine();
    for (std::size_t i = first; i < m_pieces.size(); ++i) {
        fused += m_pieces[i].text;
    }
    if (first < m_pieces.size()) {
        m_pieces.resize(first);
        m_pieces.push_back({fused, false});
    }
}

std::string PlainPieces::Print(std::size_t width, std::size_t indent) const {
    const std::string indentation(indent, ' ');
    Texts result;
    std::size_t column = 0;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const std::string& text = m_pieces[i].text;
        const bool fits = column == 0 || column + text.size() <= width;
        if (m_pieces[i].isNewline) {
            result.push_back("\n");
            column = 0;
        } else if (column > 0 && (fits || text == ",")) {
            if (!fits && !result.empty() && !CountsAsComma(result.back())) {
                PlaceCommaOnNewLine(result, indentation, column);
            }
            result.push_back(text);
            column += text.size();
        } else {
            const std::string start = WithoutLeadingBlanks(text);
            const std::string margin = i == 0 ? "" : indentation;
            result.insert(result.end(), {fits ? "" : "\n", margin, start});
            column = margin.size() + start.size();
        }
    }
    std::string printed;
    for (const std::string& text : result) {
        printed += text;
    }
    return printed;
}

} // namespace recastor
