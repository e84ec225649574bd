/// A chart on its way to GPL: its facts and the names and phrases that many lines share.
#pragma once

#include "platform/zelkwigr/chartfacts.h"
#include "platform/zelkwigr/gplnames.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace recastor {

/// The facts of a chart that has a GPL form, with the names of its variables; both outlive what is
/// made of them.
class GplChart {
public:
    GplChart(const ChartFacts& facts, const GplVariables& variables);

    const ChartFacts& Facts() const { return m_facts; }
    const GplVariables& Variables() const { return m_variables; }

    /// The computed variables in their order: name and expression.
    const std::vector<std::pair<std::string, std::string>>& Computed() const { return m_computed; }

    /// The algebra of a measure: `x*y`, `x*y*panel`, ...
    std::string Algebra(std::string_view measure) const;
    /// The algebra of counts: `x`, `x*1*panel`, ...
    const std::string& CountAlgebra() const { return m_countAlgebra; }
    /// The measure's GPL name; empty for counts.
    const std::string& Measure() const { return m_measure; }

    /// What the function is of: the measure, or the variable computed from it.
    const std::string& Operand(const SummaryFunction& function) const;

private:
    void NameMeasure();
    void LayOutAlgebra();
    void Compute();

    const ChartFacts& m_facts;
    const GplVariables& m_variables;
    std::string m_measure;
    std::string m_beforeMeasure; ///< the algebra's factors, each with its asterisk
    std::string m_behindMeasure;
    std::string m_countAlgebra;
    std::vector<std::pair<std::string, std::string>> m_computed;
    std::unordered_map<std::string, std::size_t> m_computedPlaces; ///< by expression
};

/// The function of an element that has one: what it was given, else the mean.
SummaryFunction FunctionOf(const std::optional<SummaryFunction>& function);

} // namespace recastor
