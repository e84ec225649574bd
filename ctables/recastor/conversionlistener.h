/// What the driver's loop tells about each command while it converts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

class iGraphSpec;
class TbTrParseNode;

/// What a command is to the converter: the first two are converted, the others are copied.
enum class ReportedKind { kTables, kIgraph, kComment, kDocument, kData, kOther };

/// Why a command, or the rest of a file, is not converted.
struct ConversionError {
    std::int64_t line; ///< 1-based line of the input file; 0 when the error has no place
    /// Of the character in its line, 1-based, however the message in the output counts; 0 without a
    /// place. Of an error that ends a file it is as the message counts: behind what is wrong, and
    /// at times from 0 on the later lines of a command.
    int column;
    std::string text; ///< the reason, of the message catalogue
};

/// Is told about the commands of one file in their order. This one is silent; a derived one
/// overrides what it wants to hear. Nothing is put together or copied for the telling: views and
/// references are valid during the call only.
class ConversionListener {
public:
    ConversionListener() = default;
    virtual ~ConversionListener() = default;
    ConversionListener(const ConversionListener&) = delete;
    ConversionListener& operator=(const ConversionListener&) = delete;

    /// A command begins. `text` holds its lines, each with a line feed, from the input's line
    /// `firstLine` on, without the period that ends it.
    virtual void OnCommand(ReportedKind /*kind*/, std::int64_t /*firstLine*/,
                           std::string_view /*text*/) {}
    /// The tree of the TABLES command, before it is translated.
    virtual void OnTree(const TbTrParseNode& /*root*/) {}
    /// The chart of the IGRAPH command, complete and valid.
    virtual void OnChart(const iGraphSpec& /*spec*/) {}
    /// The command was converted. `text` is its new form without the period that ends it.
    virtual void OnConverted(std::string_view /*text*/,
                             const std::vector<std::string>& /*warnings*/) {}
    /// The command was not converted; the error stands in the place of its new form.
    virtual void OnNotConverted(const ConversionError& /*error*/) {}
    /// The text cannot be split into tokens here, in the last command or in one that was not told
    /// of. What follows is neither converted nor copied.
    virtual void OnEnd(const ConversionError& /*error*/) {}
};

/// Hears nothing.
ConversionListener& SilentListener();

} // namespace recastor
