/// A parsed graph, as those see it who write the command around its GPL.
#pragma once

#include "platform/zelkwggr/graphspec.h"
#include "platform/zelkwigr/chartmodel.h"

#include <string>
#include <vector>

namespace recastor {

class iGraphSpec {
public:
    iGraphSpec() = default;
    /// `chart` is valid, with its defaults filled in.
    explicit iGraphSpec(ChartModel chart);

    /// The graph's own properties; they belong to this object.
    GraphSpec* getGGraphSpec() { return &m_graphSpec; }

    /// The chart's title in lists; empty when it has none.
    std::string getViewName() const { return m_chart.viewName; }
    /// The variables that the data must hold, one blank between.
    std::string getUsedVarName() const { return m_usedVarName; }
    std::vector<std::string> getChartLooks() const { return m_chart.chartLooks; }
    /// Why there is no GPL for this chart: a comment command. Empty when there is.
    std::string errorMessage() const { return m_errorMessage; }

    const ChartModel& Chart() const { return m_chart; }

private:
    ChartModel m_chart;
    GraphSpec m_graphSpec;
    std::string m_errorMessage;
    std::string m_usedVarName;
};

} // namespace recastor
