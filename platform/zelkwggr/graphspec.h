/// The output graph's own properties.
#pragma once

#include <string>

namespace recastor {

class GraphSpec {
public:
    /// The name under which the output lists the graph.
    void SetOutputLabel(const std::string& label);
    const std::string& OutputLabel() const { return m_outputLabel; }

private:
    std::string m_outputLabel;
};

} // namespace recastor
