/// Writes the GPL of a graph.
#pragma once

#include "platform/zelkwigr/igraphspec.h"
#include "platform/zelkwigr/opaquetypes.h"

#include <string>

namespace recastor {

/// The lines of the block between BEGIN GPL and END GPL: it begins and ends with a line break.
/// The chart is one that has a GPL form, `variables` are its own.
std::string WriteGpl(const ChartFacts& facts, const GplVariables& variables);

class gplGenerator {
public:
    /// The graph must outlive the generator.
    gplGenerator(iGraphSpec& spec, const ZELK_DataSource* data, FacSTDictionary* dictionary);

    /// Empty when the graph has an error message.
    std::string getGPL() const;

private:
    const iGraphSpec& m_spec;
};

} // namespace recastor
