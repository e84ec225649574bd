/// From the tokens of an IGRAPH command to the chart that it describes.
#pragma once

namespace recastor {

struct ChartModel;
class TokenSequenceBase;

/// Reads a whole command, from its first token to its last, into `chart`, which is new. False when
/// it is not written in the language; `chart` then holds no chart. What the command leaves open
/// stays open. Takes time in proportion to the number of tokens.
bool ParseChart(TokenSequenceBase& tokens, ChartModel& chart);

} // namespace recastor
