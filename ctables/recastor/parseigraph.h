/// The glue between an IGRAPH command and the chart services.
#pragma once

#include "ctables/recastor/conversionlistener.h"

#include <cstdint>
#include <iosfwd>

namespace recastor {

class iGraphSpec;
class ZELKTokenSequence;

/// Converts one IGRAPH command, whose tokens it takes over, and writes the GGRAPH command, or the
/// reason why there is none, between two comment lines. One line on standard output tells how it
/// went. `lineOffset` is there for symmetry with ParseTables.
void ParseIgraph(ZELKTokenSequence* tokens, std::ostream& output, std::int64_t lineOffset,
                 ConversionListener& listener = SilentListener());

/// Labels the graph's output: with its view name, else as an interactive graph.
void LabelOutput(iGraphSpec& spec);

} // namespace recastor
