/// A parsed graph, as those see it who write the command around its GPL.
#pragma once

#include "platform/zelkwggr/graphspec.h"
#include "platform/zelkwigr/chartfacts.h"
#include "platform/zelkwigr/chartmodel.h"
#include "platform/zelkwigr/gplnames.h"

#include <memory>
#include <string>
#include <vector>

namespace recastor {

class iGraphSpec {
public:
    /// `chart` is there and valid, with its defaults filled in.
    explicit iGraphSpec(std::unique_ptr<const ChartModel> chart);
    iGraphSpec(const iGraphSpec&) = delete;
    iGraphSpec& operator=(const iGraphSpec&) = delete;

    /// The graph's own properties; they belong to this object.
    GraphSpec* getGGraphSpec() { return &m_graphSpec; }

    /// The chart's title in lists; empty when it has none.
    const std::string& getViewName() const { return m_chart->viewName; }
    /// The variables that the data must hold, one blank between.
    std::string getUsedVarName() const { return m_variables.DataNames(); }
    const std::vector<std::string>& getChartLooks() const { return m_chart->chartLooks; }
    /// Why there is no GPL for this chart: a comment command. Empty when there is.
    const std::string& errorMessage() const { return m_errorMessage; }

    const ChartModel& Chart() const { return *m_chart; }
    const ChartFacts& Facts() const { return m_facts; }
    /// The variables that the GPL names; none when there is no GPL.
    const GplVariables& Variables() const { return m_variables; }

private:
    std::unique_ptr<const ChartModel> m_chart;
    ChartFacts m_facts{*m_chart};
    GraphSpec m_graphSpec;
    std::string m_errorMessage;
    GplVariables m_variables;
};

} // namespace recastor
