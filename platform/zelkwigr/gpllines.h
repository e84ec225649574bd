/// The groups of lines of a GPL block, in the order of the block. Each function appends its lines
/// to `text` and appends nothing when it has nothing to say.
#pragma once

#include "platform/zelkwigr/gplchart.h"

#include <string>

namespace recastor {

/// SOURCE, DATA and TRANS: the variables.
void AppendDataLines(const GplChart& chart, std::string& text);
/// COORD: how the dimensions are laid out on the page.
void AppendCoordinateLine(const GplChart& chart, std::string& text);
/// GUIDE: axes, legends, texts, reference lines.
void AppendGuideLines(const GplChart& chart, std::string& text);
/// SCALE: order of categories and ends of axes.
void AppendScaleLines(const GplChart& chart, std::string& text);
/// ELEMENT: the layers.
void AppendElementLines(const GplChart& chart, std::string& text);

/// True when panels of one variable are wrapped over several rows.
bool WrapsPanels(const ChartFacts& facts);

} // namespace recastor
