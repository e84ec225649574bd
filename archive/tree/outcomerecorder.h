/// Writes down what the driver's loop tells about the commands of one file.
#pragma once

#include "archive/outcome/fileoutcome.h"
#include "archive/outcome/showntext.h"
#include "archive/picture/picturejson.h"
#include "ctables/recastor/conversionlistener.h"

#include <functional>

namespace recastor {

/// Whether commands are to be pictured, which takes as long as to convert them.
enum class Pictures { kNone, kDrawn };

/// Fills the commands of an outcome that it does not own.
class OutcomeRecorder : public ConversionListener {
public:
    /// `shower` knows the encoding of the file's text.
    OutcomeRecorder(FileOutcome& outcome, const TextShower& shower,
                    Pictures pictures = Pictures::kNone) :
        m_outcome(outcome),
        m_shower(shower), m_pictures(pictures) {}

    void OnCommand(ReportedKind kind, std::int64_t firstLine, std::string_view text) override;
    void OnTree(const TbTrParseNode& root) override;
    void OnChart(const iGraphSpec& spec) override;
    void OnConverted(std::string_view text, const std::vector<std::string>& warnings) override;
    void OnNotConverted(const ConversionError& error) override;
    void OnEnd(const ConversionError& error) override;

private:
    ConversionError Shown(const ConversionError& error) const;
    void Draw(std::string CommandOutcome::*picture, const std::function<std::string()>& draw);
    TextDecoder Decoder() const;

    FileOutcome& m_outcome;
    const TextShower& m_shower;
    Pictures m_pictures;
    CommandOutcome m_current; ///< the command last told of, as far as its lines go
    bool m_recorded = false;  ///< whether it is the last of the outcome's commands
};

/// The lines of `text` behind its first that begin with the word TABLES or IGRAPH, in any case and
/// behind blanks: they may be commands that this one swallowed. `firstLine`
/// is the number of the text's first line.
std::vector<std::int64_t> SwallowedLines(std::string_view text, std::int64_t firstLine);

} // namespace recastor
