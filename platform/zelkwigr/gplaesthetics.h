/// The aesthetics that have a legend and a scale.
#pragma once

#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkwigr/chartfacts.h"

namespace recastor {

/// A dimension of the chart and the aesthetic that shows it.
struct ShownAesthetic {
    const char* name; ///< `aesthetic.size`
    const ChartDimension* dimension;
};

/// Those of the chart, in the order of their lines.
SmallVector<ShownAesthetic> ShownAesthetics(const ChartFacts& facts);

} // namespace recastor
