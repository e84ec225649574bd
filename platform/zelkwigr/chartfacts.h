/// What follows from a chart: everything that more than one line of its GPL text depends on.
#pragma once

#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkwigr/chartquestions.h"

#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace recastor {

/// The kinds of elements, in the order of ChartElement's alternatives.
enum class ElementKind : std::size_t {
    kScatter,
    kBar,
    kArea,
    kLine,
    kPie,
    kBox,
    kErrorBar,
    kHistogram,
    kFitLine,
};

ElementKind KindOf(const ChartElement& element);
inline ElementKind KindOf(const ChartElement* element) {
    return KindOf(*element);
}

/// A set of kinds.
class ElementKinds {
public:
    ElementKinds() = default;
    ElementKinds(std::initializer_list<ElementKind> kinds);

    void Add(ElementKind kind) { m_kinds.set(static_cast<std::size_t>(kind)); }
    bool Has(ElementKind kind) const { return m_kinds.test(static_cast<std::size_t>(kind)); }
    bool HasAnyOf(const ElementKinds& others) const { return (m_kinds & others.m_kinds).any(); }
    bool HasOnly(const ElementKinds& others) const { return (m_kinds & ~others.m_kinds).none(); }

private:
    std::bitset<std::variant_size_v<ChartElement>> m_kinds;
};

/// How the dimensions of a chart are laid out.
enum class ChartForm { kPlain, kClustered, kThree, kPie };

/// The numbers that a form gives to its dimensions; 0 for one that it has not.
struct DimensionNumbers {
    int measure;
    int x1;
    int x2;
    int cluster;
    int firstPanel;
};

/// Elements that belong to a chart.
using ElementList = SmallVector<const ChartElement*>;

/// The facts of one chart, which must outlive them.
struct ChartFacts {
    explicit ChartFacts(const ChartModel& model);

    const ChartModel& chart;
    ElementList drawn;  ///< the elements that are drawn, in order
    ElementKinds kinds; ///< theirs
    ChartForm form = ChartForm::kPlain;
    DimensionNumbers dimensions{};

    const ChartDimension* y;                 ///< Y; counts when there is none
    const ChartVariable* measure = nullptr;  ///< of Y, or of the pie
    const ChartDimension* color;             ///< COLOR, or the X1 that a pie slices by; may be null
    const ChartDimension* slice = nullptr;   ///< what a pie slices by
    const ChartDimension* cluster = nullptr; ///< what bars and boxes stand beside each other by
    const ChartDimension* split = nullptr;   ///< what a fit line is split by
    bool grouped = false;                    ///< there is a categorical COLOR or STYLE
    bool stacked = false;                    ///< one of them stacks bars

    /// True for the bars, or areas, that are drawn as percentages of their stack.
    bool IsNormalized(ElementKind kind) const;

    /// Every dimension but the measure's, ascending.
    std::vector<int> DimensionsBesideMeasure() const;
    std::vector<int> PanelDimensions() const;
};

/// True for a dimension that is there and categorical.
bool IsCategorical(const ChartDimension* dimension);

/// Variables are the same when their names are, without regard to the case of ASCII letters.
bool IsSameVariable(const ChartVariable& left, const ChartVariable& right);

/// The variable's name in the data: that of $case is `$CASENUM`.
const std::string& DataName(const ChartVariable& variable);

/// The dimension, or null.
inline const ChartDimension* Find(const std::optional<ChartDimension>& dimension) {
    return dimension ? &*dimension : nullptr;
}

} // namespace recastor
