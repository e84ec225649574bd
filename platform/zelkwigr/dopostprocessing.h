/// Finds out which inline templates a graph needs beside its GPL.
#pragma once

#include "platform/zelkwigr/igraphspec.h"
#include "platform/zelkwigr/opaquetypes.h"

#include <string>
#include <vector>

namespace recastor {

class doPostProcessing {
public:
    doPostProcessing(XDocument* document, FacSTDictionary* dictionary, const ZELK_DataSource* data);

    /// Looks at a graph that has a GPL form; what an earlier one needed is forgotten.
    void process(const iGraphSpec& spec);

    /// Those of the graph processed last.
    std::vector<std::string> getImmediateTemplates() const { return m_templates; }

private:
    std::vector<std::string> m_templates;
};

} // namespace recastor
