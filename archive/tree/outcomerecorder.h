/// Writes down what the driver's loop tells about the commands of one file.
#pragma once

#include "archive/outcome/fileoutcome.h"
#include "archive/outcome/showntext.h"
#include "ctables/recastor/conversionlistener.h"

namespace recastor {

/// Fills the commands of an outcome that it does not own.
class OutcomeRecorder : public ConversionListener {
public:
    /// `shower` knows the encoding of the file's text.
    OutcomeRecorder(FileOutcome& outcome, const TextShower& shower) :
        m_outcome(outcome), m_shower(shower) {}

    void OnCommand(ReportedKind kind, std::int64_t firstLine, std::string_view text) override;
    void OnConverted(std::string_view text, const std::vector<std::string>& warnings) override;
    void OnNotConverted(const ConversionError& error) override;
    void OnEnd(const ConversionError& error) override;

private:
    ConversionError Shown(const ConversionError& error) const;

    FileOutcome& m_outcome;
    const TextShower& m_shower;
    CommandOutcome m_current; ///< the command last told of, as far as its lines go
    bool m_recorded = false;  ///< whether it is the last of the outcome's commands
};

/// The lines of `text` behind its first that begin with the word TABLES or IGRAPH, in any case and
/// behind blanks: in a command of another kind they may be commands that it swallowed. `firstLine`
/// is the number of the text's first line.
std::vector<std::int64_t> SwallowedLines(std::string_view text, std::int64_t firstLine);

} // namespace recastor
