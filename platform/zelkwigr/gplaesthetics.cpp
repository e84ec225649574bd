#include "platform/zelkwigr/gplaesthetics.h"

namespace recastor {

SmallVector<ShownAesthetic> ShownAesthetics(const ChartFacts& facts) {
    const ElementKinds filled{ElementKind::kBar, ElementKind::kArea,     ElementKind::kPie,
                              ElementKind::kBox, ElementKind::kErrorBar, ElementKind::kHistogram};
    const ElementKinds pointed{ElementKind::kScatter, ElementKind::kLine};
    const ChartDimension* const style = Find(facts.chart.style);
    const struct {
        ShownAesthetic aesthetic;
        bool isShown;
    } rows[] = {
        {{"aesthetic.color.interior", facts.color}, !facts.kinds.HasOnly({ElementKind::kFitLine})},
        {{"aesthetic.texture.pattern.interior", style}, facts.kinds.HasAnyOf(filled)},
        {{"aesthetic.shape.interior", style}, facts.kinds.HasAnyOf(pointed)},
        {{"aesthetic.size", Find(facts.chart.size)}, facts.kinds.HasAnyOf(pointed)},
    };
    SmallVector<ShownAesthetic> shown;
    for (const auto& row : rows) {
        if (row.isShown && row.aesthetic.dimension != nullptr) {
            shown.push_back(row.aesthetic);
        }
    }
    return shown;
}

} // namespace recastor
