#include "archive/tree/outcomerecorder.h"

#include "archive/picture/skeletonofctables.h"
#include "archive/picture/skeletonoftree.h"
#include "ctables/recastor/printcommand.h"
#include "platform/zelkwigr/igraphspec.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>

namespace recastor {

namespace {

constexpr std::array<std::string_view, 2> kConvertedWords{"TABLES", "IGRAPH"};

/// The command as it is written in a file: with its period.
std::string AsWritten(std::string_view text) {
    std::ostringstream written;
    PrintCommand(std::string(text), written, 0);
    std::string result = written.str();
    while (result.ends_with('\n') || result.ends_with('\r')) {
        result.pop_back();
    }
    return result;
}

std::int64_t LastLine(std::string_view text, std::int64_t firstLine) {
    const auto lines = std::count(text.begin(), text.end(), '\n');
    return firstLine + std::max<std::int64_t>(lines - 1, 0);
}

bool BeginsWithWord(std::string_view line, std::string_view upperWord) {
    if (line.size() < upperWord.size()) {
        return false;
    }
    const auto sameLetter = [](char upper, char c) {
        return upper == (c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    };
    return std::equal(upperWord.begin(), upperWord.end(), line.begin(), sameLetter) &&
           (line.size() == upperWord.size() ||
            std::string_view(" \t\r/").find(line[upperWord.size()]) != std::string_view::npos);
}

/// Converters say why there is no chart in the form of a comment command.
std::string WithoutCommentSign(const std::string& text) {
    return text.substr(std::min(text.find_first_not_of("* "), text.size()));
}

} // namespace

void OutcomeRecorder::OnCommand(ReportedKind kind, std::int64_t firstLine, std::string_view text) {
    m_current = CommandOutcome();
    m_current.kind = kind;
    m_current.firstLine = firstLine;
    m_current.lastLine = LastLine(text, firstLine);
    m_current.missedLines = SwallowedLines(text, firstLine);
    if (!IsConvertible(kind)) {
        ++m_outcome.copied;
    }
    m_recorded = IsConvertible(kind) || !m_current.missedLines.empty();
    if (m_recorded) {
        m_outcome.commands.push_back(m_current);
        m_outcome.commands.back().oldText = m_shower.Shown(AsWritten(text));
    }
}

void OutcomeRecorder::OnTree(const TbTrParseNode& root) {
    Draw(&CommandOutcome::oldPicture,
         [&] { return PictureOfTables(SkeletonOfTree(root), Decoder()); });
}

void OutcomeRecorder::OnChart(const iGraphSpec& spec) {
    Draw(&CommandOutcome::chartSketch, [&] { return SketchOfChart(spec.Chart(), Decoder()); });
}

void OutcomeRecorder::OnConverted(std::string_view text, const std::vector<std::string>& warnings) {
    CommandOutcome& command = m_outcome.commands.back();
    const std::string written = AsWritten(text);
    command.newText = m_shower.Shown(written);
    if (command.kind == ReportedKind::kTables) {
        Draw(&CommandOutcome::newPicture,
             [&] { return PictureOfTables(SkeletonOfCtables(written), Decoder()); });
    }
    for (const std::string& warning : warnings) {
        command.warnings.push_back(m_shower.Shown(warning));
    }
}

void OutcomeRecorder::OnNotConverted(const ConversionError& error) {
    m_outcome.commands.back().error = Shown(error);
    m_outcome.commands.back().error->text = WithoutCommentSign(Shown(error).text);
}

/// The error is that of the command last told of, or of text behind it that was not gathered into
/// a command.
void OutcomeRecorder::OnEnd(const ConversionError& error) {
    const bool inCurrent = m_current.firstLine > 0 && error.line <= m_current.lastLine;
    if (!inCurrent) {
        m_current = CommandOutcome();
        m_current.firstLine = error.line;
        m_current.lastLine = error.line;
    }
    if (!inCurrent || !m_recorded) {
        m_outcome.commands.push_back(m_current);
    }
    m_outcome.commands.back().error = Shown(error);
}

/// A command whose form the pictures do not know goes without one: it is converted all the same.
void OutcomeRecorder::Draw(std::string CommandOutcome::*picture,
                           const std::function<std::string()>& draw) {
    if (m_pictures == Pictures::kNone) {
        return;
    }
    try {
        m_outcome.commands.back().*picture = draw();
    } catch (const std::invalid_argument&) {
        (m_outcome.commands.back().*picture).clear();
    }
}

TextDecoder OutcomeRecorder::Decoder() const {
    return [this](std::string_view text) { return m_shower.Shown(text); };
}

ConversionError OutcomeRecorder::Shown(const ConversionError& error) const {
    return {error.line, error.column, m_shower.Shown(error.text)};
}

std::vector<std::int64_t> SwallowedLines(std::string_view text, std::int64_t firstLine) {
    std::vector<std::int64_t> lines;
    std::int64_t number = firstLine;
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        text.remove_prefix(end + 1);
        ++number;
        std::string_view line = text.substr(0, text.find('\n'));
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        if (std::any_of(kConvertedWords.begin(), kConvertedWords.end(),
                        [&](std::string_view word) { return BeginsWithWord(line, word); })) {
            lines.push_back(number);
        }
    }
    return lines;
}

} // namespace recastor
